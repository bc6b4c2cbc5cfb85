// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fitting/madecolumns.h"

#include "fitting/linekeys.h"
#include "host/framework/hosttext.h"
#include "standalone/buyerfields.h"

#include <algorithm>
#include <optional>

namespace {

using designs::NameId;

using Kind = BuyerField::Kind;

constexpr qsizetype mostColumns = 20;

std::vector<NameId> filledOnes(const ListedParts &parts, std::vector<NameId> names)
{
    std::erase_if(names, [&parts](NameId id) { return parts.use(id).parts == 0; });
    return names;
}

/// The property that has the meaning on the listed parts.
std::optional<QString> filledProperty(const ListedParts &parts, const BuyerField &field)
{
    const std::vector<NameId> names = filledOnes(parts, namesOf(parts.design(), field));
    return names.empty() ? std::nullopt : std::optional(propertyOf(parts.design(), field, names));
}

/// Those that most likely have it.
QStringList likelyProperties(const ListedParts &parts, const BuyerField &field)
{
    QStringList properties;
    for (const NameId id : filledOnes(parts, likelyNamesOf(parts.design(), field))) {
        properties << fromHostText(parts.design().design().names().name(id));
    }
    return properties;
}

/// Collects columns, and knows which parts they put into one line.
class Columns
{
public:
    explicit Columns(const ListedParts &parts)
        : m_parts(parts)
        , m_keys(parts)
    {
        m_keys.addColumn(QStringLiteral("VALUE"));
    }

    void add(const QString &property, const QString &title)
    {
        const bool isKnown =
            std::any_of(m_properties.begin(), m_properties.end(), [&property](const QString &known) {
                return known.compare(property, Qt::CaseInsensitive) == 0;
            });
        if (isKnown || m_columns.size() >= mostColumns) {
            return;
        }
        if (m_columns.add(columnOf(m_parts, property, m_columns.contains(title) ? property : title))) {
            m_properties << property;
            if (property != QLatin1String("VALUE")) {
                m_keys.addColumn(property);
            }
        }
    }

    void add(const BuyerField &field)
    {
        const auto property = filledProperty(m_parts, field);
        if (!property || !isWanted(field, *property)) {
            return;
        }
        add(*property, field.title ? QString::fromUtf8(field.title) : *property);
        if (field.kind == Kind::Price && m_columns.contains(QString::fromUtf8(field.title))) {
            BOMField price = m_columns.get(QString::fromUtf8(field.title));
            price.generateTotals = true;
            price.precision = decimalsOf(m_parts.design(), *property);
            m_columns.set(price);
        }
    }

    /// Names that perhaps have the meaning: a column each, under the name itself, where a part has nothing
    /// else.
    void addLikely(const BuyerField &field)
    {
        const bool isShown =
            field.kind == Kind::Firm || field.kind == Kind::Number || field.kind == Kind::Price;
        const auto certain = filledProperty(m_parts, field);
        for (const QString &name : isShown ? likelyProperties(m_parts, field) : QStringList()) {
            if (!certain || (field.kind == Kind::Number && isAlone(name, *certain))) {
                add(name, name);
            }
        }
    }

    [[nodiscard]] bool joins(const QString &property)
    {
        return m_keys.joinDifferent(property, LineKeys::Empty::IsText);
    }
    [[nodiscard]] const BOMFields &columns() const { return m_columns; }

private:
    /// Whether a part has the one property and not the other.
    [[nodiscard]] bool isAlone(const QString &property, const QString &other) const
    {
        const PropertyTable &table = m_parts.design().properties();
        const QByteArray name = toHostText(property);
        const QByteArray otherName = toHostText(other);
        const auto &parts = m_parts.components();
        return std::any_of(parts.begin(), parts.end(), [&](const designs::Component *part) {
            return !table.filledNames(*part, name).empty() && table.filledNames(*part, otherName).empty();
        });
    }

