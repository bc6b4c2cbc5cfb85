// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/cellmenu.h"

#include "core/propertyassignments.h"
#include "editors/bomtablewidget.h"
#include "editors/cellblocks.h"
#include "editors/partmenu.h"
#include "editors/partstable.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

CellMenu::CellMenu(BOMTableWidget *view, PartsTable *table, CellBlocks *blocks, PartMenu *parts)
    : m_view(view)
    , m_table(table)
    , m_blocks(blocks)
    , m_parts(parts)
{
}

void CellMenu::open(int row, int column, const QPoint &position)
{
    const PropertyRow *clicked = m_table->rowAt(row);
    if (!clicked) {
        return;
    }
    auto *menu = new QMenu(m_view);
    menu->addActions(
        {m_blocks->cutAction(), m_blocks->copyAction(), m_blocks->pasteAction(), m_blocks->clearAction()});
    QAction *setBack = menu->addAction(tr("Set &Back"));
    const PropertyItem *item = m_table->fieldAt(row, column);
    setBack->setEnabled(item && item->cell().isPending);
    connect(setBack, &QAction::triggered, this, &CellMenu::retractSelected);
    menu->addSeparator();
    const QString references = clicked->referenceText;
    connect(menu->addAction(tr("&Navigate")), &QAction::triggered, this,
            [this, number = clicked->firstReference()] {
                if (const PropertyRow *still = m_table->rows().rowOf(number)) {
                    still->references.size() > 1 ? m_parts->askForPart(*still) : m_parts->navigateTo(number);
                }
            });
    connect(menu->addAction(tr("Copy &Reference")), &QAction::triggered, this,
            [references] { QGuiApplication::clipboard()->setText(references); });
    m_parts->open(menu, position);
}

void CellMenu::retractSelected()
{
    if (!m_assignments) {
        return;
    }
    const PropertyAssignments::Action action(m_assignments);
    for (const QModelIndex &cell : m_view->seenSelection()) {
        const PropertyItem *item = m_table->fieldAt(cell.row(), cell.column());
        const QStringList references = item ? item->propertyRow()->references : QStringList();
        for (const QString &reference : references) {
            m_assignments->retract(reference, item->column().key);
        }
    }
}
