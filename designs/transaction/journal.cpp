// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/journal.h"

#include "designs/texts.h"
#include "files/regularfile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace designs {

namespace {

constexpr qint64 longestRecord = qint64(8) * 1024 * 1024;

/// Links lead to files that are none of the design.
bool isPlainFile(const QString &path)
{
    return QFileInfo(path).isFile() && !QFileInfo(path).isSymLink();
}

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

QJsonArray replacementsToJson(const std::vector<RecordedReplacement> &replacements, const DesignPaths &paths)
{
    QJsonArray array;
    for (const RecordedReplacement &replacement : replacements) {
        array << QJsonObject{{QStringLiteral("file"), paths.relative(replacement.target)},
                             {QStringLiteral("before"), replacement.before.toString()},
                             {QStringLiteral("after"), replacement.after.toString()}};
    }
    return array;
}

/// Nothing for what replacementsToJson() does not write, above all for files that are none of the design.
std::optional<std::vector<RecordedReplacement>> replacementsFrom(const QJsonArray &array,
                                                                 const DesignPaths &paths)
{
    std::vector<RecordedReplacement> replacements;
    for (const QJsonValue &value : array) {
        const QJsonObject object = value.toObject();
        const QString target = paths.resolved(object.value(QLatin1String("file")).toString());
        const auto before = FileFingerprint::fromString(object.value(QLatin1String("before")).toString());
        const auto after = FileFingerprint::fromString(object.value(QLatin1String("after")).toString());
        const bool isNamed =
            std::ranges::any_of(replacements, [&](const auto &other) { return other.target == target; });
        if (target.isEmpty() || !paths.isMember(target) || isNamed || !before || !after) {
            return std::nullopt;
        }
        replacements.push_back({target, *before, *after});
    }
    return replacements.empty() ? std::nullopt : std::optional(std::move(replacements));
}

/// The object of a journal or record; nothing, with the reason in `why`, when it is no file, cannot be read
/// or is far too large.
std::optional<QJsonObject> readRecord(const DesignPaths &paths, const QString &path, QString *why)
{
    // Backups would be put into another folder, over files of the same names.
    if (QFileInfo(paths.backupFolder()).isSymLink()) {
        *why = WriteTexts::tr("%1 is a symbolic link").arg(paths.backupFolder());
        return std::nullopt;
    }
    if (!isPlainFile(path)) {
        *why = WriteTexts::tr("it is no ordinary file");
        return std::nullopt;
    }
    QString reason;
    const std::optional<QByteArray> bytes = contentOfRegularFile(path, longestRecord, &reason);
    if (!bytes) {
        *why = WriteTexts::tr("it cannot be read: %1").arg(reason);
        return std::nullopt;
    }
    if (bytes->size() > longestRecord) {
        *why = WriteTexts::tr("it is too large");
        return std::nullopt;
    }
    const QJsonObject object = QJsonDocument::fromJson(*bytes).object();
    if (object.value(QLatin1String("version")).toInt() != 1) {
        *why = WriteTexts::tr("it is damaged or of another version");
        return std::nullopt;
    }
    return object;
}

} // namespace

void Journal::add(const DesignPaths &paths, RecordedReplacement replacement)
{
    const QString folder = folderOf(replacement.target);
    const QString name = QStringLiteral("/.bom-") + token + u'-' + QString::number(entries.size());
    entries.push_back({std::move(replacement), folder + name + QStringLiteral(".new"),
                       (keepsBackups ? paths.backupFolder() : folder) + name + QStringLiteral(".old")});
}

QString Journal::recordName(const DesignPaths &paths) const
{
    return keepsBackups ? paths.backupFolder() + QStringLiteral("/.bom-") + token + QStringLiteral(".undo")
                        : QString();
}

