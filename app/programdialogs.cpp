// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/programdialogs.h"

#include "app/framewindow.h"
#include "app/recentfiles.h"
#include "host/framework/hostui.h"
#include "standalone/designwriter.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Workbench)
};

} // namespace

QString dialogs::chosenDesign(FrameWindow *window)
{
    return HostUi::current().openFileName(
        window, Texts::tr("Open Design"), RecentFiles::lastFolder(),
        Texts::tr("Designs (*.kicad_sch *.kicad_pro *.csv);;All files (*)"));
}

bool dialogs::isWantedTwice(FrameWindow *window, const QString &file)
{
    return HostUi::current().question(
        window, Texts::tr("Open in Another Window"),
        Texts::tr("The design \"%1\" is open in another window. Open it here as "
                  "well?\n\nEach window has pending edits "
                  "of its own, and follows what the other one writes.")
            .arg(QFileInfo(file).fileName()),
        false);
}

bool dialogs::isUndoWanted(FrameWindow *window, const QString &file)
{
    return HostUi::current().question(
        window, Texts::tr("Undo Last Write"),
        Texts::tr("Take back what was written last into the design \"%1\"?").arg(QFileInfo(file).fileName()),
        false);
}

void dialogs::tellUndone(FrameWindow *window, const UndoResult &undone)
{
    QStringList names;
    for (const QString &file : undone.files) {
        names << QFileInfo(file).fileName();
    }
    if (!names.isEmpty()) {
        window->setstatustext(Texts::tr("Restored: ") + names.join(QStringLiteral(", ")));
    }
    const QStringList messages = undone.problems + undone.notices;
    if (!messages.isEmpty()) {
        HostUi::current().warning(window, Texts::tr("Undo Last Write"), messages.join(u'\n'));
    }
}

void dialogs::showAbout(FrameWindow *window)
{
    HostUi::current().information(
        window, Texts::tr("About Bill of Materials Viewer"),
        Texts::tr("Bill of Materials Viewer %1").arg(QCoreApplication::applicationVersion()) +
            QStringLiteral("\n\n") +
            Texts::tr(
                "Shows, edits and writes bills of materials of KiCad schematics and projects (versions 6 to "
                "10) and "
                "of part lists (CSV).") +
            QStringLiteral("\n\n") + Texts::tr("License: MIT. Copyright 2026 The BOM developers.") + u'\n' +
            Texts::tr("Uses Qt %1.").arg(QString::fromLatin1(qVersion())));
}
