// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/report.h"

#include "core/bompartsdatabase.h"
#include "core/part.h"
#include "host/framework/hostui.h"

#include <algorithm>

namespace {

constexpr int significantDigits = 6;

QString withAffixes(const QString &text, const BOMField &field)
{
    return text.isEmpty() && !field.applyToEmpty ? text : field.prefix + text + field.suffix;
}

/// People write quotes around a number that is to be shown as a text, such as "0805".
bool isQuoted(const QString &text)
{
    return text.startsWith(u'"') && text.endsWith(u'"');
}

Report::Quantity quantityOf(std::span<Part *const> parts)
{
    const qsizetype notFitted =
        std::count_if(parts.begin(), parts.end(), [](const Part *part) { return part->isNotFitted(); });
    return {qsizetype(parts.size()) - notFitted, notFitted};
}

/// Without blanks, which a sentence that begins with an address has.
bool isWebAddress(const QString &text)
{
    const bool hasScheme = text.startsWith(QLatin1String("http://"), Qt::CaseInsensitive) ||
                           text.startsWith(QLatin1String("https://"), Qt::CaseInsensitive);
    return hasScheme && std::none_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

} // namespace

ReportDesign designOf(const BOMPartsDatabase &database)
{
    return {database.designTitle(),    database.designAuthor(),        database.designDocumentNumber(),
            database.designRevision(), database.designCreated(),       database.designModified(),
            database.designVariant(),  database.designInfo("FILENAME")};
}

QString subjectOf(const ReportDesign &design)
{
    QStringList parts{design.title, design.documentNumber};
    if (!design.revision.isEmpty()) {
        parts << QStringLiteral("Revision") + u' ' + design.revision;
    }
    if (!design.variant.isEmpty()) {
        parts << QStringLiteral("Assembly Variant") + u' ' + design.variant;
    }
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

BOMFields dataFields(BOMFields fields, const BOMTemplate &settings)
{
    if (settings.excludeValueField()) {
        for (const BOMField &field : fields.fields()) {
            if (field.propertyName == valueProperty()) {
                fields.remove(field.fieldName);
            }
        }
    }
    return fields;
}

QString truncatedToWidth(const QString &value, const BOMField &field)
{
    const int width = field.fieldWidth;
    if (width <= 3 || value.size() <= width) {
        return value;
    }
    qsizetype length = width - 3;
    length -= value[length - 1].isHighSurrogate() ? 1 : 0;
    return value.first(length) + QLatin1String("...");
}

QString emptyColumnsSentence(const QStringList &columns)
{
    return QStringLiteral("Empty for all parts: ") + columns.join(QLatin1String(", "));
}

Report::Report(const BOMPartsDatabase &database, const BOMFields &fields)
    : m_database(database)
    , m_locale(HostUi::current().locale())
    , m_numbers(m_locale)
{
    const PropertyTypes &types = database.propertyTypes();
    const BOMFields &known = database.currentTemplate().fields();
    for (const BOMField &field : fields.fields()) {
        const bool isMark = database.hasNotFitted() && field.propertyName == notFittedProperty() &&
                            !known.contains(field.fieldName);
        // Prices have many names, and a definition for few of them.
        const bool isPrice = database.currentTemplate().layoutForReading() && field.generateTotals &&
                             !types.type(field.propertyName);
        m_columns.push_back({field, PropertyQuery(field.propertyName, &types),
                             types.isNumeric(field.propertyName) || isPrice, isMark});
    }
}

Report Report::with(const std::function<bool(const ReportColumn &)> &isWanted) const
{
    Report report = *this;
    std::erase_if(report.m_columns, std::not_fn(isWanted));
    return report;
}

Report Report::forReading() const
{
    if (!settings().layoutForReading()) {
        return *this;
    }
    const QStringList listed = categories();
    QStringList empty;
    Report report = with([&](const ReportColumn &column) {
        const bool isEmpty = std::none_of(listed.begin(), listed.end(), [&](const QString &category) {
            return isFilled(category, column);
        });
        empty += isEmpty ? QStringList(column.field.fieldName) : QStringList();
        return !isEmpty;
    });
    report.m_emptyColumns = empty;
    return report;
}

const BOMTemplate &Report::settings() const
{
    return m_database.currentTemplate();
}

const QString &Report::notes() const
{
    return m_database.notes();
}

Report::Quantity Report::quantity(BomLine line)
{
    const auto size = qsizetype(line.size());
    return line.front()->isNotFitted() ? Quantity{0, size} : Quantity{size, 0};
}

QString Report::text(const Quantity &quantity)
{
    return QString::number(quantity.counted) + notFittedText(quantity);
}

QString Report::notFittedText(const Quantity &quantity)
{
    return quantity.notFitted == 0
               ? QString()
               : QStringLiteral(" + ") + QString::number(quantity.notFitted) + QStringLiteral(" DNP");
}

Report::Quantity Report::partCount() const
{
    return quantityOf(m_database.parts());
}

const ReportColumn *Report::column(const QString &fieldName) const
{
    const auto found =
        std::find_if(m_columns.begin(), m_columns.end(), [&fieldName](const ReportColumn &column) {
            return column.field.fieldName == fieldName;
        });
    return found == m_columns.end() ? nullptr : &*found;
}

QStringList Report::columnNames() const
{
    QStringList names;
    for (const ReportColumn &column : m_columns) {
        names << column.field.fieldName;
    }
    return names;
}

QStringList Report::headings(bool withQuantity) const
{
    QStringList headings{QStringLiteral("Category")};
    if (withQuantity) {
        headings << QStringLiteral("Quantity");
    }
    headings << QStringLiteral("References");
    return headings + columnNames();
}

QStringList Report::categories() const
{
    return m_database.categoryNames();
}

Report::Quantity Report::partCount(const QString &category) const
{
    const GroupedLines *lines = m_database.categories().groupedLines(category);
    return lines ? quantityOf(lines->parts()) : Quantity();
}

ReportLines Report::lines(const QString &category, bool grouped) const
{
    return m_database.categories().reportLines(category, grouped);
}

QString Report::references(BomLine line, int width, int lines) const
{
    return m_database.categories().formatReferences(line, width, lines);
}

QString Report::value(const Part &part, const ReportColumn &column) const
{
    if (!column.isMark) {
        return part.property(column.property);
    }
    const DisplayConversion shown(m_database.propertyTypes().type(notFittedProperty()));
    return part.isNotFitted() ? shown(QStringLiteral("1")) : QString();
}

QString Report::text(const Part &part, const ReportColumn &column) const
{
    return text(value(part, column), column);
}

QString Report::text(const QString &value, const ReportColumn &column) const
{
    QString text = value;
    if (isQuoted(value)) {
        text = value.mid(1, std::max<qsizetype>(value.size() - 2, 0));
    } else if (const auto number = shownNumber(value, column)) {
        text = numberText(*number, column.field);
    }
    return withAffixes(text, column.field);
}

std::optional<double> Report::number(const Part &part, const ReportColumn &column) const
{
    return shownNumber(part.property(column.property), column);
}

QString Report::link(const Part &part, const ReportColumn &column) const
{
    if (!column.field.enableLinks) {
        return {};
    }
    const QString link = m_database.link(part.reference(), column.field.propertyName);
    if (!link.isEmpty() || !settings().layoutForReading()) {
        return link;
    }
    const QString text = part.property(column.property).trimmed();
    return isWebAddress(text) ? text : QString();
}

Report::Totals Report::subTotals(const QString &category) const
{
    Totals totals(m_columns.size());
    addTotals(category, totals);
    return totals;
}

Report::Totals Report::grandTotals() const
{
    Totals totals(m_columns.size());
    for (const QString &category : categories()) {
        addTotals(category, totals);
    }
    return totals;
}

QStringList Report::texts(const Totals &totals) const
{
    QStringList texts;
    for (size_t i = 0; i < m_columns.size(); ++i) {
        const BOMField &field = m_columns[i].field;
        texts << (field.generateTotals ? withAffixes(numberText(totals[i], field), field) : QString());
    }
    return texts;
}

bool Report::isFilled(const QString &category, const ReportColumn &column) const
{
    const GroupedLines *lines = m_database.categories().groupedLines(category);
    for (size_t index = 0; lines && index < lines->lineCount(); ++index) {
        // The parts of a line agree.
        if (!text(*lines->line(index).front(), column).trimmed().isEmpty()) {
            return true;
        }
    }
    return false;
}

std::optional<double> Report::shownNumber(const QString &value, const ReportColumn &column) const
{
    return column.isNumeric && !isQuoted(value) ? m_numbers.read(value) : std::nullopt;
}

QString Report::numberText(double number, const BOMField &field) const
{
    return field.precision < 1 ? m_locale.toString(number, 'g', significantDigits)
                               : m_locale.toString(number, 'f', std::min(field.precision, MostDecimals));
}

/// All lines count, those too that another line with an equal first reference keeps out of the report.
void Report::addTotals(const QString &category, Totals &totals) const
{
    const GroupedLines *lines = m_database.categories().groupedLines(category);
    for (size_t i = 0; i < m_columns.size(); ++i) {
        if (!m_columns[i].field.generateTotals || !lines) {
            continue;
        }
        for (size_t index = 0; index < lines->lineCount(); ++index) {
            const BomLine line = lines->line(index);
            const auto number = m_numbers.read(line.front()->property(m_columns[i].property));
            totals[i] += number.value_or(0.0) * double(quantity(line).counted);
        }
    }
}
