// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

/// What the program returns to the shell.
enum class ExitStatus
{
    Done = 0,
    /// The design has a problem that the user must decide on.
    DesignProblem = 1,
    WrongUsage = 2,
    UnreadableInput = 3,
    UnwritableOutput = 4
};

/// The text with everything that is no printable character made visible: a name from a design can neither
/// break a message over lines nor steer the terminal.
[[nodiscard]] QString printable(const QString &text);

namespace console {

/// Writes the line "bom: text" to standard error.
void message(const QString &text);

/// Writes to standard output; false, after a message, when it takes no more.
[[nodiscard]] bool write(QByteArrayView bytes);

} // namespace console
