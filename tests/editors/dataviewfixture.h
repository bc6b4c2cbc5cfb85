// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "editors/bomdataview.h"
#include "editors/bomtablewidget.h"
#include "host/framework/hostsettings.h"
#include "support/fakecdb.h"
#include "support/fakenetlist.h"
#include "support/fakeprocess.h"
#include "support/scopeddefinitions.h"
#include "support/scriptedui.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// The property editor, shown with a small design: R1 to R3 and R10, of which R1 and R2 share a line, C1, and
/// the BOM-only part SCR1 of U1. Its columns are VALUE, CODE, FIT (Yes or No), COST, AMOUNT and .Placed.
class DataView : public testing::Test
{
protected:
    DataView()
    {
        HostSettings::install(&settings);
        BOMTemplate settings;
        BOMFields fields;
        for (const char *name : {"VALUE", "CODE", "FIT", "COST", "AMOUNT", ".Placed"}) {
            BOMField field;
            field.propertyName = QLatin1String(name);
            field.fieldName = u"F "_s + field.propertyName;
            fields.add(field);
        }
        settings.setFields(fields);
        database.setCurrentTemplate(settings);
        database.setNetlist(netlist.cache());
        fillNetlist();
        database.reload();
        view.setPartsDatabase(&database);
        view.setAssignments(&assignments);
        QObject::connect(&database, &BOMPartsDatabase::dataChanged, &view, &BOMDataView::handleBOMDataUpdate);
        view.handleBOMDataUpdate();
        view.resize(1000, 600);
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }
    ~DataView() override { HostSettings::install(nullptr); }

    virtual void fillNetlist()
    {
        netlist.add("R10", "10k", {{"CODE", "a"}});
        netlist.add("R1", "1k", {{"CODE", "b"}, {"FIT", "1"}});
        netlist.add("R2", "1k", {{"CODE", "b"}, {"FIT", "1"}});
        if (hasMore) {
            netlist.add("R4", "4k");
        }
        netlist.add("R3", "2k", {{"CODE", r3Code}, {"BOMLINKS", "CODE=http%3A%2F%2Fx,COST=docs%2Fa.pdf"}});
        netlist.add("C1", "100n", {{"COST", "0.5"}});
        netlist.add("U1", "reg", {{"BOMPART1", "'1','SCR','M3'"}});
    }
    /// What a reload of changed files does.
    void reload()
    {
        netlist.clear();
        fillNetlist();
        database.reload();
    }

    template<class Widget>
    Widget *child(const char *name) const
    {
        return view.findChild<Widget *>(QLatin1String(name));
    }
    void click(const char *button) const
    {
        QTest::mouseClick(child<QAbstractButton>(button), Qt::LeftButton);
    }
    [[nodiscard]] int column(const char *heading) const
    {
        for (int i = 0; i < table->columnCount(); ++i) {
            if (table->horizontalHeaderItem(i)->text() == QLatin1String(heading)) {
                return i;
            }
        }
        return -1;
    }
    [[nodiscard]] int row(const char *reference) const
    {
        for (int i = 0; i < table->rowCount(); ++i) {
            if (table->item(i, 0)->text() == QLatin1String(reference)) {
                return i;
            }
        }
        return -1;
    }
    [[nodiscard]] QTableWidgetItem *cell(const char *reference, const char *heading) const
    {
        return table->item(row(reference), column(heading));
    }
    [[nodiscard]] std::string text(const char *reference, const char *heading) const
    {
        return cell(reference, heading)->text().toStdString();
    }
    [[nodiscard]] QPoint middleOf(const QTableWidgetItem *item) const
    {
        return table->visualItemRect(item).center();
    }
    void clickCell(const QTableWidgetItem *item, Qt::MouseButton button = Qt::LeftButton,
                   Qt::KeyboardModifiers keys = {}) const
    {
        QTest::mouseClick(table->viewport(), button, keys, middleOf(item));
    }
    /// Types into the cell as a user does, and ends with Return.
    void type(const char *reference, const char *heading, const QString &text)
    {
        table->setCurrentItem(cell(reference, heading));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_F2);
        QWidget *editor = QApplication::focusWidget();
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(editor, Qt::Key_Delete);
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
    }
    /// "R1 CODE=x, ..." of what is pending.
    [[nodiscard]] std::string pending() const
    {
        QStringList all;
        for (const PendingEdit &edit : assignments.edits()) {
            all << edit.reference + u' ' + edit.property + u'=' + edit.value;
        }
        return all.join(u", "_s).toStdString();
    }
    /// The references of the rows that are seen, from top to bottom.
    [[nodiscard]] std::string rows() const
    {
        QStringList all;
        for (int i = 0; i < table->rowCount(); ++i) {
            if (!table->isRowHidden(i)) {
                all << table->item(i, 0)->text();
            }
        }
        return all.join(u' ').toStdString();
    }
    [[nodiscard]] static bool isBlue(const QTableWidgetItem *item)
    {
        return item->foreground().color() == QColor(10, 10, 220);
    }

    MemoryHostSettings settings;
    ScopedDefinitions definitions{"\"FIT\",YESNO\n\"COST\",FLOAT\n\"AMOUNT\",INT"};
    ScriptedUi ui;
    FakeProcess process;
    FakeCdb cdb;
    FakeNetlist netlist;
    /// What the files hold at the next reload().
    QByteArray r3Code;
    bool hasMore = false;
    BOMPartsDatabase database;
    PropertyAssignments assignments{&database};
    BOMDataView view;
    BOMTableWidget *table = view.findChild<BOMTableWidget *>(u"partsView"_s);
};
