// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/reportfile.h"

#include "files/regularfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringList>

#include <algorithm>

namespace {

/// A device, a pipe or a name for an open file of this process: there is nothing to keep, and replacing it
/// would put a file in its place.
bool isSpecialFile(const QString &path)
{
    static const QStringList openFiles{QStringLiteral("/dev/std"), QStringLiteral("/dev/fd/"),
                                       QStringLiteral("/proc/")};
    const bool isOpenFile = std::any_of(openFiles.begin(), openFiles.end(),
                                        [&path](const QString &start) { return path.startsWith(start); });
    if (isOpenFile) {
        return true;
    }
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

template<typename File, typename Finish>
ReportFileResult write(File &file, const QByteArray &bytes, QString *reason, Finish finish)
{
    if (file.write(bytes) != bytes.size() || !finish(file)) {
        *reason = file.errorString();
        return ReportFileResult::NotWritten;
    }
    return ReportFileResult::Written;
}

} // namespace

ReportFileResult writeReportFile(const QString &path, const QByteArray &bytes, QString *reason)
{
    QString unwanted;
    reason = reason ? reason : &unwanted;
    if (isSpecialFile(path)) {
        QFile device(path);
        if (!device.open(QIODevice::Append | QIODevice::Text)) {
            *reason = device.errorString();
            return ReportFileResult::NotOpened;
        }
        return write(device, bytes, reason, [](QFile &file) { return file.flush(); });
    }
    QSaveFile file(path);
    if (!openForReplacing(&file, QIODevice::WriteOnly | QIODevice::Text, reason)) {
        return ReportFileResult::NotOpened;
    }
    return write(file, bytes, reason, [](QSaveFile &saved) { return saved.commit(); });
}

QString reportFileMessage(ReportFileResult result, const QString &path, const QString &reason)
{
    switch (result) {
    case ReportFileResult::NotOpened:
        return QCoreApplication::translate("BOMView", "Could not open file '%1' for writing").arg(path);
    case ReportFileResult::NotWritten:
        return QCoreApplication::translate("BOMView", "Could not write file '%1': %2").arg(path, reason);
    case ReportFileResult::Written:
        break;
    }
    return {};
}
