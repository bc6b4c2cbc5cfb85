// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <limits>

class BOMPartsDatabase;

/// A line of the bill whose parts differ in a property that no column shows.
struct JoinedLine
{
    struct Text
    {
        /// Empty for parts that do not have the property.
        QString text;
        QStringList references;

        bool operator==(const Text &) const = default;
    };

    QString category;
    QString property;
    /// In the order of the references.
    QList<Text> texts;

    /// The reference of the line's first part.
    [[nodiscard]] const QString &reference() const { return texts.constFirst().references.constFirst(); }

    bool operator==(const JoinedLine &) const = default;
};

/// The lines under the current template, in its order, whose parts differ in one of these properties, once
/// for each property. Of the first list a part without the property differs from one that has it, of the
/// second it goes with any. Blanks around texts do not count, nor the "~" that KiCad has for nothing.
[[nodiscard]] QList<JoinedLine> joinedLines(const BOMPartsDatabase &database, const QStringList &always,
                                            const QStringList &whereFilled);

/// In words, with `mostTexts` of the texts: `R1-R3 are one line and differ in PACKAGE: "0603" on R1-R2, none
/// on R3`.
[[nodiscard]] QString joinedLineText(const JoinedLine &line,
                                     qsizetype mostTexts = std::numeric_limits<qsizetype>::max());

/// A column of the current template that is empty on all parts that are listed.
struct EmptyColumn
{
    QString field;
    QString property;
};

/// In the order of the columns; none for a bill without parts.
[[nodiscard]] QList<EmptyColumn> emptyColumns(const BOMPartsDatabase &database);
