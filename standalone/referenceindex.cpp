// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/referenceindex.h"

#include "designs/utf8.h"

ReferenceIndex::ReferenceIndex(const designs::Design &design)
    : m_design(design)
{
    const std::vector<designs::Component> &components = design.components();
    m_entries.reserve(components.size());
    for (std::size_t index = 0; index < components.size(); ++index) {
        const auto [entry, isNew] = m_entries.try_emplace(components[index].reference, Entry{index});
        entry->second.isRepeated = entry->second.isRepeated || !isNew;
    }
}

std::vector<std::size_t> ReferenceIndex::find(std::string_view reference) const
{
    const auto found = m_entries.find(reference);
    if (found == m_entries.end()) {
        return {};
    }
    std::vector<std::size_t> indices{found->second.first};
    const std::vector<designs::Component> &components = m_design.components();
    for (std::size_t index = indices.front() + 1; found->second.isRepeated && index < components.size();
         ++index) {
        if (components[index].reference == reference) {
            indices.push_back(index);
        }
    }
    return indices;
}
