// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/designfiles.h"

#include "designs/transaction/designlock.h"
#include "designs/transaction/recovery.h"
#include "designs/transaction/writecheck.h"

namespace designs {

namespace {

/// One transaction, with the lock taken. Whether the files are replaced; problems are added to `operations`.
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
bool replaceFiles(FileOperations &operations, const DesignPaths &paths,
                  std::span<const FileReplacement> files, bool keepsBackups)
{
    WriteCheck check(operations, paths);
    const auto checked = check.run(files, keepsBackups);
    if (!checked) {
        return false;
    }
    FileTransaction transaction(operations, paths);
    // Preparing takes time: other programs may have opened the files meanwhile.
    if (!transaction.prepare(*checked, keepsBackups) || !check.areStillClosed(*checked)) {
        transaction.discard();
        return false;
    }
    const bool isCommitted = transaction.commit();
    if (!isCommitted && transaction.journal().state == Journal::State::Preparing) {
        transaction.discard();
        return false;
    }
    // A commit that failed after its rename may count after a crash: discarding would be too late.
    if (!isCommitted || !transaction.place()) {
        transaction.takeBack();
        return false;
    }
    transaction.finish();
    return true;
}

TransactionResult runTransaction(FileOperations &operations, const DesignPaths &paths,
                                 std::span<const FileReplacement> files, bool keepsBackups)
{
    TransactionResult result;
    if (!files.empty() && replaceFiles(operations, paths, files, keepsBackups)) {
        for (const FileReplacement &file : files) {
            result.replaced << file.path;
        }
    }
    result.problems = operations.problems();
    return result;
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
                            QStringLiteral("was changed since it was written: nothing is taken back"));
        } else if (auto content = contentOfPlainFile(backup, recorded.before)) {
            files.push_back({recorded.target, recorded.after, std::move(*content)});
        } else {
            operations.fail(backup, QStringLiteral("is missing or damaged: nothing is taken back"));
        }
    }
    return operations.problems().empty() ? files : std::vector<FileReplacement>();
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
           operations.fail(paths.design(), QStringLiteral("was not written for that reason: try again"));
}

} // namespace

DesignFiles::DesignFiles(const QString &design, FileSystem *system)
    : m_design(design)
    , m_system(system ? system : &FileSystem::real())
{
}

std::vector<Problem> DesignFiles::recover() const
{
    const DesignPaths paths(m_design);
    FileOperations operations(*m_system);
    Recovery recovery(operations, paths);
    if (!recovery.isNeeded()) {
        return operations.problems();
    }
    std::vector<Problem> all;
    {
        DesignLock lock(operations, paths);
        if (lock.take()) {
            all = recovery.run().actions;
        } else if (recovery.hasJournal()) {
            operations.fail(paths.design(),
                            QStringLiteral("was being written when that was interrupted, which can "
                                           "now be neither completed nor taken back: its files "
                                           "may not belong together"));
        }
    }
    all.insert(all.end(), operations.problems().begin(), operations.problems().end());
    return all;
}

std::vector<Problem> DesignFiles::check(std::span<const FileReplacement> files) const
{
    const DesignPaths paths(m_design);
    FileOperations operations(*m_system);
    (void)WriteCheck(operations, paths).run(files, false);
    return operations.problems();
}

TransactionResult DesignFiles::replace(std::span<const FileReplacement> files, Backups backups) const
{
    if (files.empty()) {
        return {};
    }
    const DesignPaths paths(m_design);
    FileOperations operations(*m_system);
    DesignLock lock(operations, paths);
    if (!lock.take() || !checkNothingInterrupted(operations, paths)) {
        return {{}, operations.problems()};
    }
    return runTransaction(operations, paths, files, backups == Backups::Keep);
}

TransactionResult DesignFiles::undo() const
{
    const DesignPaths paths(m_design);
    FileOperations operations(*m_system);
    if (!canUndo()) {
        operations.fail(paths.design(), QStringLiteral("there is nothing to take back"));
        return {{}, operations.problems()};
    }
    DesignLock lock(operations, paths);
    if (!lock.take() || !checkNothingInterrupted(operations, paths)) {
        return {{}, operations.problems()};
    }
    QString why;
    const auto record = UndoRecord::read(paths, &why);
    if (!record) {
        operations.fail(paths.record(), QStringLiteral("cannot be used: ") + why);
        return {{}, operations.problems()};
    }
    return runTransaction(operations, paths, reversed(operations, paths, *record), false);
}

bool DesignFiles::canUndo() const
{
    FileOperations operations(*m_system);
    return operations.exists(DesignPaths(m_design).record());
}

} // namespace designs
