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

/// Whether the previous content of changed files is kept.
enum class Backups
{
    Keep,
    None
};

/// Writes the files of one design: all of a batch or none, whatever happens in between.
class DesignFiles final
{
public:
    /// `design` is the file that stands for the design (DesignInfo::file); journal, backups and the record
    /// for undo() are found by it. `system` stays the caller's; null is the real one.
    explicit DesignFiles(const QString &design, FileSystem *system = nullptr);

    /// Completes or takes back what an interrupted write() or undo() left. To be called before the design is
    /// read. The texts tell what was done or why it could not be; nothing when there was nothing to do.
    [[nodiscard]] std::vector<Problem> recover();

    /// Why the files could not be replaced now: locked, changed meanwhile, not writable. Writes nothing.
    [[nodiscard]] std::vector<Problem> check(std::span<const FileReplacement> files) const;

    /// Replaces the files. Keeps permissions, follows symbolic links; a file with several names (hard links)
    /// is refused. Without problems all are replaced; with any of them none is, unless replaced() says
    /// otherwise.
    [[nodiscard]] std::vector<Problem> write(std::span<const FileReplacement> files, Backups backups);

    /// Whether the last write() or undo() replaced the files. Where it reported problems nevertheless,
    /// backups or cleaning up failed; the next recover() completes that.
    [[nodiscard]] bool replaced() const { return m_replaced; }

    /// What undo() did.
    struct Undone
    {
        /// The files that have their previous content again.
        QStringList files;
        std::vector<Problem> problems;
    };

    /// Takes back the last write(), if every file still is as it left it; once.
    [[nodiscard]] Undone undo();
    /// Whether there is a write() to take back.
    [[nodiscard]] bool canUndo() const;

private:
    QString m_design;
    FileSystem *m_system;
    bool m_replaced = false;
};

} // namespace designs
