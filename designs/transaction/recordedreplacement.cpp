// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/recordedreplacement.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace designs {

namespace {

constexpr qint64 longestRecord = qint64(8) * 1024 * 1024;

/// Opening a pipe would wait for its other end.
bool isPlainFile(const QString &path)
{
    return QFileInfo(path).isFile() && !QFileInfo(path).isSymLink();
}

} // namespace

QJsonArray toJson(const std::vector<RecordedReplacement> &changes, const DesignPaths &paths)
{
    QJsonArray array;
    for (const RecordedReplacement &change : changes) {
        array << QJsonObject{{QStringLiteral("file"), paths.relative(change.target)},
                             {QStringLiteral("before"), change.before.toString()},
                             {QStringLiteral("after"), change.after.toString()}};
    }
    return array;
}

std::optional<std::vector<RecordedReplacement>> replacementsFrom(const QJsonArray &array,
                                                                 const DesignPaths &paths)
{
    std::vector<RecordedReplacement> changes;
    for (const QJsonValue &value : array) {
        const QJsonObject object = value.toObject();
        const QString target = paths.resolved(object.value(QLatin1String("file")).toString());
        const auto before = FileFingerprint::fromString(object.value(QLatin1String("before")).toString());
        const auto after = FileFingerprint::fromString(object.value(QLatin1String("after")).toString());
        if (target.isEmpty() || !paths.mayHold(target) || !before || !after) {
            return std::nullopt;
        }
        changes.push_back({target, *before, *after});
    }
    return changes.empty() ? std::nullopt : std::optional(std::move(changes));
}

std::optional<FileFingerprint> fingerprintOfPlainFile(const QString &path)
{
    return isPlainFile(path) ? fingerprintOfFile(path) : std::nullopt;
}

std::optional<QByteArray> contentOfPlainFile(const QString &path, const FileFingerprint &expected)
{
    QFile file(path);
    // The size first: what is not the expected file may be of any.
    if (!isPlainFile(path) || quint64(file.size()) != expected.size || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    QByteArray bytes = file.readAll();
    const bool same = fingerprintOf({bytes.constData(), std::size_t(bytes.size())}) == expected;
    return same ? std::optional(std::move(bytes)) : std::nullopt;
}

std::optional<QJsonObject> readRecord(const QString &path, QString *why)
{
    QFile file(path);
    if (!isPlainFile(path)) {
        *why = QStringLiteral("it is no ordinary file");
        return std::nullopt;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        *why = QStringLiteral("it cannot be read: ") + file.errorString();
        return std::nullopt;
    }
    const QByteArray bytes = file.read(longestRecord + 1);
    if (bytes.size() > longestRecord) {
        *why = QStringLiteral("it is too large");
        return std::nullopt;
    }
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    if (object.value(QLatin1String("version")).toInt() != 1) {
        *why = QStringLiteral("it is damaged or of another version");
        return std::nullopt;
    }
    return object;
}

} // namespace designs
