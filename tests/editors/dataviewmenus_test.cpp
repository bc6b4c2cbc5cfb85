// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/dataviewfixture.h"

#include <QClipboard>
#include <QDialog>
#include <QHeaderView>
#include <QMenu>
#include <QTimer>

namespace {

class DataViewMenus : public DataView
{
protected:
    /// The menu that is open; null for none.
    [[nodiscard]] static QMenu *menu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }
    /// Chooses an entry of the open menu with the mouse.
    void choose(const QString &text)
    {
        ASSERT_TRUE(menu());
        for (QAction *action : menu()->actions()) {
            if (action->text() == text) {
                QTest::mouseClick(menu(), Qt::LeftButton, {}, menu()->actionGeometry(action).center());
                return;
            }
        }
        FAIL() << qPrintable(text);
    }
    /// The headings and widths of the columns that are seen, from left to right.
    [[nodiscard]] static QStringList columnsSeen(const QTableWidget &table)
    {
        QStringList seen;
        for (int place = 0; place < table.columnCount(); ++place) {
            const int column = table.horizontalHeader()->logicalIndex(place);
            if (!table.isColumnHidden(column)) {
                seen << table.horizontalHeaderItem(column)->text() + u' ' +
                            QString::number(table.columnWidth(column));
            }
        }
        return seen;
    }
    void openHeaderMenu(const char *heading)
    {
        QHeaderView *header = table->horizontalHeader();
        const int at = column(heading);
        const QPoint place(header->sectionViewportPosition(at) + 5, header->height() / 2);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, header->viewport()->mapToGlobal(place),
                                Qt::NoModifier);
        QApplication::sendEvent(header->viewport(), &event);
    }
};

TEST_F(DataViewMenus, LeadToThePartsOfALine)
{
    click("groupingCheckbox");
    click("showLinksCheckBox");
    clickCell(cell("R1-R2", "References"));
    ASSERT_TRUE(menu());
    EXPECT_EQ(menu()->title(), u"Select the part to navigate to"_s);
    QStringList texts;
    for (const QAction *action : menu()->actions()) {
        texts << action->text();
    }
    EXPECT_EQ(texts, (QStringList{u"Select the part to navigate to"_s, u"R1"_s, u"R2"_s}));
    EXPECT_TRUE(view.isBusy());
    QTest::keyClick(menu(), Qt::Key_Escape);
    QTRY_VERIFY(!view.isBusy());
    clickCell(cell("R1-R2", "References"), Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_FALSE(menu()) << "that selects";
    clickCell(cell("R3", "_(Links)"));
    choose(u"R3, CODE"_s);
    EXPECT_EQ(ui.openedUrls, QList{QUrl(u"http://x"_s)});
}

TEST_F(DataViewMenus, OpenDialogsForBOMOnlyPartsOfTheCurrentPart)
{
    EXPECT_TRUE(child<QWidget>("removeBOMPartBtn")->isEnabled());
    table->setCurrentItem(cell("SCR1", "References"));
    bool wasBusy = false;
    QString shown;
    const auto look = [&] {
        wasBusy = view.isBusy();
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        const auto texts = dialog->findChildren<QComboBox *>();
        for (const QComboBox *text : texts) {
            shown += text->currentText() + u' ';
        }
        dialog->reject();
    };
    QTimer::singleShot(0, &view, look);
    click("newBOMPartBtn");
    EXPECT_TRUE(wasBusy);
    EXPECT_TRUE(shown.contains(u"U1"_s)) << qPrintable(shown);
    shown.clear();
    QTimer::singleShot(0, &view, look);
    click("removeBOMPartBtn");
    EXPECT_TRUE(shown.contains(u"SCR1"_s)) << qPrintable(shown);
    EXPECT_FALSE(view.isBusy());
    setcdb(nullptr);
    view.handleBOMDataUpdate();
    EXPECT_FALSE(child<QWidget>("newBOMPartBtn")->isEnabled());
}

TEST_F(DataViewMenus, SetSelectedCellsBack)
{
    for (const char *reference : {"R1", "R2", "R3"}) {
        cell(reference, "F CODE")->setText(u"x"_s);
    }
    table->setCurrentItem(cell("R1", "F CODE"));
    table->setRangeSelected({row("R1"), column("F CODE"), row("R2"), column("F CODE")}, true);
    clickCell(cell("R2", "F CODE"), Qt::RightButton);
    choose(u"Set &Back"_s);
    EXPECT_EQ(pending(), "R3 CODE=x");
    table->setFocus();
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {}, {}, Qt::NoModifier);
    QApplication::sendEvent(table, &key);
    choose(u"Copy &Reference"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"R2"_s);
}

