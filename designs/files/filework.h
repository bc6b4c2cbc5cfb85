// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/files/filesystem.h"
#include "designs/problem.h"

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
    bool makeFile(const QString &path, const QByteArray &bytes, const FileStatus &like);
    bool did(int failure, const QString &path, const QString &what);
    bool fill(int file, const QString &path, const QByteArray &bytes, const FileStatus &like);

    FileSystem &m_system;
    std::vector<Problem> m_problems;
};

} // namespace designs
