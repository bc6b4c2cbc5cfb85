// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/panekeys.h"

#include "host/widgets/accessiblepane.h"

#include <QAccessible>
#include <QApplication>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

TEST(PaneKeys, LeadRoundThePanesAlsoOutOfATable)
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    auto *left = new QWidget;
    auto *first = new QLineEdit(left);
    auto *second = new QLineEdit(left);
    second->move(0, 50);
    auto *hidden = new QLineEdit;
    auto *table = new QTableWidget(2, 2);
    for (QWidget *pane : {left, static_cast<QWidget *>(hidden), static_cast<QWidget *>(table)}) {
        layout->addWidget(pane);
    }
    hidden->hide();
    new PaneKeys(&window, {left, hidden, table});
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Tab);
    EXPECT_TRUE(table->hasFocus()) << "the table keeps it";
    QTest::keyClick(table, Qt::Key_F6);
    EXPECT_TRUE(first->hasFocus());
    second->setFocus();
    QTest::keyClick(second, Qt::Key_F6);
    EXPECT_TRUE(table->hasFocus());
    QTest::keyClick(table, Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(second->hasFocus()) << "where it was";
}

TEST(AccessiblePane, HasTheTitleBarOfADock)
{
    QDockWidget dock;
    auto *bar = new QWidget;
    auto *button = new QToolButton(bar);
    dock.setTitleBarWidget(bar);
    dock.setWidget(new QWidget);
    makeAccessiblePane(&dock);
    const QAccessibleInterface *pane = QAccessible::queryAccessibleInterface(&dock);
    EXPECT_EQ(pane->role(), QAccessible::Pane);
    const QAccessibleInterface *title = QAccessible::queryAccessibleInterface(bar);
    EXPECT_GE(pane->indexOfChild(title), 0);
    EXPECT_EQ(title->indexOfChild(QAccessible::queryAccessibleInterface(button)), 0);
}

} // namespace
