// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/designfiles.h"

#include "standalone/designsession.h"
#include "standalone/loadeddesign.h"

void DesignFiles::watch(DesignSession *session)
{
    m_board.setFile(boardFileOf(*session->design()));
    m_project.setFile(projectFileOf(*session->design()));
    QStringList files = session->files();
    for (const QString &file : {m_board.file(), m_project.file(), session->document().notesFile()}) {
        if (!file.isEmpty()) {
            files << file;
        }
    }
    m_watcher.setFiles(files);
    m_isBehind = false;
}

void DesignFiles::forget()
{
    m_watcher.setFiles({});
    m_board.setFile({});
    m_project.setFile({});
    m_isBehind = false;
}

StaleFiles DesignFiles::takeStale(DesignSession *session)
{
    if (m_project.hasChanged() || m_isBehind || !session->changedFiles().isEmpty()) {
        return StaleFiles::Design;
    }
    if (m_board.hasChanged()) {
        return StaleFiles::Board;
    }
    return session->document().hasOtherNotes() ? StaleFiles::Notes : StaleFiles::None;
}
