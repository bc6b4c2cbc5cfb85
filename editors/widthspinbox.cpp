// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/widthspinbox.h"

#include <QWheelEvent>

WidthSpinBox::WidthSpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
}

void WidthSpinBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus()) {
        QSpinBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}
