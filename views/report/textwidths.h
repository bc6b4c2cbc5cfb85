// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// How many columns of a terminal the text takes: two for each East Asian wide character, none for a mark
/// that stands over another character.
[[nodiscard]] int terminalWidth(QStringView text);

/// What a column of texts would like: room for the longest text, and for the longest piece of one that is not
/// broken.
struct ColumnNeed
{
    int text = 0;
    int piece = 0;

    bool operator==(const ColumnNeed &) const = default;
};

/// Behind these wrappedText() breaks texts.
constexpr QStringView wordBreaks = u" ,;/-_";

/// What characters are measured by, in digits: in a terminal all are as wide as a digit or twice as wide, in
/// print letters differ.
enum class TextMeasure
{
    Terminal,
    Print
};

/// Collects what the columns of a report need: quantity, references, then the template's.
class ColumnNeeds final
{
public:
    /// Texts are broken behind these characters; references behind commas only.
    explicit ColumnNeeds(QStringView breaks, TextMeasure measure = TextMeasure::Terminal)
        : m_breaks(breaks)
        , m_measure(measure)
    {
    }

    /// Every row has a text for each column.
    void add(const QStringList &row);
    [[nodiscard]] QList<ColumnNeed> needs() const;

private:
    QStringView m_breaks;
    TextMeasure m_measure;
    QList<ColumnNeed> m_needs;
};

/// The widths that columns get of the room for all of them: the widest give way, as equal as can be, those
/// first that break no word; none gets fewer than a few characters that it needs.
[[nodiscard]] QList<int> fittedWidths(const QList<ColumnNeed> &needs, int room);

/// The text in lines of at most that many columns, broken behind blanks and signs where there are any.
[[nodiscard]] QStringList wrappedText(const QString &text, int width);
