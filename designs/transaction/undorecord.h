// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/transaction/recordedreplacement.h"

namespace designs {

/// The last write, as far as it can be taken back.
struct UndoRecord
{
    /// RecordedReplacement::before is of the backup, too.
    std::vector<RecordedReplacement> files;

    [[nodiscard]] QByteArray toJson(const DesignPaths &paths) const;
    /// The record of a design; nothing, with the reason in `why`, when it cannot be used.
    [[nodiscard]] static std::optional<UndoRecord> read(const DesignPaths &paths, QString *why);
};

} // namespace designs
