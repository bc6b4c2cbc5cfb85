// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class QSettings;

/// A report described by the BOM scripts of earlier versions: lines `KEY=values`.
struct LegacyScript
{
    QString name;
    QString text;

    bool operator==(const LegacyScript &) const = default;
};

/// The most bytes that a file of scripts may have.
constexpr qint64 mostLegacyScriptBytes = 4 * 1024 * 1024;

/// The scripts of a text, in its order; of two with the same name the later one counts. A script that has no
/// end goes on to the next one or to the end of the text; `problems` takes one message "N: ..." for each, N
/// being the line of its name.
[[nodiscard]] QList<LegacyScript> legacyScripts(const QString &text, QStringList *problems = nullptr);

/// The scripts of a file in UTF-8 or, when it is none, Latin-1. Empty when there is no such file, when it
/// cannot be read, is no text or larger than mostLegacyScriptBytes, or has no script; `problems` says why, in
/// messages that begin with the path.
[[nodiscard]] QList<LegacyScript> readLegacyScripts(const QString &path, QStringList *problems = nullptr);

/// The script of a file that has this name, ignoring case where the exact one is missing; for an empty name
/// the only one. Nothing otherwise; `problems` says why.
[[nodiscard]] std::optional<LegacyScript> readLegacyScript(const QString &path, const QString &name,
                                                           QStringList *problems);

/// The scripts that earlier versions kept in their settings, of every program whose group begins with "ORIN";
/// of several versions the highest. `group` takes the last group that has any, and stays as it is without.
[[nodiscard]] QList<LegacyScript> legacyScriptsIn(QSettings &settings, QString *group);

#ifdef Q_OS_WIN
/// The scripts in the user's registry; `path` takes where they are, with native separators.
[[nodiscard]] QList<LegacyScript> registryLegacyScripts(QString *path);
#endif
