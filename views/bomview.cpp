// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomview.h"

#include "core/bompartsdatabase.h"
#include "host/framework/hostui.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int mostDecimals = 15;
constexpr int significantDigits = 6;

QString withAffixes(const QString &text, const BOMField &field)
{
    return text.isEmpty() && !field.applyToEmpty ? text : field.prefix + text + field.suffix;
}

bool isQuoted(const QString &text)
{
    return text.startsWith(u'"') && text.endsWith(u'"');
}

} // namespace

BOMView::BOMView(QWidget *parent)
    : QWidget(parent)
    , m_locale(HostUi::current().locale())
{
}

BOMView::~BOMView() = default;

void BOMView::setPartsDatabase(BOMPartsDatabase *database)
{
    m_database = database;
    m_isValid = database != nullptr;
    m_hasColumns = false;
}

QList<QStringList> BOMView::categoryRows(const QString &category, bool grouped, int width, int lines) const
{
    QList<QStringList> rows;
    visitRows(category, grouped, width, lines, [&rows](const QStringList &row) { rows.append(row); });
    return rows;
}

void BOMView::updateFields()
{
    if (!m_isValid) {
        return;
    }
    m_fields = m_database->currentTemplate().fields();
    m_locale = HostUi::current().locale();
    m_hasColumns = false;
}

QString BOMView::fieldValue(const QString &reference, const QString &fieldName, bool formatted) const
{
    const ReportColumn *wanted = m_isValid ? column(fieldName) : nullptr;
    if (!wanted) {
        return {};
    }
    if (const Part *part = m_database->part(reference)) {
        return cellText(*part, *wanted, formatted);
    }
    return formatted ? formatCell(QString(), *wanted) : QString();
}

QString BOMView::formatFieldValue(const QString &value, const QString &fieldName) const
{
    if (!m_isValid) {
        return {};
    }
    const ReportColumn *wanted = column(fieldName);
    return wanted ? formatCell(value, *wanted) : value;
}

void BOMView::removeValueField()
{
    if (!m_isValid || !m_database->currentTemplate().excludeValueField()) {
        return;
    }
    for (const BOMField &field : m_fields.fields()) {
        if (field.propertyName == valueProperty()) {
            m_fields.remove(field.fieldName);
        }
    }
    m_hasColumns = false;
}

QStringList BOMView::columnHeadings(bool withQuantity) const
{
    if (!m_isValid) {
        return {};
    }
    QStringList headings{tr("Category")};
    if (withQuantity) {
        headings << tr("Quantity");
    }
    headings << tr("References");
    return headings + m_fields.names();
}

QStringList BOMView::categorySubTotals(const QString &category) const
{
    if (!m_isValid) {
        return {};
    }
    std::vector<double> sums(columns().size());
    addToSums(category, sums);
    return totalsRow(sums);
}

QStringList BOMView::grandTotals() const
{
    if (!m_isValid) {
        return {};
    }
    std::vector<double> sums(columns().size());
    for (const QString &category : m_database->categoryNames()) {
        addToSums(category, sums);
    }
    return totalsRow(sums);
}

QString BOMView::truncateToFieldWidth(const QString &value, const QString &fieldName) const
{
    if (!m_isValid) {
        return {};
    }
    const ReportColumn *wanted = column(fieldName);
    return wanted ? truncated(value, wanted->field) : value;
}

QString BOMView::cellText(const Part &part, const ReportColumn &column, bool formatted) const
{
    const QString value = part.property(column.property);
    return formatted ? formatCell(value, column) : value;
}

QString BOMView::formatCell(const QString &value, const ReportColumn &column) const
{
    QString text = value;
    if (isQuoted(value)) {
        text = value.mid(1, std::max<qsizetype>(value.size() - 2, 0));
    } else if (const auto number = shownNumber(value, column)) {
        text = numberText(*number, column.field);
    }
    return withAffixes(text, column.field);
}

std::optional<double> BOMView::shownNumber(const QString &value, const ReportColumn &column) const
{
    return column.isNumeric && !isQuoted(value) ? readNumber(value) : std::nullopt;
}

QString BOMView::truncated(const QString &value, const BOMField &field)
{
    const int width = field.fieldWidth;
    if (width <= 3 || value.size() <= width) {
        return value;
    }
    qsizetype length = width - 3;
    length -= value[length - 1].isHighSurrogate() ? 1 : 0;
    return value.first(length) + QLatin1String("...");
}

const std::vector<ReportColumn> &BOMView::columns() const
{
    const quint64 generation = m_database ? m_database->propertyTypes().generation() : 0;
    if (m_hasColumns && generation == m_columnsGeneration) {
        return m_columns;
    }
    m_columns.clear();
    if (m_database) {
        const PropertyTypes &types = m_database->propertyTypes();
        for (const BOMField &field : m_fields.fields()) {
            m_columns.push_back(
                {field, PropertyQuery(field.propertyName, &types), types.isNumeric(field.propertyName)});
        }
    }
    m_columnsGeneration = generation;
    m_hasColumns = true;
    return m_columns;
}

const ReportColumn *BOMView::column(const QString &fieldName) const
{
    const std::vector<ReportColumn> &all = columns();
    const auto found = std::find_if(all.begin(), all.end(), [&fieldName](const ReportColumn &column) {
        return column.field.fieldName == fieldName;
    });
    return found == all.end() ? nullptr : &*found;
}

void BOMView::visitRows(const QString &category, bool grouped, int width, int lines,
                        const std::function<void(const QStringList &)> &visit) const
{
    if (!m_isValid) {
        return;
    }
    const std::vector<ReportColumn> &cells = columns();
    const ReportLines report = m_database->categories().reportLines(category, grouped);
    for (const BomLine line : report.lines) {
        const Part &first = *line.front();
        QStringList row;
        row.reserve(qsizetype(cells.size()) + 2);
        if (grouped) {
            row << QString::number(line.size())
                << m_database->categories().formatReferences(line, width, lines);
        } else {
            row << first.reference();
        }
        for (const ReportColumn &cell : cells) {
            row << cellText(first, cell, true);
        }
        visit(row);
    }
}

std::optional<double> BOMView::readNumber(const QString &text) const
{
    bool isNumber = false;
    double number = m_locale.toDouble(text, &isNumber);
    if (!isNumber) {
        number = text.toDouble(&isNumber);
    }
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

QString BOMView::numberText(double number, const BOMField &field) const
{
    return field.precision < 1 ? m_locale.toString(number, 'g', significantDigits)
                               : m_locale.toString(number, 'f', std::min(field.precision, mostDecimals));
}

void BOMView::addToSums(const QString &category, std::vector<double> &sums) const
{
    const GroupedLines *lines = m_database->categories().groupedLines(category);
    const std::vector<ReportColumn> &all = columns();
    for (size_t i = 0; i < all.size(); ++i) {
        if (!all[i].field.generateTotals || !lines) {
            continue;
        }
        for (size_t line = 0; line < lines->lineCount(); ++line) {
            const BomLine parts = lines->line(line);
            const auto number = readNumber(cellText(*parts.front(), all[i], false));
            sums[i] += number.value_or(0.0) * double(parts.size());
        }
    }
}

QStringList BOMView::totalsRow(const std::vector<double> &sums) const
{
    const std::vector<ReportColumn> &all = columns();
    QStringList row;
    for (size_t i = 0; i < all.size(); ++i) {
        const BOMField &field = all[i].field;
        row << (field.generateTotals ? withAffixes(numberText(sums[i], field), field) : QString());
    }
    return row;
}
