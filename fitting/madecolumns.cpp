// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fitting/madecolumns.h"

#include "fitting/linekeys.h"
#include "host/framework/hosttext.h"
#include "standalone/buyerfields.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace {

using designs::NameId;

using Kind = BuyerField::Kind;

QString nameOf(const ListedParts &parts, NameId id)
{
    return fromHostText(parts.design().design().names().name(id));
}

std::vector<NameId> filledOnes(const ListedParts &parts, std::vector<NameId> names)
{
    std::erase_if(names, [&parts](NameId id) { return parts.use(id).parts == 0; });
    return names;
}

/// The properties by which the listed parts have a field.
struct FieldProperties
{
    /// The one to ask for; nothing where no name means the field for certain.
    std::optional<QString> main;
    /// Names that mean it too, where a part has another text under them.
    QStringList disagreeing;
    /// Names that do not say it for certain.
    QStringList likely;
};

bool disagrees(const ListedParts &parts, NameId id, const QString &main)
{
    const PROPNAME name(toHostText(main));
    return std::any_of(parts.components().begin(), parts.components().end(),
                       [&](const designs::Component *part) {
                           const auto own = part->stored(id);
                           const auto read = parts.design().properties().find(*part, name);
                           return own && DesignFields::isFilled(*own) && read &&
                                  std::string_view(read->data(), std::size_t(read->size())) != *own;
                       });
}

FieldProperties propertiesOf(const ListedParts &parts, const BuyerField &field,
                             const QStringList &definedNames)
{
    FieldProperties properties;
    const std::vector<NameId> names = filledOnes(parts, namesOf(parts.design(), field));
    properties.main = names.empty() ? definedProperty(parts.design(), field, definedNames)
                                    : std::optional(propertyOf(parts.design(), field, names));
    for (const NameId id : names) {
        if (names.size() > 1 && disagrees(parts, id, *properties.main)) {
            properties.disagreeing << nameOf(parts, id);
        }
    }
    for (const NameId id : filledOnes(parts, likelyNamesOf(parts.design(), field))) {
        properties.likely << nameOf(parts, id);
    }
    return properties;
}

/// Collects columns, and knows which parts they put into one line.
class Columns
{
public:
    Columns(const ListedParts &parts, const BOMFields &columns)
        : m_parts(parts)
        , m_keys(parts)
        , m_columns(columns)
    {
        m_keys.addColumn(QStringLiteral("VALUE"));
        for (const BOMField &column : columns.fields()) {
            m_keys.addColumn(column.propertyName);
        }
    }

    void add(const QString &property, const QString &title)
    {
        constexpr qsizetype mostColumns = 40;
        const QList<BOMField> columns = m_columns.fields();
        const bool isShown = std::any_of(columns.begin(), columns.end(), [&property](const BOMField &column) {
            return column.propertyName.compare(property, Qt::CaseInsensitive) == 0;
        });
        if (isShown) {
            return;
        }
        if (columns.size() >= mostColumns) {
            m_leftOut << property;
            return;
        }
        m_columns.add(columnOf(m_parts, property, freeTitle(m_columns, title)));
        if (property != QLatin1String("VALUE")) {
            m_keys.addColumn(property);
        }
    }

    void addFootprint()
    {
        const auto ids = m_parts.design().design().names().candidates("PACKAGE");
        if (!filledOnes(m_parts, ids).empty()) {
            add(QStringLiteral("PACKAGE"), QStringLiteral("Footprint"));
        }
    }

    /// Adds what the listed parts have of a field.
    void add(const BuyerField &field)
    {
        const FieldProperties properties = propertiesOf(m_parts, field, m_definedNames);
        if (properties.main && isWanted(field, *properties.main)) {
            add(*properties.main, titleOf(field, *properties.main));
        }
        if (field.kind == Kind::Number) {
            addNumbers(properties);
        } else if (!properties.main && (field.kind == Kind::Firm || field.kind == Kind::Price)) {
            for (const QString &name : properties.likely) {
                add(name, name);
            }
        }
    }

