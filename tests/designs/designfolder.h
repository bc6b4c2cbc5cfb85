// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"

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

    /// Reads a part list (.csv) or a KiCad design, whatever it holds.
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

/// Absolute path of a file or folder of the test data.
[[nodiscard]] QString dataPath(const QString &name);
[[nodiscard]] std::string dataText(const QString &name);

[[nodiscard]] designs::ReadResult readData(const QString &name, const QString &variant = {});
/// A design of the test data, checked as DesignFolder::load() does.
[[nodiscard]] std::unique_ptr<designs::Design> loadData(const QString &name, const QString &variant = {});

/// A schematic of one sheet with the identifier "top".
[[nodiscard]] std::unique_ptr<designs::Design> designOf(int version, std::string_view body);

/// The references of all components in their order, separated by blanks.
[[nodiscard]] std::string references(const designs::Design &design);

/// "R1:sh R2:--": for each component what marks it as not in the bill of materials and as not fitted:
/// nothing, its s(ymbol), a s(h)eet, a rule (a)rea or a (p)roperty.
[[nodiscard]] std::string marks(const designs::Design &design);

/// The first component with that reference; the test fails and an empty one comes back when there is none.
[[nodiscard]] designs::Component part(const designs::Design &design, std::string_view reference);

/// A property under its exact name; the value and the reference too.
[[nodiscard]] std::optional<std::string> property(const designs::Design &design, std::string_view reference,
                                                  std::string_view name);

/// Several of them with blanks between, "-" for one that the component lacks.
[[nodiscard]] std::string properties(const designs::Design &design, std::string_view reference,
                                     std::initializer_list<std::string_view> names);

/// All warnings, one line each, without the folder.
[[nodiscard]] std::string warnings(const designs::Design &design);

/// What was refused: the message, or "read" for a design that came out.
[[nodiscard]] std::string errorOf(const designs::ReadResult &result);
