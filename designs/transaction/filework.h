// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/problem.h"
#include "designs/transaction/filesystem.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace designs {

/// Operations on files that keep account of what went wrong.
class FileWork final
{
public:
    explicit FileWork(FileSystem &system)
        : m_system(system)
    {
    }

    [[nodiscard]] std::vector<Problem> &problems() { return m_problems; }
    [[nodiscard]] FileSystem &system() { return m_system; }

    /// Adds a problem; always false.
    bool fail(const QString &path, const QString &text);

    /// A file with that content and the permissions of another, on the disk when this returns. Problems name
    /// the owner first, the file that people know and that it is written for.
    bool writeFile(const QString &owner, const QString &path, const QByteArray &bytes,
                   const FileStatus &like);
    /// The same, but on the disk only after syncWritten().
    bool writeLater(const QString &owner, const QString &path, const QByteArray &bytes,
                    const FileStatus &like);
    /// Brings to the disk what was written for later, all at once.
    bool syncWritten();
    /// The file under a further name, or a copy of its content where it can have but one.
    bool keep(const QString &owner, const QString &file, const QString &name, const QByteArray &content,
              const FileStatus &like);
    bool rename(const QString &from, const QString &to);
    bool makeFolder(const QString &path);
    /// Makes the changes in the folders of these files last.
    bool syncFoldersOf(QStringList paths);
    /// No failure when it is missing.
    bool removeIfThere(const QString &path);
    bool removeFolderIfEmpty(const QString &path);

    /// False, with a problem added, when it cannot be told.
    bool look(const QString &path, FileStatus *status);
    /// Of kind Other, with a problem added, when it cannot be told.
    [[nodiscard]] FileStatus status(const QString &path);
    /// True also when it cannot be told.
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

    bool make(const QString &owner, const QString &path, const QByteArray &bytes, const FileStatus &like,
              Sync sync);
    bool makeFile(const QString &path, const QByteArray &bytes, const FileStatus &like, Sync sync);
    bool syncFile(const QString &path);
    /// Tells the problems from that one on of the file that the user knows.
    void tellOwner(const QString &owner, std::size_t firstProblem);
    bool did(int failure, const QString &path, const QString &what);
    bool fill(int file, const QString &path, const QByteArray &bytes, const FileStatus &like, Sync sync);

    FileSystem &m_system;
    std::vector<Problem> m_problems;
    std::vector<Written> m_unsynced;
};

} // namespace designs
