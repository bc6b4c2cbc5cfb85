// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

/// How large a fragment may be, beyond which it is refused.
struct MarkupLimits
{
    /// Cells count that spans of others leave empty.
    int elements = 0;
    /// Characters of a paragraph: the time for laying one out grows with the square of its length.
    int paragraph = 0;

    /// The time for a layout doubles with each table inside another.
    static constexpr int depth = 100;
    static constexpr int tableDepth = 8;
    static constexpr int text = 2'000'000;
    static constexpr int images = 100;
};
