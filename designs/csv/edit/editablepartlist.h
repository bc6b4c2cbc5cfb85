// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/partlist.h"

namespace designs {

/// A part list that can be changed: what reading gives, and the plans for edits of it.
class EditablePartList final : public PartList
{
public:
    [[nodiscard]] std::optional<QString> checkEdit(const Edit &edit) const override;
    /// Changes cells. A row of several references is split where they are to differ: those that stay as they
    /// are keep the row, each group of equals among the others gets a row behind it; quantities follow. A
    /// property without a column gets one at the end, and with it every row that had a cell for each heading;
    /// rows that were short are filled up only as far as a text needs it. An empty cell is no property.
    [[nodiscard]] EditPlan planEdits(std::span<const Edit> edits) const override;
};

/// Reads a part list as readPartList() does.
[[nodiscard]] ReadResult readEditablePartList(const QString &path, const ReadOptions &options = {});

} // namespace designs
