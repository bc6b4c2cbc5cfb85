// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/formats/designreader.h"

#include "designs/csv/edit/editablepartlist.h"
#include "designs/kicad/edit/editablekicaddesign.h"
#include "designs/texts.h"
#include "files/regularfile.h"

#include <QFileInfo>

namespace designs {

namespace {

/// What stands at the beginning of a file, to tell files apart that carry the wrong name.
QByteArray beginning(const QString &path)
{
    QString reason;
    return contentOfRegularFile(path, 64, &reason).value_or(QByteArray()).trimmed();
}

bool isKicad(const QString &suffix, const QByteArray &start)
{
    return suffix == QLatin1String("kicad_sch") || suffix == QLatin1String("kicad_pro") ||
           start.startsWith("(kicad_sch");
}

/// Why a file that people may take for a design is none, empty where nothing is known against it.
QString refusal(const QFileInfo &info, const QByteArray &start)
{
    if (!info.exists()) {
        return FileTexts::tr("there is no such file");
    }
    if (info.isDir()) {
        return FileTexts::tr("this is a folder; give the .kicad_sch, .kicad_pro or .csv file in it");
    }
    if (!info.isFile()) {
        return FileTexts::tr("this is a device or pipe, not a file");
    }
    if (start.startsWith("EESchema Schematic")) {
        return FileTexts::tr(
            "this is a schematic of KiCad 5 or earlier; open it in KiCad 6 or later and save it");
    }
    if (start.startsWith("(kicad_pcb")) {
        return FileTexts::tr("this is a board; give the schematic or the project");
    }
    return {};
}

} // namespace

ReadResult readDesign(const QString &path, const ReadOptions &options)
{
    const QFileInfo info(path);
    const QByteArray start = beginning(path);
    if (const QString text = refusal(info, start); !text.isEmpty()) {
        return {nullptr, {path, 0, text}};
    }
    return isKicad(info.suffix().toLower(), start) ? kicad::readKicadDesign(path, options)
                                                   : readEditablePartList(path, options);
}

} // namespace designs
