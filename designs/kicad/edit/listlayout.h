// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/edit/sexprnode.h"

#include <string>
#include <string_view>

namespace designs::kicad {

/// The text as a quoted token, escaped as KiCad writes it.
[[nodiscard]] std::string quotedText(std::string_view text);

/// How lists inside a list are set in a file: each on a line of its own, or all on one.
class ListLayout
{
public:
    /// As `child` stands in `parent`.
    ListLayout(std::string_view bytes, const SexprNode &parent, const SexprNode &child);

    /// The blanks before a list `level` deeper than the child.
    [[nodiscard]] std::string gap(int level = 0) const;
    /// The blanks before the parenthesis that closes a list of that level with lists inside.
    [[nodiscard]] std::string closing(int level) const { return m_onLines ? gap(level) : std::string(); }

private:
    bool m_onLines = false;
    std::string m_gap;
    std::string m_step;
};

} // namespace designs::kicad
