// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/componentbuilder.h"

#include "designs/texts.h"
#include "designs/utf8.h"

#include <algorithm>

namespace designs::kicad {

namespace {

std::string_view nameOfLibId(std::string_view libId)
{
    const std::size_t colon = libId.find(':');
    return colon == std::string_view::npos ? libId : libId.substr(colon + 1);
}

void replaceOrAdd(std::vector<Property> *properties, const Property &property)
{
    const auto same = std::find_if(properties->begin(), properties->end(),
                                   [&](const Property &other) { return other.name == property.name; });
    if (same == properties->end()) {
        properties->push_back(property);
    } else {
        same->value = property.value;
    }
}

} // namespace

ComponentBuilder::ComponentBuilder(const Hierarchy &hierarchy, std::string variant, TextArena *arena,
                                   PropertyNames *names, LineNumbers *lines)
    : m_hierarchy(hierarchy)
    , m_lines(lines)
    , m_variant(std::move(variant))
    , m_arena(arena)
    , m_names(names)
    , m_outer(hierarchy, m_variant)
    , m_footprint(names->intern("Footprint"))
    , m_valueName(names->intern("Value"))
{
}

BuiltComponents ComponentBuilder::build()
{
    collectTables();
    reserve();
    for (quint32 use = 0; use < m_hierarchy.uses().size(); ++use) {
        addUse(use);
    }
    finishGroups();
    warnAboutLibraries();
    return std::move(m_built);
}

/// Version 6 keeps the instances in a table of the root.
void ComponentBuilder::collectTables()
{
    const auto &uses = m_hierarchy.uses();
    for (quint32 number = 0; number < uses.size(); ++number) {
        const auto &entries = m_hierarchy.files()[uses[number].file].instanceTable;
        if (uses[number].symbol || entries.empty()) {
            continue;
        }
        m_tables.emplace(number, entries);
    }
}

void ComponentBuilder::reserve()
{
    std::size_t total = 0;
    for (const HierarchyUse &use : m_hierarchy.uses()) {
        total += m_hierarchy.files()[use.file].symbols.size();
    }
    m_built.components.reserve(total);
    m_built.symbols.reserve(total);
}

void ComponentBuilder::addUse(quint32 use)
{
    const HierarchyUse &sheet = m_hierarchy.uses()[use];
    const SheetFile &file = m_hierarchy.files()[sheet.file];
    const std::optional<quint32> path = file.pathNumber(sheet.uuidPath);
    m_built.count.placed += qsizetype(file.symbols.size());
    quint32 first = 0;
    qsizetype without = 0;
    for (quint32 symbol = 0; symbol < file.symbols.size(); ++symbol) {
        m_hasInstance = true;
        const qsizetype power = m_built.count.power;
        addSymbol(use, symbol, path);
        if (!m_hasInstance && power == m_built.count.power && without++ == 0) {
            first = symbol;
        }
    }
    if (without > 0) {
        warnAboutInstances(use, first, without);
    }
}

const TableInstance *ComponentBuilder::tableEntry(quint32 use, const PlacedSymbol &symbol)
{
    if (m_tables.empty()) {
        return nullptr;
    }
    const quint32 root = m_hierarchy.rootOf(use);
    const auto table = m_tables.find(root);
    if (table == m_tables.end()) {
        return nullptr;
    }
    const std::size_t rootLength = m_hierarchy.uses()[root].uuidPath.size();
    m_key.assign(m_hierarchy.uses()[use].uuidPath, rootLength);
    m_key += '/';
    m_key += symbol.uuid;
    return table->second.find(m_key);
}

/// What counts is the record for the path of identifiers that leads to this use, never the one that names the
/// project: names go stale when a project is copied or renamed, and a file can be used by several projects.
/// Version 6 has no records but a table in the root, by the path with the symbol's identifier behind it.
/// Where neither says anything of this use, the symbol's own Reference counts, which holds for one use only.
ComponentBuilder::Instance ComponentBuilder::instanceOf(quint32 use, const PlacedSymbol &symbol,
                                                        std::optional<quint32> path)
{
    const InstanceRecord *record = path ? findInstance(symbol.instances, *path) : nullptr;
    if (record) {
        return {record->reference, {}, {}, record->unit, findVariant(record, m_variant)};
    }
    if (const TableInstance *entry = tableEntry(use, symbol)) {
        return {entry->reference, entry->value, entry->footprint, entry->unit, nullptr};
    }
    m_hasInstance = false;
    return {symbol.reference, {}, {}, symbol.unit, nullptr};
}

void ComponentBuilder::addSymbol(quint32 use, quint32 symbol, std::optional<quint32> path)
{
    const SheetFile &file = m_hierarchy.files()[m_hierarchy.uses()[use].file];
    const PlacedSymbol &placed = file.symbols[symbol];
    const Instance instance = instanceOf(use, placed, path);
    const LibrarySymbol *library = file.librarySymbol(placed);
    if (instance.reference.starts_with('#') || (library && library->power)) {
        ++m_built.count.power;
        return;
    }
    const Component component = makeComponent(use, placed, instance);
    const SymbolUse place{use, symbol, instance.unit};
    if (!library) {
        noteMissingLibrary(component, place, placed.libId);
    }
    const bool severalUnits = !library || library->units > 1;
    if (severalUnits && joinGroup(component, place, placed.libId)) {
        return;
    }
    m_built.components.push_back(component);
    m_built.components.back().origin = quint32(m_built.symbols.size());
    m_built.symbols.push_back(place);
}

Component ComponentBuilder::makeComponent(quint32 use, const PlacedSymbol &symbol, const Instance &instance)
{
    Component component;
    component.reference = instance.reference;
    component.value = instance.value.empty() ? symbol.value : instance.value;
    component.name = nameOfLibId(symbol.libId);
    component.properties = symbol.properties;
    component.file = m_hierarchy.uses()[use].file;
    component.sheet = use;
    applyMarks(&component, symbol, instance);
    if (!instance.footprint.empty() || (instance.variant && !instance.variant->fields.empty())) {
        applyOverrides(&component, instance);
    }
    return component;
}

void ComponentBuilder::applyMarks(Component *component, const PlacedSymbol &symbol, const Instance &instance)
{
    const VariantRecord *variant = instance.variant;
    OuterMarks::Mark notInBom{MarkedBy::Symbol, 0};
    if (variant ? variant->inBom.value_or(symbol.inBom) : symbol.inBom) {
        notInBom = m_outer.notInBom(component->sheet, symbol);
    }
    OuterMarks::Mark notFitted{MarkedBy::Symbol, 0};
    if (!(variant ? variant->dnp.value_or(symbol.dnp) : symbol.dnp)) {
        notFitted = m_outer.notFitted(component->sheet, symbol);
    }
    component->notInBom = notInBom.by;
    component->notInBomSheet = notInBom.sheet;
    component->notFitted = notFitted.by;
    component->notFittedSheet = notFitted.sheet;
}

void ComponentBuilder::applyOverrides(Component *component, const Instance &instance)
{
    m_scratch.assign(component->properties.begin(), component->properties.end());
    if (!instance.footprint.empty()) {
        replaceOrAdd(&m_scratch, {m_footprint, instance.footprint});
    }
    if (instance.variant) {
        for (const Property &field : instance.variant->fields) {
            if (field.name == m_valueName) {
                component->value = field.value;
            } else {
                replaceOrAdd(&m_scratch, field);
            }
        }
    }
    component->properties = m_arena->copy(std::span<const Property>(m_scratch));
}

/// Parts drawn in several units are collected here; true when this is a further unit of one seen before. A
/// unit that stands there twice, or another symbol under the same reference, begins a part of its own: a
/// duplicate.
bool ComponentBuilder::joinGroup(const Component &component, const SymbolUse &place, std::string_view libId)
{
    if (component.reference.empty() || component.reference.ends_with('?')) {
        return false;
    }
    m_key.assign(component.reference);
    m_key += '\n';
    m_key += libId;
    std::vector<quint32> &candidates = m_groupsBySymbol[m_key];
    const auto unitOf = [&place](quint32 group) { return quint64(group) << 32 | quint32(place.unit); };
    // Each unit fills the groups from the first on, so those that have it stand before those that lack it.
    const auto free = std::partition_point(candidates.begin(), candidates.end(), [&](quint32 group) {
        return m_takenUnits.count(unitOf(group)) != 0;
    });
    if (free != candidates.end()) {
        m_takenUnits.insert(unitOf(*free));
        m_groups[*free].members.emplace_back(place, component);
        ++m_built.count.mergedUnits;
        return true;
    }
    const auto number = quint32(m_groups.size());
    candidates.push_back(number);
    m_takenUnits.insert(unitOf(number));
    m_groups.push_back({quint32(m_built.components.size()), {{place, component}}});
    return false;
}

void ComponentBuilder::finishGroups()
{
    for (Group &group : m_groups) {
        if (group.members.size() > 1) {
            finishGroup(&group);
        }
    }
}

void ComponentBuilder::finishGroup(Group *group)
{
    std::stable_sort(group->members.begin(), group->members.end(),
                     [](const auto &a, const auto &b) { return a.first.unit < b.first.unit; });
    Component joined = group->members.front().second;
    joined.units = quint32(group->members.size());
    joined.origin = quint32(m_built.symbols.size());
    for (const auto &[place, unit] : group->members) {
        m_built.symbols.push_back(place);
        if (joined.notInBom == MarkedBy::Nothing) {
            joined.notInBom = unit.notInBom;
            joined.notInBomSheet = unit.notInBomSheet;
        }
        if (joined.notFitted == MarkedBy::Nothing) {
            joined.notFitted = unit.notFitted;
            joined.notFittedSheet = unit.notFittedSheet;
        }
        if (joined.value.empty()) {
            joined.value = unit.value;
        }
    }
    warnAboutUnits(*group, joined, joinProperties(*group, &joined));
    m_built.components[group->component] = joined;
}

/// A property is what the lowest unit says of it that does not leave it empty. Gives the names of those in
/// which the units differ.
QStringList ComponentBuilder::joinProperties(const Group &group, Component *joined)
{
    std::unordered_map<NameId, std::size_t> places;
    m_scratch.clear();
    for (const auto &[place, unit] : group.members) {
        for (const Property &property : unit.properties) {
            const auto [at, isNew] = places.emplace(property.name, m_scratch.size());
            if (isNew) {
                m_scratch.push_back(property);
            } else if (m_scratch[at->second].value.empty()) {
                m_scratch[at->second].value = property.value;
            }
        }
    }
    joined->properties = m_arena->copy(std::span<const Property>(m_scratch));
    QStringList differing;
    for (const auto &[place, unit] : group.members) {
        for (const Property &property : unit.properties) {
            if (m_scratch[places.at(property.name)].value != property.value) {
                differing << fromUtf8(m_names->name(property.name));
            }
        }
    }
    return differing;
}

void ComponentBuilder::warnAboutUnits(const Group &group, const Component &joined, QStringList differing)
{
    const Component &first = group.members.front().second;
    for (const auto &[place, unit] : group.members) {
        if (unit.value != joined.value) {
            differing << QStringLiteral("Value");
        }
        if (unit.notInBom != first.notInBom || unit.notFitted != first.notFitted) {
            differing << KicadTexts::tr("the flags for BOM and population");
        }
    }
    differing.removeDuplicates();
    if (!differing.isEmpty()) {
        warn(group.members.front().first,
             KicadTexts::tr("%1: its units differ in %2; the lowest unit that says something counts")
                 .arg(fromUtf8(first.reference), differing.join(QStringLiteral(", "))));
    }
}

void ComponentBuilder::noteMissingLibrary(const Component &component, const SymbolUse &place,
                                          std::string_view libId)
{
    MissingLibrary &missing = m_missing[{component.file, libId}];
    if (missing.count++ == 0) {
        missing.first = place;
        missing.libId = libId;
        missing.reference = component.reference;
    }
}

void ComponentBuilder::warnAboutLibraries()
{
    for (const auto &[key, missing] : m_missing) {
        QString parts = fromUtf8(missing.reference);
        if (missing.count > 1) {
            parts = KicadTexts::tr("%1 and %2 more").arg(parts, QString::number(missing.count - 1));
        }
        warn(missing.first,
             KicadTexts::tr(
                 "%1: the symbol %2 is missing in the sheet's library cache; KiCad leaves such parts "
                 "out of its own lists, here they count")
                 .arg(parts, fromUtf8(missing.libId)));
    }
}

void ComponentBuilder::warnAboutInstances(quint32 use, quint32 first, qsizetype count)
{
    warn(
        {use, first, 1},
        KicadTexts::tr("sheet %1: %2 of its symbols have no record for this use of the sheet; the references "
                       "stored in the symbols themselves count")
            .arg(m_hierarchy.uses()[use].namePath, QString::number(count)));
}

void ComponentBuilder::warn(const SymbolUse &place, const QString &text)
{
    const SheetFile &file = m_hierarchy.files()[m_hierarchy.uses()[place.use].file];
    m_built.warnings.push_back(
        {file.path, m_lines->line(file.path, file.symbols[place.symbol].offset), text});
}

} // namespace designs::kicad
