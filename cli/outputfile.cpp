// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/outputfile.h"

#include "cli/console.h"
#include "cli/texts.h"
#include "host/framework/reportfile.h"

#include <QDir>
#include <QFileInfo>

namespace {

/// The file itself, also when it is still to be written.
QString meantFile(const QString &path)
{
    constexpr int mostLinks = 40;
    QFileInfo file(path);
    for (int links = 0; links < mostLinks && file.isSymLink() && !file.exists(); ++links) {
        file.setFile(file.symLinkTarget());
    }
    if (file.exists()) {
        return file.canonicalFilePath();
    }
    const QString folder = file.absoluteDir().canonicalPath();
    return folder.isEmpty() ? file.absoluteFilePath() : folder + u'/' + file.fileName();
}

} // namespace

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