    /// Adds what tells parts of one line apart, and the maker's part number.
    void addTelling()
    {
        if (joinsDifferent(QStringLiteral("PACKAGE"), LineKeys::Empty::IsText)) {
            addFootprint();
        }
        for (const BuyerField &field : buyerFields()) {
            const bool isRating = field.kind == Kind::Rating;
            if (!isRating && field.kind != Kind::Number) {
                continue;
            }
            const FieldProperties properties = propertiesOf(m_parts, field, m_definedNames);
            const auto empty = isRating ? LineKeys::Empty::IsAny : LineKeys::Empty::IsText;
            if (properties.main &&
                (field.key == std::string_view("mpn") || joinsDifferent(*properties.main, empty))) {
                add(*properties.main, titleOf(field, *properties.main));
            }
            for (const QString &name : properties.disagreeing + properties.likely) {
                if (joinsDifferent(name, LineKeys::Empty::IsAny)) {
                    add(name, name);
                }
            }
        }
    }

    [[nodiscard]] const BOMFields &columns() const { return m_columns; }
    [[nodiscard]] const QStringList &leftOut() const { return m_leftOut; }

private:
    [[nodiscard]] static QString titleOf(const BuyerField &field, const QString &property)
    {
        return field.title ? QString::fromUtf8(field.title) : property;
    }

    [[nodiscard]] bool joinsDifferent(const QString &property, LineKeys::Empty empty)
    {
        return m_keys.joinDifferent(property, empty);
    }

    /// The numbers besides the main one: nothing that tells parts apart may be left out.
    void addNumbers(const FieldProperties &properties)
    {
        for (const QString &name : properties.disagreeing) {
            add(name, name);
        }
        for (const QString &name : properties.likely) {
            if (!properties.main || isAlone(name, *properties.main) ||
                joinsDifferent(name, LineKeys::Empty::IsAny)) {
                add(name, name);
            }
        }
    }

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
            return joinsDifferent(property, LineKeys::Empty::IsAny);
        case Kind::Description:
            // One that says no more than the heading of the category, or tears a line apart, is no help.
            return LineKeys(m_parts).joinDifferent(property, LineKeys::Empty::IsAny) &&
                   !joinsDifferent(property, LineKeys::Empty::IsText);
        case Kind::Firm:
        case Kind::Number:
        case Kind::Price:
            break;
        }
        return true;
    }

    const ListedParts &m_parts;
    const QStringList m_definedNames = definedNames(m_parts.design());
    LineKeys m_keys;
    BOMFields m_columns;
    QStringList m_leftOut;
};

bool isPrice(const LoadedDesign &design, const QString &property)
{
    const FieldNames *names = design.properties().fields().names();
    const auto meaning = names ? names->senseOf(property).meaning : std::nullopt;
    return meaning && names->meanings()[*meaning].key == QLatin1String("price");
}

} // namespace

QString freeTitle(const BOMFields &columns, const QString &wanted)
{
    QString title = wanted;
    for (int number = 2; columns.contains(title); ++number) {
        title = wanted + u' ' + QString::number(number);
    }
    return title;
}

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
    if (isPrice(parts.design(), property)) {
        column.generateTotals = true;
        column.precision = decimalsOf(parts.design(), property);
    }
    // A blank stands between the columns.
    column.asciiWidth = int(std::clamp(std::max(width, title.size()) + 1, narrowest, widest));
    return column;
}

MadeColumns madeColumns(const ListedParts &parts)
{
    Columns columns(parts, {});
    columns.add(QStringLiteral("VALUE"), QStringLiteral("Value"));
    columns.addFootprint();
    for (const BuyerField &field : buyerFields()) {
        columns.add(field);
    }
    return {columns.columns(), columns.leftOut()};
}

MadeColumns withTellingColumns(const ListedParts &parts, const BOMFields &columns)
{
    Columns telling(parts, columns);
    telling.addTelling();
    return {telling.columns(), telling.leftOut()};
}
