// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "designs/transaction/filetransaction.h"

#include <span>
#include <vector>

namespace designs {

/// Looks whether files can be replaced.
class WriteCheck final
{
public:
    WriteCheck(FileWork &work, const DesignPaths &paths)
        : m_work(work)
        , m_paths(paths)
    {
    }

    /// False when one of them cannot; the work's problems tell why.
    bool run(std::span<const FileReplacement> files, bool keepsBackups);

    /// False when one of them, or the design, was opened in KiCad meanwhile.
    bool checkStillClosed();

    /// The files as they are to be replaced, links followed; of files that stay valid and unmoved.
    [[nodiscard]] const std::vector<Replacement> &replacements() const { return m_replacements; }

private:
    bool checkClosed(const QString &path, const QString &target);
    bool checkDesignClosed();
    bool checkFile(const FileReplacement &file, bool keepsBackups);
    bool checkKind(const FileReplacement &file, const QString &target);
    bool checkWritable(const QString &path, const QString &target);
    bool checkBackup(const QString &target);
    bool checkFolders(bool keepsBackups);

    FileWork &m_work;
    const DesignPaths &m_paths;
    std::vector<Replacement> m_replacements;
};

} // namespace designs
