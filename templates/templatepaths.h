// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// The folders that hold template files, the primary one first: new files go there. Empty until they are set.
[[nodiscard]] QStringList templatePaths();
void setTemplatePaths(const QStringList &paths);

/// The absolute path of the first template folder, of the current folder when none is set.
[[nodiscard]] QString primaryTemplateFolder();

/// Whether a template of this name can have a file: false for an empty name, a leading dot, separators,
/// characters that file names cannot hold, and device names such as "CON", which are refused on every system
/// because templates travel.
[[nodiscard]] bool isTemplateFileName(const QString &name);

/// Absolute path of the file of a template in the primary folder; empty when the name cannot be a file name.
[[nodiscard]] QString templateFilePath(const QString &name);
