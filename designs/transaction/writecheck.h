// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "designs/transaction/filetransaction.h"

#include <optional>
#include <span>
#include <vector>

namespace designs {

/// The first step of a transaction: whether files can be replaced. Touches nothing.
class WriteCheck final
{
public:
    WriteCheck(FileOperations &files, const DesignPaths &paths)
        : m_files(files)
        , m_paths(paths)
    {
    }

    /// The files as they are to be replaced, links followed; they refer to the contents in `files`. Nothing
    /// when one of them cannot be replaced; the problems of the file operations say why.
    [[nodiscard]] std::optional<std::vector<CheckedReplacement>> run(std::span<const FileReplacement> files,
                                                                     bool keepsBackups);

    /// False, with a problem, when one of them, or the design, was opened in KiCad meanwhile.
    [[nodiscard]] bool areStillClosed(std::span<const CheckedReplacement> files);

private:
    bool checkClosed(const QString &path, const QString &target);
    bool checkDesignClosed(std::span<const CheckedReplacement> checked);
    bool checkFiles(std::span<const FileReplacement> files, bool keepsBackups);
    bool checkFile(const CheckedReplacement &file, bool isNamedBefore, bool keepsBackups);
    bool checkKind(const QString &path, const QString &target);
    bool checkWritable(const QString &path, const QString &target);
    bool checkBackup(const QString &target);
    bool checkFolders(bool keepsBackups);

    FileOperations &m_files;
    const DesignPaths &m_paths;
    std::vector<CheckedReplacement> m_checked;
};

} // namespace designs
