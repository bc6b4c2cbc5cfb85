// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/designguard.h"

#include "files/regularfile.h"
#include "host/propdefs/propdefsfile.h"
#include "standalone/designsession.h"
#include "standalone/environment.h"
#include "standalone/fieldtables.h"
#include "standalone/loadeddesign.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>

namespace {

/// Whether there is a file of KiCad's of that name: a board or project beside the sheets is read as well.
bool isKicadFile(const QString &path)
{
    const QFileInfo file(path);
    const QFileInfo target(file.canonicalFilePath());
    const QLatin1String suffix("kicad_");
    return file.exists() && (file.suffix().startsWith(suffix) || target.suffix().startsWith(suffix));
}

} // namespace

bool belongsToDesign(const DesignSession &session, const QString &path)
{
    if (!session.design()) {
        return false;
    }
    const StandaloneDocument &document = session.document();
    QStringList files = session.files();
    files << document.notesFile() << document.projectNotesFile() << propdefsfile() << userFieldTable()
          << fieldTableBeside(session.design()->design().info().file);
    const QString meant = meantFile(path);
    return isKicadFile(path) || std::any_of(files.cbegin(), files.cend(), [&meant](const QString &file) {
               return !file.isEmpty() && meantFile(file) == meant;
           });
}
