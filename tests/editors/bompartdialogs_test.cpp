// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "editors/bompartcreator.h"
#include "editors/bompartremover.h"
#include "editors/dialogfixture.h"
#include "editors/referencecombobox.h"
#include "support/fakecdb.h"
#include "support/fakenetlist.h"

#include <QAbstractItemModel>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include <memory>

namespace {

class BomPartDialog : public DialogFixture
{
protected:
    BomPartDialog()
    {
        netlist.add("R10", "1k");
        netlist.add("U2", "reg", {{"BOMPART1", "'2','SCR','M3 screw'"}, {"BOMPART2", "'1','PAD','soft'"}});
        netlist.add("R2", "1k");
        netlist.add("U1", "mcu", {{"BOMPART1", "'1','SOC','DIP'"}});
        database.setNetlist(netlist.cache());
        database.setCurrentTemplate(BOMTemplate());
        database.load();
    }

    template<class Dialog>
    Dialog &openDialog()
    {
        auto made = std::make_unique<Dialog>(&assignments, &database);
        Dialog &dialog = *made;
        m_dialog = std::move(made);
        open(dialog);
        return dialog;
    }
    [[nodiscard]] ReferenceComboBox &references(const char *name) const
    {
        return *child<ReferenceComboBox>(name);
    }
    [[nodiscard]] QString listed(const char *name) const
    {
        QStringList all;
        for (int i = 0; i < references(name).count(); ++i) {
            all.append(references(name).itemText(i));
        }
        return all.join(u' ');
    }
    void enter(const char *name, const QString &text) const
    {
        auto *edit = child<QLineEdit>(name);
        edit->clear();
        QTest::keyClicks(edit, text);
    }
    void enterReference(const char *name, const QString &text) const
    {
        references(name).setFocus();
        references(name).lineEdit()->selectAll();
        QTest::keyClicks(references(name).lineEdit(), text);
        QWidget *completions = QApplication::activePopupWidget();
        QTest::keyClick(completions ? completions : &references(name), Qt::Key_Tab);
    }
    [[nodiscard]] QString bomParts(const QString &parent) const
    {
        QStringList all;
        for (const BOMPart *part : database.bomParts(parent)) {
            all.append(part->reference() + u'=' + part->value());
        }
        return all.join(u' ');
    }

