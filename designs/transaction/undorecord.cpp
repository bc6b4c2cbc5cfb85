// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/undorecord.h"

#include <QJsonDocument>

namespace designs {

QByteArray UndoRecord::toJson(const DesignPaths &paths) const
{
    return QJsonDocument(QJsonObject{{QStringLiteral("version"), 1},
                                     {QStringLiteral("files"), designs::toJson(files, paths)}})
        .toJson();
}

std::optional<UndoRecord> UndoRecord::read(const DesignPaths &paths, QString *why)
{
    const std::optional<QJsonObject> object = readRecord(paths.record(), why);
    if (!object) {
        return std::nullopt;
    }
    auto files = replacementsFrom(object->value(QLatin1String("files")).toArray(), paths);
    if (!files) {
        *why = QStringLiteral("it is damaged or names files that are none of this design");
        return std::nullopt;
    }
    return UndoRecord{std::move(*files)};
}

} // namespace designs