QByteArray Journal::toJson(const DesignPaths &paths) const
{
    const std::vector<RecordedReplacement> replacements(entries.begin(), entries.end());
    return QJsonDocument(QJsonObject{{QStringLiteral("version"), 1},
                                     {QStringLiteral("state"), stateNames()[std::size_t(state)]},
                                     {QStringLiteral("token"), token},
                                     {QStringLiteral("backups"), keepsBackups},
                                     {QStringLiteral("makesFolder"), makesBackupFolder},
                                     {QStringLiteral("files"), replacementsToJson(replacements, paths)}})
        .toJson();
}

std::optional<Journal> Journal::read(const DesignPaths &paths, QString *why)
{
    static const QRegularExpression tokenForm(QStringLiteral(R"(\A[0-9a-f]{16}\z)"));
    const std::optional<QJsonObject> object = readRecord(paths, paths.journal(), why);
    if (!object) {
        return std::nullopt;
    }
    const std::optional<State> state = stateOf(object->value(QLatin1String("state")).toString());
    const auto replacements = replacementsFrom(object->value(QLatin1String("files")).toArray(), paths);
    Journal journal;
    journal.token = object->value(QLatin1String("token")).toString();
    if (!state || !replacements || !tokenForm.match(journal.token).hasMatch()) {
        *why = WriteTexts::tr("it is damaged or names files that are none of this design");
        return std::nullopt;
    }
    journal.state = *state;
    journal.keepsBackups = object->value(QLatin1String("backups")).toBool();
    journal.makesBackupFolder = object->value(QLatin1String("makesFolder")).toBool();
    journal.newRecord = journal.recordName(paths);
    for (const RecordedReplacement &replacement : *replacements) {
        journal.add(paths, replacement);
    }
    return journal;
}

bool Journal::names(const DesignPaths &paths, const QSet<QString> &files)
{
    QString why;
    const std::optional<QJsonObject> object = readRecord(paths, paths.journal(), &why);
    const QJsonArray named = object ? object->value(QLatin1String("files")).toArray() : QJsonArray();
    return std::ranges::any_of(named, [&](const QJsonValue &value) {
        const QString file = value.toObject().value(QLatin1String("file")).toString();
        return files.contains(paths.resolved(file));
    });
}

QByteArray UndoRecord::toJson(const DesignPaths &paths) const
{
    return QJsonDocument(QJsonObject{{QStringLiteral("version"), 1},
                                     {QStringLiteral("files"), replacementsToJson(files, paths)}})
        .toJson();
}

std::optional<UndoRecord> UndoRecord::read(const DesignPaths &paths, QString *why)
{
    const std::optional<QJsonObject> object = readRecord(paths, paths.record(), why);
    if (!object) {
        return std::nullopt;
    }
    auto files = replacementsFrom(object->value(QLatin1String("files")).toArray(), paths);
    if (!files) {
        *why = WriteTexts::tr("it is damaged or names files that are none of this design");
        return std::nullopt;
    }
    return UndoRecord{std::move(*files)};
}

std::optional<FileFingerprint> fingerprintOfPlainFile(const QString &path)
{
    return isPlainFile(path) ? fingerprintOfFile(path) : std::nullopt;
}

std::optional<std::string> contentOfPlainFile(const QString &path, const FileFingerprint &expected)
{
    std::string content;
    return readPlainFile(path, expected, &content) ? std::optional(std::move(content)) : std::nullopt;
}

bool readPlainFile(const QString &path, const FileFingerprint &expected, std::string *content)
{
    QFile file(path);
    QString reason;
    // Compare sizes before reading: another file in this place may be too large to read.
    if (!isPlainFile(path) || !openRegularFile(&file, QIODevice::ReadOnly | QIODevice::Unbuffered, &reason) ||
        quint64(file.size()) != expected.size) {
        return false;
    }
    content->resize(expected.size);
    std::size_t size = 0;
    while (size < content->size()) {
        const qint64 got = file.read(content->data() + size, qint64(content->size() - size));
        if (got <= 0) {
            return false;
        }
        size += std::size_t(got);
    }
    return fingerprintOf(*content) == expected;
}

} // namespace designs
