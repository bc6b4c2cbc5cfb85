// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/designfiles.h"

#include "designs/transaction/designlock.h"
#include "designs/transaction/recovery.h"
#include "designs/transaction/writecheck.h"

namespace designs {

namespace {

/// With the lock taken. Whether the files are replaced; problems are added to the work's.
bool replaceFiles(FileWork &work, const DesignPaths &paths, std::span<const FileReplacement> files,
                  bool keepsBackups)
{
    WriteCheck check(work, paths);
    if (!check.run(files, keepsBackups)) {
        return false;
    }
    FileTransaction transaction(work, paths);
    // What was prepared takes time: other programs may have opened the files meanwhile.
    if (!transaction.prepare(check.replacements(), keepsBackups) || !check.checkStillClosed()) {
        transaction.discard();
        return false;
    }
    const bool isCommitted = transaction.commit();
    if (!isCommitted && transaction.journal().state == Journal::State::Preparing) {
        transaction.discard();
        return false;
    }
    if (!isCommitted || !transaction.place()) {
        transaction.takeBack();
        return false;
    }
    transaction.finish();
    return true;
}

/// What gives the files their previous content again; empty, with problems, when it cannot be done.
std::vector<FileReplacement> editsBack(FileWork &work, const DesignPaths &paths, const UndoRecord &record)
{
    std::vector<FileReplacement> edits;
    for (const RecordedReplacement &change : record.files) {
        const QString backup = paths.backupOf(change.target);
        if (fingerprintOfPlainFile(change.target) != change.after) {
            work.fail(change.target,
                      QStringLiteral("was changed since it was written: nothing is taken back"));
        } else if (auto content = contentOfPlainFile(backup, change.before)) {
            edits.push_back({change.target, change.after, std::move(*content)});
        } else {
            work.fail(backup, QStringLiteral("is missing or damaged: nothing is taken back"));
        }
    }
    return work.problems().empty() ? edits : std::vector<FileReplacement>();
}

/// With the lock taken. False, with problems, when there was an interrupted write: what the caller wants to
/// write was worked out on files that may have changed by that.
bool isUndisturbed(FileWork &work, const DesignPaths &paths)
{
    Recovery recovery(work, paths);
    if (!recovery.run()) {
        return false;
    }
    for (const Problem &told : recovery.report()) {
        work.fail(told.file, told.text);
    }
    return recovery.report().empty() ||
           work.fail(paths.design(), QStringLiteral("was not written for that reason: try again"));
}

} // namespace

DesignFiles::DesignFiles(const QString &design, FileSystem *system)
    : m_design(design)
    , m_system(system ? system : &FileSystem::real())
{
}

std::vector<Problem> DesignFiles::recover()
{
    const DesignPaths paths(m_design);
    FileWork work(*m_system);
    Recovery recovery(work, paths);
    if (!recovery.isNeeded()) {
        return work.problems();
    }
    {
        DesignLock lock(work, paths);
        if (lock.take()) {
            recovery.run();
        } else if (recovery.isWaiting()) {
            work.fail(paths.design(), QStringLiteral("was being written when that was interrupted, which can "
                                                     "now be neither completed nor taken back: its files "
                                                     "may not belong together"));
        }
    }
    std::vector<Problem> all = recovery.report();
    all.insert(all.end(), work.problems().begin(), work.problems().end());
    return all;
}

std::vector<Problem> DesignFiles::check(std::span<const FileReplacement> files) const
{
    const DesignPaths paths(m_design);
    FileWork work(*m_system);
    WriteCheck(work, paths).run(files, false);
    return work.problems();
}

std::vector<Problem> DesignFiles::write(std::span<const FileReplacement> files, Backups backups)
{
    m_replaced = false;
    if (files.empty()) {
        return {};
    }
    const DesignPaths paths(m_design);
    FileWork work(*m_system);
    DesignLock lock(work, paths);
    if (lock.take() && isUndisturbed(work, paths)) {
        m_replaced = replaceFiles(work, paths, files, backups == Backups::Keep);
    }
    return work.problems();
}

DesignFiles::Undone DesignFiles::undo()
{
    m_replaced = false;
    const DesignPaths paths(m_design);
    FileWork work(*m_system);
    if (!canUndo()) {
        work.fail(paths.design(), QStringLiteral("there is nothing to take back"));
        return {{}, work.problems()};
    }
    Undone undone;
    DesignLock lock(work, paths);
    QString why;
    if (lock.take() && isUndisturbed(work, paths)) {
        if (const auto record = UndoRecord::read(paths, &why)) {
            const std::vector<FileReplacement> edits = editsBack(work, paths, *record);
            m_replaced = !edits.empty() && replaceFiles(work, paths, edits, false);
            for (const FileReplacement &edit : m_replaced ? edits : std::vector<FileReplacement>()) {
                undone.files << edit.path;
            }
        } else {
            work.fail(paths.record(), QStringLiteral("cannot be used: ") + why);
        }
    }
    undone.problems = work.problems();
    return undone;
}

bool DesignFiles::canUndo() const
{
    FileWork work(*m_system);
    return work.exists(DesignPaths(m_design).record());
}

} // namespace designs
