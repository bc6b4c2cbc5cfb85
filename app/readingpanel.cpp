// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/readingpanel.h"

#include <QEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int widthInCharacters = 48;

} // namespace

ReadingPanel::ReadingPanel(QWidget *window)
    : QFrame(window)
    , m_text(new QLabel)
    , m_cancel(new QPushButton(tr("&Cancel")))
{
    setObjectName(QStringLiteral("readingPanel"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_cancel->setObjectName(QStringLiteral("cancelReading"));
    m_cancel->setAutoDefault(true);
    auto *progress = new QProgressBar;
    // How long it takes is not known: some sheets are used, others are not.
    progress->setRange(0, 0);
    progress->setAccessibleName(tr("Progress"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(progress);
    layout->addWidget(m_cancel, 0, Qt::AlignRight);
    hide();
    connect(m_cancel, &QPushButton::clicked, this, &ReadingPanel::cancelled);
    window->installEventFilter(this);
}

void ReadingPanel::showText(const QString &text)
{
    m_text->setText(text);
    setAccessibleName(text);
    m_cancel->show();
    show();
    place();
    raise();
    m_cancel->setFocus(Qt::OtherFocusReason);
}

void ReadingPanel::showLastStep(const QString &text)
{
    m_text->setText(text);
    setAccessibleName(text);
    m_cancel->hide();
    show();
    place();
    raise();
    repaint();
}

bool ReadingPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && isVisible()) {
        place();
    }
    return QFrame::eventFilter(watched, event);
}

void ReadingPanel::place()
{
    const QSize room = parentWidget()->size();
    const int width = std::min(widthInCharacters * fontMetrics().averageCharWidth(), room.width());
    const int height = hasHeightForWidth() ? heightForWidth(width) : sizeHint().height();
    setGeometry((room.width() - width) / 2, (room.height() - height) / 2, width, height);
}
