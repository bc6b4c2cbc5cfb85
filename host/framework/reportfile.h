// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

enum class ReportFileResult
{
    Written,
    Protected,
    NotOpened,
    NotWritten
};

/// Says which files are to stay as they are, such as those that the reports are made from; null for none.
void setReportFileGuard(std::function<bool(const QString &path)> isProtected);

/// Writes a report in one go: a file is replaced as a whole or stays as it was. Devices and pipes are written
/// to directly. `reason` takes the system's words when that fails.
[[nodiscard]] ReportFileResult writeReportFile(const QString &path, const QByteArray &bytes, QString *reason);

/// What the user is told about a report that was not written.
[[nodiscard]] QString reportFileMessage(ReportFileResult result, const QString &path, const QString &reason);
