// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"

#include <string_view>
#include <unordered_map>
#include <vector>

/// The components of a design by their references.
class ReferenceIndex final
{
public:
    /// The design must outlive the index.
    explicit ReferenceIndex(const designs::Design &design);

    /// The components of that reference, as indices in design order; none for an unknown reference.
    [[nodiscard]] std::vector<std::size_t> find(std::string_view reference) const;

private:
    struct Entry
    {
        std::size_t first = 0;
        bool isRepeated = false;
    };

    const designs::Design &m_design;
    std::unordered_map<std::string_view, Entry> m_entries;
};
