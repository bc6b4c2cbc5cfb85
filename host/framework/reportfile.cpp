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
#include <utility>

namespace {

std::function<bool(const QString &path)> guard;

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

/// Writes to a device: what arrived there stays.
ReportFileResult writeDevice(const QString &path, const QByteArray &bytes, QString *reason)
{
    QFile device(path);
    const bool isOpen = device.open(QIODevice::Append | QIODevice::Text);
    if (isOpen && device.write(bytes) == bytes.size() && device.flush()) {
        return ReportFileResult::Written;
    }
    *reason = device.errorString();
    return isOpen ? ReportFileResult::NotWritten : ReportFileResult::NotOpened;
}

} // namespace

void setReportFileGuard(std::function<bool(const QString &path)> isProtected)
{
    guard = std::move(isProtected);
}

ReportFileResult writeReportFile(const QString &path, const QByteArray &bytes, QString *reason)
{
    QString unwanted;
    reason = reason ? reason : &unwanted;
    if (guard && guard(path)) {
        return ReportFileResult::Protected;
    }
    if (isSpecialFile(path)) {
        return writeDevice(path, bytes, reason);
    }
    QSaveFile file(path);
    if (!openForReplacing(&file, QIODevice::WriteOnly | QIODevice::Text, reason)) {
        return ReportFileResult::NotOpened;
    }
    return writeReplacement(&file, bytes, reason) ? ReportFileResult::Written : ReportFileResult::NotWritten;
}

QString reportFileMessage(ReportFileResult result, const QString &path, const QString &reason)
{
    switch (result) {
    case ReportFileResult::Protected:
        return QCoreApplication::translate("BOMView", "The file '%1' belongs to the design and is not "
                                                      "overwritten. Choose another name.")
            .arg(path);
    case ReportFileResult::NotOpened:
        return QCoreApplication::translate("BOMView", "Could not open file '%1' for writing").arg(path);
    case ReportFileResult::NotWritten:
        return QCoreApplication::translate("BOMView", "Could not write file '%1': %2").arg(path, reason);
    case ReportFileResult::Written:
        break;
    }
    return {};
}
