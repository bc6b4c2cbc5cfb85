// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class QPainter;
class QWidget;

/// What a ruler shows, in pixels.
struct RulerContent
{
    /// Where the lines of the text begin on the ruler. All places below count from there.
    double origin = 0;
    double linesWidth = 0;
    /// How wide the paper's margins beside the lines are.
    double paperLeftMargin = 0;
    double paperRightMargin = 0;
    /// Where the lines begin and end once a margin that is being dragged is dropped.
    double paperLeft = 0;
    double paperRight = 0;
    /// The marks of the current paragraph.
    double firstLine = 0;
    double left = 0;
    double right = 0;
    QList<double> tabStops;
};

/// Paints a ruler that fills a widget, in the widget's font and colours: paper, scale and marks.
class RulerPainter final
{
public:
    RulerPainter(QPainter &painter, const QWidget &ruler, const RulerContent &content);

    void paint();

private:
    void paintPaper();
    void paintScale();
    void paintMarks();

    QPainter &m_painter;
    const QWidget &m_ruler;
    const RulerContent &m_content;
};