    FakeCdb cdb;
    FakeNetlist netlist;
    BOMPartsDatabase database;
    PropertyAssignments assignments{&database};

private:
    std::unique_ptr<QDialog> m_dialog;
};

TEST_F(BomPartDialog, CreatorListsPlacedPartsOfACategory)
{
    openDialog<BOMPartCreator>();
    EXPECT_EQ(listed("referenceCombo"), u"R2 R10 U1 U2"_s);
    enterReference("referenceCombo", u"u1"_s);
    EXPECT_EQ(references("referenceCombo").reference(), u"U1"_s);
    auto *categories = child<QComboBox>("categoriesCombo");
    EXPECT_EQ(categories->itemText(0), u"All"_s);
    categories->setCurrentIndex(categories->findText(u"Resistors"_s));
    EXPECT_EQ(listed("referenceCombo"), u"R2 R10"_s);
    EXPECT_EQ(references("referenceCombo").reference(), u"R2"_s);
    categories->setCurrentIndex(categories->findText(u"Diodes"_s));
    EXPECT_EQ(references("referenceCombo").reference(), QString());
}

TEST_F(BomPartDialog, CreatorWritesPartsAndStaysOpenForMore)
{
    BOMPartCreator &creator = openDialog<BOMPartCreator>();
    enterReference("referenceCombo", u"U2"_s);
    child<QSpinBox>("quantitySpinBox")->setValue(2);
    enter("refPrefixEdit", u"SCR"_s);
    enter("valueEdit", u"Bob's {\"screw\"}"_s);
    EXPECT_EQ(child<QLineEdit>("valueEdit")->text(), u"Bob's screw"_s)
        << "what cannot be stored cannot be typed";
    click("CreateBtn");
    EXPECT_EQ(bomParts(u"U2"_s),
              u"PAD1=soft SCR1=M3 screw SCR2=M3 screw SCR3=Bob's screw SCR4=Bob's screw"_s);
    EXPECT_TRUE(
        cdb.calls.contains(u"DATA NAME : U2-\n\"BOMPART3\"   :   \"'2','SCR','Bob\\'s screw'\"\nEND\n\n"_s));
    EXPECT_EQ(child<QLabel>("createdLabel")->text(), u"Created: SCR3,SCR4"_s);
    EXPECT_TRUE(creator.isVisible());
    enter("refPrefixEdit", u"PAD"_s);
    click("CreateBtn");
    EXPECT_EQ(database.bomParts(u"U2"_s).size(), 7);
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(creator.result(), QDialog::Accepted);
    EXPECT_EQ(database.bomParts(u"U2"_s).size(), 7) << "they are there already";
}

TEST_F(BomPartDialog, CreatorSaysWhatIsWrongAndKeepsTheInput)
{
    const QString prefix =
        u"The <b>Prefix</b> must not be empty.  Also, it must not end with a number or '\\'."_s;
    const QString value = u"<br>The <b>Value</b> must not be empty. Also, it must not end with a '\\'."_s;
    const struct
    {
        QString prefix;
        QString value;
        QString message;
    } cases[] = {
        {QString(), QString(), prefix + value},
        {u"R1"_s, u"x"_s, prefix},
        {u"R\\"_s, u"x"_s, prefix},
        {u" "_s, u"x"_s, prefix},
        {u"R"_s, u"x\\"_s, value},
    };
    BOMPartCreator &creator = openDialog<BOMPartCreator>();
    for (const auto &input : cases) {
        enter("refPrefixEdit", input.prefix);
        enter("valueEdit", input.value);
        click(QDialogButtonBox::Ok);
        EXPECT_EQ(std::exchange(ui.warnings, {}), (Messages{{u"Invalid Options"_s, input.message}}));
    }
    enter("valueEdit", u"x"_s);
    enterReference("referenceCombo", u"R1"_s);
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(ui.warnings.size(), 1) << "R1 is not listed";
    EXPECT_EQ(references("referenceCombo").currentText(), u"R1"_s);
    enterReference("referenceCombo", u"R10"_s);
    cdb.refusal = {{u"R10"_s, {}, {}, 0, u"is locked"_s}};
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(ui.warnings.last(),
              (ScriptedUi::Message{u"Could not create BOM parts"_s, u"R10: is locked"_s}));
    EXPECT_TRUE(creator.isVisible());
    EXPECT_EQ(child<QLineEdit>("valueEdit")->text(), u"x"_s);
    EXPECT_EQ(references("referenceCombo").reference(), u"R10"_s);
    EXPECT_EQ(bomParts(u"R10"_s), QString());
    netlist.clear();
    netlist.add("R1", "1k");
    database.reload();
    EXPECT_EQ(references("referenceCombo").currentText(), u"R10"_s);
    EXPECT_EQ(references("referenceCombo").reference(), QString()) << "no other part takes its place";
    netlist.add("R10", "1k");
    database.reload();
    cdb.refusal.clear();
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(bomParts(u"R10"_s), u"R11=x"_s);
    EXPECT_EQ(creator.result(), QDialog::Accepted);
}

TEST_F(BomPartDialog, RemoverTakesTheChosenPartAway)
{
    BOMPartRemover &remover = openDialog<BOMPartRemover>();
    EXPECT_EQ(listed("parentRefCombo"), u"U1 U2"_s);
    EXPECT_EQ(listed("bomPartRefCombo"), u"SOC1"_s);
    EXPECT_EQ(child<QLabel>("valueLabel")->text(), u"DIP"_s);
    enterReference("parentRefCombo", u"U"_s);
    EXPECT_FALSE(child<QPushButton>("removeBtn")->isEnabled()) << "no part is called so";
    enterReference("parentRefCombo", u"u2"_s);
    EXPECT_EQ(listed("bomPartRefCombo"), u"PAD1 SCR1 SCR2"_s);
    enterReference("bomPartRefCombo", u"SCR2"_s);
    netlist.clear();
    netlist.add("U1", "mcu", {{"BOMPART1", "'1','SOC','DIP'"}});
    netlist.add("U2", "reg", {{"BOMPART1", "'1','SCR','M3 screw'"}, {"BOMPART2", "'1','PAD','soft'"}});
    database.reload();
    EXPECT_EQ(references("bomPartRefCombo").currentText(), u"SCR2"_s);
    EXPECT_FALSE(child<QPushButton>("removeBtn")->isEnabled()) << "it is gone, and no other is meant";
    enterReference("bomPartRefCombo", u"SCR1"_s);
    cdb.refusal = {{u"U2"_s, {}, {}, 0, u"is locked"_s}};
    click("removeBtn");
    EXPECT_EQ(ui.warnings, (Messages{{u"Could not remove the BOM part"_s, u"U2: is locked"_s}}));
    EXPECT_TRUE(remover.isVisible());
    EXPECT_EQ(references("bomPartRefCombo").reference(), u"SCR1"_s);
    cdb.refusal.clear();
    click("removeBtn");
    EXPECT_EQ(remover.result(), QDialog::Accepted);
    EXPECT_EQ(database.part(u"SCR1"_s), nullptr);
    EXPECT_EQ(bomParts(u"U2"_s), u"PAD1=soft"_s);
}

TEST_F(BomPartDialog, StartWithTheSelectedPart)
{
    openDialog<BOMPartRemover>().setReference(u"SCR2"_s);
    EXPECT_EQ(references("parentRefCombo").reference(), u"U2"_s);
    EXPECT_EQ(references("bomPartRefCombo").reference(), u"SCR2"_s);
    openDialog<BOMPartCreator>().setParentReference(u"R10"_s);
    EXPECT_EQ(references("referenceCombo").reference(), u"R10"_s);
}

TEST_F(BomPartDialog, CanDoNothingWithoutADesign)
{
    BOMPartCreator creator(nullptr, nullptr);
    BOMPartRemover remover(nullptr, nullptr);
    creator.setParentReference(u"R1"_s);
    remover.setReference(u"R1"_s);
    for (const QDialog *dialog : {static_cast<QDialog *>(&creator), static_cast<QDialog *>(&remover)}) {
        EXPECT_FALSE(dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled());
        EXPECT_FALSE(dialog->findChild<QWidget *>(u"input"_s)->isEnabled());
    }
}

} // namespace
