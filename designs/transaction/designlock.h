// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/transaction/designpaths.h"
#include "designs/transaction/fileoperations.h"

#include <QString>

#include <optional>

namespace designs {

/// The right to write the files of one design, for one process at a time. It ends with the process.
class DesignLock final
{
public:
    DesignLock(FileOperations &files, const DesignPaths &paths);
    DesignLock(const DesignLock &) = delete;
    DesignLock &operator=(const DesignLock &) = delete;
    ~DesignLock();

    /// Waits some seconds for another process that writes. False, with a problem, when it cannot be had.
    [[nodiscard]] bool take();

private:
    FileOperations &m_files;
    QString m_design;
    QString m_path;
    int m_file = -1;
};

/// Who has a file open in KiCad, by the lock file beside it: "is open in KiCad (anna on host)". Nothing when
/// nobody has.
[[nodiscard]] std::optional<QString> openElsewhere(const QString &path);

} // namespace designs
