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

/// The text report for a file: in the columns of the template, or where that has a layout for reading, in as
/// many characters as these have together, but laid out as for a terminal. A width of 0 leaves a column out.
[[nodiscard]] QByteArray textReport(const Report &report);

/// The text report for reading on a terminal: columns as wide as what they hold or as the terminal allows,
/// whatever the template says; a text that is longer goes on below itself and is never cut.
[[nodiscard]] QByteArray terminalReport(const Report &report, const TerminalLook &look);

/// Begins bold text, or ends it, where the look has colours.
[[nodiscard]] QString emphasized(const QString &text, bool isColoured);
