// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/legacyscripts.h"

#ifdef Q_OS_WIN
#include <QDir>
#endif
#include <QMap>
#include <QSettings>
#include <QVersionNumber>

#include <algorithm>

namespace {

/// The subgroup of the current group that stands for the highest version, empty without any.
QString highestVersion(const QSettings &settings)
{
    const QStringList groups = settings.childGroups();
    const auto isLower = [](const QString &left, const QString &right) {
        const auto leftVersion = QVersionNumber::fromString(left);
        const auto rightVersion = QVersionNumber::fromString(right);
        return leftVersion == rightVersion ? left < right : leftVersion < rightVersion;
    };
    const auto highest = std::ranges::max_element(groups, isLower);
    return highest == groups.end() ? QString() : *highest;
}

} // namespace

QList<LegacyScript> legacyScriptsIn(QSettings &settings, QString *group)
{
    QStringList programs = settings.childGroups();
    programs.sort();
    QMap<QString, QString> scripts;
    for (const QString &program : std::as_const(programs)) {
        if (!program.startsWith(QLatin1String("ORIN"), Qt::CaseInsensitive)) {
            continue;
        }
        settings.beginGroup(program);
        const QString version = highestVersion(settings);
        settings.beginGroup(version + QStringLiteral("/BOM Scripts"));
        const QStringList names = settings.childKeys();
        if (!version.isEmpty() && !names.isEmpty()) {
            *group = settings.group();
            for (const QString &name : names) {
                // A registry value may be one text or a list of lines.
                scripts.insert(name, settings.value(name).toStringList().join(u'\n'));
            }
        }
        settings.endGroup();
        settings.endGroup();
    }
    QList<LegacyScript> list;
    for (auto it = scripts.cbegin(); it != scripts.cend(); ++it) {
        list.append({it.key(), it.value()});
    }
    return list;
}

#ifdef Q_OS_WIN
QList<LegacyScript> registryLegacyScripts(QString *path)
{
    const QString root = QStringLiteral("HKEY_CURRENT_USER\\Software\\Velmora");
    QSettings settings(root, QSettings::NativeFormat);
    QString group;
    const QList<LegacyScript> scripts = legacyScriptsIn(settings, &group);
    *path = QDir::toNativeSeparators(group.isEmpty() ? root : root + u'/' + group);
    return scripts;
}
#endif
