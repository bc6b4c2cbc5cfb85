// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomfieldstable.h"

#include "core/bompartsdatabase.h"
#include "editors/bomfieldeditor.h"
#include "editors/columntitle.h"
#include "editors/dialogfixture.h"
#include "editors/fieldwidthspinbox.h"
#include "editors/modaldialog.h"
#include "support/fakenetlist.h"
#include "support/scopeddefinitions.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableWidget>
#include <QToolButton>

namespace {

class FieldsTable : public testing::Test
{
protected:
    FieldsTable()
    {
        netlist.add("R1", "10k");
        netlist.cache()->propertyNames = {"MPN", "BOMPART1", "cost", "BOMLINKS"};
        database.setNetlist(netlist.cache());
        database.load();
        fields.setPartsDatabase(&database);
        QObject::connect(&fields, &BOMFieldsTable::bomFieldsUpdated, &database,
                         &BOMPartsDatabase::updateBOMFields);
        BOMFields given;
        given.setDefaults();
        fields.setFields(given);
        fields.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&fields));
        table->setFocus();
    }

    [[nodiscard]] QString titles() const
    {
        EXPECT_EQ(database.currentTemplate().fields(), fields.fields()) << "the database has what is shown";
        QStringList titles;
        for (int row = 0; row < table->rowCount(); ++row) {
            titles.append(table->item(row, 0)->text());
        }
        EXPECT_EQ(fields.fields().names(), titles);
        return titles.join(u'|');
    }
    [[nodiscard]] QString enabled() const
    {
        QString names;
        for (const char *name : {"moveUpBtn", "addBtn", "editBtn", "deleteBtn", "moveDownBtn"}) {
            names += button(name)->isEnabled() ? QLatin1String(name).chopped(3) + u' ' : QString();
        }
        return names.trimmed();
    }
    [[nodiscard]] QToolButton *button(const char *name) const
    {
        return fields.findChild<QToolButton *>(QLatin1String(name));
    }
    void press(const char *name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(table, key, modifiers);
    }
    void clickHeading(int column) const
    {
        QHeaderView *header = table->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          {header->sectionViewportPosition(column) + 8, header->height() / 2});
    }
    static void enter(const QDialog &editor, const char *name, const QString &text)
    {
        auto *widget = editor.findChild<QWidget *>(QLatin1String(name));
        if (auto *combo = qobject_cast<QComboBox *>(widget)) {
            widget = combo->lineEdit();
        }
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(widget, text);
        QWidget *completions = QApplication::activePopupWidget();
        QTest::keyClick(completions ? completions : widget, Qt::Key_Tab);
    }
    static QString shown(const QDialog &editor, const char *name)
    {
        return editor.findChild<QLineEdit *>(QLatin1String(name))->text();
    }
    static void ok(QDialog &editor)
    {
        QTest::mouseClick(editor.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok),
                          Qt::LeftButton);
    }

    ScriptedUi ui;
    ScopedDefinitions definitions{"\"COST\",FLOAT,\"Unit Cost\"\n\"ROHS\",YESNO"};
    FakeNetlist netlist;
    BOMPartsDatabase database;
    BOMFieldsTable fields;
    QTableWidget *table = fields.findChild<QTableWidget *>(u"tableWidget"_s);
    QSignalSpy updates{&fields, &BOMFieldsTable::bomFieldsUpdated};
    QSignalSpy modified{&database, &BOMPartsDatabase::currentTemplateModified};
};

TEST_F(FieldsTable, MovesRowsByButtonsAndKeysAndStopsAtTheEnds)
{
    EXPECT_EQ(enabled(), u"add"_s);
    table->setCurrentCell(2, 1);
    EXPECT_EQ(enabled(), u"moveUp add edit delete"_s);
    press("moveUpBtn");
    EXPECT_EQ(titles(), u"Value|Unit Cost|Stock Code"_s);
    key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(titles(), u"Unit Cost|Value|Stock Code"_s);
    EXPECT_EQ(enabled(), u"add edit delete moveDown"_s);
    EXPECT_EQ(updates.size(), 2);
    EXPECT_TRUE(modified.last().first().toBool());
    key(Qt::Key_Up, Qt::ControlModifier);
    fields.moveUp();
    EXPECT_EQ(updates.size(), 2) << "it is the first one";
    for (int i = 0; i < 3; ++i) {
        key(Qt::Key_Down, Qt::ControlModifier);
    }
    EXPECT_EQ(titles(), u"Value|Stock Code|Unit Cost"_s);
    EXPECT_EQ(table->currentRow(), 2);
    EXPECT_EQ(updates.size(), 4);
}

TEST_F(FieldsTable, ClickedHeadingsOrderTheReportUntilARowMoves)
{
    clickHeading(0);
    EXPECT_EQ(titles(), u"Stock Code|Unit Cost|Value"_s);
    clickHeading(0);
    EXPECT_EQ(titles(), u"Value|Unit Cost|Stock Code"_s);
    EXPECT_EQ(updates.size(), 2);
    table->setCurrentCell(0, 0);
    press("moveDownBtn");
    EXPECT_FALSE(table->isSortingEnabled());
    clickHeading(0);
    EXPECT_EQ(titles(), u"Stock Code|Unit Cost|Value"_s) << "upwards again";
    BOMFields other;
    other.setDefaults();
    fields.setFields(other);
    EXPECT_EQ(table->item(0, 0)->text(), u"Value"_s) << "a template comes in its own order";
    EXPECT_EQ(updates.size(), 4) << "and is no change";
}

