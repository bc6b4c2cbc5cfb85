// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/referencecell.h"

#include <string>
#include <unordered_map>
#include <unordered_set>

namespace designs {

/// Finds out from the whole list which texts such as "X1-2" are names of parts and no ranges:
/// - those of which the list names others with that hyphen that can be no range ("X1-1", "X1-A"),
/// - those whose first part stands in the list by itself ("X1"),
/// - those in rows whose quantity says so,
/// - all of a list that has one part per row, as the program writes it.
class HyphenatedNames final
{
public:
    /// Adds the cell of references of a row, and its quantity where the list tells one.
    void add(std::string_view cell, std::optional<quint64> quantity);

    /// `isReport` for a list with the headings of a report that has one part per row.
    [[nodiscard]] std::unordered_set<std::string> names(bool isReport) const;
    /// Those of them for which nothing speaks but the first part, "X1", that stands in the list by itself.
    [[nodiscard]] std::unordered_set<std::string> guessedNames(bool isReport) const;

private:
    [[nodiscard]] bool isCertain(const std::string &text, const std::string &front, bool isReport) const;

    TextArena m_arena;
    ReferenceCell m_cell{m_arena};
    /// What stands in front of the hyphen, by the whole text.
    std::unordered_map<std::string, std::string> m_doubtful;
    std::unordered_set<std::string> m_settled;
    /// The fronts of texts that must be names.
    std::unordered_set<std::string> m_fronts;
    std::unordered_set<std::string> m_references;
    bool m_isOnePartPerRow = true;
};

} // namespace designs
