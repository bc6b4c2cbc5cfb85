// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomcategoriestable.h"

#include "core/bompartsdatabase.h"
#include "editors/bomcategoryeditor.h"
#include "editors/dialogfixture.h"
#include "editors/modaldialog.h"
#include "support/fakenetlist.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTableWidget>
#include <QToolButton>

namespace {

class CategoriesTable : public testing::Test
{
protected:
    CategoriesTable()
    {
        for (const char *reference : {"RV1", "R1", "R2", "SW1A2"}) {
            netlist.add(reference, "x");
        }
        database.setNetlist(netlist.cache());
        database.load();
        categories.setPartsDatabase(&database);
        QObject::connect(&categories, &BOMCategoriesTable::bomCategoriesUpdated, &database,
                         &BOMPartsDatabase::updateBOMCategories);
        categories.setCategories({{u"Resistors"_s, {u"R"_s, u"RV"_s}, false},
                                  {u"Caps"_s, {u"C"_s}, false},
                                  {u"Rest"_s, {u"*"_s}, true}});
        categories.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&categories));
        table->setFocus();
    }

    [[nodiscard]] QString rows() const
    {
        QStringList rows;
        for (int row = 0; row < table->rowCount(); ++row) {
            rows.append(table->item(row, 0)->text() + u'=' + table->item(row, 1)->text());
        }
        EXPECT_EQ(database.currentTemplate().categories(), categories.categories());
        return rows.join(u'|');
    }
    void press(const char *name) const
    {
        QTest::mouseClick(categories.findChild<QToolButton *>(QLatin1String(name)), Qt::LeftButton);
    }
    /// Enters a heading and prefixes, and presses OK.
    static void enter(const QDialog &editor, const QString &heading, const QStringList &prefixes)
    {
        auto *edit = editor.findChild<QLineEdit *>(u"headingLineEdit"_s);
        edit->clear();
        QTest::keyClicks(edit, heading);
        for (qsizetype i = 0; i < prefixes.size(); ++i) {
            QLineEdit *prefix = combo(editor, int(i) + 1)->lineEdit();
            prefix->clear();
            QTest::keyClicks(prefix, prefixes[i]);
        }
        QTest::mouseClick(editor.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok),
                          Qt::LeftButton);
    }
    static QComboBox *combo(const QDialog &editor, int number)
    {
        return editor.findChild<QComboBox *>(u"ref%1Combo"_s.arg(number));
    }

    ScriptedUi ui;
    FakeNetlist netlist;
    BOMPartsDatabase database;
    BOMCategoriesTable categories;
    QTableWidget *table = categories.findChild<QTableWidget *>(u"tableWidget"_s);
    QSignalSpy updates{&categories, &BOMCategoriesTable::bomCategoriesUpdated};
};

TEST_F(CategoriesTable, AddsInFrontOfTheMiscellaneousOne)
{
    inDialog([this] { press("addBtn"); },
             [](QDialog &editor) {
                 QStringList offered;
                 for (int i = 0; i < combo(editor, 1)->count(); ++i) {
                     offered.append(combo(editor, 1)->itemText(i));
                 }
                 EXPECT_EQ(offered.join(u'|'), u"|R|RV|SW"_s);
                 enter(editor, u" Switches "_s, {u"SW"_s, QString(), u"sw"_s, u"SW, K"_s});
             });
    EXPECT_EQ(rows(), u"Resistors=R, RV|Caps=C|Switches=SW, K|Rest=*"_s);
    EXPECT_EQ(table->currentRow(), 2);
    EXPECT_EQ(updates.size(), 1);
    EXPECT_EQ(database.categoryOf(u"SW1A2"_s), u"Switches"_s);
    inDialog([this] { press("addBtn"); }, [](QDialog &editor) { editor.reject(); });
    EXPECT_EQ(table->rowCount(), 4);
    EXPECT_EQ(updates.size(), 1);
}

TEST_F(CategoriesTable, EditsMovesSortsAndDeletesInRowOrder)
{
    table->setCurrentCell(0, 0);
    inDialog([this] { press("editBtn"); },
             [](QDialog &editor) {
                 enter(editor, u"Resistances"_s, {u"R"_s, QString()});
             });
    QTest::keyClick(table, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(rows(), u"Caps=C|Resistances=R|Rest=*"_s);
    EXPECT_EQ(updates.size(), 2);
    QTest::keyClick(table, Qt::Key_Delete);
    EXPECT_EQ(rows(), u"Caps=C|Rest=*"_s);
    QTest::keyClick(table, Qt::Key_Delete);
    EXPECT_EQ(ui.informations,
              (Messages{{u"Cannot perform action"_s, u"The miscellaneous category is required."_s}}));
    EXPECT_EQ(updates.size(), 3);
    inDialog([this] { QTest::keyClick(table, Qt::Key_Return); },
             [](QDialog &editor) {
                 EXPECT_EQ(editor.findChild<QStackedWidget *>()->currentWidget()->objectName(),
                           u"miscPage"_s);
                 EXPECT_FALSE(combo(editor, 1)->isVisible());
                 enter(editor, u"Other"_s, {});
             });
    EXPECT_EQ(rows(), u"Caps=C|Other=*"_s);
    EXPECT_TRUE(categories.categories().last().isMiscCategory);
}

TEST_F(CategoriesTable, RefusesCategoriesThatCanHoldNoPart)
{
    table->setCurrentCell(1, 0);
    EXPECT_TRUE(inDialog([this] { press("editBtn"); },
                         [](QDialog &editor) {
                             enter(editor, u"  "_s, {});
                             enter(editor, u"Resistors"_s, {});
                             enter(editor, u"Caps"_s, {u"C"_s, u"RV"_s});
                             enter(editor, u"Caps"_s, {u"C12"_s, QString()});
                             enter(editor, u"Caps"_s, {QString()});
                         }));
    QStringList texts;
    for (const ScriptedUi::Message &message : std::as_const(ui.informations)) {
        EXPECT_EQ(message.title, u"Could not save category"_s);
        texts.append(message.text.left(44));
    }
    EXPECT_EQ(texts,
              (QStringList{u"The category needs a heading."_s, u"There is a category 'Resistors' already."_s,
                           u"The parts with the reference prefix 'RV' bel"_s,
                           u"'C12' cannot match any part: a reference pre"_s,
                           u"Choose at least one reference prefix: withou"_s}));
    EXPECT_EQ(updates.size(), 0);
}

TEST(CategoryEditor, KeepsMorePrefixesThanItHasBoxesFor)
{
    const BOMCategory many{u"Many"_s, {u"A"_s, u"B"_s, u"C"_s, u"D E"_s, u"F"_s}, false};
    BOMCategoryEditor editor(nullptr, many);
    EXPECT_EQ(editor.category(), many);
    editor.findChild<QComboBox *>(u"ref1Combo"_s)->setEditText(u"Z"_s);
    EXPECT_EQ(editor.category().references.join(u' '), u"Z B C D E F"_s);
}

} // namespace
