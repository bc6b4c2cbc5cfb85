// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

class StyleSheet;

/// What a style sheet says of paragraphs that QTextDocument can only do for table cells.
class BoxRules final
{
public:
    explicit BoxRules(const StyleSheet &css);

    /// Whether a paragraph of that class has a padding or border.
    [[nodiscard]] bool isBoxed(QStringView className) const { return m_boxes.contains(className.toString()); }
    /// The margin above paragraphs of that class in points, 0 without one.
    [[nodiscard]] double marginAbove(QStringView className) const;

    /// Rules for the cells of those classes, to be added to the style sheet.
    [[nodiscard]] QString cellRules() const;

private:
    /// By class: the declarations that the cell takes over.
    QHash<QString, QString> m_boxes;
    QHash<QString, double> m_marginsAbove;
    QString m_cellRules;
};
