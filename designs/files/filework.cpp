// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/files/filework.h"

#include "designs/files/designpaths.h"

#include <cerrno>

namespace designs {

namespace {

constexpr std::size_t blockSize = 1 << 20;

} // namespace

bool FileWork::fail(const QString &path, const QString &text)
{
    m_problems.push_back({path, 0, text});
    return false;
}

bool FileWork::did(int failure, const QString &path, const QString &what)
{
    return failure == 0 || fail(path, what + QStringLiteral(": ") + qt_error_string(failure));
}

bool FileWork::makeFile(const QString &path, const QByteArray &bytes, const FileStatus &like)
{
    int file = -1;
    if (!did(m_system.create(path, &file), path, QStringLiteral("cannot be created"))) {
        return false;
    }
    const bool filled = fill(file, path, bytes, like);
    return did(m_system.close(file), path, QStringLiteral("cannot be written")) && filled;
}

bool FileWork::writeFile(const QString &owner, const QString &path, const QByteArray &bytes,
                         const FileStatus &like)
{
    const std::size_t before = m_problems.size();
    const bool isWritten = makeFile(path, bytes, like);
    for (std::size_t number = before; number < m_problems.size(); ++number) {
        Problem &problem = m_problems[number];
        problem = {owner, 0, QStringLiteral("cannot be written: ") + problem.file + u' ' + problem.text};
    }
    return isWritten;
}

bool FileWork::fill(int file, const QString &path, const QByteArray &bytes, const FileStatus &like)
{
    std::string_view rest(bytes.constData(), std::size_t(bytes.size()));
    while (!rest.empty()) {
        std::size_t written = 0;
        const int failure = m_system.write(file, rest.substr(0, blockSize), &written);
        if (!did(failure, path, QStringLiteral("cannot be written"))) {
            return false;
        }
        rest.remove_prefix(written);
    }
    return did(m_system.setAttributes(file, like), path, QStringLiteral("cannot get its permissions")) &&
           did(m_system.sync(file), path, QStringLiteral("cannot be written"));
}

bool FileWork::rename(const QString &from, const QString &to)
{
    return did(m_system.rename(from, to), to, QStringLiteral("cannot be replaced"));
}

bool FileWork::makeFolder(const QString &path)
{
    return did(m_system.makeFolder(path), path, QStringLiteral("the folder cannot be made"));
}

bool FileWork::syncFoldersOf(QStringList paths)
{
    for (QString &path : paths) {
        path = folderOf(path);
    }
    paths.removeDuplicates();
    bool done = true;
    for (const QString &folder : std::as_const(paths)) {
        done =
            did(m_system.syncFolder(folder), folder, QStringLiteral("the folder cannot be written")) && done;
    }
    return done;
}

bool FileWork::removeIfThere(const QString &path)
{
    const int failure = m_system.remove(path);
    return failure == ENOENT || failure == ENOTDIR || did(failure, path, QStringLiteral("cannot be removed"));
}

bool FileWork::removeFolderIfEmpty(const QString &path)
{
    const int failure = m_system.removeFolder(path);
    return failure == ENOENT || failure == ENOTEMPTY || failure == EEXIST ||
           did(failure, path, QStringLiteral("cannot be removed"));
}

bool FileWork::look(const QString &path, FileStatus *status)
{
    return did(m_system.status(path, status), path, QStringLiteral("cannot be looked at"));
}

FileStatus FileWork::status(const QString &path)
{
    FileStatus found;
    if (!look(path, &found)) {
        found.kind = FileStatus::Kind::Other;
    }
    return found;
}

bool FileWork::exists(const QString &path)
{
    FileStatus found;
    return m_system.status(path, &found) != 0 || found.kind != FileStatus::Kind::Missing;
}

} // namespace designs
