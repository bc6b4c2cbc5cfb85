// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/filetransaction.h"

#include <QRandomGenerator>

namespace designs {

namespace {

QString newToken()
{
    return QStringLiteral("%1").arg(QRandomGenerator::system()->generate64(), 16, 16, QLatin1Char('0'));
}

} // namespace

FileTransaction::FileTransaction(FileWork &work, const DesignPaths &paths)
    : m_work(work)
    , m_paths(paths)
{
}

FileTransaction::FileTransaction(FileWork &work, const DesignPaths &paths, Journal journal)
    : m_work(work)
    , m_paths(paths)
    , m_journal(std::move(journal))
{
}

bool FileTransaction::prepare(const std::vector<Replacement> &files, bool keepsBackups)
{
    m_journal = {};
    m_journal.token = newToken();
    m_journal.keepsBackups = keepsBackups;
    m_journal.newRecord = m_journal.recordName(m_paths);
    FileStatus folder;
    if (!m_work.look(m_paths.backupFolder(), &folder)) {
        return false;
    }
    m_journal.makesBackupFolder = keepsBackups && folder.kind == FileStatus::Kind::Missing;
    for (const Replacement &file : files) {
        const std::string_view after(file.after->constData(), std::size_t(file.after->size()));
        m_journal.add(m_paths, {file.target, file.before, fingerprintOf(after)});
    }
    if (!saveJournal(Journal::State::Preparing) ||
        (m_journal.makesBackupFolder && !m_work.makeFolder(m_paths.backupFolder()))) {
        return false;
    }
    for (std::size_t file = 0; file < files.size(); ++file) {
        if (!prepareFile(files[file], m_journal.entries[file])) {
            return false;
        }
    }
    // The folder of the design holds that of the backups, which may be new.
    return prepareRecord() && m_work.syncWritten() &&
           m_work.syncFoldersOf(all(&JournalEntry::prepared)
                                << all(&JournalEntry::saved) << m_paths.design());
}

bool FileTransaction::prepareFile(const Replacement &file, const JournalEntry &entry)
{
    const std::optional<QByteArray> previous = contentOfPlainFile(entry.target, entry.before);
    if (!previous) {
        return m_work.fail(entry.target, QStringLiteral("was changed since it was read"));
    }
    const FileStatus like = m_work.status(entry.target);
    if (like.kind != FileStatus::Kind::File ||
        !m_work.writeLater(file.path, entry.prepared, *file.after, like) ||
        !m_work.keep(file.path, entry.target, entry.saved, *previous, like)) {
        return false;
    }
    return (m_work.status(entry.prepared).size == entry.after.size &&
            m_work.status(entry.saved).size == entry.before.size) ||
           m_work.fail(file.path, QStringLiteral("cannot be written: ") + entry.prepared +
                                      QStringLiteral(" or ") + entry.saved +
                                      QStringLiteral(" does not hold what was written to it"));
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
    const FileStatus like = m_work.status(m_paths.design());
    return like.kind != FileStatus::Kind::Other &&
           m_work.writeFile(m_paths.design(), m_journal.newRecord, record.toJson(m_paths), like);
}

bool FileTransaction::saveJournal(Journal::State state)
{
    Journal journal = m_journal;
    journal.state = state;
    const FileStatus like = m_work.status(m_paths.design());
    if (like.kind == FileStatus::Kind::Other || !m_work.removeIfThere(m_paths.newJournal()) ||
        !m_work.writeFile(m_paths.design(), m_paths.newJournal(), journal.toJson(m_paths), like) ||
        !m_work.rename(m_paths.newJournal(), m_paths.journal())) {
        return false;
    }
    m_journal.state = state;
    return m_work.syncFoldersOf({m_paths.journal()});
}

bool FileTransaction::commit()
{
    return saveJournal(Journal::State::Committed);
}

bool FileTransaction::place()
{
    for (const JournalEntry &entry : m_journal.entries) {
        if (!isPlaced(entry) && !placeFile(entry)) {
            return false;
        }
    }
    return m_work.syncFoldersOf(all(&JournalEntry::target));
}

bool FileTransaction::placeFile(const JournalEntry &entry)
{
    const auto now = fingerprintOfPlainFile(entry.target);
    if (now != entry.before && now != entry.after) {
        return m_work.fail(entry.target, QStringLiteral("was changed since it was read"));
    }
    return m_work.rename(entry.prepared, entry.target);
}

bool FileTransaction::finish()
{
    const bool done = m_journal.keepsBackups ? placeBackups() : dropBackups();
    return done && removeJournal();
}

bool FileTransaction::placeBackups()
{
    for (const JournalEntry &entry : m_journal.entries) {
        if (m_work.exists(entry.saved) && !m_work.rename(entry.saved, m_paths.backupOf(entry.target))) {
            return false;
        }
    }
    if (m_work.exists(m_journal.newRecord) && !m_work.rename(m_journal.newRecord, m_paths.record())) {
        return false;
    }
    // Somebody may have removed the folder of an interrupted write.
    return !m_work.exists(m_paths.backupFolder()) || m_work.syncFoldersOf({m_paths.record()});
}

bool FileTransaction::dropBackups()
{
    if (m_work.exists(m_paths.record()) &&
        !(m_work.removeIfThere(m_paths.record()) && m_work.syncFoldersOf({m_paths.record()}))) {
        return false;
    }
    bool done = true;
    for (const JournalEntry &entry : m_journal.entries) {
        done = m_work.removeIfThere(entry.saved) && done;
    }
    return done;
}

bool FileTransaction::takeBack()
{
    if (!saveJournal(Journal::State::TakingBack)) {
        return false;
    }
    for (const JournalEntry &entry : m_journal.entries) {
        if (!restore(entry)) {
            return false;
        }
    }
    return m_work.syncFoldersOf(all(&JournalEntry::target)) && discard();
}

bool FileTransaction::restore(const JournalEntry &entry)
{
    if (entry.before == entry.after || fingerprintOfPlainFile(entry.target) != entry.after) {
        return true;
    }
    const std::optional<QByteArray> previous = contentOfPlainFile(entry.saved, entry.before);
    if (!previous) {
        return m_work.fail(entry.target, QStringLiteral("cannot get its previous content again: it does not "
                                                        "stand any more in ") +
                                             entry.saved);
    }
    return m_work.removeIfThere(entry.prepared) &&
           m_work.writeFile(entry.target, entry.prepared, *previous, m_work.status(entry.saved)) &&
           m_work.rename(entry.prepared, entry.target);
}

bool FileTransaction::discard()
{
    bool done = true;
    for (const JournalEntry &entry : m_journal.entries) {
        done = m_work.removeIfThere(entry.prepared) && m_work.removeIfThere(entry.saved) && done;
    }
    if (!m_journal.newRecord.isEmpty()) {
        done = m_work.removeIfThere(m_journal.newRecord) && done;
    }
    if (m_journal.makesBackupFolder) {
        done = m_work.removeFolderIfEmpty(m_paths.backupFolder()) && done;
    }
    return done && removeJournal();
}

bool FileTransaction::removeJournal()
{
    return m_work.removeIfThere(m_paths.newJournal()) && m_work.removeIfThere(m_paths.journal()) &&
           m_work.syncFoldersOf({m_paths.journal()});
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
