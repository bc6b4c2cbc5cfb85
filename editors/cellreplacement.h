// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QTableWidget;

/// Sets the text of a cell as if it was typed there: through the editor that the cell's delegate makes, which
/// is not shown. What the editor makes of the text stands where it is the text itself or the same number;
/// otherwise the cell stays as it was, without a signal of the table, and the result is false. A cell that
/// people cannot edit stays, too.
[[nodiscard]] bool replaceCellText(QTableWidget *table, int row, int column, const QString &text);