TEST_F(FieldsTable, KeepsTheValueField)
{
    table->setCurrentCell(0, 0);
    EXPECT_EQ(enabled(), u"add moveDown"_s);
    key(Qt::Key_Delete);
    key(Qt::Key_Return);
    EXPECT_EQ(ui.informations,
              (Messages{{u"Could not remove field"_s, u"The 'VALUE' field is required"_s},
                        {u"Could not edit field"_s, u"The 'VALUE' field is not editable"_s}}));
    BOMFields without;
    BOMField other;
    other.fieldName = u"Value"_s;
    other.propertyName = u"MPN"_s;
    without.add(other);
    fields.setFields(without);
    EXPECT_EQ(fields.fields().names(), (QStringList{u"Value 2"_s, u"Value"_s}));
    EXPECT_EQ(fields.fields().fields().first().propertyName, u"VALUE"_s);
    EXPECT_EQ(updates.size(), 0);
}

TEST_F(FieldsTable, DeletesAndGoesOnToTheNextRow)
{
    table->setCurrentCell(1, 0);
    key(Qt::Key_Delete);
    EXPECT_EQ(titles(), u"Value|Unit Cost"_s);
    EXPECT_EQ(table->currentRow(), 1);
    press("deleteBtn");
    EXPECT_EQ(titles(), u"Value"_s);
    EXPECT_EQ(enabled(), u"add"_s);
}

TEST_F(FieldsTable, AddsAFieldWithTheTitleOfItsProperty)
{
    table->setCurrentCell(1, 0);
    inDialog([this] { key(Qt::Key_Insert); },
             [this](QDialog &editor) {
                 EXPECT_EQ(table->rowCount(), 4);
                 auto *properties = editor.findChild<QComboBox *>(u"propertyNameCombo"_s);
                 QStringList offered;
                 for (int i = 0; i < properties->count(); ++i) {
                     offered.append(properties->itemText(i));
                 }
                 EXPECT_EQ(offered.join(u'|'), u"cost|MPN|ROHS|.Name|.Placed|PACKAGE"_s);
                 EXPECT_EQ(properties->currentIndex(), -1);
                 enter(editor, "propertyNameCombo", u"cost"_s);
                 EXPECT_EQ(shown(editor, "fieldTitleEdit"), u"Unit Cost"_s) << "its description";
                 enter(editor, "propertyNameCombo", u"mpn"_s);
                 EXPECT_EQ(shown(editor, "fieldTitleEdit"), u"MPN"_s);
                 enter(editor, "suffixEdit", u" EUR"_s);
                 enter(editor, "fieldWidthSpinBox", u"12"_s);
                 enter(editor, "floatingPrecisionLineEdit", u"3x"_s);
                 ok(editor);
             });
    EXPECT_EQ(titles(), u"Value|Stock Code|Unit Cost|MPN"_s);
    EXPECT_EQ(table->currentRow(), 3);
    BOMField added;
    added.fieldName = u"MPN"_s;
    added.propertyName = u"MPN"_s;
    added.suffix = u" EUR"_s;
    added.fieldWidth = 12;
    added.precision = 3;
    EXPECT_EQ(fields.fields().fields().last(), added);
    EXPECT_EQ(updates.size(), 1);
    inDialog([this] { press("addBtn"); }, [](QDialog &editor) { QTest::keyClick(&editor, Qt::Key_Escape); });
    EXPECT_EQ(titles(), u"Value|Stock Code|Unit Cost|MPN"_s);
    EXPECT_EQ(table->currentRow(), 3);
}

TEST_F(FieldsTable, TellsWhyAFieldIsRefusedAndKeepsTheInput)
{
    EXPECT_TRUE(inDialog([this] { press("addBtn"); },
                         [](QDialog &editor) {
                             enter(editor, "fieldTitleEdit", u" A%1 "_s);
                             ok(editor);
                             enter(editor, "propertyNameCombo", u"MPN"_s);
                             enter(editor, "fieldTitleEdit", u"Unit Cost"_s);
                             ok(editor);
                             enter(editor, "propertyNameCombo", u"Value"_s);
                             ok(editor);
                             EXPECT_EQ(shown(editor, "fieldTitleEdit"), u"Unit Cost"_s);
                             enter(editor, "fieldTitleEdit", u"unit cost"_s);
                             ok(editor);
                         }));
    EXPECT_EQ(std::exchange(ui.informations, {}),
              (Messages{{u"Could not save field"_s,
                         u"Field 'A%1' requires a valid name and its property '' to be defined."_s},
                        {u"Could not add field"_s, u"Field name 'Unit Cost' already in use"_s},
                        {u"Could not add field"_s, u"Field name 'Unit Cost' already in use"_s},
                        {u"Could not save field"_s, u"The property 'Value' has a field already."_s}}));
    EXPECT_EQ(table->rowCount(), 3);
    EXPECT_EQ(updates.size(), 0);
}

