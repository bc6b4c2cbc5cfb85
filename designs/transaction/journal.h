// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/transaction/recordedreplacement.h"

namespace designs {

/// One file that is replaced.
struct JournalEntry : RecordedReplacement
{
    /// The new content, beside the target; gone when the target is replaced.
    QString prepared;
    /// The previous content; becomes the backup, where one is kept.
    QString saved;
};

/// What a write is about to do, kept beside the design until it is done.
struct Journal
{
    enum class State
    {
        /// Files are being prepared; none is replaced yet.
        Preparing,
        /// All is prepared and will be put in place.
        Committed,
        /// Replaced files get their previous content again.
        TakingBack
    };

    State state = State::Preparing;
    /// Marks the names of the write's own files.
    QString token;
    bool keepsBackups = false;
    /// The folder of the backups did not exist before.
    bool makesBackupFolder = false;
    /// The record for undo to come; empty when there will be none.
    QString newRecord;
    std::vector<JournalEntry> entries;

    /// Adds a file; the names of its copies follow from its place in the journal.
    void add(const DesignPaths &paths, RecordedReplacement change);

    [[nodiscard]] QByteArray toJson(const DesignPaths &paths) const;
    /// The journal of a design; nothing, with the reason in `why`, when it cannot be used.
    [[nodiscard]] static std::optional<Journal> read(const DesignPaths &paths, QString *why);

    [[nodiscard]] QString recordName(const DesignPaths &paths) const;
};

} // namespace designs
