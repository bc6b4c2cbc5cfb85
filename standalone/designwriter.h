// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "host/netlist/cdbcore.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>

namespace designs {
class Design;
class DesignFiles;
} // namespace designs

/// How edits are written.
struct WriteOptions
{
    /// Everything is worked out and nothing is written.
    bool isDryRun = false;
    /// The files leave their previous content beside them, for undo.
    bool keepsBackups = true;
    /// The design is read again afterwards. A program that ends then does without.
    bool rereads = true;

    bool operator==(const WriteOptions &) const = default;
};

/// What came of writing edits.
struct WriteResult
{
    /// Why nothing was written; all else is empty then.
    QList<CDBPROBLEM> problems;
    /// Beside problems: the write failed between two files and could not be taken back, so that some files
    /// may be new. The problems say what each holds.
    bool isUndecided = false;
    /// What was changed, or would be in a dry run, in the order of the edits.
    QList<CDBCHANGE> changes;
    /// The files that were replaced, or would be in a dry run.
    QStringList files;
    /// What went wrong although the files were replaced, such as that the previous content could not be kept.
    QStringList notices;

    bool operator==(const WriteResult &) const = default;
};

/// What came of taking the last write back.
struct UndoResult
{
    /// The files that have their previous content again.
    QStringList files;
    /// Why nothing was taken back, "FILE:LINE: text" each.
    QStringList problems;
    /// What went wrong although the files have their previous content, likewise.
    QStringList notices;
    /// The files could not be written now at all: locked, or marked read-only.
    bool isUnwritable = false;

    bool operator==(const UndoResult &) const = default;
};

/// What replaces the files of a design.
[[nodiscard]] designs::DesignFiles filesOf(const designs::Design &design);

/// Writes all edits into the files of the design, or none. Reads nothing again.
[[nodiscard]] WriteResult writeEdits(const designs::Design &design, std::span<const designs::Edit> edits,
                                     const WriteOptions &options);

/// What writing the edits would do; edits that are refused are left out, and are told in `problems`.
[[nodiscard]] CDBPREVIEW previewEdits(const designs::Design &design, std::span<const designs::Edit> edits,
                                      QList<CDBPROBLEM> *problems);

/// Gives the files of the design the content that they had before the last write.
[[nodiscard]] UndoResult undoLastWrite(const designs::Design &design);

/// "FILE:LINE: text" each.
[[nodiscard]] QStringList messagesOf(std::span<const designs::Problem> problems);
