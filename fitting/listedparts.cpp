// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fitting/listedparts.h"

#include "host/framework/hosttext.h"

#include <algorithm>
#include <unordered_set>

namespace {

qsizetype characters(std::string_view text)
{
    const auto isFirstByte = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    return std::count_if(text.begin(), text.end(), isFirstByte);
}

void enter(ListedParts::Use *use, std::string_view text)
{
    if (DesignFields::isFilled(text)) {
        ++use->parts;
        if (qsizetype(text.size()) > use->longest) {
            use->longest = std::max(use->longest, characters(text));
        }
    }
}

} // namespace

ListedParts::ListedParts(const LoadedDesign &design)
    : m_design(design)
    , m_uses(design.design().names().size())
{
    const PROPNAME skip("BOMSKIP");
    const std::vector<designs::Component> &components = design.design().components();
    m_components.reserve(components.size());
    for (const designs::Component &component : components) {
        if (design.properties().find(component, skip)) {
            continue;
        }
        m_components.push_back(&component);
        enter(&m_values, component.value);
        for (const designs::Property &property : component.properties) {
            enter(&m_uses[property.name], property.value);
        }
    }
}

QStringList ListedParts::prefixes() const
{
    std::unordered_set<std::string_view> met;
    for (const designs::Component *component : m_components) {
        met.insert(referencePrefix(component->reference));
    }
    QStringList prefixes;
    for (const std::string_view prefix : met) {
        prefixes << fromHostText(prefix);
    }
    prefixes.sort();
    return prefixes;
}

std::string_view referencePrefix(std::string_view reference)
{
    return reference.substr(0, reference.find_first_of("0123456789"));
}
