// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/transaction/designpaths.h"
#include "designs/transaction/fileoperations.h"

#include <QString>

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
    /// Whether take() failed because another process writes.
    [[nodiscard]] bool isTakenElsewhere() const { return m_isTakenElsewhere; }

private:
    FileOperations &m_files;
    QString m_design;
    QString m_path;
    int m_file = -1;
    bool m_isTakenElsewhere = false;
};

} // namespace designs
