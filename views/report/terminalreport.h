// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

class Report;

/// What a terminal can show.
struct TerminalLook
{
    /// In characters.
    int width = 80;
    /// Whether headings stand out by colour and weight.
    bool isColoured = false;

    bool operator==(const TerminalLook &) const = default;
};

/// The text report for reading on a terminal: columns as wide as what they hold or as the terminal allows,
/// whatever the template says; a text that is longer goes on below itself and is never cut.
[[nodiscard]] QByteArray terminalReport(const Report &report, const TerminalLook &look);

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

/// The widths that columns get of the room for all of them: the widest give way, as equal as can be, those
/// first that break no word; none gets fewer than a few characters that it needs.
[[nodiscard]] QList<int> fittedWidths(const QList<ColumnNeed> &needs, int room);

/// The text in lines of at most that many columns, broken behind blanks and signs where there are any.
[[nodiscard]] QStringList wrappedText(const QString &text, int width);

/// Begins bold text, or ends it, where the look has colours.
[[nodiscard]] QString emphasized(const QString &text, bool isColoured);
