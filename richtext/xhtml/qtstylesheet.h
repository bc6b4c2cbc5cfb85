// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/css/stylesheet.h"

#include <QColor>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringView>

/// The lengths that a document may use, in pixels, and the sizes of its fonts, in points. QTextDocument
/// counts in numbers that end at some nine thousand pages, and then for ever: the more a document holds the
/// less of it may be huge.
struct LargestLengths
{
    double box = 1000;
    double font = 400;
    /// The body that they are for.
    QStringView body = {};
};
[[nodiscard]] LargestLengths largestLengths(QStringView body);

/// The colour of links that no style sheet gives one: that of browsers, and readable on white paper, which
/// QTextDocument's, the desktop's colour of links, need not be.
[[nodiscard]] QColor usualLinkColor();

/// A style sheet in the terms of QTextDocument, which measures boxes in pixels only, knows paddings and
/// borders for table cells only, and gives headings with a rule no margins of their own.
class QtStyleSheet final
{
public:
    explicit QtStyleSheet(const StyleSheet &css, const LargestLengths &largest = {});

    /// Whether all rules of a style sheet are taken over; of a very long one only the first are.
    [[nodiscard]] static bool holds(const StyleSheet &css);

    /// The limits of the documents that it is for.
    [[nodiscard]] LargestLengths largest() const { return m_largest; }
    [[nodiscard]] const QString &text() const { return m_text; }

    /// Whether a paragraph of that class has a padding or border, which its cell then has to get: the style
    /// sheet has rules for cells of that class.
    [[nodiscard]] bool hasBox(QStringView className) const { return m_boxes.contains(className.toString()); }
    /// The margin above or below paragraphs of that class in pixels, 0 without one.
    [[nodiscard]] double marginAbove(QStringView className) const;
    [[nodiscard]] double marginBelow(QStringView className) const;

private:
    void readMargins(const StyleSheet::Rule &rule, const QString &name, double largest);

    LargestLengths m_largest;
    QString m_text;
    QSet<QString> m_boxes;
    QHash<QString, double> m_marginsAbove;
    QHash<QString, double> m_marginsBelow;
};
