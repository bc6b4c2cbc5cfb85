// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/filewatcher.h"
#include "standalone/companionfiles.h"

class DesignSession;

/// What has to be read again.
enum class StaleFiles
{
    None,
    Design,
    Board,
    Notes
};

/// The files of the design that is open, watched for changes by other programs.
class DesignFiles final
{
public:
    [[nodiscard]] FileWatcher &watcher() { return m_watcher; }

    /// To be called when the session has read its design.
    void watch(DesignSession *session);
    void forget();

    /// What other programs have changed since watch(); a changed board is told once.
    [[nodiscard]] StaleFiles takeStale(DesignSession *session);
    /// The design that is shown is an old one, whatever the files look like, until the next watch().
    void setBehind(bool isBehind) { m_isBehind = isBehind; }

private:
    FileWatcher m_watcher;
    FileLook m_board;
    FileLook m_project;
    bool m_isBehind = false;
};
