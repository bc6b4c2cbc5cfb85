// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/outputfile.h"

#include "cli/console.h"
#include "cli/texts.h"
#include "files/regularfile.h"
#include "host/framework/reportfile.h"

bool writeOutput(const QString &path, const QByteArray &bytes)
{
    if (isStandardOutput(path)) {
        return console::write(bytes);
    }
    QString reason;
    if (writeReportFile(path, bytes, &reason) == ReportFileResult::Written) {
        return true;
    }
    console::message(CommandLine::tr("%1: cannot be written: %2").arg(path, reason));
    return false;
}

bool isSameFile(const QString &a, const QString &b)
{
    return isStandardOutput(a) || isStandardOutput(b) ? isStandardOutput(a) && isStandardOutput(b)
                                                      : meantFile(a) == meantFile(b);
}
