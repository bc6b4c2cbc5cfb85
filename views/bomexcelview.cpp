// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomexcelview.h"

#include "core/bompartsdatabase.h"
#include "host/framework/hostui.h"
#include "views/report/numberformat.h"
#include "views/report/reportlink.h"
#include "views/report/spreadsheet.h"
#include "views/savereport.h"

#include <QFileInfo>

#include <optional>

namespace {

constexpr int categoryColumn = 0;
constexpr int quantityColumn = 1;
constexpr int referencesColumn = 2;
constexpr int firstField = 3;

struct Information
{
    QString label;
    QString value;
};

/// Two of the title block, side by side.
void writeInformation(Spreadsheet &sheet, const Information &left, const Information &right)
{
    sheet.nextRow();
    sheet.text(categoryColumn, left.label, CellLook::Label);
    sheet.text(quantityColumn, left.value, CellLook::Text);
    sheet.text(firstField, right.label, CellLook::Label);
    sheet.text(firstField + 1, right.value, CellLook::Text);
}

void fillRow(Spreadsheet &sheet, int first, int last, CellLook look)
{
    for (int column = first; column <= last; ++column) {
        sheet.text(column, {}, look);
    }
}

} // namespace

BOMExcelView::BOMExcelView(QWidget *parent)
    : BOMView(parent)
{
}

BOMExcelView::~BOMExcelView() = default;

void BOMExcelView::writeOutput()
{
    if (!isValid()) {
        return;
    }
    const QByteArray file = xlsx();
    HostUi &ui = HostUi::current();
    if (!m_problem.isEmpty()) {
        ui.warning(this, tr("Output Failed"), m_problem);
        return;
    }
    const QString path =
        saveReport(this,
                   {tr("Spreadsheet file to save"), database()->defaultOutputPath(QStringLiteral(".xlsx")),
                    tr("Spreadsheets (*.xlsx)")},
                   [&file] { return file; });
    if (!path.isEmpty() && !m_notices.isEmpty()) {
        ui.information(this, tr("Spreadsheet"), m_notices.join(u'\n'));
    }
}

QByteArray BOMExcelView::xlsx()
{
    m_problem.clear();
    m_notices.clear();
    if (!isValid()) {
        return {};
    }
    updateFields();
    removeValueField();
    takeColumns();
    Spreadsheet sheet({documentTitle(), database()->designAuthor(), HostUi::current().now()});
    sheet.beginSheet(tr("Bill Of Materials"));
    writeTitleBlock(sheet);
    writeHeadings(sheet);
    const int headings = sheet.row();
    Block all{headings + 1, headings, true};
    std::vector<double> sums(m_columns.size());
    for (const QString &category : database()->categoryNames()) {
        const Block block = writeCategory(sheet, category);
        all.isComplete = all.isComplete && block.isComplete;
        addToSums(category, sums);
    }
    all.lastRow = sheet.row();
    sheet.freezeRow(headings, lastColumn(), all.lastRow);
    sheet.nextRow();
    writeTotals(sheet, tr("Totals:"), sums, all, true);
    writeNotes(sheet);
    QByteArray file = sheet.bytes();
    m_problem = sheet.problem();
    m_notices = sheet.notices();
    return file;
}

void BOMExcelView::handleBOMDataUpdate() {}

QString BOMExcelView::documentTitle() const
{
    return tr("Bill Of Materials for ") + database()->designTitle();
}

void BOMExcelView::takeColumns()
{
    m_designFolder = QFileInfo(database()->designInfo("FILENAME")).absolutePath();
    m_columns.clear();
    for (const ReportColumn &column : columns()) {
        const QString format = numberFormat(column.field);
        m_columns.push_back({&column, Spreadsheet::holdsFormat(format) ? format : QString()});
    }
}

int BOMExcelView::lastColumn() const
{
    return firstField + int(m_columns.size()) - 1;
}

void BOMExcelView::writeTitleBlock(Spreadsheet &sheet) const
{
    const BOMPartsDatabase &parts = *database();
    sheet.text(categoryColumn, documentTitle(), CellLook::Title);
    writeInformation(sheet, {tr("Design Title"), parts.designTitle()}, {tr("Author"), parts.designAuthor()});
    writeInformation(sheet, {tr("Document Number"), parts.designDocumentNumber()},
                     {tr("Design Created"), parts.designCreated()});
    writeInformation(sheet, {tr("Revision"), parts.designRevision()},
                     {tr("Design Last Modified"), parts.designModified()});
    const QString variant = parts.designVariant();
    writeInformation(sheet, {tr("Total Parts In Design"), {}},
                     {variant.isEmpty() ? QString() : tr("Assembly Variant"), variant});
    sheet.number(quantityColumn, double(parts.parts().size()), CellLook::Text);
}

void BOMExcelView::writeHeadings(Spreadsheet &sheet) const
{
    sheet.nextRow();
    int column = 0;
    for (const QString &heading : columnHeadings(true)) {
        sheet.text(column++, heading, CellLook::Heading);
    }
}

