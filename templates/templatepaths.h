// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Sets the folders that hold template files, the primary one first: new files go there. There are none until
/// they are set.
void setTemplatePaths(const QStringList &paths);

/// The folders that a host names: its own list, separated by ";", its data folder for templates, and the
/// shipped ones. The first of the host's that exists or can be created stands in front; it is created.
[[nodiscard]] QStringList hostTemplatePaths(const QString &pathList, const QString &dataFolder);

/// The folder of the templates that come with the system. It is a resource: nothing can be written there.
[[nodiscard]] QString shippedTemplateFolder();

/// Whether the file is one of those.
[[nodiscard]] bool isShippedTemplateFile(const QString &path);

/// The style sheet that a new template has and "reset" brings back; empty when the resource is missing.
[[nodiscard]] QString defaultStyleSheet();

struct TemplateFile
{
    QString name;
    QString path;

    bool operator==(const TemplateFile &) const = default;
};

/// The template files of the folders in their order; inside a folder those whose suffix is in lower case
/// first, then by name. Of names that differ only in letter case the first stands for all.
[[nodiscard]] QList<TemplateFile> templateFiles();

/// The absolute path of the first template folder, of the current folder when none is set.
[[nodiscard]] QString primaryTemplateFolder();

/// The file in which templates were kept before they had files of their own. It need not exist.
[[nodiscard]] QString legacyTemplatesFile();

/// Whether a template of this name can have a file: false for an empty name, a leading dot, separators,
/// characters that file names cannot hold, and device names such as "CON", which are refused on every system
/// because templates travel.
[[nodiscard]] bool isTemplateFileName(const QString &name);

/// Absolute path of the file of a template in the primary folder; empty when the name cannot be a file name.
[[nodiscard]] QString templateFilePath(const QString &name);
