// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/design/fieldaccount.h"

#include "host/framework/hosttext.h"
#include "host/framework/oneof.h"
#include "standalone/loadeddesign.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace {

using designs::Component;
using designs::NameId;

QString nameOf(const LoadedDesign &design, NameId id)
{
    return fromHostText(design.design().names().name(id));
}

void enter(FieldUse *use, const Component &component, std::string_view text)
{
    if (use->parts++ == 0) {
        use->exampleReference = fromHostText(component.reference);
        use->exampleText = fromHostText(text);
    }
}

/// The uses that have parts, in the order of the names.
QList<FieldUse> usedOnes(const LoadedDesign &design, const std::vector<NameId> &ids,
                         std::vector<FieldUse> &uses)
{
    QList<FieldUse> used;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        if (uses[i].parts > 0) {
            uses[i].name = nameOf(design, ids[i]);
            used << uses[i];
        }
    }
    return used;
}

/// Nothing where all the names have the same text.
QList<FieldDisagreement::Text> differentTexts(const LoadedDesign &design, const Component &component,
                                              const std::vector<NameId> &ids)
{
    const auto text = [&component](NameId id) {
        return fromHostText(component.stored(id).value_or(std::string_view())).trimmed();
    };
    const bool differs =
        std::any_of(ids.begin(), ids.end(), [&](NameId id) { return text(id) != text(ids.front()); });
    QList<FieldDisagreement::Text> texts;
    for (std::size_t i = 0; differs && i < ids.size(); ++i) {
        texts.append({nameOf(design, ids[i]), text(ids[i])});
    }
    return texts;
}

std::unordered_map<NameId, std::size_t> placesOf(const std::vector<NameId> &ids)
{
    std::unordered_map<NameId, std::size_t> places;
    for (std::size_t place = 0; place < ids.size(); ++place) {
        places.emplace(ids[place], place);
    }
    return places;
}

/// A name under which parts may say "do not fit".
struct NotFittedName
{
    enum class Says
    {
        /// By anything but "no".
        Yes,
        /// By "no": whether the part is fitted.
        No,
        /// By a word that means nothing else: the name has other texts too.
        Word
    };

    NameId id = 0;
    Says says = Says::Yes;
};

/// All such names but DNP itself.
std::vector<NotFittedName> notFittedNames(const LoadedDesign &design)
{
    const DesignFields &fields = design.properties().fields();
    const auto isNotFitted = [&fields](std::size_t meaning) {
        return fields.names()->meanings()[meaning].key == QLatin1String("not-fitted");
    };
    std::vector<NotFittedName> names;
    for (NameId id = 0; fields.names() != nullptr && id < design.design().names().size(); ++id) {
        const QString name = nameOf(design, id);
        const FieldSense &sense = fields.senseOf(id);
        if (FieldNames::isExact(name)) {
            continue;
        }
        if (sense.meaning && isNotFitted(*sense.meaning)) {
            names.push_back({id, NotFittedName::Says::Yes});
        } else if (std::any_of(sense.proposed.begin(), sense.proposed.end(), isNotFitted)) {
            const bool isPositive =
                isOneOf(name, {QLatin1String("Populate"), QLatin1String("Populated"), QLatin1String("Fitted"),
                               QLatin1String("Mounted"), QLatin1String("Mount")});
            names.push_back({id, isPositive ? NotFittedName::Says::No : NotFittedName::Says::Word});
        }
    }
    return names;
}

bool saysDoNotFit(const PropertyTable &table, NotFittedName::Says says, std::string_view text)
{
    switch (says) {
    case NotFittedName::Says::Yes:
        return !table.fitting(QByteArrayView(text.data(), qsizetype(text.size()))).isFitted;
    case NotFittedName::Says::No:
        return isOneOf(fromHostText(text).trimmed(),
                       {QLatin1String("no"), QLatin1String("n"), QLatin1String("0"), QLatin1String("false")});
    case NotFittedName::Says::Word:
        break;
    }
    return isOneOf(fromHostText(text).trimmed(),
                   {QLatin1String("DNF"), QLatin1String("DNP"), QLatin1String("DNI"), QLatin1String("DNM"),
                    QLatin1String("do not fit"), QLatin1String("do not populate"),
                    QLatin1String("do not place"), QLatin1String("do not mount"), QLatin1String("not fitted"),
                    QLatin1String("nopop")});
}

