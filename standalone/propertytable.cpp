// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/propertytable.h"

#include "designs/notfitted.h"

#include <algorithm>
#include <atomic>

namespace {

constexpr char skipName[] = "BOMSKIP";
constexpr char notFittedName[] = "DNP";
constexpr char flagText[] = "1";

quint64 nextStamp()
{
    // 0 is what a name remembers before it has met any table.
    static std::atomic<quint64> last = 0;
    return ++last;
}

QByteArrayView view(std::string_view text)
{
    return {text.data(), qsizetype(text.size())};
}

QByteArray bytes(std::string_view text)
{
    return {text.data(), qsizetype(text.size())};
}

bool contains(const std::vector<designs::NameId> &ids, designs::NameId id)
{
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

} // namespace

PropertyTable::PropertyTable(const designs::Design &design, std::shared_ptr<const FieldNames> fieldNames)
    : m_design(design)
    , m_fields(design, std::move(fieldNames))
    , m_stamp(nextStamp())
    , m_skip(&lookup(QByteArray(skipName)))
    , m_notFitted(&lookup(QByteArray(notFittedName)))
{
}

std::optional<QByteArrayView> PropertyTable::find(const designs::Component &component,
                                                  const PROPNAME &name) const
{
    const Lookup &asked = lookup(name);
    if (asked.meaning == Meaning::NotFitted) {
        return component.notFitted == designs::MarkedBy::Nothing ? std::nullopt
                                                                 : std::optional<QByteArrayView>(flagText);
    }
    const auto found = stored(component, asked);
    if (!found && asked.meaning == Meaning::Skip &&
        (component.notInBom != designs::MarkedBy::Nothing || isLeftOutByChoice(component))) {
        return QByteArrayView(flagText);
    }
    return found;
}

std::vector<PROPERTY> PropertyTable::startingWith(const designs::Component &component,
                                                  const PROPPREFIX &prefix) const
{
    std::vector<PROPERTY> found;
    const std::vector<designs::NameId> &asked = lookup(prefix);
    if (asked.empty()) {
        return found;
    }
    for (const designs::Property &property : component.properties) {
        // Numbers grow with the first sight of a name, so these are in order.
        if (std::binary_search(asked.begin(), asked.end(), property.name)) {
            found.push_back({view(m_design.names().name(property.name)), view(property.value)});
        }
    }
    return found;
}

std::vector<PROPERTY> PropertyTable::all(const designs::Component &component) const
{
    std::vector<PROPERTY> properties;
    const bool isNotFitted = component.notFitted != designs::MarkedBy::Nothing;
    bool hasNotFitted = false;
    for (const designs::Property &property : component.properties) {
        const QByteArrayView name = view(m_design.names().name(property.name));
        if (!contains(m_notFitted->candidates, property.name)) {
            properties.push_back({name, view(property.value)});
        } else if (isNotFitted && !hasNotFitted) {
            properties.push_back({name, flagText});
            hasNotFitted = true;
        }
    }
    if (isNotFitted && !hasNotFitted) {
        properties.push_back({notFittedName, flagText});
    }
    if (component.notInBom != designs::MarkedBy::Nothing && !hasStoredSkip(component)) {
        properties.push_back({skipName, flagText});
    }
    return properties;
}

QByteArrayList PropertyTable::allNames() const
{
    QByteArrayList names;
    for (designs::NameId id = 0; id < m_design.names().size(); ++id) {
        if (id != m_design.referenceName() && id != m_design.valueName()) {
            names.append(bytes(m_design.names().name(id)));
        }
    }
    const auto &components = m_design.components();
    const auto isMarked = [&components](designs::MarkedBy designs::Component::*mark) {
        return std::any_of(components.begin(), components.end(), [mark](const designs::Component &component) {
            return component.*mark != designs::MarkedBy::Nothing;
        });
    };
    if (m_notFitted->candidates.empty() && isMarked(&designs::Component::notFitted)) {
        names.append(notFittedName);
    }
    if (m_skip->candidates.empty() && isMarked(&designs::Component::notInBom)) {
        names.append(skipName);
    }
    return names;
}

bool PropertyTable::isLeftOutByChoice(const designs::Component &component) const
{
    return !isListedByChoice(component.notFitted == designs::MarkedBy::Nothing);
}

FITTING PropertyTable::fitting(QByteArrayView dnp) const
{
    const bool isFitted = !designs::saysNotFitted({dnp.data(), size_t(dnp.size())});
    return {isFitted, isListedByChoice(isFitted)};
}

bool PropertyTable::isListedByChoice(bool isFitted) const
{
    switch (m_dnpChoice) {
    case DnpChoice::Exclude:
        return isFitted;
    case DnpChoice::Only:
        return !isFitted;
    case DnpChoice::Include:
        break;
    }
    return true;
}

bool PropertyTable::hasStoredSkip(const designs::Component &component) const
{
    return stored(component, *m_skip).has_value();
}

const PropertyTable::Lookup &PropertyTable::lookup(const PROPNAME &name) const
{
    if (const void *known = name.remembered(m_stamp)) {
        return *static_cast<const Lookup *>(known);
    }
    const Lookup &found = lookup(name.name());
    name.remember(m_stamp, &found);
    return found;
}

const PropertyTable::Lookup &PropertyTable::lookup(const QByteArray &name) const
{
    const std::string key = name.toStdString();
    if (const auto known = m_lookups.find(key); known != m_lookups.end()) {
        return known->second;
    }
    Lookup made;
    made.candidates = m_design.names().candidates(key);
    made.isPlain = !contains(made.candidates, m_design.valueName()) &&
                   !contains(made.candidates, m_design.referenceName());
    if (name.compare(skipName, Qt::CaseInsensitive) == 0) {
        made.meaning = Meaning::Skip;
    } else if (name.compare(notFittedName, Qt::CaseInsensitive) == 0) {
        made.meaning = Meaning::NotFitted;
    }
    if (made.meaning == Meaning::Stored && made.isPlain) {
        made.others = m_fields.sameMeaning(name, made.candidates);
        for (std::size_t rank = 0; rank < made.others.size(); ++rank) {
            made.ranks.emplace_back(made.others[rank], rank);
        }
        std::sort(made.ranks.begin(), made.ranks.end());
    }
    return m_lookups.emplace(key, std::move(made)).first->second;
}

const std::vector<designs::NameId> &PropertyTable::lookup(const PROPPREFIX &prefix) const
{
    if (const void *known = prefix.remembered(m_stamp)) {
        return *static_cast<const std::vector<designs::NameId> *>(known);
    }
    const auto [entry, isNew] = m_prefixLookups.try_emplace(prefix.name().toStdString());
    for (designs::NameId id = 0; isNew && id < m_design.names().size(); ++id) {
        if (m_design.names().name(id).starts_with(entry->first)) {
            entry->second.push_back(id);
        }
    }
    prefix.remember(m_stamp, &entry->second);
    return entry->second;
}

std::optional<QByteArrayView> PropertyTable::stored(const designs::Component &component,
                                                    const Lookup &lookup) const
{
    // Most names stand for one property; the value and the reference stand beside the properties.
    if (lookup.isPlain && lookup.candidates.size() == 1 && lookup.others.empty()) {
        const auto value = component.stored(lookup.candidates.front());
        return value ? std::optional(view(*value)) : std::nullopt;
    }
    const auto name = usedName(component, lookup);
    return name ? std::optional(view(*m_design.stored(component, *name))) : std::nullopt;
}

std::optional<designs::NameId> PropertyTable::usedName(const designs::Component &component,
                                                       const Lookup &lookup) const
{
    const auto own = m_design.storedName(component, lookup.candidates);
    if (lookup.others.empty() || (own && DesignFields::isFilled(*m_design.stored(component, *own)))) {
        return own;
    }
    std::optional<std::size_t> filled;
    std::optional<std::size_t> empty;
    for (const designs::Property &property : component.properties) {
        if (const auto rank = rankOf(lookup, property.name)) {
            auto &best = DesignFields::isFilled(property.value) ? filled : empty;
            best = std::min(best.value_or(*rank), *rank);
        }
    }
    if (!filled && own) {
        return own;
    }
    const auto best = filled ? filled : empty;
    return best ? std::optional(lookup.others[*best]) : std::nullopt;
}

std::optional<std::size_t> PropertyTable::rankOf(const Lookup &lookup, designs::NameId name)
{
    const auto found =
        std::lower_bound(lookup.ranks.begin(), lookup.ranks.end(), name,
                         [](const auto &ranked, designs::NameId id) { return ranked.first < id; });
    return found != lookup.ranks.end() && found->first == name ? std::optional(found->second) : std::nullopt;
}

const std::vector<designs::NameId> &PropertyTable::otherNames(const QByteArray &name) const
{
    return lookup(name).others;
}

std::optional<designs::NameId> PropertyTable::usedName(const designs::Component &component,
                                                       const QByteArray &name) const
{
    return usedName(component, lookup(name));
}

std::vector<designs::NameId> PropertyTable::filledNames(const designs::Component &component,
                                                        const QByteArray &name) const
{
    const Lookup &asked = lookup(name);
    std::vector<designs::NameId> filled;
    for (const designs::NameId id : asked.candidates) {
        const auto text = m_design.stored(component, id);
        if (text && DesignFields::isFilled(*text)) {
            filled.push_back(id);
        }
    }
    std::vector<std::size_t> others;
    for (const designs::Property &property : component.properties) {
        const auto rank = rankOf(asked, property.name);
        if (rank && DesignFields::isFilled(property.value)) {
            others.push_back(*rank);
        }
    }
    std::sort(others.begin(), others.end());
    std::transform(others.begin(), others.end(), std::back_inserter(filled),
                   [&asked](std::size_t rank) { return asked.others[rank]; });
    return filled;
}

QByteArray PropertyTable::writtenName(const designs::Component &component, const QByteArray &name) const
{
    const Lookup &asked = lookup(name);
    if (!m_fields.names() || asked.meaning != Meaning::Stored || !asked.isPlain ||
        FieldNames::isExact(QString::fromUtf8(name))) {
        return name;
    }
    if (const auto used = usedName(component, asked)) {
        return rankOf(asked, *used) ? bytes(m_design.names().name(*used)) : name;
    }
    std::vector<designs::NameId> ids = asked.candidates;
    ids.insert(ids.end(), asked.others.begin(), asked.others.end());
    return ids.empty() ? name : bytes(m_design.names().name(m_fields.commonest(ids)));
}
