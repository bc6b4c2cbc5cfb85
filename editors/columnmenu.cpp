// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/columnmenu.h"

#include "editors/bomtablewidget.h"
#include "editors/partstable.h"

#include <QHeaderView>
#include <QMenu>

ColumnMenu::ColumnMenu(BOMTableWidget *view, PartsTable *table)
    : m_view(view)
    , m_table(table)
{
    QHeaderView *header = view->horizontalHeader();
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this, &ColumnMenu::open);
}

bool ColumnMenu::isOpen() const
{
    return m_menu && m_menu->isVisible();
}

void ColumnMenu::open(const QPoint &position)
{
    const QHeaderView &header = *m_view->horizontalHeader();
    const int column = header.logicalIndexAt(position);
    m_menu = new QMenu(m_view);
    m_menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_menu, &QObject::destroyed, this, &ColumnMenu::closed);
    const int field = column - PartsTable::FirstField;
    const auto &fields = m_table->rows().columns();
    if (field >= 0 && field < int(fields.size()) && fields[size_t(field)].isEditable) {
        QAction *required = m_menu->addAction(tr("Required"));
        required->setCheckable(true);
        required->setChecked(fields[size_t(field)].isRequired);
        connect(required, &QAction::toggled, m_table,
                [this, column](bool isRequired) { m_table->setRequired(column, isRequired); });
        m_menu->addSeparator();
    }
    addColumns(m_menu);
    m_menu->addSeparator();
    connect(m_menu->addAction(tr("Show All Columns")), &QAction::triggered, this, &ColumnMenu::showAll);
    m_menu->popup(header.viewport()->mapToGlobal(position));
}

void ColumnMenu::addColumns(QMenu *menu)
{
    QHeaderView *header = m_view->horizontalHeader();
    for (int place = 0; place < header->count(); ++place) {
        const int column = header->logicalIndex(place);
        QString text = m_view->horizontalHeaderItem(column)->text();
        QAction *action = menu->addAction(text.replace(u'&', QStringLiteral("&&")));
        action->setCheckable(true);
        action->setChecked(!header->isSectionHidden(column));
        // Without references nobody knows what a row is.
        action->setEnabled(column != PartsTable::ReferenceColumn);
        connect(action, &QAction::toggled, m_table, [this, header, column](bool isShown) {
            header->setSectionHidden(column, !isShown);
            m_table->rememberLayout();
        });
    }
}

void ColumnMenu::showAll()
{
    QHeaderView *header = m_view->horizontalHeader();
    for (int column = 0; column < header->count(); ++column) {
        header->setSectionHidden(column, false);
    }
    m_table->rememberLayout();
}
