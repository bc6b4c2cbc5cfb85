// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A block of cells as it goes through the clipboard, row by row.
using ClipboardBlock = QList<QStringList>;

/// The text that spreadsheets exchange: tabs between cells, a line feed behind each row; cells with a tab, a
/// line break or a double quote in double quotes.
[[nodiscard]] QString clipboardText(const ClipboardBlock &block);

/// The way back. Quotes count only where a cell begins with one and it is closed; line breaks may be of any
/// kind, and the last one ends the last row. All rows have as many cells as the longest. Nothing for an empty
/// text.
[[nodiscard]] ClipboardBlock readClipboardText(const QString &text);
