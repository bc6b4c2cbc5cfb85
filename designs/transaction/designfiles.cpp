// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/designfiles.h"

#include "designs/texts.h"
#include "designs/transaction/designlock.h"
#include "designs/transaction/recovery.h"
#include "designs/transaction/writecheck.h"

#include <QFileInfo>
#include <QSet>

namespace designs {

namespace {

TransactionResult failure(FileOperations &operations)
{
    return {{}, std::move(operations.problems()), false, {}};
}

TransactionResult success(FileOperations &operations, std::span<const FileReplacement> files)
{
    TransactionResult result{{}, {}, false, std::move(operations.problems())};
    for (const FileReplacement &file : files) {
        result.replaced << file.path;
    }
    return result;
}

/// Nothing was written only if all files are old, and no journal is left by which recovery would make them
/// new.
TransactionResult takenBack(FileOperations &operations, const DesignPaths &paths,
                            FileTransaction &transaction)
{
    transaction.takeBack();
    const bool isOver = !operations.exists(paths.journal()) || transaction.isSettled();
    if (isOver && transaction.allHold(&RecordedReplacement::before)) {
        return failure(operations);
    }
    operations.add(transaction.states());
    operations.fail(paths.design(),
                    WriteTexts::tr("the write could be neither completed nor taken back; the next command "
                                   "that reads the design tries again"));
    return {{}, std::move(operations.problems()), true, {}};
}

/// One transaction, with the lock taken.
///
/// The promise lies in the order of the steps. Each is on the disk before the next one begins:
///   check    touches nothing, so that nearly all that can fail fails here.
///   prepare  writes a journal, then all new contents, previous contents and the undo record beside the
///            files. Without the journal nobody would clean up after a crash in this step; without new
///            contents that are complete a full disk could stop the transaction between two files.
///   commit   marks the journal as committed, by one rename. Without such a moment recovery could not tell
///            a transaction that is to be completed from one that is not ready.
///   place    renames each new content over its file, so that no reader ever sees half a file.
///   finish   puts backups and record in place and removes the journal; only then undo() finds them, so that
///            it never takes back what is not in the files.
TransactionResult replaceFiles(FileOperations &operations, const DesignPaths &paths,
                               std::span<const FileReplacement> files, bool keepsBackups)
{
    WriteCheck check(operations, paths);
    const auto checked = check.run(files, keepsBackups);
    if (!checked) {
        return failure(operations);
    }
    FileTransaction transaction(operations, paths);
    // Preparing takes time: other programs may have opened the files meanwhile.
    if (!transaction.prepare(*checked, keepsBackups) || !check.areStillClosed(*checked)) {
        transaction.discard();
        return failure(operations);
    }
    const bool isCommitted = transaction.commit();
    if (!isCommitted && transaction.journal().state == Journal::State::Preparing) {
        transaction.discard();
        return failure(operations);
    }
    // A commit that failed after its rename may count after a crash: discarding would be too late.
    if (!isCommitted || !transaction.place()) {
        return takenBack(operations, paths, transaction);
    }
    transaction.finish();
    return success(operations, files);
}

/// What gives the files their previous content again; empty, with problems, when it cannot be done.
std::vector<FileReplacement> reversed(FileOperations &operations, const DesignPaths &paths,
                                      const UndoRecord &record)
{
    std::vector<FileReplacement> files;
    for (const RecordedReplacement &recorded : record.files) {
        const QString backup = paths.backupOf(recorded.target);
        if (fingerprintOfPlainFile(recorded.target) != recorded.after) {
            operations.fail(recorded.target,
                            WriteTexts::tr("was changed since it was written: nothing is taken back"));
        } else if (auto content = contentOfPlainFile(backup, recorded.before)) {
            files.push_back(FileReplacement::whole(recorded.target, recorded.after, std::move(*content)));
        } else {
            operations.fail(backup, WriteTexts::tr("is missing or damaged: nothing is taken back"));
        }
    }
    if (!operations.problems().empty()) {
        files.clear();
    }
    return files;
}

/// With the lock taken. False, with problems, when a transaction had been interrupted: the caller worked out
/// its new contents on files that recovery may have changed just now.
bool checkNothingInterrupted(FileOperations &operations, const DesignPaths &paths)
{
    const Recovery::Result recovered = Recovery(operations, paths).run();
    if (!recovered.isResolved) {
        return false;
    }
    for (const Problem &action : recovered.actions) {
        operations.fail(action.file, action.text);
    }
    return recovered.actions.empty() ||
           operations.fail(paths.design(), WriteTexts::tr("was not written for that reason: try again"));
}

} // namespace

DesignFiles::DesignFiles(const QString &design, const QStringList &members, FileSystem *system, int threads)
    : m_paths(design, members)
    , m_system(system ? system : &FileSystem::real())
    , m_threads(threads)
{
}

RecoveryResult DesignFiles::recover() const
{
    FileOperations operations(*m_system, m_threads);
    Recovery recovery(operations, m_paths);
    if (!recovery.isNeeded()) {
        return {{}, std::move(operations.problems()), true};
    }
    Recovery::Result recovered;
    {
        DesignLock lock(operations, m_paths);
        if (lock.take()) {
            recovered = recovery.run();
        } else if (!recovery.hasJournal()) {
            recovered.isSettled = true;
        } else if (!lock.isTakenElsewhere()) {
            recovered = recovery.look();
        }
    }
    return {std::move(recovered.actions), std::move(operations.problems()), recovered.isSettled};
}

std::vector<Problem> DesignFiles::check(std::span<const FileReplacement> files) const
{
    FileOperations operations(*m_system, m_threads);
    (void)WriteCheck(operations, m_paths).run(files, false);
    return operations.problems();
}

TransactionResult DesignFiles::replace(std::span<const FileReplacement> files, Backups backups) const
{
    if (files.empty()) {
        return {};
    }
    FileOperations operations(*m_system, m_threads);
    DesignLock lock(operations, m_paths);
    if (!lock.take() || !checkNothingInterrupted(operations, m_paths)) {
        return failure(operations);
    }
    return replaceFiles(operations, m_paths, files, backups == Backups::Keep);
}

TransactionResult DesignFiles::undo() const
{
    FileOperations operations(*m_system, m_threads);
    if (!canUndo()) {
        operations.fail(m_paths.design(), WriteTexts::tr("there is nothing to take back"));
        return failure(operations);
    }
    DesignLock lock(operations, m_paths);
    if (!lock.take() || !checkNothingInterrupted(operations, m_paths)) {
        return failure(operations);
    }
    QString why;
    const auto record = UndoRecord::read(m_paths, &why);
    if (!record) {
        operations.fail(m_paths.record(), WriteTexts::tr("cannot be used: %1").arg(why));
        return failure(operations);
    }
    const std::vector<FileReplacement> files = reversed(operations, m_paths, *record);
    return files.empty() ? failure(operations) : replaceFiles(operations, m_paths, files, false);
}

bool DesignFiles::canUndo() const
{
    FileOperations operations(*m_system, m_threads);
    return operations.exists(m_paths.record());
}

LastWrite DesignFiles::lastWrite() const
{
    QString why;
    const auto record = UndoRecord::read(m_paths, &why);
    if (!record) {
        return {};
    }
    LastWrite last{{}, QFileInfo(m_paths.record()).lastModified()};
    for (const RecordedReplacement &file : record->files) {
        last.files << file.target;
    }
    return last;
}

QStringList interruptedDesignsAround(const QString &design, const QStringList &files)
{
    QSet<QString> targets;
    QStringList folders;
    for (const QString &file : files) {
        targets.insert(QFileInfo(file).canonicalFilePath());
        folders << folderOf(QFileInfo(file).canonicalFilePath());
        folders << folderOf(folders.back());
    }
    folders.removeDuplicates();
    const QString own = DesignPaths(design).design();
    QStringList found;
    for (const QString &folder : std::as_const(folders)) {
        for (const QString &name : DesignPaths::designsWithJournals(folder)) {
            const DesignPaths paths(name);
            if (paths.design() != own && Journal::names(paths, targets)) {
                found << paths.design();
            }
        }
    }
    found.removeDuplicates();
    return found;
}

} // namespace designs
