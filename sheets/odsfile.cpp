// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "sheets/odsfile.h"

#include "sheets/texts.h"
#include "sheets/xmlpart.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr QLatin1String officeSpace("opendocument:xmlns:office");
constexpr QLatin1String tableSpace("opendocument:xmlns:table");
constexpr QLatin1String textSpace("opendocument:xmlns:text");

/// How often an element stands for itself and the same behind it; no more than a sheet has rows.
int timesOf(const QString &count)
{
    return count.isNull() ? 1 : std::clamp(count.toInt(), 1, SheetBuilder::MostRows);
}

/// Adds the text of a paragraph; blanks that follow each other count once where they are not elements.
void addParagraph(XmlPart &xml, QString &text)
{
    const qsizetype begin = text.size();
    for (int inside = 1; inside > 0;) {
        const auto token = xml.next();
        if (token == QXmlStreamReader::NoToken) {
            return;
        }
        if (token == QXmlStreamReader::Characters) {
            for (const QChar c : xml.text()) {
                const bool isBlank = c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
                const bool isRepeated = text.size() == begin || text.back() == u' ';
                if (!isBlank || !isRepeated) {
                    text += isBlank ? QChar(u' ') : c;
                }
            }
        } else if (token == QXmlStreamReader::StartElement) {
            ++inside;
            if (xml.name() == QLatin1String("s")) {
                text += QString(timesOf(xml.attribute(QLatin1String("c"), textSpace)), u' ');
            } else if (xml.name() == QLatin1String("tab")) {
                text += u'\t';
            } else if (xml.name() == QLatin1String("line-break")) {
                text += u'\n';
            } else if (xml.name() == QLatin1String("annotation")) {
                xml.skip();
                --inside;
            }
        } else if (token == QXmlStreamReader::EndElement) {
            --inside;
        }
        if (text.size() > XmlPart::MostCharacters) {
            xml.refuseLongText();
            return;
        }
    }
}

} // namespace

struct OdsFile::Cell
{
    QString text;
    CellKind kind = CellKind::Text;
};

/// Finds the sheets in the content, and reads the rows of one.
class OdsFile::Reader final
{
public:
    Reader(std::unique_ptr<QIODevice> device, const SheetLimits &limits)
        : m_xml(std::move(device))
        , m_sheet(limits)
    {
    }

    /// Goes into the element that holds the sheets. False when there is none.
    [[nodiscard]] bool findSheets();
    /// Goes to the next sheet; its name is null when there is none.
    [[nodiscard]] QString nextSheet();
    void skipSheet() { m_xml.skip(); }
    /// False, with the reason in problem(), when the sheet cannot be read.
    [[nodiscard]] bool readSheet() { return readRows() && problem().isEmpty(); }

    [[nodiscard]] Sheet take() { return m_sheet.take(); }
    [[nodiscard]] const QString &problem() const
    {
        return m_xml.problem().isEmpty() ? m_sheet.problem() : m_xml.problem();
    }

private:
    /// The rows in the current element, which may be a group of them.
    [[nodiscard]] bool readRows();
    [[nodiscard]] bool readRow();
    [[nodiscard]] Cell readCell();

    XmlPart m_xml;
    SheetBuilder m_sheet;
    int m_nextRow = 1;
};

bool OdsFile::Reader::findSheets()
{
    if (!m_xml.nextChild()) {
        return false;
    }
    while (m_xml.nextChild()) {
        if (m_xml.name() == QLatin1String("body")) {
            return m_xml.nextChild() && m_xml.name() == QLatin1String("spreadsheet");
        }
        m_xml.skip();
    }
    return false;
}

QString OdsFile::Reader::nextSheet()
{
    while (m_xml.nextChild()) {
        if (m_xml.name() == QLatin1String("table")) {
            return QStringLiteral("") + m_xml.attribute(QLatin1String("name"), tableSpace);
        }
        m_xml.skip();
    }
    return {};
}

bool OdsFile::Reader::readRows()
{
    while (m_xml.nextChild()) {
        const QStringView name = m_xml.name();
        const bool isGroup = name == QLatin1String("table-row-group") ||
                             name == QLatin1String("table-rows") ||
                             name == QLatin1String("table-header-rows");
        const bool isRow = name == QLatin1String("table-row");
        if (isRow ? !readRow() : isGroup && !readRows()) {
            return false;
        }
        if (!isRow && !isGroup) {
            m_xml.skip();
        }
    }
    return true;
}

