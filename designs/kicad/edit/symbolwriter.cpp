// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/symbolwriter.h"

#include "designs/kicad/edit/listlayout.h"
#include "designs/kicad/edit/newproperty.h"
#include "designs/kicad/edit/variantwriter.h"
#include "designs/kicad/mandatorynames.h"
#include "designs/texts.h"

#include <algorithm>
#include <charconv>

namespace designs::kicad {

namespace {

std::string nameOf(std::string_view bytes, const SexprNode &property)
{
    const std::size_t name = isPrivate(bytes, property) ? 1 : 0;
    return name < property.atoms.size() ? textOf(bytes, property.atoms[name]) : std::string();
}

bool isCalled(std::string_view bytes, const SexprNode &list, std::string_view name)
{
    return list.keyword == "property" && mandatoryName(nameOf(bytes, list)) == name;
}

int highestId(std::string_view bytes, const SexprNode &symbol)
{
    int highest = 3;
    for (const SexprNode &list : symbol.lists) {
        const SexprNode *id = list.keyword == "property" ? list.first("id") : nullptr;
        const std::string text = id ? firstText(bytes, *id) : std::string();
        int number = 0;
        std::from_chars(text.data(), text.data() + text.size(), number);
        highest = std::max(highest, number);
    }
    return highest;
}

} // namespace

const SexprNode *findProperty(std::string_view bytes, const SexprNode &symbol, std::string_view name)
{
    const auto found = std::find_if(symbol.lists.rbegin(), symbol.lists.rend(),
                                    [&](const SexprNode &list) { return isCalled(bytes, list, name); });
    return found == symbol.lists.rend() ? nullptr : &*found;
}

const SexprNode *findPath(std::string_view bytes, const SexprNode &symbol, std::string_view path)
{
    for (const SexprNode &instances : symbol.lists) {
        if (instances.keyword != "instances") {
            continue;
        }
        for (const SexprNode &project : instances.lists) {
            for (const SexprNode &list : project.lists) {
                if (project.keyword == "project" && list.keyword == "path" &&
                    firstText(bytes, list) == path) {
                    return &list;
                }
            }
        }
    }
    return nullptr;
}

SymbolWriter::SymbolWriter(std::string_view bytes, const SheetFile &file, std::string_view variant,
                           std::vector<Splice> *splices)
    : m_bytes(bytes)
    , m_file(file)
    , m_variant(variant)
    , m_splices(splices)
{
}

QString SymbolWriter::write(const SexprNode &symbol, const PlacedSymbol &placed, const SymbolRewrite &change,
                            const PropertyNames &names)
{
    m_nextId = highestId(m_bytes, symbol) + 1;
    for (const WantedText &property : change.properties) {
        if (!writeProperty(symbol, property)) {
            return KicadEditTexts::tr("the symbol has no property that shows how one is laid out");
        }
    }
    if (change.dnp) {
        writeFlag(symbol, "dnp", *change.dnp);
    }
    if (change.inBom) {
        writeFlag(symbol, "in_bom", *change.inBom);
    }
    return writeVariants(symbol, placed, change, names)
               ? QString()
               : KicadEditTexts::tr("the symbol's record of this use of the sheet cannot be found again");
}

bool SymbolWriter::writeProperty(const SexprNode &symbol, const WantedText &change)
{
    if (!change.text) {
        for (const SexprNode &list : symbol.lists) {
            if (isCalled(m_bytes, list, change.name)) {
                m_splices->push_back({list.gap, list.end, {}});
            }
        }
        return true;
    }
    const SexprNode *property = findProperty(m_bytes, symbol, change.name);
    if (!property) {
        return addProperty(symbol, change);
    }
    replaceValue(*property, *change.text);
    return true;
}

void SymbolWriter::replaceValue(const SexprNode &property, std::string_view text)
{
    const std::size_t value = isPrivate(m_bytes, property) ? 2 : 1;
    if (value < property.atoms.size()) {
        m_splices->push_back({property.atoms[value].begin, property.atoms[value].end, quotedText(text)});
    } else {
        m_splices->push_back({property.atoms.back().end, property.atoms.back().end, ' ' + quotedText(text)});
    }
}

bool SymbolWriter::addProperty(const SexprNode &symbol, const WantedText &change)
{
    const bool isFootprint = change.name == "Footprint";
    const bool isDatasheet = change.name == "Datasheet";
    NewProperty property{change.name, *change.text, isFootprint ? 2 : 3};
    property.id = change.name == "Value" ? 1 : isFootprint || isDatasheet ? property.id : m_nextId++;
    const auto text = newPropertyText(m_bytes, symbol, property, m_file.formatVersion);
    if (!text) {
        return false;
    }
    const std::size_t at = lastProperty(symbol)->end;
    m_splices->push_back({at, at, *text});
    return true;
}

void SymbolWriter::writeFlag(const SexprNode &symbol, std::string_view word, bool wanted)
{
    const std::string text = wanted ? "yes" : "no";
    const SexprNode *flag = symbol.last(word);
    if (!flag) {
        insertFlag(symbol, word, '(' + std::string(word) + ' ' + text + ')');
    } else if (flag->atoms.empty()) {
        m_splices->push_back({flag->begin, flag->end, '(' + std::string(word) + ' ' + text + ')'});
    } else {
        m_splices->push_back({flag->atoms.front().begin, flag->atoms.front().end, text});
    }
}

/// Where KiCad itself would write it, as far as the lists before it are there.
void SymbolWriter::insertFlag(const SexprNode &symbol, std::string_view word, std::string_view text)
{
    static constexpr std::string_view order[] = {"lib_id",   "at",          "mirror",           "unit",
                                                 "convert",  "body_style",  "exclude_from_sim", "in_bom",
                                                 "on_board", "in_pos_files"};
    const SexprNode *before = nullptr;
    for (const std::string_view keyword : order) {
        if (keyword == word) {
            break;
        }
        const SexprNode *list = symbol.first(keyword);
        before = list && (!before || list->begin > before->begin) ? list : before;
    }
    if (before) {
        const std::string_view gap = before->keyword == "lib_id" ? " " : gapOf(m_bytes, *before);
        m_splices->push_back({before->end, before->end, std::string(gap) + std::string(text)});
    } else {
        const std::size_t at = symbol.begin + std::string_view("(symbol").size();
        m_splices->push_back({at, at, ' ' + std::string(text)});
    }
}

bool SymbolWriter::writeVariants(const SexprNode &symbol, const PlacedSymbol &placed,
                                 const SymbolRewrite &change, const PropertyNames &names)
{
    VariantWriter::Base base;
    base.dnp = placed.dnp;
    base.inBom = placed.inBom;
    base.property = [&](std::string_view name) -> const std::string_view * {
        if (name == "Value") {
            return &placed.value;
        }
        for (const Property &property : placed.properties) {
            if (names.name(property.name) == name) {
                return &property.value;
            }
        }
        return nullptr;
    };
    return std::all_of(change.variants.begin(), change.variants.end(), [&](const auto &entry) {
        const SexprNode *path = findPath(m_bytes, symbol, entry.first);
        if (!path || path->lists.empty()) {
            return false;
        }
        VariantWriter(m_bytes, m_file.formatVersion, m_variant, m_splices).write(*path, entry.second, base);
        return true;
    });
}

void SymbolWriter::write(const SexprNode &row, const RowRewrite &change)
{
    const auto replace = [&](std::string_view word, const std::optional<std::string> &text) {
        const SexprNode *list = row.last(word);
        if (text && list && !list->atoms.empty()) {
            m_splices->push_back({list->atoms.front().begin, list->atoms.front().end, quotedText(*text)});
        }
    };
    replace("value", change.value);
    replace("footprint", change.footprint);
}

} // namespace designs::kicad