TEST_F(FieldsTable, RenamesAFieldInItsPlace)
{
    table->setCurrentCell(1, 0);
    EXPECT_TRUE(inDialog([this] { press("editBtn"); },
                         [](QDialog &editor) {
                             enter(editor, "fieldTitleEdit", u"Unit Cost"_s);
                             ok(editor);
                         }));
    EXPECT_EQ(ui.informations,
              (Messages{{u"Could not rename field"_s, u"Field name 'Unit Cost' already in use"_s}}));
    inDialog([this] { key(Qt::Key_Return); }, [](QDialog &editor) { ok(editor); });
    EXPECT_EQ(updates.size(), 0) << "nothing changed";
    const QPoint row = table->visualItemRect(table->item(1, 0)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, row);
    inDialog([this, row] { QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, row); },
             [](QDialog &editor) {
                 EXPECT_EQ(editor.findChild<QComboBox *>()->currentText(), u"CODE"_s);
                 enter(editor, "fieldTitleEdit", u"Stock"_s);
                 ok(editor);
             });
    EXPECT_EQ(titles(), u"Value|Stock|Unit Cost"_s);
    EXPECT_TRUE(fields.fields().get(u"Stock"_s).enableLinks);
    EXPECT_FALSE(fields.fields().contains(u"Stock Code"_s));
}

TEST_F(FieldsTable, DefinesAPropertyOnTheWay)
{
    inDialog([this] { press("addBtn"); },
             [](QDialog &editor) {
                 enter(editor, "propertyNameCombo", u"Tray"_s);
                 auto *create = editor.findChild<QPushButton *>(u"newPropertyBtn"_s);
                 inDialog([create] { QTest::mouseClick(create, Qt::LeftButton); },
                          [](QDialog &creator) {
                              EXPECT_EQ(shown(creator, "nameEdit"), u"Tray"_s);
                              enter(creator, "descEdit", u"Place in store"_s);
                              ok(creator);
                          });
                 EXPECT_EQ(shown(editor, "fieldTitleEdit"), u"Place in store"_s);
                 ok(editor);
             });
    EXPECT_EQ(titles(), u"Value|Stock Code|Unit Cost|Place in store"_s);
    EXPECT_EQ(fields.fields().fields().last().propertyName, u"Tray"_s);
}

TEST_F(FieldsTable, SurvivesAWindowThatIsClosedWhileAFieldIsEdited)
{
    auto *closed = new BOMFieldsTable;
    closed->setFields(fields.fields());
    QTimer::singleShot(0, closed, [closed] { delete closed; });
    closed->addField();
    EXPECT_EQ(updates.size(), 0);
}

TEST(FieldEditor, KeepsWhatItDoesNotShowAndNumbersOutOfRange)
{
    BOMField odd;
    odd.fieldName = u" Odd "_s;
    odd.propertyName = u" odd "_s;
    odd.fieldWidth = 2'000'000;
    odd.fieldLines = -3;
    odd.precision = 99;
    odd.asciiWidth = 7;
    odd.manualWidth = 8;
    EXPECT_EQ(BOMFieldEditor(nullptr, odd).field(), odd);
}

TEST(FieldWidthBox, ReadsNumbersWithAndWithoutUnit)
{
    FieldWidthSpinBox box;
    EXPECT_EQ(box.text(), u"No Limit"_s);
    const std::tuple<QString, int, QString> typed[] = {
        {u"12"_s, 12, u"12 Characters"_s}, {u"7 Characters"_s, 7, u"7 Characters"_s},
        {QString(), 0, u"No Limit"_s},     {u"5"_s, 5, u"5 Characters"_s},
        {u"no limit"_s, 0, u"No Limit"_s}, {u"9999"_s, 999, u"999 Characters"_s},
        {u"0"_s, 0, u"No Limit"_s},
    };
    for (const auto &[text, value, shown] : typed) {
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_Delete);
        QTest::keyClicks(&box, text);
        QTest::keyClick(&box, Qt::Key_Return);
        EXPECT_EQ(box.value(), value) << qPrintable(text);
        EXPECT_EQ(box.text(), shown);
    }
}

TEST(ColumnTitles, ReadLikeHeadings)
{
    const std::pair<QString, QString> titles[] = {
        {u"UNIT_COST"_s, u"Unit cost"_s}, {u"MPN"_s, u"MPN"_s},
        {u"SKU_NO"_s, u"SKU no"_s},       {u"Manufacturer_Name"_s, u"Manufacturer Name"_s},
        {u"manf#"_s, u"Manf#"_s},         {u"Digi-Key_PN"_s, u"Digi-Key PN"_s},
        {u"PACKAGE"_s, u"Package"_s},     {u".Placed"_s, u"Placed"_s},
        {u"LCSC#"_s, u"LCSC#"_s},         {u"_"_s, u"_"_s},
    };
    for (const auto &[name, title] : titles) {
        EXPECT_EQ(columnTitle(name), title);
    }
}

} // namespace
