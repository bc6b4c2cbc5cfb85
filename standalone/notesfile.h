// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A text that people keep in a file beside the design.
struct NotesFile
{
    /// Line ends are "\n". Empty when there is no such file or it cannot be read.
    QString text;
    /// Why it cannot be read; empty also when there is none.
    QString problem;
};

/// Reads UTF-8 text of at most 16 MB.
[[nodiscard]] NotesFile readNotesFile(const QString &path);

/// Replaces the text as a whole, with the line ends and the byte-order mark that the file has; an empty text
/// removes it. The previous content goes to the file `backup` first. On failure the old file stays and
/// `reason` says why: "FILE: why".
[[nodiscard]] bool writeNotesFile(const QString &path, const QString &backup, const QString &text,
                                  QString *reason);
