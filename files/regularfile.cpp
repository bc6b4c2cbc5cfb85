// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "files/regularfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Opened without waiting, so that a pipe that takes the file's place at the last moment is noticed as well;
/// -1, with the reason, for what is no ordinary file.
int openedWithoutWaiting(const QString &path, QString *reason)
{
    const int opened =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (opened < 0) {
        *reason = qt_error_string(errno);
        return -1;
    }
    struct stat found = {};
    if (::fstat(opened, &found) == 0 && S_ISREG(found.st_mode)) {
        return opened;
    }
    ::close(opened);
    *reason = QCoreApplication::translate("RegularFile", "this is no ordinary file");
    return -1;
}

bool leadsOnlyToItself(const QString &path)
{
    return QFileInfo(path).isSymLink() && ::access(QFile::encodeName(path).constData(), F_OK) != 0 &&
           errno == ELOOP;
}

} // namespace

bool openRegularFile(QFile *file, QIODevice::OpenMode mode, QString *reason)
{
    if (!QFileInfo(*file).isNativePath()) {
        const bool isOpen = file->open(mode);
        *reason = isOpen ? *reason : file->errorString();
        return isOpen;
    }
    const int opened = openedWithoutWaiting(file->fileName(), reason);
    return opened >= 0 && file->open(opened, mode, QFileDevice::AutoCloseHandle);
}

std::optional<QByteArray> contentOfRegularFile(const QString &path, qint64 most, QString *reason)
{
    QFile file(path);
    if (!openRegularFile(&file, QIODevice::ReadOnly | QIODevice::Unbuffered, reason)) {
        return std::nullopt;
    }
    QByteArray bytes = file.read(std::min(file.size(), most + 1));
    if (file.error() != QFileDevice::NoError) {
        *reason = file.errorString();
        return std::nullopt;
    }
    return bytes;
}

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

bool openForReplacing(QSaveFile *file, QIODevice::OpenMode mode, QString *reason)
{
    if (leadsOnlyToItself(file->fileName())) {
        *reason = qt_error_string(ELOOP);
        return false;
    }
    const bool isOpen = file->open(mode);
    *reason = isOpen ? *reason : file->errorString();
    return isOpen;
}

bool writeReplacement(QSaveFile *file, const QByteArray &bytes, QString *reason)
{
    const bool isWritten = file->write(bytes) == bytes.size() && file->flush();
    // Some file systems find out only now that there is no room; others cannot be asked.
    if (isWritten && ::fsync(file->handle()) != 0 && errno != EINVAL && errno != ENOTSUP) {
        *reason = qt_error_string(errno);
        return false;
    }
    if (isWritten && file->commit()) {
        return true;
    }
    *reason = file->errorString();
    return false;
}
