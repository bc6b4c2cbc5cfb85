// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/edit/csvwriter.h"
#include "designs/csv/partlist.h"

#include <optional>
#include <string>
#include <vector>

namespace designs {

/// What one cell of one component is to say. Columns are counted on behind those of the list for new ones.
struct PlannedCell
{
    std::size_t component = 0;
    CellText cell;
    /// The edit that asks for it.
    std::size_t edit = 0;
};

/// Reads a changed part list and compares: the components are those of the list in the given order, with the
/// same texts but for the planned ones, which are sorted by component and column. Empty texts count as none.
/// Gives the first difference.
[[nodiscard]] std::optional<Problem> checkPartList(const PartList &list,
                                                   const std::vector<std::string> &newColumns,
                                                   const std::vector<std::size_t> &order,
                                                   const std::vector<PlannedCell> &planned,
                                                   const QByteArray &changed);

} // namespace designs
