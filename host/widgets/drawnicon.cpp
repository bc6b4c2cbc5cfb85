// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/drawnicon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <cmath>
#include <utility>

DrawnIcon::DrawnIcon(QByteArray svg, std::optional<QPalette> palette)
    : m_svg(std::move(svg))
    , m_palette(std::move(palette))
    , m_drawnSize(QSvgRenderer(m_svg).defaultSize())
{
}

bool DrawnIcon::canDraw(const QByteArray &svg)
{
    // Asked first, because the renderer warns about anything else.
    return svg.left(1024).contains("<svg") && QSvgRenderer(svg).isValid();
}

void DrawnIcon::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const qreal scale = painter->device()->devicePixelRatioF();
    QPixmap picture = scaledPixmap((QSizeF(rect.size()) * scale).toSize(), mode, state, scale);
    picture.setDevicePixelRatio(scale);
    const QSizeF shown = picture.deviceIndependentSize();
    painter->drawPixmap(QPointF(rect.x() + std::floor((rect.width() - shown.width()) / 2),
                                rect.y() + std::floor((rect.height() - shown.height()) / 2)),
                        picture);
}

QSize DrawnIcon::actualSize(const QSize &size, QIcon::Mode, QIcon::State)
{
    return m_drawnSize.scaled(size, Qt::KeepAspectRatio);
}

QPixmap DrawnIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return scaledPixmap(size, mode, state, 1);
}

QPixmap DrawnIcon::scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal)
{
    const QSize drawn = actualSize(size, mode, state);
    if (drawn.isEmpty()) {
        return {};
    }
    const QColor colour = ink(mode);
    const QString key = QStringLiteral("DrawnIcon/%1/%2x%3/%4/%5")
                            .arg(qHash(m_svg), 0, 16)
                            .arg(drawn.width())
                            .arg(drawn.height())
                            .arg(mode)
                            .arg(colour.rgba(), 0, 16);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = draw(drawn, mode, colour);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

QIconEngine *DrawnIcon::clone() const
{
    return new DrawnIcon(*this);
}

QColor DrawnIcon::ink(QIcon::Mode mode) const
{
    const QPalette palette = m_palette.value_or(QGuiApplication::palette());
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    case QIcon::Selected:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    default:
        return palette.color(QPalette::Active, QPalette::ButtonText);
    }
}

QPixmap DrawnIcon::draw(const QSize &size, QIcon::Mode mode, const QColor &ink) const
{
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QByteArray svg = m_svg;
    QSvgRenderer drawing(svg.replace("currentColor", ink.name().toLatin1()));
    QPainter painter(&picture);
    drawing.render(&painter);
    if (mode != QIcon::Normal) {
        // The accent would be too strong beside a disabled text, and hard to see on the background of a
        // selection, which menus also give to the hovered entry.
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), ink);
    }
    return picture;
}
