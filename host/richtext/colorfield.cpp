// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/richtext/colorfield.h"

#include "host/richtext/cssvalue.h"

#include <QColorDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

namespace {

/// White and grey squares show through what is transparent; what is open is crossed out.
[[nodiscard]] QPixmap swatch(const QColor &color, const QSize &size, const QPalette &palette)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    const QRect frame(0, 0, size.width() - 1, size.height() - 1);
    if (color.isValid()) {
        painter.fillRect(pixmap.rect(), QBrush(Qt::lightGray, Qt::Dense4Pattern));
        if (color.alpha() == 255) {
            painter.fillRect(pixmap.rect(), Qt::white);
        }
        painter.fillRect(pixmap.rect(), color);
    } else {
        painter.fillRect(pixmap.rect(), palette.color(QPalette::Base));
        painter.setPen(palette.color(QPalette::Mid));
        painter.drawLine(frame.bottomLeft(), frame.topRight());
    }
    painter.setPen(palette.color(QPalette::Mid));
    painter.drawRect(frame);
    return pixmap;
}

} // namespace

ColorField::ColorField(QWidget *parent)
    : QWidget(parent)
    , m_button(new QPushButton(this))
    , m_none(new QToolButton(this))
    , m_clear(new QToolButton(this))
    , m_chooser([](QWidget *over, const QColor &now, const QString &title) {
        return QColorDialog::getColor(now, over, title, QColorDialog::ShowAlphaChannel);
    })
    , m_openText(tr("inherited"))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addWidget(m_button, 1);
    row->addWidget(m_none);
    row->addWidget(m_clear);
    m_button->setObjectName(QStringLiteral("chooseButton"));
    m_button->setAutoDefault(false);
    m_button->setIconSize(QSize(24, 14));
    m_none->setObjectName(QStringLiteral("noneButton"));
    m_none->setText(tr("None"));
    m_none->setToolTip(tr("Transparent"));
    m_none->setVisible(false);
    m_clear->setObjectName(QStringLiteral("clearButton"));
    m_clear->setText(QStringLiteral("\u00d7"));
    m_clear->setToolTip(tr("As inherited"));
    for (QToolButton *button : {m_none, m_clear}) {
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    }
    setFocusProxy(m_button);
    connect(m_button, &QPushButton::clicked, this, &ColorField::choose);
    connect(m_none, &QToolButton::clicked, this, [this] { take(QStringLiteral("transparent")); });
    connect(m_clear, &QToolButton::clicked, this, [this] { take(QString()); });
    refresh();
}

ColorField::~ColorField() = default;

void ColorField::setSubject(const QString &subject)
{
    m_subject = subject;
    refresh();
}

void ColorField::setNoneAllowed(bool allowed)
{
    m_none->setVisible(allowed);
}

void ColorField::setOpenText(const QString &text)
{
    m_openText = text;
    refresh();
}

void ColorField::showValue(const QString &value)
{
    m_value = value;
    refresh();
}

void ColorField::choose()
{
    const QColor color = m_chooser(this, css::color(m_value), m_subject);
    if (color.isValid()) {
        take(css::colorText(color));
    }
}

void ColorField::take(const QString &value)
{
    if (value == m_value) {
        return;
    }
    m_value = value;
    // The button that was clicked may be disabled next, which would carry the focus away.
    if (value.isEmpty()) {
        m_button->setFocus();
    }
    refresh();
    Q_EMIT valueChanged();
}

void ColorField::refresh()
{
    const QColor color = css::color(m_value);
    const bool none = color.isValid() && color.alpha() == 0;
    const QString text = m_value.isEmpty() ? m_openText : none ? tr("none") : m_value;
    m_button->setText(text);
    m_button->setIcon(swatch(color, m_button->iconSize(), palette()));
    m_button->setAccessibleName(m_subject + QStringLiteral(": ") + text);
    m_none->setAccessibleName(m_subject + QStringLiteral(": ") + m_none->toolTip());
    m_clear->setAccessibleName(m_subject + QStringLiteral(": ") + m_clear->toolTip());
    m_clear->setEnabled(!m_value.isEmpty());
}

void ColorField::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        refresh();
    }
}
