// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/designnotes.h"

#include "core/designinfo.h"
#include "host/framework/applndocument.h"

#include <QCoreApplication>

namespace {

constexpr char notesAttachment[] = "BOMNOTES.TXT";

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(DesignNotes)
};

NotesResult refused(const QString &loaded)
{
    return {NotesResult::State::Refused, loaded,
            Texts::tr("The notes were changed by another program after they were loaded")};
}

} // namespace

QString designNotes()
{
    const APPLNDOCUMENT *document = currentDesign();
    return document ? document->readattachment(notesAttachment) : QString();
}

NotesResult setDesignNotes(const QString &loaded, const QString &text, const NotesQuestion &ask)
{
    using State = NotesResult::State;
    QString expected = loaded;
    while (APPLNDOCUMENT *document = currentDesign()) {
        const ATTACHMENTWRITE written = document->writeattachment(notesAttachment, expected, text);
        if (written == ATTACHMENTWRITE::Failed) {
            return {State::Failed, loaded, document->attachmenterror()};
        }
        const QString theirs = document->readattachment(notesAttachment);
        if (written == ATTACHMENTWRITE::Written || theirs == text) {
            return {State::Written, text, {}};
        }
        switch (ask ? ask({loaded, text, theirs}) : NotesChoice::Cancel) {
        case NotesChoice::KeepMine:
            expected = theirs;
            break;
        case NotesChoice::TakeTheirs:
            return {State::TakenOver, theirs, {}};
        case NotesChoice::Cancel:
            return refused(loaded);
        }
    }
    return {State::Failed, loaded, Texts::tr("No design is open")};
}
