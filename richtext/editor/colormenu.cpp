// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/colormenu.h"

#include <QColorDialog>
#include <QPainter>
#include <QPixmap>

namespace {

QIcon swatch(const QColor &color)
{
    constexpr int side = 16;
    QPixmap pixmap(side, side);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(QColor(Qt::gray));
    painter.drawRect(0, 0, side - 1, side - 1);
    return pixmap;
}

} // namespace

ColorMenu::ColorMenu(const QString &none, QWidget *parent)
    : QMenu(parent)
{
    if (!none.isEmpty()) {
        connect(addAction(none), &QAction::triggered, this, [this] { Q_EMIT colorChosen(QColor()); });
        addSeparator();
    }
    addColor(tr("Black"), 0x000000);
    addColor(tr("Dark Grey"), 0x555555);
    addColor(tr("Grey"), 0x999999);
    addColor(tr("White"), 0xffffff);
    addColor(tr("Red"), 0xcc0000);
    addColor(tr("Orange"), 0xe69138);
    addColor(tr("Yellow"), 0xfff2a8);
    addColor(tr("Green"), 0x2e7d32);
    addColor(tr("Light Green"), 0xd9ead3);
    addColor(tr("Blue"), 0x000099);
    addColor(tr("Light Blue"), 0xdde8ff);
    addColor(tr("Purple"), 0x674ea7);
    addSeparator();
    connect(addAction(tr("Other Colour...")), &QAction::triggered, this, &ColorMenu::askForColor);
}

void ColorMenu::addColor(const QString &name, QRgb rgb)
{
    const QColor color(rgb);
    connect(addAction(swatch(color), name), &QAction::triggered, this,
            [this, color] { Q_EMIT colorChosen(color); });
}

void ColorMenu::askForColor()
{
    const QColor color =
        QColorDialog::getColor(m_color.isValid() ? m_color : QColor(Qt::black), parentWidget());
    if (color.isValid()) {
        Q_EMIT colorChosen(color);
    }
}
