// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QMenu>

/// A menu of colours by name, one entry for any other and, where there can be none, one for that.
class ColorMenu final : public QMenu
{
    Q_OBJECT

public:
    /// `none` is what the entry for no colour says; without a text there is no such entry.
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
