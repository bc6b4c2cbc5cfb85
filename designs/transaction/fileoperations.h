// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/problem.h"
#include "designs/transaction/filesystem.h"

#include <QByteArrayView>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace designs {

/// Operations on files that collect what went wrong. Those that give a bool give false, with a problem added,
/// when they fail.
class FileOperations final
{
public:
    /// `threads` is how many work on large files at once, 0 for as many as are worth while.
    explicit FileOperations(FileSystem &system, int threads = 0)
        : m_system(system)
        , m_threads(threads)
    {
    }

    [[nodiscard]] std::vector<Problem> &problems() { return m_problems; }
    [[nodiscard]] FileSystem &system() { return m_system; }

    void add(const std::vector<Problem> &problems);
    /// Adds a problem; always false.
    bool fail(const QString &path, const QString &text);

    /// What takes the time of work: more threads can wait for a disk than there are processors.
    enum class WaitsFor
    {
        Processor,
        Disk
    };
    /// Calls `work` for each file, given by their sizes, with file operations of its own. Large files are
    /// worked on in threads, and what comes of them is put together in their order. Once the work on a file
    /// gave false, that on files behind it is no longer begun; what came of those then does not count. True
    /// when the work on all of them gave true.
    using FileWork = std::function<bool(FileOperations &files, std::size_t file)>;
    [[nodiscard]] bool forEachFile(const std::vector<qint64> &sizes, const FileWork &work,
                                   WaitsFor waitsFor = WaitsFor::Processor);
    /// Memory for contents that work on one file leaves to that on the next.
    struct Contents
    {
        std::string before;
        std::string after;
    };
    [[nodiscard]] Contents &contents() { return m_contents; }

    /// A file with that content and the permissions of another, on the disk when this returns. Problems name
    /// the owner first, the file that people know and that it is written for.
    bool writeFile(const QString &owner, const QString &path, QByteArrayView bytes, const FileStatus &like);
    /// The same, but on the disk only after syncWritten().
    bool writeLater(const QString &owner, const QString &path, QByteArrayView bytes, const FileStatus &like);
    /// Says that nobody will read the file soon.
    void dropFromMemory(const QString &path) { m_system.dropFromMemory(path); }
    /// Brings to the disk what writeLater() wrote: all at once, because waiting for each file alone takes
    /// long.
    bool syncWritten();
    /// Gives the file a further name, or writes a copy of its content where it can have only one.
    bool linkOrCopy(const QString &owner, const QString &file, const QString &name, QByteArrayView content,
                    const FileStatus &like);
    bool rename(const QString &from, const QString &to);
    bool makeFolder(const QString &path);
    /// Makes renames and removals in the folders of these files last.
    bool syncFoldersOf(QStringList paths);
    /// No failure when it is missing.
    bool removeIfThere(const QString &path);
    bool removeFolderIfEmpty(const QString &path);

    /// False, with a problem added, when it cannot be found out.
    bool readStatus(const QString &path, FileStatus *status);
    /// Of kind Other, with a problem added, when it cannot be found out.
    [[nodiscard]] FileStatus status(const QString &path);
    /// True also when it cannot be found out.
    [[nodiscard]] bool exists(const QString &path);

private:
    enum class Sync
    {
        Now,
        Later
    };
    struct Written
    {
        QString owner;
        QString path;
        qint64 size = 0;
    };

    bool write(const QString &owner, const QString &path, QByteArrayView bytes, const FileStatus &like,
               Sync sync);
    bool writeNewFile(const QString &path, QByteArrayView bytes, const FileStatus &like, Sync sync);
    bool syncFile(const QString &path);
    /// Rewrites the problems from that one on so that they name the file that people know first.
    void putOwnerFirst(const QString &owner, std::size_t firstProblem);
    bool succeeded(int failure, const QString &path, const char *what);
    bool writeContent(int file, const QString &path, QByteArrayView bytes, const FileStatus &like, Sync sync);

    [[nodiscard]] int threadsFor(const std::vector<qint64> &sizes, WaitsFor waitsFor) const;

    FileSystem &m_system;
    int m_threads;
    std::vector<Problem> m_problems;
    std::vector<Written> m_unsynced;
    Contents m_contents;
};

} // namespace designs
