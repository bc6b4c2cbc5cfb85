// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIconEngine>
#include <QPalette>
#include <QSize>

#include <optional>

/// Draws an icon from SVG, sharp at every size and device pixel ratio. `currentColor` in the drawing stands
/// for the text colour of the program's palette at the time of painting, so that a change of theme shows with
/// the next repaint. A disabled, selected or hovered icon is drawn in one colour, that of such a text.
class DrawnIcon final : public QIconEngine
{
public:
    /// With a palette the icon keeps its colours, for widgets whose background does not follow the theme.
    explicit DrawnIcon(QByteArray svg, std::optional<QPalette> palette = {});

    /// Whether something can be drawn of it; false for text that is no SVG.
    [[nodiscard]] static bool canDraw(const QByteArray &svg);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    /// Sizes are in device pixels. The picture is as large as the drawing's proportions allow.
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QIconEngine *clone() const override;
    bool isNull() override { return false; }

private:
    [[nodiscard]] QColor ink(QIcon::Mode mode) const;
    [[nodiscard]] QPixmap draw(const QSize &size, QIcon::Mode mode, const QColor &ink) const;

    QByteArray m_svg;
    std::optional<QPalette> m_palette;
    QSize m_drawnSize;
};