    [[nodiscard]] bool isWanted(const BuyerField &field, const QString &property)
    {
        switch (field.kind) {
        case Kind::Rating:
            return m_keys.joinDifferent(property, LineKeys::Empty::IsAny);
        case Kind::Description:
            // One that says no more than the heading of the category, or tears a line apart, is no help.
            return LineKeys(m_parts).joinDifferent(property, LineKeys::Empty::IsAny) && !joins(property);
        case Kind::Firm:
        case Kind::Number:
        case Kind::Price:
            break;
        }
        return true;
    }

    const ListedParts &m_parts;
    LineKeys m_keys;
    QStringList m_properties;
    BOMFields m_columns;
};

const QString footprint = QStringLiteral("PACKAGE");

bool hasFootprints(const ListedParts &parts)
{
    const auto ids = parts.design().design().names().candidates("PACKAGE");
    return std::any_of(ids.begin(), ids.end(), [&parts](NameId id) { return parts.use(id).parts > 0; });
}

QString footprintTitle()
{
    return QStringLiteral("Footprint");
}

} // namespace

int decimalsOf(const LoadedDesign &design, const QString &property)
{
    constexpr int fewest = 2;
    constexpr int most = 6;
    const PROPNAME name(toHostText(property));
    qsizetype decimals = fewest;
    for (const designs::Component &component : design.design().components()) {
        const auto text = design.properties().find(component, name);
        const qsizetype point = text ? std::max(text->lastIndexOf('.'), text->lastIndexOf(',')) : -1;
        if (point >= 0) {
            const auto digits = text->sliced(point + 1);
            const bool isNumber =
                std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
            decimals = isNumber ? std::max(decimals, digits.size()) : decimals;
        }
    }
    return int(std::min<qsizetype>(decimals, most));
}

BOMField columnOf(const ListedParts &parts, const QString &property, const QString &title)
{
    constexpr qsizetype narrowest = 6;
    constexpr qsizetype widest = 100;
    BOMField column;
    column.fieldName = title;
    column.propertyName = property;
    column.enableLinks = true;
    const PropertyTable &table = parts.design().properties();
    const std::string name = toHostText(property).toStdString();
    std::vector<NameId> ids = parts.design().design().names().candidates(name);
    const std::vector<NameId> &others = table.otherNames(toHostText(property));
    ids.insert(ids.end(), others.begin(), others.end());
    const bool isValue = property.compare(QLatin1String("VALUE"), Qt::CaseInsensitive) == 0;
    qsizetype width = isValue ? parts.values().longest : 0;
    for (const NameId id : ids) {
        width = std::max(width, parts.use(id).longest);
    }
    // A blank stands between the columns.
    column.asciiWidth = int(std::clamp(std::max(width, title.size()) + 1, narrowest, widest));
    return column;
}

BOMFields madeColumns(const ListedParts &parts)
{
    Columns columns(parts);
    columns.add(QStringLiteral("VALUE"), QStringLiteral("Value"));
    if (hasFootprints(parts)) {
        columns.add(footprint, footprintTitle());
    }
    for (const BuyerField &field : buyerFields()) {
        columns.add(field);
        columns.addLikely(field);
    }
    return columns.columns();
}

void addTellingColumns(const ListedParts &parts, BOMFields *columns)
{
    Columns telling(parts);
    for (const BOMField &column : columns->fields()) {
        telling.add(column.propertyName, column.fieldName);
    }
    const auto tell = [&](const QString &property, const QString &title) {
        if (telling.joins(property)) {
            telling.add(property, title);
            columns->add(columnOf(parts, property, columns->contains(title) ? property : title));
        }
    };
    if (hasFootprints(parts)) {
        tell(footprint, footprintTitle());
    }
    for (const BuyerField &field : buyerFields()) {
        const auto property = filledProperty(parts, field);
        if (property && field.kind == Kind::Number) {
            tell(*property, field.title ? QString::fromUtf8(field.title) : *property);
        }
    }
}
