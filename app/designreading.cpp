// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/designreading.h"

#include "app/readingpanel.h"

#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QEventLoop>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPointer>
#include <QThread>

#include <memory>
#include <utility>

namespace {

/// Before the panel is shown.
constexpr int delayMilliseconds = 400;
/// The report of a design with more takes longer than reading it.
constexpr std::size_t manyComponents = 20000;

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

} // namespace

DesignReading::DesignReading(QWidget *window)
    : m_window(window)
    , m_panel(new ReadingPanel(window))
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(delayMilliseconds);
    connect(m_panel, &ReadingPanel::cancelled, this, &DesignReading::stop);
}

SettledDesign DesignReading::read(const QString &path, const OpenOptions &options)
{
    if (m_isReading) {
        return {nullptr, {}, {tr("Another design is being read at the moment.")}};
    }
    m_isReading = true;
    m_stop = {};
    SettledDesign settled;
    const std::unique_ptr<QThread> thread(
        QThread::create([&settled, &path, &options, stop = m_stop.get_token()] {
            settled = readSettledDesign(path, options, stop);
        }));
    thread->start();
    if (!thread->wait(QDeadlineTimer(m_atOnce))) {
        const auto show = connect(&m_delay, &QTimer::timeout, this, [this, &path] {
            m_panel->showText(tr("Reading %1…").arg(QFileInfo(path).fileName()));
        });
        wait(thread.get());
        disconnect(show);
    }
    m_isReading = false;
    if (wasStopped()) {
        settled.design.reset();
    }
    if (settled.design && (m_panel->isVisible() || settled.design->components().size() > manyComponents)) {
        m_panel->showLastStep(tr("Preparing the report of %1…").arg(QFileInfo(path).fileName()));
    }
    if (std::exchange(m_isToBeClosed, false)) {
        QMetaObject::invokeMethod(m_window, &QWidget::close, Qt::QueuedConnection);
    }
    return settled;
}

void DesignReading::wait(QThread *thread)
{
    const QPointer<QWidget> focus = QApplication::focusWidget();
    QEventLoop loop;
    connect(thread, &QThread::finished, &loop, &QEventLoop::quit);
    m_delay.start();
    qApp->installEventFilter(this);
    if (!thread->isFinished()) {
        loop.exec();
    }
    qApp->removeEventFilter(this);
    m_delay.stop();
    if (!thread->isFinished()) {
        // The program ends.
        stop();
    }
    thread->wait();
    if (m_panel->isAncestorOf(QApplication::focusWidget()) && focus) {
        focus->setFocus(Qt::OtherFocusReason);
    }
}

void DesignReading::finish()
{
    m_panel->hide();
}

/// Windows get input first and hand it on to their widgets, so that what arrives at anything else is passed
/// on. Shortcuts go to actions.
bool DesignReading::eventFilter(QObject *watched, QEvent *event)
{
    const bool isShortcut = event->type() == QEvent::Shortcut;
    auto *widget = qobject_cast<QWidget *>(watched);
    if (!isInput(event->type()) || QApplication::activeModalWidget() || (!widget && !isShortcut)) {
        return false;
    }
    if (const auto *action = qobject_cast<QAction *>(watched);
        action && action->menuRole() == QAction::QuitRole) {
        // Closes the window, of which more below.
        return false;
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        stop();
        return true;
    }
    if (event->type() == QEvent::Close) {
        if (widget != m_window) {
            return false;
        }
        m_isToBeClosed = true;
        stop();
        event->ignore();
        return true;
    }
    return !widget || (widget != m_panel && !m_panel->isAncestorOf(widget));
}
