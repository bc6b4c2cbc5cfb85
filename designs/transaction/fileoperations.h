// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/problem.h"
#include "designs/transaction/filesystem.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace designs {

/// Operations on files that collect what went wrong. Those that give a bool give false, with a problem added,
/// when they fail.
class FileOperations final
{
public:
    explicit FileOperations(FileSystem &system)
        : m_system(system)
    {
    }

    [[nodiscard]] std::vector<Problem> &problems() { return m_problems; }
    [[nodiscard]] FileSystem &system() { return m_system; }

    void add(const std::vector<Problem> &problems);
    /// Adds a problem; always false.
    bool fail(const QString &path, const QString &text);

    /// A file with that content and the permissions of another, on the disk when this returns. Problems name
    /// the owner first, the file that people know and that it is written for.
    bool writeFile(const QString &owner, const QString &path, const QByteArray &bytes,
                   const FileStatus &like);
    /// The same, but on the disk only after syncWritten().
    bool writeLater(const QString &owner, const QString &path, const QByteArray &bytes,
                    const FileStatus &like);
    /// Brings to the disk what writeLater() wrote: all at once, because waiting for each file alone takes
    /// long.
    bool syncWritten();
    /// Gives the file a further name, or writes a copy of its content where it can have only one.
    bool linkOrCopy(const QString &owner, const QString &file, const QString &name, const QByteArray &content,
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
    };

    bool write(const QString &owner, const QString &path, const QByteArray &bytes, const FileStatus &like,
               Sync sync);
    bool writeNewFile(const QString &path, const QByteArray &bytes, const FileStatus &like, Sync sync);
    bool syncFile(const QString &path);
    /// Rewrites the problems from that one on so that they name the file that people know first.
    void putOwnerFirst(const QString &owner, std::size_t firstProblem);
    bool succeeded(int failure, const QString &path, const QString &what);
    bool writeContent(int file, const QString &path, const QByteArray &bytes, const FileStatus &like,
                      Sync sync);

    FileSystem &m_system;
    std::vector<Problem> m_problems;
    std::vector<Written> m_unsynced;
};

} // namespace designs
