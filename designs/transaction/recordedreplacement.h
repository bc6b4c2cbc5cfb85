// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/filefingerprint.h"
#include "designs/transaction/designpaths.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>

#include <optional>
#include <vector>

namespace designs {

/// A file and its content before and after a write, as journal and undo record name it.
struct RecordedReplacement
{
    QString target;
    FileFingerprint before;
    FileFingerprint after;
};

[[nodiscard]] QJsonArray toJson(const std::vector<RecordedReplacement> &changes, const DesignPaths &paths);

/// Nothing for what toJson() does not write, above all for files that are none of the design.
[[nodiscard]] std::optional<std::vector<RecordedReplacement>> replacementsFrom(const QJsonArray &array,
                                                                               const DesignPaths &paths);

/// Of a file that is no link, pipe or folder; nothing for those and what cannot be read.
[[nodiscard]] std::optional<FileFingerprint> fingerprintOfPlainFile(const QString &path);

/// The content of such a file, if it is the expected one.
[[nodiscard]] std::optional<QByteArray> contentOfPlainFile(const QString &path,
                                                           const FileFingerprint &expected);

/// A journal or record; nothing, with the reason in `why`, when it is no file, cannot be read or is far too
/// large.
[[nodiscard]] std::optional<QJsonObject> readRecord(const QString &path, QString *why);

} // namespace designs
