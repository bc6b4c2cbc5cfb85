// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class BOMPartsDatabase;

/// A text of a column that does not mean there what it says, with the parts that have it.
struct UnreadText
{
    QString text;
    QStringList references;

    bool operator==(const UnreadText &) const = default;
};

/// The texts of one column of the current template that cannot be read as what the column holds, or are
/// perhaps not meant as they are read.
struct UnreadColumn
{
    enum class Kind
    {
        /// No numbers, in a column with totals: they count 0.
        Totalled,
        /// No numbers, in a column of numbers: they are shown as they are.
        Numeric,
        /// Neither "1", "0" nor what is shown for them, in a column of two states: they show as the lower
        /// state.
        TwoStates,
        /// Numbers such as "1,234", in a column with totals or of numbers: the comma is read as the decimal
        /// mark, but may be meant for thousands.
        DecimalComma
    };

    QString field;
    Kind kind = Kind::Totalled;
    /// The lower state, for columns of two.
    QString shownAs = {};
    /// In the order of the bill.
    QList<UnreadText> texts;

    bool operator==(const UnreadColumn &) const = default;
};

/// The columns that have such texts, in their order; a column with texts of two kinds comes once for each.
[[nodiscard]] QList<UnreadColumn> unreadColumns(const BOMPartsDatabase &database);
