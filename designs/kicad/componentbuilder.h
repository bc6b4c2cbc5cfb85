// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"
#include "designs/kicad/hierarchy.h"
#include "designs/kicad/instancetable.h"
#include "designs/kicad/outermarks.h"
#include "designs/linenumbers.h"

#include <QStringList>

#include <map>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace designs::kicad {

/// One symbol of the drawing in one use of its sheet.
struct SymbolUse
{
    quint32 use = 0;
    quint32 symbol = 0;
    qint32 unit = 1;
};

/// What a hierarchy's symbols come to.
struct BuiltComponents
{
    std::vector<Component> components;
    /// The symbols of each component: `units` entries from `origin` on, the lowest unit first.
    std::vector<SymbolUse> symbols;
    SymbolCount count;
    std::vector<Problem> warnings;
};

/// Makes one component per part out of the symbols of a hierarchy: references by instance, the units of a
/// part joined, flags of sheets, rule areas and the variant applied.
class ComponentBuilder
{
public:
    ComponentBuilder(const Hierarchy &hierarchy, std::string variant, TextArena *arena, PropertyNames *names,
                     LineNumbers *lines);

    /// Once.
    [[nodiscard]] BuiltComponents build();

private:
    /// What an instance says of a symbol.
    struct Instance
    {
        std::string_view reference;
        std::string_view value;
        std::string_view footprint;
        int unit = 1;
        const VariantRecord *variant = nullptr;
    };
    /// A part that is drawn in several units, while they are collected.
    struct Group
    {
        quint32 component = 0;
        /// Each unit as a component of its own, with its symbol.
        std::vector<std::pair<SymbolUse, Component>> members;
    };
    void collectTables();
    void reserve();
    void addUse(quint32 use);
    void addSymbol(quint32 use, quint32 symbol, std::optional<quint32> path);
    [[nodiscard]] Instance instanceOf(quint32 use, const PlacedSymbol &symbol, std::optional<quint32> path);
    [[nodiscard]] const TableInstance *tableEntry(quint32 use, const PlacedSymbol &symbol);
    [[nodiscard]] Component makeComponent(quint32 use, const PlacedSymbol &symbol, const Instance &instance);
    void applyMarks(Component *component, const PlacedSymbol &symbol, const Instance &instance);
    void applyOverrides(Component *component, const Instance &instance);
    bool joinGroup(const Component &component, const SymbolUse &place, std::string_view libId);
    void finishGroups();
    void finishGroup(Group *group);
    [[nodiscard]] QStringList joinProperties(const Group &group, Component *joined);
    void warnAboutUnits(const Group &group, const Component &joined, QStringList differing);
    void noteMissingLibrary(const Component &component, const SymbolUse &place, std::string_view libId);
    void warnAboutLibraries();
    void warnAboutInstances(quint32 use, quint32 first, qsizetype count);
    void warn(const SymbolUse &place, const QString &text);

    /// Parts whose symbol is missing in a file's library cache.
    struct MissingLibrary
    {
        SymbolUse first;
        std::string_view libId;
        std::string_view reference;
        qsizetype count = 0;
    };

    BuiltComponents m_built;
    const Hierarchy &m_hierarchy;
    LineNumbers *m_lines;
    std::map<std::pair<quint32, std::string_view>, MissingLibrary> m_missing;
    bool m_hasInstance = true;
    std::string m_variant;
    TextArena *m_arena;
    PropertyNames *m_names;
    OuterMarks m_outer;
    NameId m_footprint = 0;
    NameId m_valueName = 0;
    std::unordered_map<quint32, InstanceTable> m_tables;
    std::string m_key;
    /// By reference and library symbol.
    std::unordered_map<std::string, std::vector<quint32>> m_groupsBySymbol;
    /// Group and unit in one number.
    std::unordered_set<quint64> m_takenUnits;
    std::vector<Group> m_groups;
    std::vector<Property> m_scratch;
};

} // namespace designs::kicad
