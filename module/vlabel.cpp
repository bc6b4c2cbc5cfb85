// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/vlabel.h"

#include <QEvent>
#include <QPainter>

VLabel::VLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent)
    , m_text(text)
{
    setAccessibleName(text);
}

void VLabel::turnText()
{
    if (!m_turned.isNull() && m_turned.devicePixelRatio() == devicePixelRatioF()) {
        return;
    }
    // A widget that paints itself cannot be rendered; this one looks the same.
    QLabel level(m_text);
    level.setAttribute(Qt::WA_TranslucentBackground);
    level.setFont(font());
    level.setPalette(palette());
    level.resize(level.sizeHint());
    m_turned = QPixmap(level.size().transposed() * devicePixelRatioF());
    m_turned.setDevicePixelRatio(devicePixelRatioF());
    m_turned.fill(Qt::transparent);
    QPainter painter(&m_turned);
    painter.translate(level.height(), 0);
    painter.rotate(90);
    level.render(&painter, {}, {}, QWidget::DrawChildren);
    painter.end();
    setPixmap(m_turned);
}

void VLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange ||
        event->type() == QEvent::StyleChange) {
        m_turned = {};
        update();
    }
    QLabel::changeEvent(event);
}

void VLabel::showEvent(QShowEvent *event)
{
    // Before the first layout, so that the place for it is as narrow as the turned text.
    turnText();
    QLabel::showEvent(event);
}

void VLabel::paintEvent(QPaintEvent *event)
{
    turnText();
    QLabel::paintEvent(event);
}
