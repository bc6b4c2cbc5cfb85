// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/toolicon.h"

#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace {

constexpr int side = 24;
constexpr int barHeight = 4;

QPixmap tinted(const QIcon &icon, const QColor &colour, const QColor &bar, int scale)
{
    QPixmap pixmap = icon.pixmap(QSize(side, side) * scale, 1.0);
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), colour);
    if (bar.isValid()) {
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        const int height = barHeight * scale;
        painter.fillRect(scale, pixmap.height() - height, pixmap.width() - 2 * scale, height, bar);
    }
    painter.end();
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

} // namespace

QIcon toolIcon(const QString &name, const QPalette &palette, const QColor &bar)
{
    const QIcon source(QStringLiteral(":/richtext/icons/") + name + QStringLiteral(".svg"));
    QIcon icon;
    for (const int scale : {1, 2}) {
        icon.addPixmap(tinted(source, palette.color(QPalette::Active, QPalette::ButtonText), bar, scale),
                       QIcon::Normal);
        icon.addPixmap(tinted(source, palette.color(QPalette::Disabled, QPalette::ButtonText), bar, scale),
                       QIcon::Disabled);
    }
    return icon;
}
