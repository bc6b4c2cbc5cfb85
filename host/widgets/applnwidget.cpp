// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/applnwidget.h"

#include "host/framework/applnframe.h"
#include "host/framework/hostui.h"
#include "host/framework/menubar.h"
#include "host/widgets/drawnicon.h"

#include <QAction>
#include <QEvent>
#include <QFile>
#include <QKeyEvent>
#include <QMenu>
#include <QToolBar>

#include <utility>

APPLNWIDGET::APPLNWIDGET(QWidget *parent)
    : QWidget(parent)
{
}

APPLNWIDGET::~APPLNWIDGET()
{
    APPLNWIDGET::destroywindow();
}

bool APPLNWIDGET::createwindow(APPLNFRAME *frame)
{
    if (!frame || m_frame) {
        return m_frame != nullptr;
    }
    m_frame = frame;
    m_frame->setwidget(this);
    return true;
}

bool APPLNWIDGET::isvisible() const
{
    return m_frame && m_frame->isframevisible() && isVisible();
}

void APPLNWIDGET::showwindow(unsigned state)
{
    if (m_frame) {
        m_frame->showframe(state);
    }
}

void APPLNWIDGET::sethelpaction(QAction *action)
{
    connect(action, &QAction::triggered, this, [this, action] {
        if (!getowner() || !getowner()->launchhelp({})) {
            HostUi::current().information(
                this, action->text().remove(u'&'),
                tr("The help is not installed, or there is no program that shows it."));
        }
    });
}

bool APPLNWIDGET::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) {
        onactivate(event->type() == QEvent::WindowActivate);
    }
    return QWidget::event(event);
}

void APPLNWIDGET::keyPressEvent(QKeyEvent *event)
{
    const KEYTRANSLATOR *keys = getkeytranslator();
    const unsigned command = keys ? keys->getcommand(event->keyCombination().toCombined()) : 0;
    MENUBAR *menus = m_frame ? m_frame->getmenubar() : nullptr;
    if (command == 0 || !menus || !menus->docommand(command)) {
        QWidget::keyPressEvent(event);
    }
}

void APPLNWIDGET::addctrlbar(QToolBar *bar, unsigned, unsigned edge)
{
    if (!bar) {
        return;
    }
    // The frame has one row of bars at each edge, in the order in which they come.
    addtoolbar(bar);
    bar->setAllowedAreas(edge == CTRLBAR_TOP ? Qt::TopToolBarArea : Qt::AllToolBarAreas);
}

void APPLNWIDGET::addmenu(unsigned id, QMenu *menu, unsigned flags)
{
    m_menus.append(menu);
    if (m_frame) {
        m_frame->addmenu(id, menu, flags);
    }
}

void APPLNWIDGET::addtoolbar(QToolBar *bar)
{
    m_toolbars.append(bar);
    if (m_frame) {
        m_frame->addtoolbar(bar);
    }
}

void APPLNWIDGET::destroywindow()
{
    APPLNFRAME *frame = std::exchange(m_frame, nullptr);
    for (QMenu *menu : std::exchange(m_menus, {})) {
        if (frame) {
            frame->removemenu(menu);
        }
        delete menu;
    }
    for (const QPointer<QToolBar> &bar : std::exchange(m_toolbars, {})) {
        if (frame && bar) {
            frame->removetoolbar(bar);
        }
        delete bar;
    }
    if (frame) {
        frame->removewidget(this);
    }
}

QIcon APPLNWIDGET::makeIcon(const QString &path, const std::optional<QPalette> &palette)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    if (const QByteArray svg = file.readAll(); DrawnIcon::canDraw(svg)) {
        return QIcon(new DrawnIcon(svg, palette));
    }
    return QIcon(path);
}
