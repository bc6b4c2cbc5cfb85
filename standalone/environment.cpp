// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/environment.h"

#include <QStandardPaths>

std::optional<QDateTime> sourceDateEpoch()
{
    bool isNumber = false;
    const qint64 seconds = qgetenv("SOURCE_DATE_EPOCH").toLongLong(&isNumber);
    if (!isNumber || seconds < 0) {
        return std::nullopt;
    }
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    return moment.isValid() ? std::optional(moment) : std::nullopt;
}

QString userDataFolder(const QString &application)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u'/' +
           application.toLower();
}

QString userTemplatesFolder()
{
    return userDataFolder(QStringLiteral("BOM")) + QStringLiteral("/templates");
}

QString userSettingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/bom/bom.ini");
}

QString userDefinitionsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/bom/PROPDEFS.INI");
}

QString userFieldTable()
{
    return userDataFolder(QStringLiteral("BOM")) + QStringLiteral("/bomfields.txt");
}

QString userServicesFolder()
{
    return userDataFolder(QStringLiteral("BOM")) + QStringLiteral("/services");
}
