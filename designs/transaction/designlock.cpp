// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/designlock.h"

#include <cerrno>

namespace designs {

namespace {

/// With FileSystem::pause() between them, some ten seconds.
constexpr int attempts = 500;

} // namespace

DesignLock::DesignLock(FileWork &work, const DesignPaths &paths)
    : m_work(work)
    , m_design(paths.design())
    , m_path(paths.lock())
{
}

DesignLock::~DesignLock()
{
    if (m_file >= 0) {
        // A file that stays locks nothing; whoever locks next removes it.
        static_cast<void>(m_work.system().unlock(m_path, m_file));
    }
}

bool DesignLock::take()
{
    int failure = m_work.system().lock(m_path, &m_file);
    for (int attempt = 1; failure == EWOULDBLOCK && attempt < attempts; ++attempt) {
        m_work.system().pause();
        failure = m_work.system().lock(m_path, &m_file);
    }
    if (failure == EWOULDBLOCK) {
        return m_work.fail(m_path, QStringLiteral("another program is just writing this design: try again "
                                                  "when it has finished"));
    }
    return failure == 0 ||
           m_work.fail(m_design, QStringLiteral("cannot be written: ") + m_path +
                                     QStringLiteral(" cannot be created: ") + qt_error_string(failure));
}

} // namespace designs
