// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "designs/problem.h"
#include "designs/transaction/designpaths.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <span>
#include <vector>

namespace designs {

class FileSystem;

/// Whether the previous content of replaced files is kept.
enum class Backups
{
    Keep,
    None
};

/// What came of a transaction.
struct TransactionResult
{
    /// The files that were replaced: all of the transaction, or none.
    QStringList replaced;
    /// Why the files were not replaced; none beside replaced files.
    std::vector<Problem> problems;
    /// The write failed between two files and taking it back failed, too: some files may be new. The problems
    /// say what each holds, and recover() tries again.
    bool isUndecided = false;
    /// Beside replaced files: what failed when all were in place, such as keeping the backups. The next
    /// recover() completes that.
    std::vector<Problem> notices;
};

/// What came of looking for an interrupted transaction.
struct RecoveryResult
{
    /// What was done about it.
    std::vector<Problem> actions;
    /// What could not be done, and what the files hold then.
    std::vector<Problem> problems;
    /// False when files may be old in part and new in part.
    bool isSettled = true;
};

/// A transaction that is over.
struct LastWrite
{
    QStringList files;
    QDateTime at;
};

/// The files of one design, replaced in transactions: whatever happens meanwhile (a file that cannot be
/// written, a full disk, the end of the program or of the machine), afterwards all files of a transaction
/// have their new content, or all their previous one. After the end of a program that holds once recover()
/// was called.
class DesignFiles final
{
public:
    /// `design` is the file that stands for the design (DesignInfo::file); journal, backups and the record
    /// for undo() are found by it. `members` are all of its files (Design::files()): no other one is ever
    /// touched. `system` stays the caller's; null is the real one. `threads` is how many work on large files
    /// at once, 0 for as many as are worth while; what comes of it is the same for any number.
    DesignFiles(const QString &design, const QStringList &members, FileSystem *system = nullptr,
                int threads = 0);

    /// Completes or takes back a transaction that was interrupted. The design is to be read again when
    /// something was done. Waits for one that is under way.
    [[nodiscard]] RecoveryResult recover() const;

    /// Why the files could not be replaced now: locked, changed meanwhile, not writable. Writes nothing.
    [[nodiscard]] std::vector<Problem> check(std::span<const FileReplacement> files) const;

    /// Replaces the files in one transaction. Keeps permissions, follows symbolic links; a file with several
    /// names (hard links) is refused.
    [[nodiscard]] TransactionResult replace(std::span<const FileReplacement> files, Backups backups) const;

    /// Gives the files of the last replace() their previous content again, in a transaction of its own, if
    /// every file still is as replace() left it; once.
    [[nodiscard]] TransactionResult undo() const;
    /// Whether there is a replace() to take back.
    [[nodiscard]] bool canUndo() const;
    /// Which files undo() concerns and when they were replaced; empty where that cannot be told.
    [[nodiscard]] LastWrite lastWrite() const;

private:
    DesignPaths m_paths;
    FileSystem *m_system;
    int m_threads;
};

/// Other designs whose interrupted write concerns these files, too: their journals stand in the folders of
/// the files, or one above.
[[nodiscard]] QStringList interruptedDesignsAround(const QString &design, const QStringList &files);

} // namespace designs
