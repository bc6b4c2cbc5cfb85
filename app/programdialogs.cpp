// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/programdialogs.h"

#include "app/framewindow.h"
#include "app/recentfiles.h"
#include "host/framework/hostui.h"
#include "standalone/designsession.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Workbench)
};

QStringList namesOf(const QStringList &files)
{
    QStringList names;
    for (const QString &file : files) {
        names << QFileInfo(file).fileName();
    }
    return names;
}

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

bool dialogs::isUndoWanted(FrameWindow *window, const QString &file, const designs::LastWrite &last)
{
    constexpr qsizetype mostNamed = 5;
    QString text =
        Texts::tr("Take back what was written last into the design \"%1\"?").arg(QFileInfo(file).fileName());
    if (!last.files.isEmpty()) {
        QStringList names = namesOf(last.files.first(std::min(mostNamed, last.files.size())));
        if (last.files.size() > mostNamed) {
            names << QStringLiteral("...");
        }
        text += QStringLiteral("\n\n") +
                Texts::tr("Written %1: %2")
                    .arg(HostUi::current().locale().toString(last.at, QLocale::ShortFormat),
                         names.join(QStringLiteral(", ")));
    }
    return HostUi::current().question(window, Texts::tr("Undo Last Write"), text, false);
}

void dialogs::tellUndone(FrameWindow *window, const UndoResult &undone)
{
    const QStringList names = namesOf(undone.files);
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
