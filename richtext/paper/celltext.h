// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/paper/rowlook.h"

#include <QString>

#include <memory>
#include <vector>

class QPaintDevice;
class QPainter;
class QRectF;
class QTextLayout;
class QTextOption;

/// The text of a cell on its lines, the first at 0.
struct CellText
{
    std::unique_ptr<QTextLayout> text;
    double height = 0;
};

using RowTexts = std::vector<CellText>;

/// Breaks a text into lines as wide as the cell; `link` is its address as markup, empty for none.
[[nodiscard]] CellText layOutCell(const QString &text, QStringView link, const CellLook &look,
                                  QTextOption option, QPaintDevice &device);

/// Paints the lines that reach into a part of the flow of pages.
void drawLines(QPainter &painter, const QTextLayout &text, double left, const QRectF &part);

/// Of a row on one page, in whole pixels.
[[nodiscard]] double rowHeight(const RowLook &shape, const RowTexts &cells);

/// In a row of that height on one page, texts may stand lower than at its top.
void lowerLines(const RowLook &shape, double height, RowTexts &cells);
