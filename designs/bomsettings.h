// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace designs {

/// How the editor that made a design lists its parts, by the name that the user gave it.
struct BomSettings
{
    struct Field
    {
        /// A property, or a pseudo-field such as ${QUANTITY}.
        QString name;
        /// Its heading; empty where it has none of its own.
        QString label;
        bool isShown = false;

        bool operator==(const Field &) const = default;
    };

    /// Empty for settings that are no preset.
    QString name;
    /// In the order of the columns.
    QList<Field> fields;
    /// Only parts whose references match are listed there; empty for all.
    QString filter;

    bool operator==(const BomSettings &) const = default;
};

/// What a project says about its bill of materials.
struct ProjectBom
{
    /// What the editor showed last; without fields where the project says nothing.
    BomSettings current;
    /// Those that the user named.
    QList<BomSettings> presets;
    /// Why settings that are there cannot be read, one sentence each with the file.
    QStringList problems;

    bool operator==(const ProjectBom &) const = default;
};

} // namespace designs
