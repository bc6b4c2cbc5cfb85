// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/celltext.h"

#include "richtext/paper/pagelayouter.h"
#include "richtext/paper/plaintable.h"

#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace {

Qt::Alignment visualAlignment(Qt::Alignment alignment, bool isRightToLeft)
{
    constexpr Qt::Alignment sides = Qt::AlignLeft | Qt::AlignRight;
    const bool turns = isRightToLeft && !(alignment & Qt::AlignAbsolute) && (alignment & sides);
    return turns ? alignment ^ sides : alignment;
}

} // namespace

CellText layOutCell(const QString &text, QStringView link, const CellLook &look, QTextOption option,
                    QPaintDevice &device)
{
    CellText cell;
    cell.text = std::make_unique<QTextLayout>(text, look.font, &device);
    const bool isRightToLeft = text.isRightToLeft();
    option.setTextDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setAlignment(visualAlignment(look.alignment, isRightToLeft));
    cell.text->setTextOption(option);
    if (const std::optional<QString> address = link.isEmpty() ? std::nullopt : plainText(link)) {
        QTextLayout::FormatRange range{0, int(text.size()), {}};
        range.format.setAnchor(true);
        range.format.setAnchorHref(encodedAddress(*address));
        cell.text->setFormats({range});
    }
    cell.text->beginLayout();
    for (QTextLine line = cell.text->createLine(); line.isValid(); line = cell.text->createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(look.textWidth());
        line.setPosition(QPointF(0, cell.height));
        cell.height += line.height();
    }
    cell.text->endLayout();
    return cell;
}

void drawLines(QPainter &painter, const QTextLayout &text, double left, const QRectF &part)
{
    for (int number = 0; number < text.lineCount(); ++number) {
        const QTextLine line = text.lineAt(number);
        // QTextLayout would draw the line before these as well.
        if (line.y() < part.bottom() && line.y() + line.height() > part.top()) {
            line.draw(&painter, QPointF(left, 0));
        }
    }
}

double rowHeight(const RowLook &shape, const RowTexts &cells)
{
    double height = 0;
    for (size_t i = 0; i < cells.size(); ++i) {
        const CellLook &cell = shape.cells[i];
        height = std::max(height, cell.paddingAbove + cells[i].height + cell.paddingBelow);
    }
    return std::ceil(height);
}

void lowerLines(const RowLook &shape, double height, RowTexts &cells)
{
    for (size_t i = 0; i < cells.size(); ++i) {
        const CellLook &cell = shape.cells[i];
        const double free = height - cell.paddingAbove - cells[i].height - cell.paddingBelow;
        for (int number = 0; cell.place > 0 && number < cells[i].text->lineCount(); ++number) {
            QTextLine line = cells[i].text->lineAt(number);
            line.setPosition(line.position() + QPointF(0, cell.place * free));
        }
    }
}
