// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/colorfield.h"

#include "richtext/css/cssvalue.h"

#include <QColorDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

namespace {

constexpr int swatchWidth = 24;
constexpr int swatchGap = 6;

/// A value that fits on the button: "rgba(255, 200, 0, 0.5)" as "#ffc800 50%".
[[nodiscard]] QString shortened(const QString &value)
{
    constexpr int most = 12;
    if (value.size() <= most) {
        return value;
    }
    const QColor color = css::color(value);
    if (!color.isValid()) {
        return value.left(most - 1) + u'\u2026';
    }
    const QString opacity = u' ' + QString::number(qRound(color.alphaF() * 100)) + u'%';
    return color.name() + (color.alpha() == 255 ? QString() : opacity);
}

/// A swatch of a colour, over a pattern where it is transparent; crossed out for no colour.
[[nodiscard]] QPixmap swatch(const QColor &color, const QSize &size, const QPalette &palette)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const QRect frame(0, 0, swatchWidth - 1, size.height() - 1);
    painter.fillRect(frame, color.isValid() ? QColor(Qt::white) : palette.color(QPalette::Base));
    if (color.isValid() && color.alpha() < 255) {
        painter.fillRect(frame, QBrush(Qt::lightGray, Qt::Dense4Pattern));
    }
    painter.setPen(palette.color(QPalette::Mid));
    if (color.isValid()) {
        painter.fillRect(frame, color);
    } else {
        painter.drawLine(frame.bottomLeft(), frame.topRight());
    }
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
    , m_openText(tr("not set"))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addWidget(m_button, 1);
    row->addWidget(m_none);
    row->addWidget(m_clear);
    m_button->setObjectName(QStringLiteral("chooseButton"));
    m_button->setAutoDefault(false);
    m_button->setIconSize(QSize(swatchWidth + swatchGap, 14));
    m_none->setObjectName(QStringLiteral("noneButton"));
    m_none->setText(tr("None"));
    m_none->setToolTip(tr("Transparent"));
    m_none->setVisible(false);
    m_clear->setObjectName(QStringLiteral("clearButton"));
    m_clear->setText(QStringLiteral("\u00d7"));
    m_clear->setToolTip(tr("Leave open"));
    for (QToolButton *button : {m_none, m_clear}) {
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    }
    setFocusProxy(m_button);
    setFocusPolicy(Qt::ClickFocus); // a label's shortcut leads here only with one
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
    QColor now = css::color(m_value);
    now.setAlpha(now.alpha() == 0
                     ? 255
                     : now.alpha()); // the dialog keeps the opacity: the chosen one would be invisible too
    const QColor color = m_chooser(this, now, m_subject);
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
    if (m_none->hasFocus() || m_clear->hasFocus()) {
        m_button->setFocus(); // the button that was clicked is about to be disabled
    }
    refresh();
    Q_EMIT valueChanged();
}

void ColorField::refresh()
{
    const QColor color = css::color(m_value);
    const bool none = color.isValid() && color.alpha() == 0;
    const QString text = m_value.isEmpty() ? m_openText : none ? tr("none") : shortened(m_value);
    m_button->setToolTip(m_value == text ? QString() : m_value);
    m_button->setText(text);
    m_button->setIcon(swatch(color, m_button->iconSize(), palette()));
    m_button->setAccessibleName(m_subject + QStringLiteral(": ") + text);
    m_none->setAccessibleName(m_subject + QStringLiteral(": ") + m_none->toolTip());
    m_clear->setAccessibleName(m_subject + QStringLiteral(": ") + m_clear->toolTip());
    m_none->setEnabled(!none);
    m_clear->setEnabled(!m_value.isEmpty());
}

void ColorField::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        refresh();
    }
}
