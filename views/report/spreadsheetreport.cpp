// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/spreadsheetreport.h"

#include "core/part.h"
#include "host/framework/hostui.h"
#include "richtext/css/pagegeometry.h"
#include "richtext/css/stylesheet.h"
#include "richtext/xhtml/links.h"
#include "templates/bomtemplate.h"
#include "views/report/partssheet.h"
#include "views/report/report.h"
#include "views/report/spreadsheet.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <vector>

namespace {

constexpr int categoryColumn = 0;
constexpr int quantityColumn = 1;
constexpr int referencesColumn = 2;
constexpr int firstField = 3;

QString titleOf(const ReportDesign &design)
{
    return QStringLiteral("Bill Of Materials for ") + design.title;
}

/// In double quotes; those of the text itself stand between, behind a backslash.
QString literal(const QString &text)
{
    QStringList pieces = text.split(u'"');
    for (QString &piece : pieces) {
        if (!piece.isEmpty()) {
            piece = u'"' + piece + u'"';
        }
    }
    return pieces.join(QLatin1String("\\\""));
}

/// The number format of the field, in which a 0 is not shown; as it is where quotes forbid another section.
QString withoutZero(const QString &format, const BOMField &field)
{
    if (format.isEmpty() || (field.prefix + field.suffix).contains(u'"')) {
        return format;
    }
    const QString hidden =
        format + (field.prefix.isEmpty() ? QLatin1String(";-") + format : QString()) + u';';
    return Spreadsheet::holdsFormat(hidden) ? hidden : format;
}

/// As the template's style sheet says.
SheetPaper paperOf(const Report &report)
{
    const QPageLayout layout = pageLayout(StyleSheet(report.settings().css()));
    constexpr std::pair<QPageSize::PageSizeId, int> papers[] = {{QPageSize::Letter, 1},
                                                                {QPageSize::Tabloid, 3},
                                                                {QPageSize::Legal, 5},
                                                                {QPageSize::A3, 8},
                                                                {QPageSize::A5, 11}};
    SheetPaper paper;
    for (const auto &[size, name] : papers) {
        paper.paper = layout.pageSize().id() == size ? name : paper.paper;
    }
    paper.isLandscape = layout.orientation() == QPageLayout::Landscape;
    paper.foot = subjectOf(report.design());
    return paper;
}

/// The cell of a part, in messages.
QString nameOf(const Part &part, const ReportColumn &column)
{
    return part.reference() + QLatin1String(" (") + column.field.fieldName + u')';
}

struct Information
{
    QString label;
    QString value;
};

/// Writes the rows of a report into a spreadsheet, from the top down.
class SpreadsheetWriter final
{
public:
    SpreadsheetWriter(const Report &report, Spreadsheet &sheet);
    void write();
    /// Whether there are more parts than a sheet of their own could hold.
    [[nodiscard]] bool lacksParts() const { return m_lacksParts; }

private:
    struct Column
    {
        const ReportColumn *report = nullptr;
        /// Of the numbers; empty where no format does and all cells are texts.
        QString format;
    };
    /// Where the lines of one category stand, or those of all.
    struct Block
    {
        /// Empty for all.
        QString category;
        int firstRow = 0;
        int lastRow = -1;
        /// Whether the rows hold all that the totals count.
        bool isComplete = true;
    };

    /// Whether any column has totals, and for one category, whether any of its parts fills such a column.
    [[nodiscard]] bool hasTotals() const;
    [[nodiscard]] bool hasTotals(const QString &category) const;
    [[nodiscard]] bool isFilled(const Block &block, const ReportColumn &column) const;
    [[nodiscard]] bool hasNumbersAt(int column) const
    {
        return m_columns[size_t(column)].report->hasNumbers();
    }
    [[nodiscard]] int lastColumn() const { return firstField + int(m_columns.size()) - 1; }
    void fillRow(int first, CellLook look);
    void writeTitleBlock();
    void writeInformation(const Information &left, const Information &right);
    void writeHeadings();
    Block writeCategory(const QString &category);
    void writeLine(const QString &category, BomLine line);
    void writeQuantity(const Report::Quantity &quantity, CellLook look);
    void writeValue(int column, const Part &part);
    void writeReferences(const QString &references);
    void writeTotals(const QString &label, const Report::Totals &totals, const Block &block, CellLook look);
    void writeEmptyColumns();
    void writeNotes();

