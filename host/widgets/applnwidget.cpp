// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/applnwidget.h"

#include "host/framework/applnframe.h"
#include "host/widgets/drawnicon.h"

#include <QFile>
#include <QMenu>
#include <QToolBar>

#include <utility>

APPLNWIDGET::APPLNWIDGET(QWidget *parent)
    : QWidget(parent)
{
}

APPLNWIDGET::~APPLNWIDGET()
{
    removefromframe();
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

void APPLNWIDGET::removefromframe()
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
