// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomtemplateimporter.h"

#include "core/bompartsdatabase.h"
#include "support/scopeddefinitions.h"
#include "support/scriptedui.h"
#include "support/testfiles.h"
#include "templates/templatepaths.h"
#include "templates/templatestore.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

const char *const scripts =
    "*BOM SCRIPT Plain\nCATEGORY=R,Resistors,1\nFIELD=CODE,9,Code,x,\"\",\"\",NO,0\n*END SCRIPT\n"
    "*BOM SCRIPT With MPN\nFIELD=MPN,9,MPN,x,\"\",\"\",NO,0\n"
    "FIELD=MAKER,9,Maker,x,\"\",\"\",NO,0\n*END SCRIPT\n*BOM SCRIPT\n*END SCRIPT\n";

class Importer : public testing::Test
{
protected:
    Importer()
    {
        setTemplatePaths({m_folder.filePath(QStringLiteral("templates"))});
        store.reload();
        writeFile(path(), scripts);
        dialog.open();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }
    ~Importer() override { setTemplatePaths({}); }

    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("old #1.BSF")); }
    template<class Widget>
    Widget *child(const char *name)
    {
        return dialog.findChild<Widget *>(QLatin1String(name));
    }
    void click(const char *button) { QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton); }
    void browse()
    {
        ui.fileName = path();
        click("fileBrowseBtn");
    }
    [[nodiscard]] QString name() { return child<QLineEdit>("templateNameEdit")->text(); }

    QTemporaryDir m_folder;
    ScopedDefinitions definitions{"\"CODE\",STRING"};
    ScriptedUi ui;
    BOMPartsDatabase database;
    TemplateStore store;
    BOMTemplateImporter dialog{&store, &database};
};

TEST_F(Importer, ListsTheScriptsOfAFile)
{
#ifndef Q_OS_WIN
    EXPECT_FALSE(child<QRadioButton>("regRadioBtn")->isEnabled());
    EXPECT_FALSE(child<QRadioButton>("regRadioBtn")->toolTip().isEmpty());
#endif
    EXPECT_FALSE(child<QPushButton>("importBtn")->isEnabled());
    browse();
    EXPECT_EQ(ui.fileRequests, (QList<ScriptedUi::FileRequest>{
                                   {QStringLiteral("Legacy BOM Script Export"), QString(),
                                    QStringLiteral("BOM Script File (*.BSF);;Text File (*.txt)")}}));
    auto *combo = child<QComboBox>("scriptsCombo");
    EXPECT_EQ(combo->count(), 3);
    EXPECT_EQ(name(), QStringLiteral("Plain"));
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(name(), QStringLiteral("With MPN"));
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(name(), QStringLiteral("Imported Template"));
    auto *edit = child<QLineEdit>("pathLineEdit");
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("x"));
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(combo->count(), 0);
    EXPECT_EQ(name(), QString());
    EXPECT_TRUE(combo->toolTip().contains(QStringLiteral("no such file")));
    EXPECT_FALSE(child<QPushButton>("importBtn")->isEnabled());
    EXPECT_TRUE(ui.warnings.isEmpty() && dialog.isVisible());
}

TEST_F(Importer, AddsTheScriptUnderAFreeName)
{
    browse();
    click("importBtn");
    EXPECT_EQ(ui.informations,
              (QList<ScriptedUi::Message>{
                  {QStringLiteral("Import Succeeded"),
                   QStringLiteral("The legacy BOM script imported successfully as 'Plain'")}}));
    EXPECT_EQ(store.currentName(), QStringLiteral("Plain"));
    EXPECT_EQ(store.storedTemplate(QStringLiteral("Plain")).categories().first().heading,
              QStringLiteral("Resistors"));
    EXPECT_TRUE(ui.questions.isEmpty());
    click("importBtn");
    EXPECT_EQ(ui.warnings,
              (QList<ScriptedUi::Message>{{QStringLiteral("Import Failed"),
                                           QStringLiteral("A template named 'Plain' already exists!")}}));
    click("reloadBtn");
    EXPECT_EQ(name(), QStringLiteral("Plain-copy"));
    auto *edit = child<QLineEdit>("templateNameEdit");
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral(" 5%1 "));
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_TRUE(store.contains(QStringLiteral("Plain-copy 5%1")));
    EXPECT_EQ(ui.informations.size(), 2);
}

TEST_F(Importer, OffersToDefineWhatIsUndefined)
{
    browse();
    child<QComboBox>("scriptsCombo")->setCurrentIndex(1);
    child<QLineEdit>("templateNameEdit")->setText(QStringLiteral("a/b"));
    click("importBtn");
    EXPECT_EQ(ui.informations.size(), 1) << "the name is refused";
    EXPECT_TRUE(ui.questions.isEmpty()) << "and nothing is to be defined for it";
    child<QLineEdit>("templateNameEdit")->setText(QStringLiteral("With MPN"));
    click("importBtn");
    const ScriptedUi::Message question{QStringLiteral("Undefined Physical Properties"),
                                       QStringLiteral("Define the 2 undefined physical properties?")};
    EXPECT_EQ(ui.questions, QList<ScriptedUi::Message>{question});
    EXPECT_TRUE(store.contains(QStringLiteral("With MPN"))) << "No imports it all the same";

    ui.answer = true;
    QStringList proposed;
    QTimer::singleShot(0, &dialog, [&] {
        QWidget *creator = QApplication::activeModalWidget();
        for (int i = 0; i < 2; ++i) {
            proposed += creator->findChild<QLineEdit *>(QStringLiteral("nameEdit"))->text();
            QTest::mouseClick(creator->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok),
                              Qt::LeftButton);
        }
    });
    child<QLineEdit>("templateNameEdit")->setText(QStringLiteral("Again"));
    click("importBtn");
    EXPECT_EQ(proposed.join(u','), QStringLiteral("MPN,MAKER"));
    DIDX index;
    ASSERT_TRUE(load_defaultdefs(&index, nullptr));
    EXPECT_TRUE(index.find(QStringLiteral("MPN")) && index.find(QStringLiteral("MAKER")));
    EXPECT_TRUE(store.contains(QStringLiteral("Again")));
}

} // namespace