    const Report &m_report;
    bool m_isForReading;
    QStringList m_emptyColumns;
    Spreadsheet &m_sheet;
    ReportDesign m_design;
    QString m_designFolder;
    std::vector<Column> m_columns;
    bool m_lacksParts = false;
};

SpreadsheetWriter::SpreadsheetWriter(const Report &report, Spreadsheet &sheet)
    : m_report(report)
    , m_isForReading(report.settings().layoutForReading())
    , m_emptyColumns(report.forReading().emptyColumns())
    , m_sheet(sheet)
    , m_design(report.design())
    , m_designFolder(QFileInfo(m_design.file).absolutePath())
{
    for (const ReportColumn &column : report.columns()) {
        const QString format = numberFormat(column.field);
        m_columns.push_back({&column, Spreadsheet::holdsFormat(format) ? format : QString()});
    }
}

void SpreadsheetWriter::write()
{
    m_sheet.beginSheet(QStringLiteral("Bill Of Materials"));
    if (m_isForReading) {
        m_sheet.setPaper(paperOf(m_report));
    }
    writeTitleBlock();
    writeHeadings();
    const int headings = m_sheet.row();
    Block all{{}, headings + 1, headings, true};
    for (const QString &category : m_report.categories()) {
        const Block block = writeCategory(category);
        all.isComplete = all.isComplete && block.isComplete;
    }
    all.lastRow = m_sheet.row();
    m_sheet.freezeRow(headings, lastColumn(), all.lastRow);
    m_sheet.nextRow();
    if (!m_isForReading || hasTotals()) {
        writeTotals(QStringLiteral("Totals:"), m_report.grandTotals(), all, CellLook::Total);
    }
    writeEmptyColumns();
    m_lacksParts = !writePartsSheet(m_report, m_sheet);
    writeNotes();
}

bool SpreadsheetWriter::hasTotals() const
{
    return std::any_of(m_columns.begin(), m_columns.end(),
                       [](const Column &column) { return column.report->field.generateTotals; });
}

bool SpreadsheetWriter::hasTotals(const QString &category) const
{
    return std::any_of(m_columns.begin(), m_columns.end(), [&](const Column &column) {
        return column.report->field.generateTotals && m_report.isFilled(category, *column.report);
    });
}

bool SpreadsheetWriter::isFilled(const Block &block, const ReportColumn &column) const
{
    return block.category.isEmpty() ? !m_emptyColumns.contains(column.field.fieldName)
                                    : m_report.isFilled(block.category, column);
}

void SpreadsheetWriter::fillRow(int first, CellLook look)
{
    for (int column = first; column <= lastColumn(); ++column) {
        m_sheet.text(column, {}, look);
    }
}

void SpreadsheetWriter::writeTitleBlock()
{
    m_sheet.text(categoryColumn, titleOf(m_design), CellLook::Title);
    writeInformation({QStringLiteral("Design Title"), m_design.title},
                     {QStringLiteral("Author"), m_design.author});
    writeInformation({QStringLiteral("Document Number"), m_design.documentNumber},
                     {QStringLiteral("Design Created"), m_design.created});
    writeInformation({QStringLiteral("Revision"), m_design.revision},
                     {QStringLiteral("Design Last Modified"), m_design.modified});
    const QString variantLabel = m_design.variant.isEmpty() ? QString() : QStringLiteral("Assembly Variant");
    writeInformation({QStringLiteral("Total Parts In Design"), {}}, {variantLabel, m_design.variant});
    writeQuantity(m_report.partCount(), CellLook::Text);
}

/// Two of the title block, side by side.
void SpreadsheetWriter::writeInformation(const Information &left, const Information &right)
{
    m_sheet.nextRow();
    m_sheet.text(categoryColumn, left.label, CellLook::Label);
    m_sheet.text(quantityColumn, left.value, CellLook::Text);
    m_sheet.text(firstField, right.label, CellLook::Label);
    m_sheet.text(firstField + 1, right.value, CellLook::Text);
}

void SpreadsheetWriter::writeHeadings()
{
    m_sheet.nextRow();
    int column = 0;
    for (const QString &heading : m_report.headings(true)) {
        const bool hasNumbers =
            column < firstField ? column == quantityColumn : hasNumbersAt(column - firstField);
        m_sheet.text(column++, heading,
                     hasNumbers && m_isForReading ? CellLook::NumberHeading : CellLook::Heading);
    }
}

SpreadsheetWriter::Block SpreadsheetWriter::writeCategory(const QString &category)
{
    m_sheet.nextRow();
    const QString count = Report::text(m_report.partCount(category));
    m_sheet.text(categoryColumn, QStringLiteral("%1 %2").arg(count, category), CellLook::Section);
    fillRow(categoryColumn + 1, CellLook::Section);
    const ReportLines listed = m_report.lines(category, true);
    Block block;
    block.category = category;
    block.firstRow = m_sheet.row() + 1;
    block.isComplete = listed.replaced.isEmpty();
    for (const BomLine line : listed.lines) {
        writeLine(category, line);
    }
    block.lastRow = m_sheet.row();
    if (!m_isForReading || hasTotals(category)) {
        m_sheet.nextRow();
        writeTotals(QStringLiteral("Sub-totals:"), m_report.subTotals(category), block, CellLook::SubTotal);
    }
    return block;
}

void SpreadsheetWriter::writeLine(const QString &category, BomLine line)
{
    m_sheet.nextRow();
    m_sheet.text(categoryColumn, category, CellLook::Cell);
    writeQuantity(Report::quantity(line), m_isForReading ? CellLook::RightQuantity : CellLook::Quantity);
    for (int i = 0; i < int(m_columns.size()); ++i) {
        writeValue(i, *line.front());
    }
    QString references = m_report.references(line);
    // Spreadsheets wrap at blanks only.
    writeReferences(m_isForReading ? references.replace(u',', QLatin1String(", ")) : references);
}

/// A number, whose format tells of the parts that are not fitted: formulas count the number.
void SpreadsheetWriter::writeQuantity(const Report::Quantity &quantity, CellLook look)
{
    const QString notFitted = Report::notFittedText(quantity);
    m_sheet.number(quantityColumn, double(quantity.counted), look,
                   notFitted.isEmpty() ? QString() : u'0' + literal(notFitted));
}

void SpreadsheetWriter::writeValue(int column, const Part &part)
{
    const auto &[report, format] = m_columns[size_t(column)];
    const int at = firstField + column;
    const auto number = format.isEmpty() ? std::nullopt : m_report.number(part, *report);
    const QString text = number ? QString() : m_report.text(part, *report);
    CellLook look = m_isForReading && report->hasNumbers() ? CellLook::Number : CellLook::Cell;
    if (report->field.enableLinks && (number || !text.isEmpty())) {
        const QUrl target = linkTarget(m_report.link(part, *report), m_designFolder);
        if (!target.isEmpty() && m_sheet.link(at, target, nameOf(part, *report))) {
            look = CellLook::Link;
        }
    }
    if (number) {
        m_sheet.number(at, *number, look, format);
    } else {
        m_sheet.text(at, text, look, report->isNumeric ? QString() : Spreadsheet::formatOf(text));
    }
}

/// What one cell cannot hold goes on in rows below, whose quantity is empty.
void SpreadsheetWriter::writeReferences(const QString &references)
{
    QStringView rest = references;
    while (rest.size() > Spreadsheet::MostCharacters) {
        const qsizetype comma = rest.first(Spreadsheet::MostCharacters).lastIndexOf(u',');
        if (comma < 0) {
            break;
        }
        m_sheet.text(referencesColumn, rest.first(comma + 1).toString(), CellLook::Cell);
        rest = rest.mid(comma + 1).trimmed();
        m_sheet.nextRow();
    }
    m_sheet.text(referencesColumn, rest.toString(), CellLook::Cell);
}

/// A formula only where it gives the report's figure: the cells are numbers, and every line that counts has
/// a row. Otherwise the figure itself.
void SpreadsheetWriter::writeTotals(const QString &label, const Report::Totals &totals, const Block &block,
                                    CellLook look)
{
    m_sheet.text(categoryColumn, label, look);
    fillRow(quantityColumn, look);
    const QStringList texts = m_report.texts(totals);
    const QString quantities =
        Spreadsheet::range(block.firstRow, quantityColumn, block.lastRow, quantityColumn);
    for (int i = 0; i < int(m_columns.size()); ++i) {
        const ReportColumn *report = m_columns[size_t(i)].report;
        const int at = firstField + i;
        if (!report->field.generateTotals) {
            continue;
        }
        // The total of nothing shows itself when somebody fills in numbers.
        const bool isOpen = m_isForReading && !isFilled(block, *report);
        const QString &usual = m_columns[size_t(i)].format;
        const QString format = isOpen ? withoutZero(usual, report->field) : usual;
        if (format.isEmpty()) {
            m_sheet.text(at, texts.at(i), look);
        } else if (report->isNumeric && block.isComplete && block.firstRow <= block.lastRow) {
            const QString costs = Spreadsheet::range(block.firstRow, at, block.lastRow, at);
            m_sheet.formula(at, QStringLiteral("=SUMPRODUCT(") + quantities + u',' + costs + u')',
                            totals[size_t(i)], look, format);
        } else {
            m_sheet.number(at, totals[size_t(i)], look, format);
        }
    }
}

/// They stay in the sheet, where people may fill them in.
void SpreadsheetWriter::writeEmptyColumns()
{
    if (!m_emptyColumns.isEmpty()) {
        m_sheet.nextRow();
        m_sheet.text(categoryColumn, emptyColumnsSentence(m_emptyColumns), CellLook::Text);
    }
}

void SpreadsheetWriter::writeNotes()
{
    const QString &notes = m_report.notes();
    if (notes.trimmed().isEmpty()) {
        return;
    }
    m_sheet.beginSheet(QStringLiteral("Notes"));
    m_sheet.text(0, QStringLiteral("Notes"), CellLook::Title);
    for (const QString &line : notes.split(u'\n')) {
        m_sheet.nextRow();
        m_sheet.text(0, line, CellLook::Text);
    }
}

} // namespace

