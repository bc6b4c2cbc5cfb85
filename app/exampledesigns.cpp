// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/exampledesigns.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(ExampleDesigns)
};

/// What a folder's design is opened by.
QString designIn(const QDir &folder)
{
    for (const char *pattern : {"*.kicad_pro", "*.kicad_sch", "*.csv"}) {
        const QStringList files = folder.entryList({QLatin1String(pattern)}, QDir::Files, QDir::Name);
        if (!files.isEmpty()) {
            return folder.absoluteFilePath(files.constFirst());
        }
    }
    return {};
}

/// The files themselves, not what stands in folders below: expected reports for instance.
QString copyFiles(const QDir &from, const QDir &to)
{
    if (!to.mkpath(QStringLiteral("."))) {
        return to.path();
    }
    for (const QFileInfo &file : from.entryInfoList(QDir::Files)) {
        const QString target = to.filePath(file.fileName());
        QFile source(file.filePath());
        if (!QFile::exists(target) && !source.copy(target)) {
            return target + QStringLiteral(": ") + source.errorString();
        }
        // What is installed is read-only.
        QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
    }
    return {};
}

} // namespace

QList<ExampleDesign> exampleDesigns()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const char *place : {"../share/bom/examples", "../share/doc/bom/examples", "../../../examples"}) {
        if (const auto found = exampleDesignsIn(programs.filePath(QLatin1String(place))); !found.isEmpty()) {
            return found;
        }
    }
    return {};
}

QList<ExampleDesign> exampleDesignsIn(const QString &folder)
{
    QList<ExampleDesign> examples;
    for (const QFileInfo &inside :
         QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        if (const QString file = designIn(QDir(inside.filePath())); !file.isEmpty()) {
            examples.append({inside.fileName(), QDir::cleanPath(file)});
        }
    }
    return examples;
}

ExampleCopy copyOfExample(const ExampleDesign &example)
{
    const QFileInfo original(example.file);
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QDir copy(documents.filePath(QStringLiteral("BOM Examples/") + example.name));
    ExampleCopy made{
        copy.filePath(original.fileName()), {}, QFileInfo::exists(copy.filePath(original.fileName()))};
    if (!made.isOld) {
        if (const QString problem = copyFiles(original.absoluteDir(), copy); !problem.isEmpty()) {
            return {
                {}, Texts::tr("The example cannot be copied into your documents: %1").arg(problem), false};
        }
    }
    return made;
}
