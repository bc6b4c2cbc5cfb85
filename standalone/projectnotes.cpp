// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/projectnotes.h"

#include "standalone/notesfile.h"
#include "standalone/standalonedocument.h"

bool ProjectNotes::exist() const
{
    return !readNotesFile(m_document.projectNotesFile()).text.trimmed().isEmpty();
}

QString ProjectNotes::problem() const
{
    const QString path = m_document.projectNotesFile();
    const QString problem = readNotesFile(path).problem;
    return problem.isEmpty() ? QString() : path + QStringLiteral(": ") + problem;
}

void ProjectNotes::paint(QPainter &painter, int mode)
{
    const QString text = readNotesFile(m_document.projectNotesFile()).text;
    if (m_paint && mode == PAINT_MODE_APPEND && !text.trimmed().isEmpty()) {
        m_paint(painter, text);
    }
}
