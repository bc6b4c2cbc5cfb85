// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/designlock.h"
#include "designs/texts.h"

#include <cerrno>

namespace designs {

namespace {

/// With FileSystem::pause() between them, some ten seconds.
constexpr int attempts = 500;

} // namespace

DesignLock::DesignLock(FileOperations &files, const DesignPaths &paths)
    : m_files(files)
    , m_design(paths.design())
    , m_path(paths.lock())
{
}

DesignLock::~DesignLock()
{
    if (m_file >= 0) {
        // A file that stays locks nothing; whoever locks next removes it.
        static_cast<void>(m_files.system().unlock(m_path, m_file));
    }
}

bool DesignLock::take()
{
    int failure = m_files.system().lock(m_path, &m_file);
    for (int attempt = 1; failure == EWOULDBLOCK && attempt < attempts; ++attempt) {
        m_files.system().pause();
        failure = m_files.system().lock(m_path, &m_file);
    }
    m_isTakenElsewhere = failure == EWOULDBLOCK;
    if (m_isTakenElsewhere) {
        return m_files.fail(m_path, WriteTexts::tr("another program is just writing this design: try again "
                                                   "when it has finished"));
    }
    return failure == 0 ||
           m_files.fail(m_design, WriteTexts::tr("cannot be written: %1 cannot be created: %2")
                                      .arg(m_path, qt_error_string(failure)));
}

} // namespace designs
