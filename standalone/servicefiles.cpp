// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/servicefiles.h"

#include "files/regularfile.h"
#include "standalone/environment.h"
#include "standalone/texts.h"

#include <QDir>
#include <QFileInfo>

// A static library's resources are dropped by the linker unless something refers to them. The macro declares
// a function, which may not happen inside a namespace.
static void initResources()
{
    Q_INIT_RESOURCE(services);
}

namespace {

/// More than any description that people write; keeps a wrong file from filling the memory.
constexpr qint64 largestFile = 1024 * 1024;

/// The files of both folders, the user's first.
QFileInfoList files()
{
    initResources();
    QFileInfoList all;
    for (const QString &folder : {userServicesFolder(), QStringLiteral(":/bom/services")}) {
        all += QDir(folder).entryInfoList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name);
    }
    return all;
}

} // namespace

QStringList serviceNames()
{
    QStringList names;
    for (const QFileInfo &file : files()) {
        const QString name = file.completeBaseName();
        if (!names.contains(name, Qt::CaseInsensitive)) {
            names << name;
        }
    }
    names.sort(Qt::CaseInsensitive);
    return names;
}

QString serviceFile(const QString &name)
{
    for (const QFileInfo &file : files()) {
        if (file.completeBaseName().compare(name, Qt::CaseInsensitive) == 0) {
            return file.filePath();
        }
    }
    return {};
}

std::optional<QByteArray> serviceText(const QString &path, QString *problem)
{
    QString reason;
    auto text = contentOfRegularFile(path, largestFile, &reason);
    if (text && text->size() > largestFile) {
        text.reset();
        reason = TableTexts::tr("is larger than 1 MB, which no description of a service is");
    }
    if (!text) {
        *problem = path + QStringLiteral(": ") + reason;
    }
    return text;
}
