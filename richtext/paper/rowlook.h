// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QTextOption>

#include <optional>
#include <vector>

class QPaintDevice;
class QTextDocument;
class QTextTable;

/// Where a cell stands and how it looks, in the device's pixels.
struct CellLook
{
    double left = 0;
    double width = 0;
    double paddingLeft = 0;
    double paddingRight = 0;
    double paddingAbove = 0;
    double paddingBelow = 0;
    /// Where the text stands in a cell that is higher: 0 at its top, 1 at its bottom.
    double place = 0;
    QFont font;
    QColor color;
    QBrush background;
    Qt::Alignment alignment = Qt::AlignLeft;

    [[nodiscard]] double textWidth() const { return width - paddingLeft - paddingRight; }
};

/// A row of a sample that was laid out, and what its other rows like it take over.
struct RowLook
{
    std::vector<CellLook> cells;
    double top = 0;
    double height = 0;
};

/// Reads the rows of a table from `first` on. Nothing when one has what a CellLook cannot say, such as
/// borders, or when the rows do not stand where that puts them.
[[nodiscard]] std::optional<std::vector<RowLook>>
readRowLooks(const QTextDocument &document, const QTextTable &table, int first, QPaintDevice &device);

/// Above the text of a cell whose format says nothing.
[[nodiscard]] double cellPaddingAbove(const QTextTable &table, const QPaintDevice &device);

/// What a pixel of a format's lengths is on the device.
[[nodiscard]] double deviceScale(const QPaintDevice &device);

/// What stands between two rows, in the device's pixels.
[[nodiscard]] double rowSpacing(const QTextTable &table, const QPaintDevice &device);
