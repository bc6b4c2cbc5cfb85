// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/reportfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringList>

#include <algorithm>
#include <cerrno>

#include <unistd.h>

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

ReportFileResult failed(ReportFileResult result, const QFileDevice &file, QString *reason)
{
    if (reason) {
        *reason = file.errorString();
    }
    return result;
}

template<typename File, typename Finish>
ReportFileResult write(File &file, QIODevice::OpenMode mode, const QByteArray &bytes, QString *reason,
                       Finish finish)
{
    if (!file.open(mode | QIODevice::Text)) {
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
        return write(device, QIODevice::Append, bytes, reason, [](QFile &file) { return file.flush(); });
    }
    // A link that leads nowhere but to itself would be replaced by the report.
    const QByteArray name = QFile::encodeName(path);
    if (QFileInfo(path).isSymLink() && ::access(name.constData(), F_OK) != 0 && errno == ELOOP) {
        if (reason) {
            *reason = qt_error_string(ELOOP);
        }
        return ReportFileResult::NotOpened;
    }
    QSaveFile file(path);
    return write(file, QIODevice::WriteOnly, bytes, reason, [](QSaveFile &saved) { return saved.commit(); });
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
