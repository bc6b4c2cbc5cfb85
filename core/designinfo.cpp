// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/designinfo.h"

#include "host/framework/applndocument.h"
#include "host/framework/applnprocess.h"
#include "host/framework/hosttext.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString withoutForbiddenCharacters(QString name)
{
    static const QString forbidden = QStringLiteral("\\/:*?\"<>|");
    name.removeIf([](QChar character) { return forbidden.contains(character); });
    return name;
}

QString outputFolder()
{
    const APPLNPROCESS *process = getapplnprocess();
    if (!process) {
        return QDir::currentPath();
    }
    const QString programs = process->getbinpath();
    const bool isStartedInPlace = QDir::isRelativePath(programs) || QDir(programs) == QDir::current();
    return isStartedInPlace ? process->getdatapath("BOM") : QDir::currentPath();
}

} // namespace

APPLNDOCUMENT *currentDesign()
{
    const APPLNPROCESS *process = getapplnprocess();
    return process ? process->currentdocument(DOCUMENT_KIND_DESIGN, nullptr) : nullptr;
}

QString designInfo(const char *key)
{
    const APPLNDOCUMENT *document = currentDesign();
    const QString value = document ? document->getinfo(key) : QString();
    return value == QLatin1String("<NONE>") ? QString() : value;
}

QString designTitle()
{
    const QString title = designInfo("TITLE");
    return title.isEmpty() ? QFileInfo(designInfo("FILENAME")).completeBaseName() : title;
}

QString designVariant()
{
    const APPLNDOCUMENT *document = currentDesign();
    if (!document || document->kindcode() == 'b') {
        return {};
    }
    return fromHostText(document->getproperty("VARIANT"));
}

QString designOutputPath(const QString &extension)
{
    QString title = designTitle();
    if (title.isEmpty()) {
        title = QStringLiteral("unknown");
    }
    const QString name = QStringLiteral("Bill Of Materials ") + withoutForbiddenCharacters(title);
    const QDir folder(outputFolder());
    if (!folder.exists()) {
        folder.mkpath(QStringLiteral("."));
    }
    return QDir::cleanPath(folder.absoluteFilePath(name.trimmed() + extension));
}
