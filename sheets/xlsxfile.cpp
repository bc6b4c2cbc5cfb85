// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "sheets/xlsxfile.h"

#include "sheets/texts.h"
#include "sheets/xmlpart.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// "A1" as the row from 1 and the column from 0; both 0 and -1 when it is no address.
struct Address
{
    int row = 0;
    qsizetype column = -1;
};

Address addressOf(QStringView text)
{
    qsizetype at = 0;
    qsizetype column = 0;
    for (; at < text.size() && at < 3 && text[at] >= u'A' && text[at] <= u'Z'; ++at) {
        column = column * 26 + (text[at].unicode() - u'A' + 1);
    }
    bool isNumber = false;
    const int row = text.mid(at).toInt(&isNumber);
    return at > 0 && isNumber && row > 0 ? Address{row, column - 1} : Address();
}

/// Texts of cells have what XML lacks as _x000D_.
QString withoutEscapes(QString text)
{
    if (!text.contains(QLatin1String("_x"))) {
        return text;
    }
    static const QRegularExpression escape(QStringLiteral("_x([0-9A-Fa-f]{4})_"));
    QString plain;
    qsizetype last = 0;
    for (auto found = escape.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        plain += QStringView(text).sliced(last, match.capturedStart() - last);
        plain += QChar(match.capturedView(1).toUShort(nullptr, 16));
        last = match.capturedEnd();
    }
    return plain + text.mid(last);
}

/// The text of a string item: its own, or that of its runs; not how it is pronounced.
QString stringItem(XmlPart &xml)
{
    QString text;
    while (xml.nextChild()) {
        if (xml.name() == QLatin1String("t")) {
            text += xml.content();
        } else if (xml.name() == QLatin1String("r")) {
            text += stringItem(xml);
        } else {
            xml.skip();
        }
    }
    return text;
}

