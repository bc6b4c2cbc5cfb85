// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace designs {

using NameId = quint32;

/// The property names of a design, each held once and known by a number. Names are UTF-8.
class PropertyNames
{
public:
    /// The number of a name, given on first sight; numbers count from 0.
    NameId intern(std::string_view name);

    [[nodiscard]] std::string_view name(NameId id) const { return m_names[id]; }
    [[nodiscard]] std::size_t size() const { return m_names.size(); }

    /// The number whose name may also be asked for as `alias` (PACKAGE for the footprint), in any letter
    /// case.
    void setAlias(std::string_view alias, NameId id);

    /// The names under which a property may be stored that is asked for as `name`, best first: the exact one,
    /// then the alias, then those that differ in letter case only, in the order of their first sight.
    [[nodiscard]] std::vector<NameId> candidates(std::string_view name) const;

private:
    std::deque<QByteArray> m_storage;
    std::vector<std::string_view> m_names;
    std::unordered_map<std::string_view, NameId> m_ids;
    /// By the folded alias.
    std::unordered_map<std::string, NameId> m_aliases;
    /// By the folded name, the names that share it in the order of their first sight.
    std::unordered_map<std::string, std::vector<NameId>> m_folded;
};

} // namespace designs
