// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>

/// What an element looks like that has no style attribute.
struct UsualLook
{
    QTextBlockFormat block;
    QTextCharFormat text;
    QTextCharFormat link;
    QFont font;
};

/// What a block has that its text inherits, or that the cell around it gives it.
struct Surroundings
{
    QBrush background;
};

/// The declarations that make the usual look that of the format; empty when there is nothing to say.
[[nodiscard]] QString blockStyle(const QTextBlockFormat &format, const UsualLook &usual,
                                 const Surroundings &cell);
/// For a link without underline, its own element has to say so.
[[nodiscard]] QString textStyle(const QTextCharFormat &format, const UsualLook &usual,
                                const Surroundings &block);

/// Whether a brush paints anything that a style sheet can name.
[[nodiscard]] bool isVisible(const QBrush &brush);

[[nodiscard]] bool isUnderlined(const QTextCharFormat &format);

[[nodiscard]] QString cssColour(const QColor &colour);