/// What numbers are that are shown in a format which the file spells out.
CellKind kindOfFormat(const QString &code)
{
    // Without what stands there literally, colours and languages; [h] are hours.
    static const QRegularExpression literal(
        QStringLiteral("\"[^\"]*\"|\\\\.|[_*].|\\[(?!(?:h+|m+|s+)\\])[^\\]]*\\]|General"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression date(QStringLiteral("[ymdhs]"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QString plain = QString(code.left(1000)).remove(literal);
    return plain.contains(u'%')   ? CellKind::Percentage
           : plain.contains(date) ? CellKind::Date
                                  : CellKind::Number;
}

/// The same for the formats that have a number only.
CellKind kindOfFormat(int number)
{
    const bool isDate = (number >= 14 && number <= 22) || (number >= 27 && number <= 36) ||
                        (number >= 45 && number <= 47) || (number >= 50 && number <= 58);
    const bool isPercentage = number == 9 || number == 10;
    return isDate ? CellKind::Date : isPercentage ? CellKind::Percentage : CellKind::Number;
}

/// The day, the time of a day, or both; days count from the end of 1899, or from the start of 1904.
QString dateText(double number, bool isMacDate)
{
    constexpr double mostDays = 3'000'000;
    constexpr double secondsOfDay = 24 * 60 * 60;
    if (!(number >= 0 && number < mostDays)) {
        return shortestText(number);
    }
    const qint64 seconds = std::llround(number * secondsOfDay);
    const QDate first = isMacDate ? QDate(1904, 1, 1) : QDate(1899, 12, 30);
    const QDateTime time = QDateTime(first, QTime(0, 0), Qt::UTC).addSecs(seconds);
    const QString day = time.date().toString(Qt::ISODate);
    const bool hasTime = time.time() != QTime(0, 0);
    return number < 1 ? time.time().toString(Qt::ISODate)
                      : day + (hasTime ? u' ' + time.time().toString(Qt::ISODate) : QString());
}

bool isSet(const QString &flag)
{
    return flag == QLatin1String("1") || flag == QLatin1String("true");
}

/// True when nothing was wrong in the part.
bool isFine(const XmlPart &xml, QString *problem)
{
    *problem = xml.problem();
    return problem->isEmpty();
}

} // namespace

bool XlsxFile::load(QString *problem)
{
    const auto package = relationsOf({}, problem);
    if (!package) {
        return false;
    }
    const auto document = std::find_if(package->begin(), package->end(), [](const Relation &relation) {
        return relation.type == QLatin1String("officeDocument");
    });
    const QString workbook =
        document == package->end() ? QStringLiteral("xl/workbook.xml") : document->target;
    const auto relations = relationsOf(workbook, problem);
    if (!relations || !readWorkbook(workbook, *relations, problem)) {
        return false;
    }
    for (const Relation &relation : *relations) {
        const bool isRead = relation.type == QLatin1String("sharedStrings")
                                ? readTexts(relation.target, problem)
                            : relation.type == QLatin1String("styles") ? readStyles(relation.target, problem)
                                                                       : true;
        if (!isRead) {
            return false;
        }
    }
    return true;
}

std::optional<XlsxFile::Relations> XlsxFile::relationsOf(const QString &part, QString *problem) const
{
    const qsizetype slash = part.lastIndexOf(u'/');
    const QString folder = part.left(slash + 1);
    const QString name = folder + QStringLiteral("_rels/") + part.mid(slash + 1) + QStringLiteral(".rels");
    Relations relations;
    auto device = m_archive.part(name, problem);
    if (!device) {
        return std::nullopt;
    }
    XmlPart xml(std::move(device));
    for (bool isInside = xml.nextChild() && xml.nextChild(); isInside; isInside = xml.nextChild()) {
        const QString target = xml.attribute(QLatin1String("Target"));
        const QString path = target.startsWith(u'/') ? target.mid(1) : folder + target;
        const QString type = xml.attribute(QLatin1String("Type"));
        relations.insert(xml.attribute(QLatin1String("Id")),
                         {type.mid(type.lastIndexOf(u'/') + 1), QDir::cleanPath(path)});
        xml.skip();
    }
    return isFine(xml, problem) ? std::optional(relations) : std::nullopt;
}

bool XlsxFile::readWorkbook(const QString &part, const Relations &relations, QString *problem)
{
    auto device = m_archive.part(part, problem);
    if (!device) {
        return false;
    }
    XmlPart xml(std::move(device));
    if (!xml.nextChild() || xml.name() != QLatin1String("workbook")) {
        *problem =
            xml.problem().isEmpty() ? SpreadsheetTexts::tr("the file holds no workbook") : xml.problem();
        return false;
    }
    while (xml.nextChild()) {
        if (xml.name() != QLatin1String("sheets")) {
            m_isMacDate = m_isMacDate || isSet(xml.attribute(QLatin1String("date1904")));
            xml.skip();
            continue;
        }
        while (xml.nextChild()) {
            m_names << xml.attribute(QLatin1String("name"));
            const Relation relation =
                relations.value(xml.attribute(QLatin1String("id"), QLatin1String("relationships")));
            m_parts << (relation.type == QLatin1String("worksheet") ? relation.target : QString());
            xml.skip();
        }
    }
    return isFine(xml, problem);
}

bool XlsxFile::readTexts(const QString &part, QString *problem)
{
    auto device = m_archive.part(part, problem);
    if (!device) {
        return false;
    }
    XmlPart xml(std::move(device));
    qsizetype characters = 0;
    for (bool isInside = xml.nextChild() && xml.nextChild(); isInside; isInside = xml.nextChild()) {
        m_texts << withoutEscapes(stringItem(xml));
        characters += m_texts.back().size();
        if (m_texts.size() > m_limits.cells || characters > m_limits.characters) {
            *problem = SpreadsheetTexts::tr("the file has too many texts");
            return false;
        }
    }
    return isFine(xml, problem);
}

bool XlsxFile::readStyles(const QString &part, QString *problem)
{
    auto device = m_archive.part(part, problem);
    if (!device) {
        return false;
    }
    QHash<int, CellKind> formats;
    XmlPart xml(std::move(device));
    for (bool isInside = xml.nextChild() && xml.nextChild(); isInside; isInside = xml.nextChild()) {
        const bool hasFormats = xml.name() == QLatin1String("numFmts");
        if (!hasFormats && xml.name() != QLatin1String("cellXfs")) {
            xml.skip();
            continue;
        }
        while (xml.nextChild()) {
            const int number = xml.attribute(QLatin1String("numFmtId")).toInt();
            if (hasFormats) {
                formats.insert(number, kindOfFormat(xml.attribute(QLatin1String("formatCode"))));
            } else {
                m_styles.push_back(formats.contains(number) ? formats.value(number) : kindOfFormat(number));
            }
            xml.skip();
        }
    }
    return isFine(xml, problem);
}

std::optional<Sheet> XlsxFile::sheet(qsizetype index, QString *problem) const
{
    SheetBuilder sheet(m_limits);
    const QString part = m_parts.value(index);
    if (part.isEmpty()) {
        return sheet.take();
    }
    auto device = m_archive.part(part, problem);
    if (!device) {
        return std::nullopt;
    }
    XmlPart xml(std::move(device));
    for (bool isInside = xml.nextChild() && xml.nextChild(); isInside; isInside = xml.nextChild()) {
        if (xml.name() == QLatin1String("sheetData")) {
            if (!readRows(xml, sheet, problem)) {
                return std::nullopt;
            }
        } else if (xml.name() == QLatin1String("mergeCells")) {
            while (xml.nextChild()) {
                const QString range = xml.attribute(QLatin1String("ref"));
                const Address first =
                    addressOf(QStringView(range).left(std::max<qsizetype>(0, range.indexOf(u':'))));
                const Address last = addressOf(QStringView(range).mid(range.indexOf(u':') + 1));
                if (first.row > 0 && last.row > 0 &&
                    !sheet.merge(first.row, first.column, last.row, last.column)) {
                    *problem = sheet.problem();
                    return std::nullopt;
                }
                xml.skip();
            }
        } else {
            xml.skip();
        }
    }
    return isFine(xml, problem) ? std::optional(sheet.take()) : std::nullopt;
}

bool XlsxFile::readRows(XmlPart &xml, SheetBuilder &sheet, QString *problem) const
{
    int last = 0;
    while (xml.nextChild()) {
        const QString number = xml.attribute(QLatin1String("r"));
        bool isNumber = true;
        const int row = number.isNull() ? last + 1 : number.toInt(&isNumber);
        if (!isNumber || row <= last || row > SheetBuilder::MostRows) {
            *problem = SpreadsheetTexts::tr("the file is damaged: a row has the number \"%1\"").arg(number);
            return false;
        }
        last = row;
        sheet.beginRow(row, isSet(xml.attribute(QLatin1String("hidden"))));
        if (!readCells(xml, row, sheet, problem)) {
            return false;
        }
    }
    return isFine(xml, problem);
}

struct XlsxFile::Cell
{
    QString text;
    CellKind kind = CellKind::Text;
};

bool XlsxFile::readCells(XmlPart &xml, int row, SheetBuilder &sheet, QString *problem) const
{
    qsizetype next = 0;
    while (xml.nextChild()) {
        const QString address = xml.attribute(QLatin1String("r"));
        const Address at = address.isNull() ? Address{row, next} : addressOf(address);
        if (at.row != row || at.column < next) {
            *problem = SpreadsheetTexts::tr("the file is damaged: a cell of row %1 has the address \"%2\"")
                           .arg(QString::number(row), address);
            return false;
        }
        next = at.column + 1;
        const Cell cell = readCell(xml);
        if (!sheet.add(at.column, cell.text, cell.kind)) {
            *problem = sheet.problem();
            return false;
        }
    }
    return isFine(xml, problem);
}

XlsxFile::Cell XlsxFile::readCell(XmlPart &xml) const
{
    const QString type = xml.attribute(QLatin1String("t"));
    const CellKind numbers = kindOfStyle(xml.attribute(QLatin1String("s")));
    bool hasFormula = false;
    QString value;
    while (xml.nextChild()) {
        hasFormula = hasFormula || xml.name() == QLatin1String("f");
        if (xml.name() == QLatin1String("v")) {
            value = xml.content();
        } else if (xml.name() == QLatin1String("is")) {
            value = stringItem(xml);
        } else {
            xml.skip();
        }
    }
    Cell cell = cellOf(type, value, numbers);
    cell.kind = hasFormula ? CellKind::Formula : cell.kind;
    return cell;
}

XlsxFile::Cell XlsxFile::cellOf(const QString &type, const QString &value, CellKind numbers) const
{
    if (type == QLatin1String("s")) {
        bool isNumber = false;
        const qsizetype number = value.toLongLong(&isNumber);
        const bool isKnown = isNumber && number >= 0 && number < m_texts.size();
        return {isKnown ? m_texts.at(number) : QString(), isKnown ? CellKind::Text : CellKind::Error};
    }
    if (type == QLatin1String("str") || type == QLatin1String("inlineStr")) {
        return {withoutEscapes(value), CellKind::Text};
    }
    if (type == QLatin1String("b")) {
        return {isSet(value) ? QStringLiteral("TRUE") : QStringLiteral("FALSE"), CellKind::Truth};
    }
    if (type == QLatin1String("e") || type == QLatin1String("d")) {
        return {value, type == QLatin1String("e") ? CellKind::Error : CellKind::Date};
    }
    if (value.isEmpty()) {
        return {value, CellKind::Text};
    }
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number)) {
        return {value, CellKind::Error};
    }
    return {numbers == CellKind::Date ? dateText(number, m_isMacDate) : shortestText(number), numbers};
}

CellKind XlsxFile::kindOfStyle(const QString &index) const
{
    const std::size_t style = index.toUInt();
    return style < m_styles.size() ? m_styles[style] : CellKind::Number;
}
