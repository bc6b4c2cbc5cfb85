// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/filetransaction.h"
#include "designs/texts.h"

#include <QRandomGenerator>

#include <algorithm>

namespace designs {

namespace {

QString newToken()
{
    return QStringLiteral("%1").arg(QRandomGenerator::system()->generate64(), 16, 16, QLatin1Char('0'));
}

} // namespace

FileTransaction::FileTransaction(FileOperations &files, const DesignPaths &paths)
    : m_files(files)
    , m_paths(paths)
{
}

FileTransaction::FileTransaction(FileOperations &files, const DesignPaths &paths, Journal journal)
    : m_files(files)
    , m_paths(paths)
    , m_journal(std::move(journal))
    , m_wasInterrupted(true)
{
}

bool FileTransaction::prepare(const std::vector<CheckedReplacement> &files, bool keepsBackups)
{
    m_journal = {};
    m_journal.token = newToken();
    m_journal.keepsBackups = keepsBackups;
    m_journal.newRecord = m_journal.recordName(m_paths);
    FileStatus folder;
    if (!m_files.readStatus(m_paths.backupFolder(), &folder)) {
        return false;
    }
    m_journal.makesBackupFolder = keepsBackups && folder.kind == FileStatus::Kind::Missing;
    for (const CheckedReplacement &file : files) {
        m_journal.add(m_paths, {file.target, file.replacement->before, file.replacement->after});
    }
    // The journal comes first: it names all that a crash from here on would leave beside the files.
    if (!saveJournal(Journal::State::Preparing) ||
        (m_journal.makesBackupFolder && !m_files.makeFolder(m_paths.backupFolder()))) {
        return false;
    }
    const bool arePrepared = forEachEntry([&](FileOperations &own, std::size_t entry) {
        return prepareFile(own, files[entry], m_journal.entries[entry]);
    });
    if (!arePrepared) {
        return false;
    }
    // The commit point promises that all of this can be read, so it must be on the disk before. The folder of
    // the design is synced too: it holds that of the backups, which may be new.
    return prepareRecord() && m_files.syncWritten() &&
           m_files.syncFoldersOf(all(&JournalEntry::prepared)
                                 << all(&JournalEntry::saved) << m_paths.design());
}

bool FileTransaction::prepareFile(FileOperations &files, const CheckedReplacement &file,
                                  const JournalEntry &entry) const
{
    auto &[before, after] = files.contents();
    if (!readPlainFile(entry.target, entry.before, &before)) {
        return files.fail(entry.target, WriteTexts::tr("was changed since it was read"));
    }
    makeSpliced(before, file.replacement->splices, &after);
    if (fingerprintOf(after) != entry.after) {
        return files.fail(file.path, WriteTexts::tr("its new content is not the one that was checked"));
    }
    if (m_journal.keepsBackups) {
        // The present backup goes when this is done; as much memory is wanted now.
        files.dropFromMemory(m_paths.backupOf(entry.target));
    }
    const FileStatus like = files.status(entry.target);
    if (like.kind != FileStatus::Kind::File || !files.writeLater(file.path, entry.prepared, after, like) ||
        !files.linkOrCopy(file.path, entry.target, entry.saved, before, like)) {
        return false;
    }
    // From the commit point on both copies are relied on: look what is really there.
    return (files.status(entry.prepared).size == entry.after.size &&
            files.status(entry.saved).size == entry.before.size) ||
           files.fail(file.path,
                      WriteTexts::tr("cannot be written: %1 or %2 does not hold what was written to it")
                          .arg(entry.prepared, entry.saved));
}

bool FileTransaction::prepareRecord()
{
    if (m_journal.newRecord.isEmpty()) {
        return true;
    }
    UndoRecord record;
    for (const JournalEntry &entry : m_journal.entries) {
        record.files.push_back(entry);
    }
    const FileStatus like = m_files.status(m_paths.design());
    return like.kind != FileStatus::Kind::Other &&
           m_files.writeFile(m_paths.design(), m_journal.newRecord, record.toJson(m_paths), like);
}

/// Replaces the journal as a whole: written in place, a crash could leave half of it, and then nobody would
/// know what to do.
bool FileTransaction::saveJournal(Journal::State state)
{
    Journal journal = m_journal;
    journal.state = state;
    const FileStatus like = m_files.status(m_paths.design());
    if (like.kind == FileStatus::Kind::Other || !m_files.removeIfThere(m_paths.newJournal()) ||
        !m_files.writeFile(m_paths.design(), m_paths.newJournal(), journal.toJson(m_paths), like) ||
        !m_files.rename(m_paths.newJournal(), m_paths.journal())) {
        return false;
    }
    // The new journal is there from the rename on, whether or not the folder can be synced.
    m_journal.state = state;
    return m_files.syncFoldersOf({m_paths.journal()});
}

bool FileTransaction::commit()
{
    return saveJournal(Journal::State::Committed);
}

/// Files that an interrupted run placed already are passed over, changed since or not.
bool FileTransaction::place()
{
    const bool arePlaced = forEachEntry([this](FileOperations &own, std::size_t number) {
        const JournalEntry &entry = m_journal.entries[number];
        const bool isPassedOver = m_wasInterrupted && !own.exists(entry.prepared);
        return isPassedOver || placeFile(own, entry);
    });
    return arePlaced && m_files.syncFoldersOf(all(&JournalEntry::target));
}

bool FileTransaction::placeFile(FileOperations &files, const JournalEntry &entry)
{
    const auto now = fingerprintOfPlainFile(entry.target);
    // The last look before the rename, which would otherwise throw away what somebody saved meanwhile.
    if (now != entry.before && now != entry.after) {
        return files.fail(entry.target, WriteTexts::tr("was changed since it was read"));
    }
    return files.rename(entry.prepared, entry.target);
}

/// The journal goes last: as long as it is there, recovery comes back to what is left to do.
bool FileTransaction::finish()
{
    const bool done = m_journal.keepsBackups ? placeBackups() : dropBackups();
    return done && removeJournal();
}

bool FileTransaction::placeBackups()
{
    const auto placeOne = [this](FileOperations &own, std::size_t number) {
        const JournalEntry &entry = m_journal.entries[number];
        return !own.exists(entry.saved) || own.rename(entry.saved, m_paths.backupOf(entry.target));
    };
    // The blocks of the backups before are given back to the disk.
    if (!forEachEntry(placeOne, FileOperations::WaitsFor::Disk)) {
        return false;
    }
    if (m_files.exists(m_journal.newRecord) && !m_files.rename(m_journal.newRecord, m_paths.record())) {
        return false;
    }
    // Somebody may have removed the folder of an interrupted write.
    return !m_files.exists(m_paths.backupFolder()) || m_files.syncFoldersOf({m_paths.record()});
}

/// Without backups of its own this transaction also ends the previous one's: its record goes first, so that
/// undo() cannot bring files back from before.
bool FileTransaction::dropBackups()
{
    if (m_files.exists(m_paths.record()) &&
        !(m_files.removeIfThere(m_paths.record()) && m_files.syncFoldersOf({m_paths.record()}))) {
        return false;
    }
    const std::size_t before = m_files.problems().size();
    const auto dropOne = [this](FileOperations &own, std::size_t number) {
        (void)own.removeIfThere(m_journal.entries[number].saved);
        return true;
    };
    (void)forEachEntry(dropOne, FileOperations::WaitsFor::Disk);
    return m_files.problems().size() == before;
}

/// The journal says so first: recovery must not place again what is just taken back. Where it cannot be
/// written, the files are restored all the same: as soon as one is, recovery cannot complete any more. A file
/// that cannot be restored keeps no other from it; the journal stays then.
bool FileTransaction::takeBack()
{
    (void)saveJournal(Journal::State::TakingBack);
    bool done = true;
    for (const JournalEntry &entry : m_journal.entries) {
        done = restore(entry) && done;
    }
    return done && m_files.syncFoldersOf(all(&JournalEntry::target)) && discard();
}

/// Only a file that still holds the new content gets the previous one: others were not replaced, or somebody
/// changed them since. The previous content is copied, not moved: an interrupted restore can be repeated.
bool FileTransaction::restore(const JournalEntry &entry)
{
    if (entry.before == entry.after || fingerprintOfPlainFile(entry.target) != entry.after) {
        return true;
    }
    const std::optional<std::string> previous = contentOfPlainFile(entry.saved, entry.before);
    if (!previous) {
        return m_files.fail(
            entry.target,
            WriteTexts::tr("cannot get its previous content again: it does not stand any more in %1")
                .arg(entry.saved));
    }
    return m_files.removeIfThere(entry.prepared) &&
           m_files.writeFile(entry.target, entry.prepared, *previous, m_files.status(entry.saved)) &&
           m_files.rename(entry.prepared, entry.target);
}

bool FileTransaction::discard()
{
    bool done = true;
    for (const JournalEntry &entry : m_journal.entries) {
        done = m_files.removeIfThere(entry.prepared) && m_files.removeIfThere(entry.saved) && done;
    }
    if (!m_journal.newRecord.isEmpty()) {
        done = m_files.removeIfThere(m_journal.newRecord) && done;
    }
    if (m_journal.makesBackupFolder) {
        done = m_files.removeFolderIfEmpty(m_paths.backupFolder()) && done;
    }
    return done && removeJournal();
}

bool FileTransaction::removeJournal()
{
    return m_files.removeIfThere(m_paths.newJournal()) && m_files.removeIfThere(m_paths.journal()) &&
           m_files.syncFoldersOf({m_paths.journal()});
}

bool FileTransaction::allHold(FileFingerprint RecordedReplacement::*content) const
{
    return std::ranges::all_of(m_journal.entries, [content](const JournalEntry &entry) {
        return fingerprintOfPlainFile(entry.target) == entry.*content;
    });
}

bool FileTransaction::isSettled()
{
    switch (m_journal.state) {
    case Journal::State::Preparing:
        return std::ranges::none_of(m_journal.entries, [](const JournalEntry &entry) {
            return entry.before != entry.after && fingerprintOfPlainFile(entry.target) == entry.after;
        });
    case Journal::State::Committed:
        return allHold(&RecordedReplacement::after);
    case Journal::State::TakingBack:
        return allHold(&RecordedReplacement::before);
    }
    return false;
}

std::vector<Problem> FileTransaction::states() const
{
    std::vector<Problem> states;
    for (const JournalEntry &entry : m_journal.entries) {
        const auto now = fingerprintOfPlainFile(entry.target);
        const QString holds = now == entry.after    ? WriteTexts::tr("holds the new content")
                              : now == entry.before ? WriteTexts::tr("holds the previous content")
                              : now                 ? WriteTexts::tr("was changed meanwhile")
                                                    : WriteTexts::tr("cannot be read any more");
        QString text = holds;
        if (now != entry.after && fingerprintOfPlainFile(entry.prepared) == entry.after) {
            text = WriteTexts::tr("%1; the new content stands in %2").arg(text, entry.prepared);
        }
        if (now != entry.before && fingerprintOfPlainFile(entry.saved) == entry.before) {
            text = WriteTexts::tr("%1; the previous content stands in %2").arg(text, entry.saved);
        }
        states.push_back({entry.target, 0, text});
    }
    return states;
}

bool FileTransaction::forEachEntry(const FileOperations::FileWork &work,
                                   FileOperations::WaitsFor waitsFor) const
{
    // The journal of an interrupted run may say anything.
    constexpr quint64 most = quint64(1) << 31U;
    std::vector<qint64> sizes;
    for (const JournalEntry &entry : m_journal.entries) {
        sizes.push_back(qint64(std::min(entry.before.size, most)));
    }
    return m_files.forEachFile(sizes, work, waitsFor);
}

QStringList FileTransaction::all(QString JournalEntry::*path) const
{
    QStringList paths;
    for (const JournalEntry &entry : m_journal.entries) {
        paths << entry.*path;
    }
    return paths;
}

} // namespace designs
