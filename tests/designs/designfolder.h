// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/edit/editablekicaddesign.h"

#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// A temporary folder with the files of a design, and questions about what is read from them.
class DesignFolder
{
public:
    DesignFolder() = default;
    /// The folder's path with "XXXXXX" in it, where it is not to be an ordinary one.
    explicit DesignFolder(const QString &pattern)
        : m_folder(pattern)
    {
    }

    /// Writes a file, with the folders it needs; gives its absolute path.
    QString write(const QString &name, std::string_view text) const;
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    [[nodiscard]] designs::ReadResult read(const QString &name, const QString &variant = {}) const;

    /// Reads a design that must be readable, and checks that the independent count of its symbols agrees.
    /// Never null: an empty design stands in after a failure.
    [[nodiscard]] std::unique_ptr<designs::Design>
    load(const QString &name = QStringLiteral("root.kicad_sch"), const QString &variant = {}) const;

private:
    /// In memory where the system has a place for that: the tests write thousands of small files.
    static QString form();

    QTemporaryDir m_folder{form()};
};

/// The references of all components in their order, separated by blanks.
[[nodiscard]] std::string references(const designs::Design &design);

/// The first component with that reference; the test fails and an empty one comes back when there is none.
[[nodiscard]] designs::Component part(const designs::Design &design, std::string_view reference);

/// A property under its exact name; the value and the reference too.
[[nodiscard]] std::optional<std::string> property(const designs::Design &design, std::string_view reference,
                                                  std::string_view name);

/// All warnings, one line each, without the folder.
[[nodiscard]] std::string warnings(const designs::Design &design);
