// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// Whether the name stands for standard output.
[[nodiscard]] inline bool isStandardOutput(const QString &path)
{
    return path == QStringLiteral("-") || path == QStringLiteral("/dev/stdout");
}

/// Writes a whole output: to standard output, into a device or pipe, or as a file that replaces the old one
/// only when all of it is there. False, after a message, when that fails.
[[nodiscard]] bool writeOutput(const QString &path, const QByteArray &bytes);

/// Whether two names mean the same file, through links too.
[[nodiscard]] bool isSameFile(const QString &a, const QString &b);