TEST_F(DataViewMenus, HideColumnsAndMarkThemRequiredForNextTime)
{
    EXPECT_TRUE(table->horizontalHeader()->isSortIndicatorShown());
    EXPECT_EQ(table->horizontalHeader()->sortIndicatorSection(), 0);
    const QBrush plain = cell("R3", "F AMOUNT")->background();
    openHeaderMenu("F AMOUNT");
    choose(u"Required"_s);
    EXPECT_NE(cell("R3", "F AMOUNT")->background(), plain);
    EXPECT_TRUE(cell("R3", "F AMOUNT")->toolTip().contains(u"Required"_s));
    child<QComboBox>("rowsCombo")->setCurrentIndex(3);
    EXPECT_EQ(rows(), "C1 R1 R2 R3 R10 SCR1 U1");
    cell("R1", "F AMOUNT")->setText(u"1"_s);
    child<QComboBox>("rowsCombo")->setCurrentIndex(1);
    child<QComboBox>("rowsCombo")->setCurrentIndex(3);
    EXPECT_EQ(rows(), "C1 R2 R3 R10 SCR1 U1");
    QTRY_VERIFY(!view.isBusy());
    openHeaderMenu("F COST");
    choose(u"F FIT"_s);
    EXPECT_TRUE(table->isColumnHidden(column("F FIT")));
    table->horizontalHeader()->moveSection(4, 2);
    table->setColumnWidth(column("F CODE"), 123);
    const QStringList before = columnsSeen(*table);
    QTRY_VERIFY(!view.isBusy());
    click("showLinksCheckBox");
    EXPECT_EQ(columnsSeen(*table),
              before + QStringList{u"_(Links) "_s + QString::number(table->columnWidth(8))});
    click("showLinksCheckBox");
    EXPECT_EQ(columnsSeen(*table), before);
    BOMDataView other;
    other.setPartsDatabase(&database);
    other.handleBOMDataUpdate();
    EXPECT_EQ(columnsSeen(*other.findChild<BOMTableWidget *>()), before);
}

TEST_F(DataViewMenus, LeaveColumnsThatNobodyMovedInTheOrderOfTheTemplate)
{
    BOMTemplate settings = database.currentTemplate();
    BOMFields fields = settings.fields();
    fields.setOrder({u"F VALUE"_s, u"F COST"_s, u"F CODE"_s, u"F FIT"_s, u"F AMOUNT"_s, u"F .Placed"_s});
    settings.setFields(fields);
    database.setCurrentTemplate(settings);
    view.handleBOMDataUpdate();
    EXPECT_EQ(table->horizontalHeader()->visualIndex(column("F COST")), 3);
    EXPECT_EQ(table->horizontalHeader()->visualIndex(column("F CODE")), 4);
}

TEST_F(DataViewMenus, KnowColumnsByTheirPropertiesWhateverTheirHeadings)
{
    database.disconnect(&view);
    // As an earlier version has left it.
    settings.setValue(
        u"BOM"_s, u"PropertyEditorColumns"_s,
        uR"({"order": ["References", "F COST"], "hidden": ["F FIT"], "widths": {"F CODE": 123}})"_s);
    const auto seen = [this] {
        BOMDataView other;
        other.setPartsDatabase(&database);
        other.handleBOMDataUpdate();
        return columnsSeen(*other.findChild<BOMTableWidget *>()).join(u'|');
    };
    const QString before = seen();
    EXPECT_TRUE(before.startsWith(u"References"_s)) << qPrintable(before);
    EXPECT_LT(before.indexOf(u"F COST"_s), before.indexOf(u"Category"_s)) << qPrintable(before);
    EXPECT_TRUE(before.contains(u"F CODE 123"_s)) << qPrintable(before);
    EXPECT_FALSE(before.contains(u"F FIT"_s)) << qPrintable(before);
    BOMTemplate changed = database.currentTemplate();
    BOMFields fields;
    for (const BOMField &field : changed.fields().fields()) {
        BOMField renamed = field;
        renamed.fieldName.replace(u"F "_s, u"G "_s);
        fields.add(renamed);
    }
    changed.setFields(fields);
    database.setCurrentTemplate(changed);
    const QString after = seen();
    EXPECT_LT(after.indexOf(u"G COST"_s), after.indexOf(u"Category"_s)) << qPrintable(after);
    EXPECT_TRUE(after.contains(u"G CODE 123"_s)) << qPrintable(after);
    EXPECT_FALSE(after.contains(u"G FIT"_s)) << qPrintable(after);
}

} // namespace
