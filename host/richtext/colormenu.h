// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QMenu>

/// A menu of colours by name, with one entry for none and one for any other.
class ColorMenu final : public QMenu
{
    Q_OBJECT

public:
    /// `none` is what the entry for no colour says.
    ColorMenu(const QString &none, QWidget *parent);

    /// Where the dialog for other colours starts.
    void setColor(const QColor &color) { m_color = color; }

Q_SIGNALS:
    /// An invalid colour stands for none.
    void colorChosen(const QColor &color);

private:
    void addColor(const QString &name, QRgb rgb);
    void askForColor();

    QColor m_color;
};
