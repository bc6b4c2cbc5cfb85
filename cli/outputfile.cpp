// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/outputfile.h"

#include "cli/console.h"
#include "host/framework/reportfile.h"

#include <QFileInfo>

bool writeOutput(const QString &path, const QByteArray &bytes)
{
    if (isStandardOutput(path)) {
        return console::write(bytes);
    }
    QString reason;
    if (writeReportFile(path, bytes, &reason) == ReportFileResult::Written) {
        return true;
    }
    console::message(path + QStringLiteral(": cannot be written: ") + reason);
    return false;
}

bool isSameFile(const QString &a, const QString &b)
{
    const QFileInfo first(a);
    const QFileInfo second(b);
    return first.exists() ? first.canonicalFilePath() == second.canonicalFilePath()
                          : first.absoluteFilePath() == second.absoluteFilePath();
}
