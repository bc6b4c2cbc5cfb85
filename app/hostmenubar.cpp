// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/hostmenubar.h"

#include "app/programmenus.h"
#include "host/framework/keytranslator.h"

#include <QAction>

#include <cstring>

bool HostMenuBar::loadmenus(const char *name, const QString &)
{
    return std::strcmp(name, "APPLNMENU") == 0;
}

void HostMenuBar::setaccelerators(KEYTRANSLATOR *translator, unsigned table, unsigned flag)
{
    if (!translator) {
        return;
    }
    if (flag == ACCELERATORS_REPLACE) {
        translator->clear();
    }
    const QList<QAction *> own = m_menus.commands(table);
    const QList<QAction *> all = m_menus.commands();
    for (const QAction *action : own) {
        const unsigned command = unsigned(all.indexOf(action)) + 1;
        const QList<QKeySequence> keys = action->shortcuts();
        for (const QKeySequence &key : keys) {
            translator->setcommand(key[0].toCombined(), command);
        }
    }
}

bool HostMenuBar::docommand(unsigned id)
{
    const QList<QAction *> all = m_menus.commands();
    if (id == 0 || qsizetype(id) > all.size() || !all[qsizetype(id) - 1]->isEnabled()) {
        return false;
    }
    all[qsizetype(id) - 1]->trigger();
    return true;
}
