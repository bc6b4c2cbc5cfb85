// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/editmodel.h"

#include "designs/kicad/mandatorynames.h"
#include "designs/utf8.h"

#include <algorithm>
#include <numeric>

namespace designs::kicad {

EditModel::EditModel(const KicadDesign &design)
    : m_design(design)
    , m_outer(design.hierarchy(), design.variant())
    , m_variables(design.hierarchy(), design.project(), design.names(), design.info().variant)
{
    m_variables.setComponents(design.components(), design.symbolUses());
    const auto &uses = hierarchy().uses();
    m_usesOfFile.resize(hierarchy().files().size());
    for (quint32 use = 0; use < uses.size(); ++use) {
        m_usesOfFile[uses[use].file].push_back(use);
    }
    indexSharers();
    indexTables();
}

std::span<const SymbolUse> EditModel::places(std::size_t component) const
{
    const Component &part = components()[component];
    return {m_design.symbolUses().data() + part.origin, part.units};
}

quint32 EditModel::fileOf(const SymbolUse &place) const
{
    return hierarchy().uses()[place.use].file;
}

const SheetFile &EditModel::sheetOf(const SymbolUse &place) const
{
    return hierarchy().files()[fileOf(place)];
}

const PlacedSymbol &EditModel::symbolOf(const SymbolUse &place) const
{
    return sheetOf(place).symbols[place.symbol];
}

const std::string &EditModel::pathOf(const SymbolUse &place) const
{
    return hierarchy().uses()[place.use].uuidPath;
}

const InstanceRecord *EditModel::recordOf(const SymbolUse &place) const
{
    const auto path = sheetOf(place).pathNumber(pathOf(place));
    return path ? findInstance(symbolOf(place).instances, *path) : nullptr;
}

std::optional<std::string_view> EditModel::ownText(const SymbolUse &place, std::string_view name) const
{
    const PlacedSymbol &symbol = symbolOf(place);
    if (name == "Value") {
        return symbol.value;
    }
    for (const Property &property : symbol.properties) {
        if (names().name(property.name) == name) {
            return property.value;
        }
    }
    return std::nullopt;
}

std::optional<std::string_view> EditModel::usedText(const SymbolUse &place, std::string_view name) const
{
    const InstanceRecord *record = recordOf(place);
    if (const VariantRecord *variant = findVariant(record, m_design.variant())) {
        for (auto field = variant->fields.rbegin(); field != variant->fields.rend(); ++field) {
            if (names().name(field->name) == name) {
                return field->value;
            }
        }
    }
    const bool inTable = name == "Value" || name == "Footprint";
    if (const TableInstance *row = inTable && !record ? rowOf(place) : nullptr) {
        const std::string_view text = name == "Value" ? row->value : row->footprint;
        if (!text.empty()) {
            return text;
        }
    }
    return ownText(place, name);
}

std::optional<std::string_view> EditModel::nameIn(const SymbolUse &place, std::string_view name) const
{
    if (name == "Value" || usedText(place, name)) {
        return name;
    }
    const std::string wanted = caseFolded(name);
    for (const Property &property : symbolOf(place).properties) {
        if (caseFolded(names().name(property.name)) == wanted) {
            return names().name(property.name);
        }
    }
    return std::nullopt;
}

std::string EditModel::resolved(std::size_t component, std::string_view text) const
{
    return text.find("${") == std::string_view::npos ? std::string(text)
                                                     : m_variables.textOf(components()[component], text);
}

std::size_t EditModel::symbolNumber(const SymbolUse &place) const
{
    return m_firstSymbol[fileOf(place)] + place.symbol;
}

void EditModel::indexSharers()
{
    std::size_t symbols = 0;
    for (const SheetFile &file : hierarchy().files()) {
        m_firstSymbol.push_back(symbols);
        symbols += file.symbols.size();
    }
    m_sharerEnds.assign(symbols + 1, 0);
    for (std::size_t part = 0; part < components().size(); ++part) {
        for (const SymbolUse &place : places(part)) {
            ++m_sharerEnds[symbolNumber(place) + 1];
        }
    }
    std::partial_sum(m_sharerEnds.begin(), m_sharerEnds.end(), m_sharerEnds.begin());
    m_sharers.resize(m_sharerEnds.back());
    std::vector<std::size_t> next(m_sharerEnds.begin(), m_sharerEnds.end() - 1);
    for (std::size_t part = 0; part < components().size(); ++part) {
        for (const SymbolUse &place : places(part)) {
            m_sharers[next[symbolNumber(place)]++] = quint32(part);
        }
    }
}

std::span<const quint32> EditModel::sharers(const SymbolUse &place) const
{
    const std::size_t number = symbolNumber(place);
    return {m_sharers.data() + m_sharerEnds[number], m_sharerEnds[number + 1] - m_sharerEnds[number]};
}

void EditModel::indexTables()
{
    const auto &uses = hierarchy().uses();
    for (quint32 use = 0; use < uses.size(); ++use) {
        const auto &entries = hierarchy().files()[uses[use].file].instanceTable;
        if (uses[use].symbol || entries.empty()) {
            continue;
        }
        Table &table = m_tables[use];
        table.file = uses[use].file;
        table.byPath.resize(entries.size());
        std::iota(table.byPath.begin(), table.byPath.end(), 0U);
        std::stable_sort(table.byPath.begin(), table.byPath.end(),
                         [&](quint32 a, quint32 b) { return entries[a].path < entries[b].path; });
    }
}

std::span<const quint32> EditModel::entriesOf(quint32 use, const PlacedSymbol &symbol) const
{
    const quint32 root = hierarchy().rootOf(use);
    const auto found = m_tables.find(root);
    if (found == m_tables.end()) {
        return {};
    }
    const auto &uses = hierarchy().uses();
    std::string path = uses[use].uuidPath.substr(uses[root].uuidPath.size());
    path += '/';
    path += symbol.uuid;
    const auto &entries = hierarchy().files()[found->second.file].instanceTable;
    const auto &byPath = found->second.byPath;
    const auto first = std::lower_bound(byPath.begin(), byPath.end(), path,
                                        [&](quint32 a, const std::string &b) { return entries[a].path < b; });
    auto last = first;
    while (last != byPath.end() && entries[*last].path == path) {
        ++last;
    }
    return {first, last};
}

std::vector<TableRow> EditModel::rowsOf(quint32 file, const PlacedSymbol &symbol) const
{
    std::vector<TableRow> rows;
    if (m_tables.empty()) {
        return rows;
    }
    for (const quint32 use : m_usesOfFile[file]) {
        for (const quint32 entry : entriesOf(use, symbol)) {
            rows.push_back({m_tables.at(hierarchy().rootOf(use)).file, entry});
        }
    }
    return rows;
}

const TableInstance *EditModel::rowOf(const SymbolUse &place) const
{
    if (m_tables.empty()) {
        return nullptr;
    }
    const auto entries = entriesOf(place.use, symbolOf(place));
    const quint32 file = hierarchy().uses()[hierarchy().rootOf(place.use)].file;
    return entries.empty() ? nullptr : &hierarchy().files()[file].instanceTable[entries.front()];
}

} // namespace designs::kicad
