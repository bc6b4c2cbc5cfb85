// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/rewritecollector.h"

#include "designs/notfitted.h"

#include <algorithm>

namespace designs::kicad {

namespace {

bool knowsNotFitted(const SheetFile &sheet, const PlacedSymbol &symbol)
{
    return sheet.formatVersion >= version::notFittedFlag || symbol.dnp;
}

} // namespace

RewriteCollector::RewriteCollector(const EditModel &model)
    : m_model(model)
{
}

SymbolRewrite &RewriteCollector::rewriteOf(const SymbolUse &place)
{
    return m_sheets[m_model.fileOf(place)].symbols[place.symbol];
}

VariantRewrite &RewriteCollector::variantRewriteOf(const SymbolUse &place)
{
    return rewriteOf(place).variants[m_model.pathOf(place)];
}

std::vector<std::size_t> RewriteCollector::alsoChanges(const ResolvedEdit &edit) const
{
    std::vector<std::size_t> others;
    if (!m_model.variant().empty()) {
        return others;
    }
    for (const SymbolUse &place : m_model.places(edit.component)) {
        const auto sharers = m_model.sharers(place);
        std::copy_if(sharers.begin(), sharers.end(), std::back_inserter(others),
                     [&edit](quint32 other) { return other != edit.component; });
    }
    std::sort(others.begin(), others.end());
    others.erase(std::unique(others.begin(), others.end()), others.end());
    return others;
}

Change RewriteCollector::add(std::size_t number, const ResolvedEdit &edit, std::size_t index)
{
    const auto places = m_model.places(edit.component);
    const SymbolUse *site = nullptr;
    for (const SymbolUse &place : places) {
        bool changes = false;
        if (edit.target == EditTarget::NotFitted) {
            changes = addNotFitted(edit.wanted.has_value(), place, edit.component);
        } else if (edit.target == EditTarget::NotInBom) {
            changes = addNotInBom(edit.wanted.has_value(), place);
        } else {
            changes = addProperty(edit, place);
        }
        site = changes && !site ? &place : site;
    }
    site = site ? site : &places.front();
    rewriteOf(*site).changes.push_back(index);
    return {number, edit.name,         edit.before,      edit.wanted, m_model.sheetOf(*site).path,
            0,      alsoChanges(edit), m_model.variant()};
}

bool RewriteCollector::addProperty(const ResolvedEdit &edit, const SymbolUse &place)
{
    const auto own = m_model.nameIn(place, edit.name);
    const bool isVariant = !m_model.variant().empty();
    if (!own && (!edit.wanted || isVariant)) {
        return false;
    }
    const auto text = edit.wanted ? std::optional(edit.written) : std::nullopt;
    setText(place, own.value_or(edit.name), text);
    return !own || m_model.usedText(place, *own) != text;
}

void RewriteCollector::setText(const SymbolUse &place, std::string_view name,
                               const std::optional<std::string> &text)
{
    if (!m_model.variant().empty()) {
        designs::kicad::setText(&variantRewriteOf(place).fields, name, text);
        return;
    }
    designs::kicad::setText(&rewriteOf(place).properties, name, text);
    if (text && (name == "Value" || name == "Footprint")) {
        setRows(place, name, *text);
    }
}

/// Version 6 repeats value and footprint in the table of instances, for every use; a text there overrides the
/// symbol's, so it must follow.
void RewriteCollector::setRows(const SymbolUse &place, std::string_view name, const std::string &text)
{
    for (const TableRow &row : m_model.rowsOf(m_model.fileOf(place), m_model.symbolOf(place))) {
        const TableInstance &old = m_model.hierarchy().files()[row.file].instanceTable[row.entry];
        if (name == "Value" && !old.value.empty()) {
            m_sheets[row.file].rows[row.entry].value = text;
        } else if (name == "Footprint" && !old.footprint.empty()) {
            m_sheets[row.file].rows[row.entry].footprint = text;
        }
    }
}

/// Sets the flag, and the properties named DNP that would contradict it.
bool RewriteCollector::addNotFitted(bool wanted, const SymbolUse &place, std::size_t component)
{
    const PlacedSymbol &symbol = m_model.symbolOf(place);
    const bool hasFlag = knowsNotFitted(m_model.sheetOf(place), symbol);
    const bool isVariant = !m_model.variant().empty();
    bool changes = isVariant || (hasFlag && symbol.dnp != wanted);
    if (isVariant) {
        variantRewriteOf(place).dnp = wanted;
    } else if (changes) {
        rewriteOf(place).dnp = wanted;
    }
    const auto ids = m_model.names().candidates("DNP");
    bool hasProperty = false;
    for (const NameId id : ids) {
        const std::string_view name = m_model.names().name(id);
        const auto text = m_model.usedText(place, name);
        hasProperty |= text.has_value();
        if (!text || saysNotFitted(m_model.resolved(component, *text)) == wanted) {
            continue;
        }
        changes = true;
        if (wanted) {
            setText(place, name, "1");
        } else {
            setText(place, name, hasFlag ? std::optional(std::string()) : std::nullopt);
        }
    }
    if (wanted && !hasFlag && !hasProperty) {
        setText(place, ids.empty() ? std::string_view("DNP") : m_model.names().name(ids.front()), "1");
        changes = true;
    }
    return changes;
}

bool RewriteCollector::addNotInBom(bool wanted, const SymbolUse &place)
{
    const bool isVariant = !m_model.variant().empty();
    bool changes = isVariant || m_model.symbolOf(place).inBom == wanted;
    if (isVariant) {
        variantRewriteOf(place).inBom = !wanted;
    } else if (changes) {
        rewriteOf(place).inBom = !wanted;
    }
    for (const NameId id : m_model.names().candidates("BOMSKIP")) {
        const std::string_view name = m_model.names().name(id);
        if (!wanted && m_model.usedText(place, name)) {
            setText(place, name, std::nullopt);
            changes = true;
        }
    }
    return changes;
}

} // namespace designs::kicad
