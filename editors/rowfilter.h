// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

class PropertyRows;
struct PropertyRow;

/// Which rows of the property editor are seen.
class RowFilter final
{
public:
    enum class Rows
    {
        All,
        Pending,
        InConflict,
        Missing
    };

    RowFilter() = default;
    /// All words of `text` must occur somewhere in a row, whatever their letter case. "heading:word" looks
    /// into the column of that heading only; a blank in a heading is left out.
    RowFilter(const QString &text, Rows rows);

    [[nodiscard]] bool isOpen() const { return m_words.isEmpty() && m_rows == Rows::All; }
    [[nodiscard]] bool accepts(const PropertyRows &rows, const PropertyRow &row) const;

private:
    [[nodiscard]] bool isOfKind(const PropertyRows &rows, const PropertyRow &row) const;
    [[nodiscard]] static bool hasWord(const PropertyRows &rows, const PropertyRow &row, const QString &word);

    QList<QString> m_words;
    Rows m_rows = Rows::All;
};
