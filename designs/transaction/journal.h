// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/filefingerprint.h"
#include "designs/transaction/designpaths.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace designs {

/// A file and its content before and after a write, as journal and undo record name it.
struct RecordedReplacement
{
    QString target;
    FileFingerprint before;
    FileFingerprint after;
};

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

/// The last write, as far as it can be taken back.
struct UndoRecord
{
    /// RecordedReplacement::before is of the backup, too.
    std::vector<RecordedReplacement> files;

    [[nodiscard]] QByteArray toJson(const DesignPaths &paths) const;
    /// The record of a design; nothing, with the reason in `why`, when it cannot be used.
    [[nodiscard]] static std::optional<UndoRecord> read(const DesignPaths &paths, QString *why);
};

/// Of a file that is no link, pipe or folder; nothing for those and what cannot be read.
[[nodiscard]] std::optional<FileFingerprint> fingerprintOfPlainFile(const QString &path);

/// The content of such a file, if it is the expected one.
[[nodiscard]] std::optional<QByteArray> contentOfPlainFile(const QString &path,
                                                           const FileFingerprint &expected);

} // namespace designs
