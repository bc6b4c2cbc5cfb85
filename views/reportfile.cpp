// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/reportfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("BOMView", text);
}

/// A device or a pipe: there is nothing to keep, and replacing it would put a file in its place.
bool isSpecialFile(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

ReportFileResult failed(ReportFileResult result, const QFileDevice &file, QString *reason)
{
    if (reason) {
        *reason = file.errorString();
    }
    return result;
}

template<typename File, typename Finish>
ReportFileResult write(File &file, const QByteArray &bytes, QString *reason, Finish finish)
{
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return failed(ReportFileResult::NotOpened, file, reason);
    }
    if (file.write(bytes) != bytes.size() || !finish(file)) {
        return failed(ReportFileResult::NotWritten, file, reason);
    }
    return ReportFileResult::Written;
}

} // namespace

ReportFileResult writeReportFile(const QString &path, const QByteArray &bytes, QString *reason)
{
    if (isSpecialFile(path)) {
        QFile device(path);
        return write(device, bytes, reason, [](QFile &file) { return file.flush(); });
    }
    QSaveFile file(path);
    return write(file, bytes, reason, [](QSaveFile &saved) { return saved.commit(); });
}

QString reportFileMessage(ReportFileResult result, const QString &path, const QString &reason)
{
    switch (result) {
    case ReportFileResult::NotOpened:
        return translated("Could not open file '%1' for writing").arg(path);
    case ReportFileResult::NotWritten:
        return translated("Could not write file '%1': %2").arg(path, reason);
    case ReportFileResult::Written:
        break;
    }
    return {};
}
