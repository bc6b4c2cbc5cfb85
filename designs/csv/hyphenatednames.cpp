// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/hyphenatednames.h"

#include <algorithm>

namespace designs {

void HyphenatedNames::add(std::string_view cell, std::optional<quint64> quantity)
{
    if (!m_cell.read(cell)) {
        return;
    }
    std::size_t asNames = 0;
    for (const ReferenceItem &item : m_cell.items()) {
        const std::string_view front = item.text.substr(0, item.text.find('-', 1));
        asNames += item.couldBeName ? 1 : item.count();
        if (item.couldBeName) {
            m_doubtful.emplace(item.text, front);
        } else if (item.prefix.empty()) {
            (front.size() < item.text.size() ? m_fronts : m_references).emplace(front);
        } else if (item.prefix.ends_with('-')) {
            m_fronts.emplace(item.prefix.substr(0, item.prefix.size() - 1));
        }
    }
    m_isOnePartPerRow = m_isOnePartPerRow && asNames <= 1;
    if (quantity && *quantity == asNames && asNames != m_cell.count()) {
        for (const ReferenceItem &item : m_cell.items()) {
            if (item.couldBeName) {
                m_settled.emplace(item.text);
            }
        }
    }
}

std::unordered_set<std::string> HyphenatedNames::names(bool isReport) const
{
    std::unordered_set<std::string> names = guessedNames(isReport);
    for (const auto &[text, front] : m_doubtful) {
        if (isCertain(text, front, isReport)) {
            names.insert(text);
        }
    }
    return names;
}

std::unordered_set<std::string> HyphenatedNames::guessedNames(bool isReport) const
{
    std::unordered_set<std::string> names;
    for (const auto &[text, front] : m_doubtful) {
        if (m_references.contains(front) && !isCertain(text, front, isReport)) {
            names.insert(text);
        }
    }
    return names;
}

bool HyphenatedNames::isCertain(const std::string &text, const std::string &front, bool isReport) const
{
    return (isReport && m_isOnePartPerRow) || m_fronts.contains(front) || m_settled.contains(text);
}

} // namespace designs
