// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

/// The percentages that a column of a report may have.
struct WidthRange
{
    int least = 2;
    int most = 2;
};

/// Leaves every other one of `columns` columns its least width.
[[nodiscard]] WidthRange columnWidthRange(qsizetype columns);

/// Percentages that fill the table after the column at `changed` was given its width: the columns to its
/// right take up what is over or give what is missing, within their range. What they cannot give, the changed
/// column gives back. The widths are within their range.
[[nodiscard]] QList<int> balancedWidths(QList<int> widths, qsizetype changed);
