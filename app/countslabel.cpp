// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/countslabel.h"

#include <QPainter>

CountsLabel::CountsLabel(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void CountsLabel::setTexts(const QStringList &texts)
{
    if (texts == m_texts) {
        return;
    }
    m_texts = texts;
    setAccessibleName(text());
    updateGeometry();
    update();
}

QString CountsLabel::shownText() const
{
    QString shown = text();
    for (qsizetype count = m_texts.size() - 1; count > 0 && sizeOf(shown).width() > width(); --count) {
        shown = m_texts.mid(0, count).join(QStringLiteral(", ")) + QStringLiteral(", \u2026");
    }
    return shown;
}

QSize CountsLabel::sizeHint() const
{
    return sizeOf(text());
}

QSize CountsLabel::minimumSizeHint() const
{
    return m_texts.size() < 2 ? sizeHint() : sizeOf(m_texts.constFirst() + QStringLiteral(", \u2026"));
}

QSize CountsLabel::sizeOf(const QString &text) const
{
    const QFontMetrics metrics = fontMetrics();
    const int margin = text.isEmpty() ? 0 : metrics.averageCharWidth();
    return {metrics.horizontalAdvance(text) + 2 * margin, metrics.height()};
}

void CountsLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(shownText(), Qt::ElideRight, width()));
}
