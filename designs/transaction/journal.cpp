// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/journal.h"

#include <QJsonDocument>
#include <QRegularExpression>

#include <array>

namespace designs {

namespace {

const std::array<QString, 3> &stateNames()
{
    static const std::array<QString, 3> names = {QStringLiteral("preparing"), QStringLiteral("committed"),
                                                 QStringLiteral("taking back")};
    return names;
}

std::optional<Journal::State> stateOf(const QString &name)
{
    for (std::size_t state = 0; state < stateNames().size(); ++state) {
        if (stateNames()[state] == name) {
            return Journal::State(state);
        }
    }
    return std::nullopt;
}

} // namespace

void Journal::add(const DesignPaths &paths, RecordedReplacement change)
{
    const QString folder = folderOf(change.target);
    const QString name = QStringLiteral("/.bom-") + token + u'-' + QString::number(entries.size());
    entries.push_back({std::move(change), folder + name + QStringLiteral(".new"),
                       (keepsBackups ? paths.backupFolder() : folder) + name + QStringLiteral(".old")});
}

QString Journal::recordName(const DesignPaths &paths) const
{
    return keepsBackups ? paths.backupFolder() + QStringLiteral("/.bom-") + token + QStringLiteral(".undo")
                        : QString();
}

QByteArray Journal::toJson(const DesignPaths &paths) const
{
    const std::vector<RecordedReplacement> changes(entries.begin(), entries.end());
    return QJsonDocument(QJsonObject{{QStringLiteral("version"), 1},
                                     {QStringLiteral("state"), stateNames()[std::size_t(state)]},
                                     {QStringLiteral("token"), token},
                                     {QStringLiteral("backups"), keepsBackups},
                                     {QStringLiteral("makesFolder"), makesBackupFolder},
                                     {QStringLiteral("files"), designs::toJson(changes, paths)}})
        .toJson();
}

std::optional<Journal> Journal::read(const DesignPaths &paths, QString *why)
{
    static const QRegularExpression tokenForm(QStringLiteral(R"(\A[0-9a-f]{16}\z)"));
    const std::optional<QJsonObject> object = readRecord(paths.journal(), why);
    if (!object) {
        return std::nullopt;
    }
    const std::optional<State> state = stateOf(object->value(QLatin1String("state")).toString());
    const auto changes = replacementsFrom(object->value(QLatin1String("files")).toArray(), paths);
    Journal journal;
    journal.token = object->value(QLatin1String("token")).toString();
    if (!state || !changes || !tokenForm.match(journal.token).hasMatch()) {
        *why = QStringLiteral("it is damaged or names files that are none of this design");
        return std::nullopt;
    }
    journal.state = *state;
    journal.keepsBackups = object->value(QLatin1String("backups")).toBool();
    journal.makesBackupFolder = object->value(QLatin1String("makesFolder")).toBool();
    journal.newRecord = journal.recordName(paths);
    for (const RecordedReplacement &change : *changes) {
        journal.add(paths, change);
    }
    return journal;
}

} // namespace designs