bool OdsFile::Reader::readRow()
{
    const int times = timesOf(m_xml.attribute(QLatin1String("number-rows-repeated"), tableSpace));
    const QString visibility = m_xml.attribute(QLatin1String("visibility"), tableSpace);
    m_sheet.beginRow(m_nextRow, !visibility.isNull() && visibility != QLatin1String("visible"));
    m_nextRow = std::min(m_nextRow + times, SheetBuilder::MostRows + 1);
    qsizetype column = 0;
    while (m_xml.nextChild()) {
        const bool isCovered = m_xml.name() == QLatin1String("covered-table-cell");
        if (!isCovered && m_xml.name() != QLatin1String("table-cell")) {
            m_xml.skip();
            continue;
        }
        const int cells = timesOf(m_xml.attribute(QLatin1String("number-columns-repeated"), tableSpace));
        const Cell cell = readCell();
        const CellKind kind = isCovered ? CellKind::Covered : cell.kind;
        // Empty cells are repeated up to the end of the sheet.
        for (int i = 0; i < cells && (!cell.text.isEmpty() || kind != CellKind::Text); ++i) {
            if (!m_sheet.add(column + i, cell.text, kind)) {
                return false;
            }
        }
        column += cells;
    }
    return !m_sheet.hasCells() || m_sheet.repeatRow(times - 1);
}

OdsFile::Cell OdsFile::Reader::readCell()
{
    const QString type = m_xml.attribute(QLatin1String("value-type"), officeSpace);
    const bool hasFormula = !m_xml.attribute(QLatin1String("formula"), tableSpace).isNull();
    const bool isError =
        m_xml.attribute(QLatin1String("value-type"), QLatin1String("calcext")) == QLatin1String("error");
    const QString number = m_xml.attribute(QLatin1String("value"), officeSpace);
    const QString string = m_xml.attribute(QLatin1String("string-value"), officeSpace);
    const QString date = m_xml.attribute(QLatin1String("date-value"), officeSpace);
    QString text;
    bool isFirst = true;
    while (m_xml.nextChild()) {
        if (m_xml.name() == QLatin1String("p")) {
            text += isFirst ? QString() : QStringLiteral("\n");
            isFirst = false;
            addParagraph(m_xml, text);
        } else {
            m_xml.skip();
        }
    }
    Cell cell{string.isNull() ? text : string, CellKind::Text};
    bool isNumber = false;
    const double value = number.toDouble(&isNumber);
    if (isNumber && std::isfinite(value)) {
        cell.text = shortestText(value);
        cell.kind = type == QLatin1String("percentage") ? CellKind::Percentage : CellKind::Number;
    } else if (type == QLatin1String("boolean")) {
        cell.kind = CellKind::Truth;
    } else if (type == QLatin1String("date") || type == QLatin1String("time")) {
        cell.text = date.isNull() ? text : date;
        cell.kind = CellKind::Date;
    }
    cell.kind = isError ? CellKind::Error : cell.kind;
    cell.kind = hasFormula ? CellKind::Formula : cell.kind;
    return cell;
}

bool OdsFile::load(QString *problem)
{
    const QString manifest = QStringLiteral("META-INF/manifest.xml");
    if (m_archive.has(manifest)) {
        auto device = m_archive.part(manifest, problem);
        if (!device) {
            return false;
        }
        XmlPart xml(std::move(device));
        for (auto token = xml.next(); token != QXmlStreamReader::NoToken; token = xml.next()) {
            if (xml.name() == QLatin1String("encryption-data")) {
                *problem = SpreadsheetTexts::tr("the file is encrypted: save it without a password");
                return false;
            }
        }
    }
    auto device = m_archive.part(contentPart(), problem);
    if (!device) {
        return false;
    }
    Reader reader(std::move(device), m_limits);
    if (!reader.findSheets()) {
        *problem = reader.problem().isEmpty() ? SpreadsheetTexts::tr("the file holds no spreadsheet")
                                              : reader.problem();
        return false;
    }
    for (QString name = reader.nextSheet(); !name.isNull(); name = reader.nextSheet()) {
        m_names << name;
        reader.skipSheet();
    }
    *problem = reader.problem();
    return problem->isEmpty();
}

std::optional<Sheet> OdsFile::sheet(qsizetype index, QString *problem) const
{
    auto device = m_archive.part(contentPart(), problem);
    if (!device) {
        return std::nullopt;
    }
    Reader reader(std::move(device), m_limits);
    bool isFound = reader.findSheets() && !reader.nextSheet().isNull();
    for (qsizetype i = 0; i < index && isFound; ++i) {
        reader.skipSheet();
        isFound = !reader.nextSheet().isNull();
    }
    if (!isFound || !reader.readSheet()) {
        *problem =
            reader.problem().isEmpty() ? SpreadsheetTexts::tr("the file is damaged") : reader.problem();
        return std::nullopt;
    }
    return reader.take();
}
