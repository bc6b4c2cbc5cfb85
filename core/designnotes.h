// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Notes on the bill of materials that another program changed after they were loaded.
struct NotesConflict
{
    QString loaded;
    QString mine;
    QString theirs;

    bool operator==(const NotesConflict &) const = default;
};

/// What is to become of them.
enum class NotesChoice
{
    KeepMine,
    TakeTheirs,
    Cancel
};

/// Asks for it.
using NotesQuestion = std::function<NotesChoice(const NotesConflict &)>;

/// What came of setting notes.
struct NotesResult
{
    enum class State
    {
        /// The design holds them.
        Written,
        /// The design holds other ones, which are to be shown instead.
        TakenOver,
        /// Nothing was written: somebody has to decide first.
        Refused,
        /// Nothing could be written.
        Failed
    };

    State state = State::Written;
    /// What the design holds as far as it is known: the notes to go on with.
    QString text;
    /// Why nothing was written, for people; empty when it was, or theirs were taken.
    QString problem;

    bool operator==(const NotesResult &) const = default;
};

/// The notes that the current design holds, the text of its attachment BOMNOTES.TXT.
[[nodiscard]] QString designNotes();

/// Writes notes if the design still holds those that were loaded. Otherwise `ask` decides, as often as they
/// change meanwhile; without it they are refused.
[[nodiscard]] NotesResult setDesignNotes(const QString &loaded, const QString &text,
                                         const NotesQuestion &ask);
