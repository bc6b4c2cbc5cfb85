// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/fileoperations.h"

#include "designs/texts.h"
#include "designs/threads.h"
#include "designs/transaction/designpaths.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <iterator>
#include <utility>

namespace designs {

namespace {

constexpr const char *cannotWrite = QT_TRANSLATE_NOOP("DesignWriting", "cannot be written: %1");
constexpr const char *cannotRemove = QT_TRANSLATE_NOOP("DesignWriting", "cannot be removed: %1");

constexpr std::size_t blockSize = 1 << 20;
/// Disks work on many requests at once.
constexpr int threadsThatWait = 8;

} // namespace

void FileOperations::add(const std::vector<Problem> &problems)
{
    m_problems.insert(m_problems.end(), problems.begin(), problems.end());
}

bool FileOperations::fail(const QString &path, const QString &text)
{
    m_problems.push_back({path, 0, text});
    return false;
}

bool FileOperations::succeeded(int failure, const QString &path, const char *what)
{
    return failure == 0 || fail(path, WriteTexts::tr(what).arg(qt_error_string(failure)));
}

int FileOperations::threadsFor(const std::vector<qint64> &sizes, WaitsFor waitsFor) const
{
    if (m_threads > 0) {
        return m_threads;
    }
    const int threads = threadsForFiles(sizes);
    return threads > 1 && waitsFor == WaitsFor::Disk ? threadsThatWait : threads;
}

/// All files before the first that failed have been worked on when this returns: items are begun in their
/// order, and only those behind a failure are left out. So the problems are the same for any number of
/// threads.
bool FileOperations::forEachFile(const std::vector<qint64> &sizes, const FileWork &work, WaitsFor waitsFor)
{
    struct Outcome
    {
        std::vector<Problem> problems;
        std::vector<Written> unsynced;
    };
    const std::size_t count = sizes.size();
    const int threads = threadsFor(sizes, waitsFor);
    std::vector<Outcome> outcomes(count);
    std::vector<FileOperations> each(std::size_t(threads), FileOperations(m_system, 1));
    std::atomic<std::size_t> firstFailed = count;
    forEachInThreads(count, threads, [&](std::size_t file, int thread) {
        std::size_t failed = firstFailed;
        if (file > failed) {
            return;
        }
        FileOperations &own = each[std::size_t(thread)];
        const bool isDone = work(own, file);
        outcomes[file] = {std::exchange(own.m_problems, {}), std::exchange(own.m_unsynced, {})};
        while (!isDone && file < failed && !firstFailed.compare_exchange_weak(failed, file)) {
        }
    });
    for (std::size_t file = 0; file < std::min(firstFailed + 1, count); ++file) {
        std::ranges::move(outcomes[file].problems, std::back_inserter(m_problems));
        std::ranges::move(outcomes[file].unsynced, std::back_inserter(m_unsynced));
    }
    return firstFailed == count;
}

bool FileOperations::writeFile(const QString &owner, const QString &path, QByteArrayView bytes,
                               const FileStatus &like)
{
    return write(owner, path, bytes, like, Sync::Now);
}

bool FileOperations::writeLater(const QString &owner, const QString &path, QByteArrayView bytes,
                                const FileStatus &like)
{
    m_unsynced.push_back({owner, path, bytes.size()});
    return write(owner, path, bytes, like, Sync::Later);
}

bool FileOperations::write(const QString &owner, const QString &path, QByteArrayView bytes,
                           const FileStatus &like, Sync sync)
{
    const std::size_t before = m_problems.size();
    const bool isWritten = writeNewFile(path, bytes, like, sync);
    putOwnerFirst(owner, before);
    return isWritten;
}

void FileOperations::putOwnerFirst(const QString &owner, std::size_t firstProblem)
{
    for (std::size_t number = firstProblem; number < m_problems.size(); ++number) {
        Problem &problem = m_problems[number];
        problem = {owner, 0, WriteTexts::tr("cannot be written: %1 %2").arg(problem.file, problem.text)};
    }
}

bool FileOperations::writeNewFile(const QString &path, QByteArrayView bytes, const FileStatus &like,
                                  Sync sync)
{
    int file = -1;
    if (!succeeded(m_system.create(path, &file), path,
                   QT_TRANSLATE_NOOP("DesignWriting", "cannot be created: %1"))) {
        return false;
    }
    const bool isFilled = writeContent(file, path, bytes, like, sync);
    return succeeded(m_system.close(file), path, cannotWrite) && isFilled;
}

bool FileOperations::writeContent(int file, const QString &path, QByteArrayView bytes, const FileStatus &like,
                                  Sync sync)
{
    std::string_view rest(bytes.data(), std::size_t(bytes.size()));
    while (!rest.empty()) {
        std::size_t written = 0;
        const int failure = m_system.write(file, rest.substr(0, blockSize), &written);
        if (!succeeded(failure, path, cannotWrite)) {
            return false;
        }
        rest.remove_prefix(written);
    }
    if (!succeeded(m_system.setAttributes(file, like), path,
                   QT_TRANSLATE_NOOP("DesignWriting", "cannot get its permissions: %1"))) {
        return false;
    }
    if (sync == Sync::Later) {
        m_system.startSync(file);
        return true;
    }
    return succeeded(m_system.sync(file), path, cannotWrite);
}

bool FileOperations::syncWritten()
{
    const std::vector<Written> all = std::exchange(m_unsynced, {});
    std::vector<qint64> sizes;
    sizes.reserve(all.size());
    for (const Written &written : all) {
        sizes.push_back(written.size);
    }
    const std::size_t before = m_problems.size();
    const auto syncOne = [&](FileOperations &files, std::size_t file) {
        (void)files.syncFile(all[file].path);
        files.putOwnerFirst(all[file].owner, 0);
        return true;
    };
    (void)forEachFile(sizes, syncOne, WaitsFor::Disk);
    return m_problems.size() == before;
}

bool FileOperations::syncFile(const QString &path)
{
    int file = -1;
    if (!succeeded(m_system.open(path, &file), path,
                   QT_TRANSLATE_NOOP("DesignWriting", "cannot be opened again: %1"))) {
        return false;
    }
    const bool isSynced = succeeded(m_system.sync(file), path, cannotWrite);
    return succeeded(m_system.close(file), path, cannotWrite) && isSynced;
}

bool FileOperations::linkOrCopy(const QString &owner, const QString &file, const QString &name,
                                QByteArrayView content, const FileStatus &like)
{
    return m_system.link(file, name) == 0 || writeLater(owner, name, content, like);
}

bool FileOperations::rename(const QString &from, const QString &to)
{
    return succeeded(m_system.rename(from, to), to,
                     QT_TRANSLATE_NOOP("DesignWriting", "cannot be replaced: %1"));
}

bool FileOperations::makeFolder(const QString &path)
{
    return succeeded(m_system.makeFolder(path), path,
                     QT_TRANSLATE_NOOP("DesignWriting", "the folder cannot be made: %1"));
}

bool FileOperations::syncFoldersOf(QStringList paths)
{
    for (QString &path : paths) {
        path = folderOf(path);
    }
    paths.removeDuplicates();
    bool done = true;
    for (const QString &folder : std::as_const(paths)) {
        done = succeeded(m_system.syncFolder(folder), folder,
                         QT_TRANSLATE_NOOP("DesignWriting", "the folder cannot be written: %1")) &&
               done;
    }
    return done;
}

bool FileOperations::removeIfThere(const QString &path)
{
    const int failure = m_system.remove(path);
    return failure == ENOENT || failure == ENOTDIR || succeeded(failure, path, cannotRemove);
}

bool FileOperations::removeFolderIfEmpty(const QString &path)
{
    const int failure = m_system.removeFolder(path);
    return failure == ENOENT || failure == ENOTEMPTY || failure == EEXIST ||
           succeeded(failure, path, cannotRemove);
}

bool FileOperations::readStatus(const QString &path, FileStatus *status)
{
    return succeeded(m_system.status(path, status), path,
                     QT_TRANSLATE_NOOP("DesignWriting", "cannot be looked at: %1"));
}

FileStatus FileOperations::status(const QString &path)
{
    FileStatus found;
    if (!readStatus(path, &found)) {
        found.kind = FileStatus::Kind::Other;
    }
    return found;
}

bool FileOperations::exists(const QString &path)
{
    FileStatus found;
    return m_system.status(path, &found) != 0 || found.kind != FileStatus::Kind::Missing;
}

} // namespace designs
