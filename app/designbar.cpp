// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/designbar.h"

#include "app/programmenus.h"

#include <QAction>
#include <QCoreApplication>
#include <QToolBar>
#include <QToolButton>

QToolBar *makeDesignBar(ProgramMenus &menus)
{
    auto *bar = new QToolBar(QCoreApplication::translate("ProgramMenus", "Design"));
    bar->setObjectName(QStringLiteral("designBar"));
    bar->addActions({menus.openAction(), menus.rereadAction()});
    for (QAction *menu : {menus.notFittedAction(), menus.variantAction()}) {
        bar->addAction(menu);
        if (auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(menu))) {
            button->setPopupMode(QToolButton::InstantPopup);
            button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        }
    }
    return bar;
}
