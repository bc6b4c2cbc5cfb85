// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace designs::kicad {

/// A text in a list, by its bytes with the quotes.
struct SexprAtom
{
    std::size_t begin = 0;
    std::size_t end = 0;
    bool quoted = false;
};

/// A list with the places of everything in it, for changes of single bytes. Offsets are those of the file.
struct SexprNode
{
    std::string_view keyword;
    /// Where the blanks before the list begin.
    std::size_t gap = 0;
    std::size_t begin = 0;
    /// Behind the closing parenthesis.
    std::size_t end = 0;
    /// The texts behind the keyword.
    std::vector<SexprAtom> atoms;
    std::vector<SexprNode> lists;

    /// The first or last list of that name, null when there is none.
    [[nodiscard]] const SexprNode *first(std::string_view name) const;
    [[nodiscard]] const SexprNode *last(std::string_view name) const;
};

/// The list that begins at an offset; nothing when no list begins there or it is broken. What pins hold is
/// left out.
[[nodiscard]] std::optional<SexprNode> nodeAt(std::string_view bytes, std::size_t offset);

/// The text of an atom, freed of quotes and escapes.
[[nodiscard]] std::string textOf(std::string_view bytes, const SexprAtom &atom);
/// The text of a node's first atom, empty without one.
[[nodiscard]] std::string firstText(std::string_view bytes, const SexprNode &node);

/// The blanks before a list.
[[nodiscard]] inline std::string_view gapOf(std::string_view bytes, const SexprNode &node)
{
    return bytes.substr(node.gap, node.begin - node.gap);
}

} // namespace designs::kicad
