// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "designs/transaction/fileoperations.h"
#include "designs/transaction/journal.h"

#include <vector>

namespace designs {

/// A replacement that WriteCheck found possible.
struct CheckedReplacement
{
    /// As the file was named.
    QString path;
    /// Without symbolic links.
    QString target;
    const FileReplacement *replacement = nullptr;
};

/// The steps of one transaction on files, which replaces all of them or none. Its journal says how far it is,
/// and with that what is to be done when it is interrupted:
///   preparing    no file is replaced: what stands beside the files is removed, discard().
///   committed    all contents stand beside the files: they are put in place, place() and finish().
///   taking back  some files were replaced, and one cannot be: those get their previous content again,
///                takeBack().
/// place(), finish(), takeBack() and discard() may be repeated after they were interrupted, also by another
/// process that has the journal.
class FileTransaction final
{
public:
    FileTransaction(FileOperations &files, const DesignPaths &paths);
    /// One that was interrupted, by its journal.
    FileTransaction(FileOperations &files, const DesignPaths &paths, Journal journal);

    [[nodiscard]] const Journal &journal() const { return m_journal; }

    /// Writes the new contents, the previous ones and the undo record beside the files, which stay as they
    /// are.
    bool prepare(const std::vector<CheckedReplacement> &files, bool keepsBackups);
    /// The commit point: from here on the transaction is completed, or taken back where it cannot be. On
    /// failure the journal's state tells on which side of the point that happened.
    bool commit();
    /// Puts the new contents in place. Leaves a file alone that somebody else changed, and fails.
    bool place();
    /// Puts backups and undo record in place and removes the journal.
    bool finish();
    /// Gives replaced files their previous content again, as many as it can, and removes everything else.
    bool takeBack();
    /// Removes what a transaction prepared that has replaced nothing.
    bool discard();

    /// Whether the new content is not beside the file any more: it became the file.
    [[nodiscard]] bool isPlaced(const JournalEntry &entry) { return !m_files.exists(entry.prepared); }

    /// Whether all files hold their content after, or before, the transaction.
    [[nodiscard]] bool allHold(FileFingerprint RecordedReplacement::*content) const;
    /// Whether the files are all old or all new and stay so: what may be left to do concerns backups and the
    /// transaction's own files.
    [[nodiscard]] bool isSettled();
    /// What each file holds now, and where its other content stands.
    [[nodiscard]] std::vector<Problem> states() const;

private:
    bool saveJournal(Journal::State state);
    bool prepareFile(FileOperations &files, const CheckedReplacement &file, const JournalEntry &entry) const;
    bool prepareRecord();
    static bool placeFile(FileOperations &files, const JournalEntry &entry);
    bool restore(const JournalEntry &entry);
    bool placeBackups();
    bool dropBackups();
    bool removeJournal();
    /// See FileOperations::forEachFile().
    [[nodiscard]] bool
    forEachEntry(const FileOperations::FileWork &work,
                 FileOperations::WaitsFor waitsFor = FileOperations::WaitsFor::Processor) const;
    [[nodiscard]] QStringList all(QString JournalEntry::*path) const;

    FileOperations &m_files;
    const DesignPaths &m_paths;
    Journal m_journal;
    bool m_wasInterrupted = false;
};

} // namespace designs