/// Goes through the parts of the bill for one property.
FieldReading readingOf(const LoadedDesign &design, const QString &asked)
{
    const QByteArray name = toHostText(asked);
    const PropertyTable &table = design.properties();
    const std::vector<NameId> &others = table.otherNames(name);
    const std::vector<NameId> proposed = table.fields().proposed(name);
    FieldReading reading{asked, {}, {}, {}};
    if (others.empty() && proposed.empty()) {
        return reading;
    }
    const PROPNAME skip("BOMSKIP");
    const auto otherPlaces = placesOf(others);
    const auto proposedPlaces = placesOf(proposed);
    std::vector<FieldUse> otherUses(others.size());
    std::vector<FieldUse> proposedUses(proposed.size());
    for (const Component &component : design.design().components()) {
        if (table.find(component, skip)) {
            continue;
        }
        const std::vector<NameId> filled = table.filledNames(component, name);
        if (filled.empty()) {
            for (const designs::Property &property : component.properties) {
                const auto place = proposedPlaces.find(property.name);
                if (place != proposedPlaces.end() && DesignFields::isFilled(property.value)) {
                    enter(&proposedUses[place->second], component, property.value);
                }
            }
            continue;
        }
        if (const auto place = otherPlaces.find(filled.front()); place != otherPlaces.end()) {
            enter(&otherUses[place->second], component, *component.stored(filled.front()));
        }
        const auto texts = differentTexts(design, component, filled);
        if (!others.empty() && !texts.isEmpty()) {
            reading.disagreements.append({fromHostText(component.reference), texts});
        }
    }
    reading.others = usedOnes(design, others, otherUses);
    reading.proposed = usedOnes(design, proposed, proposedUses);
    return reading;
}

/// Works an overview out in one pass through the components.
class Overview
{
public:
    explicit Overview(const LoadedDesign &design)
        : m_design(design)
        , m_fields(design.properties().fields())
        , m_uses(design.design().names().size())
        , m_filled(m_fields.names()->meanings().size())
        , m_parts(m_filled.size(), 0)
        , m_disagreements(m_filled.size())
    {
        for (NameId id = 0; id < m_uses.size(); ++id) {
            m_isOwnColumn.push_back(isOwnColumn(id));
        }
        for (const Component &component : design.design().components()) {
            visit(component);
        }
    }

    [[nodiscard]] FieldOverview result()
    {
        FieldOverview overview;
        std::vector<std::vector<NameId>> ids(m_filled.size());
        for (NameId id = 0; id < m_uses.size(); ++id) {
            m_uses[id].name = nameOf(m_design, id);
            if (m_uses[id].parts == 0) {
                continue;
            }
            const FieldSense &sense = m_fields.senseOf(id);
            if (sense.meaning) {
                ids[*sense.meaning].push_back(id);
            } else if (sense.proposed.empty()) {
                overview.others << m_uses[id];
            } else {
                overview.proposals.append({m_uses[id], {}});
                for (const std::size_t meaning : sense.proposed) {
                    overview.proposals.back().meanings << m_fields.names()->meanings()[meaning];
                }
            }
        }
        for (std::size_t i = 0; i < ids.size(); ++i) {
            if (!ids[i].empty()) {
                sortByRank(&ids[i]);
                overview.meanings.append(
                    {m_fields.names()->meanings()[i], usesOf(ids[i]), m_parts[i], m_disagreements[i]});
            }
        }
        return overview;
    }

private:
    /// The value, the reference, the footprint, and what defines BOM-only parts, links and the like; they are
    /// no names to choose.
    [[nodiscard]] bool isOwnColumn(NameId id) const
    {
        const QString name = nameOf(m_design, id);
        const auto footprints = m_design.design().names().candidates("PACKAGE");
        return (FieldNames::isOwn(name) && name.compare(QLatin1String("DNP"), Qt::CaseInsensitive) != 0) ||
               id == m_design.design().valueName() || id == m_design.design().referenceName() ||
               std::find(footprints.begin(), footprints.end(), id) != footprints.end();
    }

