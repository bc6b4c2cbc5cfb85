// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/transaction/filework.h"
#include "designs/transaction/journal.h"

#include <vector>

namespace designs {

/// A file that is to be replaced.
struct Replacement
{
    /// As it was named.
    QString path;
    /// Without symbolic links.
    QString target;
    FileFingerprint before;
    const QByteArray *after = nullptr;
};

/// Replaces files, all or none. The steps are those of a write; one that was interrupted is taken up again
/// from its journal.
class FileTransaction final
{
public:
    FileTransaction(FileWork &work, const DesignPaths &paths);
    /// An interrupted one.
    FileTransaction(FileWork &work, const DesignPaths &paths, Journal journal);

    [[nodiscard]] const Journal &journal() const { return m_journal; }

    /// Writes the new contents, the previous ones and the record beside the files. They stay as they are.
    bool prepare(const std::vector<Replacement> &files, bool keepsBackups);
    /// From here on the write is completed, whatever happens.
    bool commit();
    /// Puts the new contents in place.
    bool place();
    /// Puts backups and record in place and clears up.
    bool finish();
    /// Gives replaced files their previous content again and clears up.
    bool takeBack();
    /// Clears up a write that has replaced nothing.
    bool discard();

    [[nodiscard]] bool isPlaced(const JournalEntry &entry) { return !m_work.exists(entry.prepared); }

private:
    bool saveJournal(Journal::State state);
    bool prepareFile(const Replacement &file, const JournalEntry &entry);
    bool prepareRecord();
    bool placeFile(const JournalEntry &entry);
    bool restore(const JournalEntry &entry);
    bool placeBackups();
    bool dropBackups();
    bool removeJournal();
    [[nodiscard]] QStringList all(QString JournalEntry::*path) const;

    FileWork &m_work;
    const DesignPaths &m_paths;
    Journal m_journal;
};

} // namespace designs
