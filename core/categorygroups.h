// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/groupedlines.h"

#include <span>
#include <vector>

class Grouping;
class Part;

/// The parts of one category, and the lines they make. Lines are made at the first read after a change.
class CategoryGroups final
{
public:
    /// `grouping` belongs to the database and may be null. A part remembers the address of its groups: they
    /// stay where they are.
    explicit CategoryGroups(const Grouping *grouping)
        : m_grouping(grouping)
    {
    }
    CategoryGroups(const CategoryGroups &) = delete;
    CategoryGroups &operator=(const CategoryGroups &) = delete;

    /// Puts a part in, unless it is here already.
    void add(Part &part);
    void remove(Part &part);
    void clear();

    /// Groups the parts anew. Without a grouping that cannot be done: a debug line says so and the lines
    /// stay.
    void regroup();

    /// The parts in the order in which they were put in.
    [[nodiscard]] std::span<Part *const> parts() const { return m_parts; }
    [[nodiscard]] const GroupedLines &lines() const;

private:
    const Grouping *m_grouping;
    std::vector<Part *> m_parts;
    mutable GroupedLines m_lines;
    mutable bool m_isGrouped = false;
};