SpreadsheetReport spreadsheetReport(const Report &report)
{
    const ReportDesign design = report.design();
    Spreadsheet sheet({titleOf(design), design.author, HostUi::current().now()});
    SpreadsheetWriter writer(report, sheet);
    writer.write();
    const QByteArray file = sheet.bytes();
    QStringList notices = sheet.notices();
    if (writer.lacksParts()) {
        notices << Spreadsheet::tr("There is no sheet of parts: a sheet holds %1 rows.")
                       .arg(Spreadsheet::MostRows);
    }
    return {file, sheet.problem(), notices};
}

QString numberFormat(const BOMField &field)
{
    const int decimals = std::min(field.precision, Report::MostDecimals);
    const QString digits =
        decimals < 1 ? QStringLiteral("General") : QStringLiteral("0.") + QString(decimals, u'0');
    const QString prefix = literal(field.prefix);
    const QString positive = prefix + digits + literal(field.suffix);
    const QString affixes = field.prefix + field.suffix;
    if (affixes.contains(u'"')) {
        // Some programs lose count of the quotes, and then take a semicolon for the end of a section.
        return affixes.contains(u';') ? QString() : positive;
    }
    // Left alone, a spreadsheet puts the minus sign in front of the prefix.
    return prefix.isEmpty() ? positive : positive + u';' + prefix + u'-' + digits + literal(field.suffix);
}
