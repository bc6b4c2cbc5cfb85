// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/dockwidget.h"

#include "host/widgets/accessiblepane.h"
#include "host/widgets/applnwidget.h"
#include "module/vlabel.h"

#include <QMainWindow>
#include <QPropertyAnimation>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int slideTime = 320;
constexpr int foldedWidth = 4;

} // namespace

DockWidget::DockWidget(QWidget *parent)
    : QDockWidget(parent)
{
    setWindowTitle(tr("Options"));
    makeAccessiblePane(this);
    // Where it stands in a plain layout it takes the height that there is.
    layout()->setSizeConstraint(QLayout::SetMinimumSize);
    setUpTitleBar();
    m_content = new QWidget;
    auto *layout = new QVBoxLayout(m_content);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    setWidget(m_content);
    applyDockedState(m_openWidth);
}

void DockWidget::setUpTitleBar()
{
    m_titleBar = new QWidget;
    m_titleBar->setStyleSheet(
        QStringLiteral("QWidget{background-color: #dcdcdc;} QAbstractButton{border: 1px solid #70a1bd;} "
                       "QAbstractButton:hover{ background-color: #dcedf7;} QLabel{margin: 1px;}"));
    m_label = new VLabel(tr("Options"));
    m_foldButton = new QToolButton;
    m_foldButton->setObjectName(QStringLiteral("foldButton"));
    // The background is light in every theme.
    for (QWidget *widget : {static_cast<QWidget *>(m_label), static_cast<QWidget *>(m_foldButton)}) {
        QPalette palette = widget->palette();
        palette.setColor(QPalette::WindowText, Qt::black);
        palette.setColor(QPalette::ButtonText, Qt::black);
        widget->setPalette(palette);
    }
    m_titleLayout = new QHBoxLayout(m_titleBar);
    m_titleLayout->setContentsMargins({});
    m_titleLayout->setSpacing(0);
    m_titleLayout->addStretch();
    m_titleLayout->addWidget(m_label);
    m_titleLayout->addWidget(m_foldButton);
    setTitleBarWidget(m_titleBar);
    connect(m_foldButton, &QToolButton::clicked, this, &DockWidget::toggleOpenShut);
}

void DockWidget::setContents(QWidget *contents)
{
    m_content->layout()->addWidget(contents);
}

void DockWidget::applyDockedState(int width)
{
    if (!m_titleBar || !m_foldButton || !m_content) {
        return;
    }
    const QIcon picture = APPLNWIDGET::makeIcon(m_isOpen ? QStringLiteral(":/bom/icons/sendLeft.png")
                                                         : QStringLiteral(":/bom/icons/sendRight.png"),
                                                m_foldButton->palette());
    m_foldButton->setIcon(picture);
    m_foldButton->setArrowType(!picture.isNull() ? Qt::NoArrow : m_isOpen ? Qt::LeftArrow : Qt::RightArrow);
    m_foldButton->setToolTip(m_isOpen ? tr("Hide the options") : tr("Show the options"));
    m_foldButton->setAccessibleName(m_foldButton->toolTip());
    m_label->setVisible(!m_isOpen);
    m_titleLayout->setDirection(m_isOpen ? QBoxLayout::LeftToRight : QBoxLayout::BottomToTop);
    // The strip is as tall as the window.
    setFeatures(m_isOpen ? NoDockWidgetFeatures : DockWidgetVerticalTitleBar);
    if (m_isOpen) {
        m_content->setMinimumWidth(fittingWidth(width));
    }
    m_content->setVisible(m_isOpen);
}

int DockWidget::fittingWidth(int width) const
{
    const auto *window = qobject_cast<const QMainWindow *>(parentWidget());
    if (!window || !window->isVisible() || !window->centralWidget()) {
        return width;
    }
    const int room = window->width() - std::max(0, window->centralWidget()->minimumSizeHint().width()) -
                     style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, window);
    return std::max(std::min(width, room), m_content->minimumSizeHint().width());
}

void DockWidget::setOpen(bool isOpen)
{
    delete m_animation;
    // A content that was never shown has no width of its own.
    if (m_isOpen && !isOpen && m_content->isVisible()) {
        m_openWidth = m_content->width();
    }
    m_isOpen = isOpen;
    setDockedState();
}

int DockWidget::openWidth() const
{
    return m_isOpen && !m_animation ? m_content->width() : m_openWidth;
}

void DockWidget::setOpenWidth(int width)
{
    m_openWidth = width;
    if (m_isOpen) {
        setDockedState();
    }
}

void DockWidget::toggleOpenShut()
{
    if (m_isOpen) {
        fold();
    } else {
        open();
    }
}

void DockWidget::setDockedState()
{
    applyDockedState(m_openWidth);
    // Once the window has given the panel its width, the user may make it narrower again.
    QMetaObject::invokeMethod(
        m_content, [content = m_content] { content->setMinimumWidth(0); }, Qt::QueuedConnection);
}

/// Where the content is when the panel is folded: it lies to the left of the strip.
static QRect foldedPlace(QRect content, int width)
{
    content.setRight(foldedWidth - 1);
    content.setLeft(foldedWidth - width);
    return content;
}

void DockWidget::open()
{
    const bool wasSliding = m_animation;
    m_isOpen = true;
    applyDockedState(m_openWidth);
    QRect opened = m_content->geometry();
    opened.setRect(0, opened.y(), fittingWidth(m_openWidth), opened.height());
    slide(wasSliding ? m_content->geometry() : foldedPlace(opened, opened.width()), opened);
}

void DockWidget::fold()
{
    const QRect now = m_content->geometry();
    // A panel that is still sliding has no width of its own.
    if (!m_animation) {
        m_openWidth = now.width();
    }
    m_content->setMinimumWidth(foldedWidth);
    m_isOpen = false;
    slide(now, foldedPlace(now, m_openWidth));
}

void DockWidget::slide(const QRect &from, const QRect &to)
{
    delete m_animation;
    m_animation = new QPropertyAnimation(m_content, "geometry", this);
    m_animation->setDuration(slideTime);
    m_animation->setStartValue(from);
    m_animation->setEndValue(to);
    connect(m_animation, &QPropertyAnimation::finished, this, &DockWidget::setDockedState);
    m_animation->start(QAbstractAnimation::DeleteWhenStopped);
}
