// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/sheetfile.h"

#include <string_view>
#include <vector>

namespace designs::kicad {

/// Finds the entries of a version 6 root's table of instances by their path; of several for one path the
/// first.
class InstanceTable
{
public:
    /// The entries must outlive the table.
    explicit InstanceTable(const std::vector<TableInstance> &entries);

    /// Null for an unknown path.
    [[nodiscard]] const TableInstance *find(std::string_view path) const;

private:
    struct Slot
    {
        quint32 tag = 0;
        /// Counted from 1; 0 is an empty slot.
        quint32 entry = 0;
    };

    /// The slot of the path or the empty one where it would stand.
    [[nodiscard]] std::size_t slotOf(std::string_view path, quint64 hash) const;

    const std::vector<TableInstance> *m_entries;
    std::vector<Slot> m_slots;
};

} // namespace designs::kicad