BOMExcelView::Block BOMExcelView::writeCategory(Spreadsheet &sheet, const QString &category) const
{
    sheet.nextRow();
    const QString count = QString::number(database()->partCount(category));
    sheet.text(categoryColumn, tr("%1 %2", "BOM category headings in spreadsheets").arg(count, category),
               CellLook::Section);
    fillRow(sheet, categoryColumn + 1, lastColumn(), CellLook::Section);
    const ReportLines report = database()->categories().reportLines(category, true);
    Block block;
    block.firstRow = sheet.row() + 1;
    block.isComplete = report.replaced.isEmpty();
    for (const BomLine line : report.lines) {
        writeLine(sheet, category, line);
    }
    block.lastRow = sheet.row();
    std::vector<double> sums(m_columns.size());
    addToSums(category, sums);
    sheet.nextRow();
    writeTotals(sheet, tr("Sub-totals:"), sums, block, false);
    return block;
}

void BOMExcelView::writeLine(Spreadsheet &sheet, const QString &category, BomLine line) const
{
    sheet.nextRow();
    sheet.text(categoryColumn, category, CellLook::Cell);
    sheet.number(quantityColumn, double(line.size()), CellLook::Quantity);
    for (int i = 0; i < int(m_columns.size()); ++i) {
        writeValue(sheet, i, *line.front());
    }
    writeReferences(sheet, database()->categories().formatReferences(line, UnlimitedWidth, 1));
}

void BOMExcelView::writeValue(Spreadsheet &sheet, int column, const Part &part) const
{
    const auto &[report, format] = m_columns[size_t(column)];
    const int at = firstField + column;
    const auto number =
        format.isEmpty() ? std::nullopt : shownNumber(cellText(part, *report, false), *report);
    const QString text = number ? QString() : cellText(part, *report, true);
    CellLook look = CellLook::Cell;
    if (report->field.enableLinks && (number || !text.isEmpty())) {
        const QUrl target =
            linkTarget(database()->link(part.reference(), report->field.propertyName), m_designFolder);
        if (!target.isEmpty() && sheet.link(at, target)) {
            look = CellLook::Link;
        }
    }
    if (number) {
        sheet.number(at, *number, look, format);
    } else {
        // Old programs do not show long texts in this format.
        constexpr qsizetype longestTyped = 255;
        const bool isTyped = !report->isNumeric && text.size() <= longestTyped;
        sheet.text(at, text, look, isTyped ? Spreadsheet::textFormat() : QString());
    }
}

/// What one cell cannot hold goes on in rows below, whose quantity is empty.
void BOMExcelView::writeReferences(Spreadsheet &sheet, const QString &references) const
{
    QStringView rest = references;
    while (rest.size() > Spreadsheet::MostCharacters) {
        const qsizetype comma = rest.first(Spreadsheet::MostCharacters).lastIndexOf(u',');
        if (comma < 0) {
            break;
        }
        sheet.text(referencesColumn, rest.first(comma + 1).toString(), CellLook::Cell);
        rest = rest.mid(comma + 1);
        sheet.nextRow();
    }
    sheet.text(referencesColumn, rest.toString(), CellLook::Cell);
}

void BOMExcelView::writeTotals(Spreadsheet &sheet, const QString &label, const std::vector<double> &sums,
                               const Block &block, bool isGrand) const
{
    const CellLook look = isGrand ? CellLook::Total : CellLook::SubTotal;
    sheet.text(categoryColumn, label, look);
    fillRow(sheet, quantityColumn, lastColumn(), look);
    const QStringList texts = totalsRow(sums);
    const QString quantities =
        Spreadsheet::range(block.firstRow, quantityColumn, block.lastRow, quantityColumn);
    for (int i = 0; i < int(m_columns.size()); ++i) {
        const auto &[report, format] = m_columns[size_t(i)];
        const int at = firstField + i;
        if (!report->field.generateTotals) {
            continue;
        }
        if (format.isEmpty()) {
            sheet.text(at, texts.at(i), look);
        } else if (report->isNumeric && block.isComplete && block.firstRow <= block.lastRow) {
            const QString costs = Spreadsheet::range(block.firstRow, at, block.lastRow, at);
            sheet.formula(at, QStringLiteral("=SUMPRODUCT(") + quantities + u',' + costs + u')',
                          sums[size_t(i)], look, format);
        } else {
            sheet.number(at, sums[size_t(i)], look, format);
        }
    }
}

void BOMExcelView::writeNotes(Spreadsheet &sheet) const
{
    const QString notes = database()->notes();
    if (notes.trimmed().isEmpty()) {
        return;
    }
    sheet.beginSheet(tr("Notes"));
    sheet.text(0, tr("Notes"), CellLook::Title);
    for (const QString &line : notes.split(u'\n')) {
        sheet.nextRow();
        sheet.text(0, line, CellLook::Text);
    }
}
