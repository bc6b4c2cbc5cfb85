// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextListFormat>

class QTextCursor;
class QTextEdit;

/// What the tool bars do to a text. Each is one step for undo.

/// Gives the selected text, or what is typed next, a size in points.
void setFontSize(QTextEdit &edit, double points);

/// Puts the selected paragraphs into a list of that style, or takes them out of it when all are in one.
void toggleList(QTextEdit &edit, QTextListFormat::Style style);

/// Moves the selected paragraphs in or out: items change their level, others their left margin by 40 pixels.
void changeIndent(QTextEdit &edit, int steps);

/// The link at the cursor with all of its text selected; a cursor as in the editor, without a link there.
[[nodiscard]] QTextCursor linkAtCursor(const QTextEdit &edit);

/// Puts a link in place of what `where` selects. An empty address leaves its text without a link.
void setLink(QTextEdit &edit, QTextCursor where, const QString &text, const QString &address);

/// Puts an image at the cursor, no wider than `widest` pixels.
void insertImage(QTextEdit &edit, const QString &source, const QSize &size, int widest);
