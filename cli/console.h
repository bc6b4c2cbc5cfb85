// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

/// The text with everything that is no printable character made visible: a name from a design can neither
/// break a message over lines nor steer the terminal.
[[nodiscard]] QString printable(const QString &text);

/// "1 part", "7 parts".
[[nodiscard]] QString counted(qsizetype count, const QString &singular, const QString &plural);

namespace console {

/// Writes the line "bom: text" to standard error.
void message(const QString &text);

/// Writes to standard output; false, after a message, when it takes no more.
[[nodiscard]] bool write(QByteArrayView bytes);

} // namespace console
