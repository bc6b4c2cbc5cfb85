// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/filefingerprint.h"
#include "designs/transaction/designpaths.h"

#include <QByteArray>
#include <QSet>
#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace designs {

/// A file that a transaction replaces, with the fingerprints of its content before and after, as journal and
/// undo record name it.
struct RecordedReplacement
{
    QString target;
    FileFingerprint before;
    FileFingerprint after;
};

/// Such a file with its copies while the transaction runs.
struct JournalEntry : RecordedReplacement
{
    /// The new content, beside the target; gone when the target is replaced.
    QString prepared;
    /// The previous content; becomes the backup, where one is kept.
    QString saved;
};

/// What a transaction is about to do, kept beside the design until it is done: after a crash it tells
/// recovery what to complete or to take back.
struct Journal
{
    enum class State
    {
        /// Contents are written beside the files; no file is replaced yet.
        Preparing,
        /// All contents are beside the files and will be put in place.
        Committed,
        /// Replaced files get their previous content again.
        TakingBack
    };

    State state = State::Preparing;
    /// Marks the names of the transaction's own files.
    QString token;
    bool keepsBackups = false;
    /// The folder of the backups did not exist before.
    bool makesBackupFolder = false;
    /// The undo record before it is in place; empty when there will be none.
    QString newRecord;
    std::vector<JournalEntry> entries;

    /// Adds a file; the names of its copies follow from its place in the journal.
    void add(const DesignPaths &paths, RecordedReplacement replacement);

    [[nodiscard]] QByteArray toJson(const DesignPaths &paths) const;
    /// The journal of a design; nothing, with the reason in `why`, when it cannot be used.
    [[nodiscard]] static std::optional<Journal> read(const DesignPaths &paths, QString *why);

    /// Whether the journal of a design, usable or not, names one of these files, given without symbolic
    /// links.
    [[nodiscard]] static bool names(const DesignPaths &paths, const QSet<QString> &files);

    /// See newRecord.
    [[nodiscard]] QString recordName(const DesignPaths &paths) const;
};

/// The last transaction, for undo.
struct UndoRecord
{
    /// The backups have the content RecordedReplacement::before.
    std::vector<RecordedReplacement> files;

    [[nodiscard]] QByteArray toJson(const DesignPaths &paths) const;
    /// The record of a design; nothing, with the reason in `why`, when it cannot be used.
    [[nodiscard]] static std::optional<UndoRecord> read(const DesignPaths &paths, QString *why);
};

/// Of a file that is no link, pipe or folder; nothing for those and what cannot be read.
[[nodiscard]] std::optional<FileFingerprint> fingerprintOfPlainFile(const QString &path);

/// The content of such a file, if it is the expected one.
[[nodiscard]] std::optional<std::string> contentOfPlainFile(const QString &path,
                                                            const FileFingerprint &expected);
/// The same into memory that is used again; false where there is no such content.
[[nodiscard]] bool readPlainFile(const QString &path, const FileFingerprint &expected, std::string *content);

} // namespace designs