    [[nodiscard]] QList<FieldUse> usesOf(const std::vector<NameId> &ids) const
    {
        QList<FieldUse> uses;
        for (const NameId id : ids) {
            uses << m_uses[id];
        }
        return uses;
    }

    void sortByRank(std::vector<NameId> *ids) const
    {
        std::stable_sort(ids->begin(), ids->end(), [this](NameId a, NameId b) {
            return m_fields.senseOf(a).rank < m_fields.senseOf(b).rank;
        });
    }

    void visit(const Component &component)
    {
        std::vector<std::size_t> met;
        for (const designs::Property &property : component.properties) {
            if (m_isOwnColumn[property.name] || !DesignFields::isFilled(property.value)) {
                continue;
            }
            enter(&m_uses[property.name], component, property.value);
            if (const auto meaning = m_fields.senseOf(property.name).meaning) {
                if (m_filled[*meaning].empty()) {
                    met.push_back(*meaning);
                }
                m_filled[*meaning].push_back(property.name);
            }
        }
        for (const std::size_t meaning : met) {
            ++m_parts[meaning];
            std::vector<NameId> ids = std::exchange(m_filled[meaning], {});
            const bool isRead = m_fields.names()->meanings()[meaning].use == FieldMeaning::Use::Read;
            if (isRead && ids.size() > 1) {
                sortByRank(&ids);
                if (const auto texts = differentTexts(m_design, component, ids); !texts.isEmpty()) {
                    m_disagreements[meaning].append({fromHostText(component.reference), texts});
                }
            }
        }
    }

    const LoadedDesign &m_design;
    const DesignFields &m_fields;
    std::vector<FieldUse> m_uses;
    /// By meaning, the names that the component at hand has filled.
    std::vector<std::vector<NameId>> m_filled;
    std::vector<qsizetype> m_parts;
    std::vector<QList<FieldDisagreement>> m_disagreements;
    /// By the number of the name.
    std::vector<bool> m_isOwnColumn;
};

} // namespace

QList<FieldUse> unheededNotFitted(const LoadedDesign &design)
{
    const PropertyTable &table = design.properties();
    const std::vector<NotFittedName> names = notFittedNames(design);
    if (names.empty()) {
        return {};
    }
    std::vector<NameId> ids;
    std::transform(names.begin(), names.end(), std::back_inserter(ids),
                   [](const NotFittedName &name) { return name.id; });
    const PROPNAME skip("BOMSKIP");
    const auto places = placesOf(ids);
    std::vector<FieldUse> uses(ids.size());
    for (const Component &component : design.design().components()) {
        const bool isMeantFitted = component.notFitted == designs::MarkedBy::Nothing;
        if (!isMeantFitted || table.find(component, skip)) {
            continue;
        }
        for (const designs::Property &property : component.properties) {
            const auto place = places.find(property.name);
            if (place != places.end() && saysDoNotFit(table, names[place->second].says, property.value)) {
                enter(&uses[place->second], component, property.value);
            }
        }
    }
    return usedOnes(design, ids, uses);
}

QList<FieldReading> fieldReadings(const LoadedDesign &design, const QStringList &asked)
{
    QList<FieldReading> readings;
    QStringList known;
    for (const QString &name : asked) {
        if (known.contains(name, Qt::CaseInsensitive)) {
            continue;
        }
        known << name;
        readings << readingOf(design, name);
    }
    return readings;
}

FieldOverview fieldOverview(const LoadedDesign &design)
{
    return Overview(design).result();
}
