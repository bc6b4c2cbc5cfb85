// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "designs/problem.h"

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
    /// Why nothing was replaced. Beside replaced files: what failed when all were in place, such as keeping
    /// the backups; the next recover() completes that.
    std::vector<Problem> problems;
};

/// The files of one design, replaced in transactions: whatever happens meanwhile (a file that cannot be
/// written, a full disk, the end of the program or of the machine), afterwards all files of a transaction
/// have their new content, or all their previous one. After the end of a program that holds once recover()
/// was called.
class DesignFiles final
{
public:
    /// `design` is the file that stands for the design (DesignInfo::file); journal, backups and the record
    /// for undo() are found by it. `system` stays the caller's; null is the real one.
    explicit DesignFiles(const QString &design, FileSystem *system = nullptr);

    /// Completes or takes back a transaction that was interrupted. To be called before the design is read.
    /// Gives what was done or why it could not be; nothing when there was nothing to do.
    [[nodiscard]] std::vector<Problem> recover() const;

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

private:
    QString m_design;
    FileSystem *m_system;
};

} // namespace designs
