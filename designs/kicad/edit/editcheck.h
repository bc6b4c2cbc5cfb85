// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/edit/symbolrewrite.h"
#include "designs/kicad/sheetfile.h"
#include "designs/splices.h"

#include <QString>

#include <string_view>
#include <vector>

namespace designs::kicad {

/// A list that changes, by its bytes.
struct ChangedList
{
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Compares a text with what was made of it, token by token in the lists that change and byte by byte between
/// them. Both are sorted. Empty when they differ at the splices only and the lists still are whole.
[[nodiscard]] QString compareTexts(std::string_view before, std::string_view after,
                                   const std::vector<Splice> &splices, const std::vector<ChangedList> &lists);

/// Reads the new text of a sheet and compares it with what the old one would be after the change. Empty when
/// it says exactly that. `names` are those of `before`.
[[nodiscard]] QString compareSheets(const SheetFile &before, const PropertyNames &names,
                                    const SheetRewrite &change, std::string_view variant,
                                    std::string_view after);

} // namespace designs::kicad
