// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomtemplateimporter.h"

#include "core/bompartsdatabase.h"
#include "editors/dialogfixture.h"
#include "support/scopeddefinitions.h"
#include "templates/templatepaths.h"
#include "templates/templatestore.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>

namespace {

const char *const scripts =
    "*BOM SCRIPT Plain\nCATEGORY=R,Resistors,1\nFIELD=CODE,9,Code,x,\"\",\"\",NO,0\n*END SCRIPT\n"
    "*BOM SCRIPT With MPN\nFIELD=MPN,9,MPN,x,\"\",\"\",NO,0\n"
    "FIELD=MAKER,9,Maker,x,\"\",\"\",NO,0\n*END SCRIPT\n*BOM SCRIPT\n*END SCRIPT\n";

class Importer : public DialogFixture
{
protected:
    Importer()
    {
        setTemplatePaths({path(u"templates"_s)});
        store.reload();
        open(dialog);
    }
    ~Importer() override { setTemplatePaths({}); }

    void browse()
    {
        ui.fileName = writeFile(path(u"old #1.BSF"_s), scripts);
        click("fileBrowseBtn");
    }
    void importAs(const QString &name)
    {
        child<QLineEdit>("templateNameEdit")->setText(name);
        click("importBtn");
    }
    [[nodiscard]] QString name() const { return child<QLineEdit>("templateNameEdit")->text(); }

    ScopedDefinitions definitions{"\"CODE\",STRING"};
    BOMPartsDatabase database;
    TemplateStore store;
    BOMTemplateImporter dialog{&store, &database};
};

TEST_F(Importer, ListsTheScriptsOfAFile)
{
    EXPECT_FALSE(child<QRadioButton>("regRadioBtn")->isEnabled());
    EXPECT_FALSE(child<QRadioButton>("regRadioBtn")->toolTip().isEmpty());
    EXPECT_FALSE(child<QPushButton>("importBtn")->isEnabled());
    browse();
    EXPECT_EQ(ui.fileRequests,
              (QList<ScriptedUi::FileRequest>{{u"Legacy BOM Script Export"_s, QString(),
                                               u"BOM Script File (*.BSF);;Text File (*.txt)"_s}}));
    auto *combo = child<QComboBox>("scriptsCombo");
    EXPECT_EQ(combo->count(), 3);
    QStringList proposed{name()};
    combo->setFocus();
    for (int i = 1; i < 3; ++i) {
        QTest::keyClick(combo, Qt::Key_Down);
        proposed.append(name());
    }
    EXPECT_EQ(proposed, QStringList({u"Plain"_s, u"With MPN"_s, u"Imported Template"_s}));

    auto *edit = child<QLineEdit>("pathLineEdit");
    edit->setFocus();
    QTest::keyClicks(edit, u"x"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(combo->count(), 0);
    EXPECT_EQ(name(), QString());
    EXPECT_TRUE(combo->toolTip().contains(u"no such file"_s));
    EXPECT_FALSE(child<QPushButton>("importBtn")->isEnabled());
    EXPECT_TRUE(ui.warnings.isEmpty() && dialog.isVisible());
}

TEST_F(Importer, AddsTheScriptUnderAFreeName)
{
    browse();
    click("importBtn");
    EXPECT_EQ(ui.informations, (Messages{{u"Import Succeeded"_s,
                                          u"The legacy BOM script imported successfully as 'Plain'"_s}}));
    EXPECT_EQ(store.currentName(), u"Plain"_s);
    EXPECT_EQ(store.templates().stored(u"Plain"_s).categories().first().heading, u"Resistors"_s);
    EXPECT_TRUE(ui.questions.isEmpty());
    click("importBtn");
    EXPECT_EQ(ui.warnings, (Messages{{u"Import Failed"_s, u"A template named 'Plain' already exists!"_s}}));
    click("reloadBtn");
    EXPECT_EQ(name(), u"Plain-copy"_s);
    auto *edit = child<QLineEdit>("templateNameEdit");
    edit->setFocus();
    QTest::keyClicks(edit, u" 5%1 "_s);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_TRUE(store.templates().contains(u"Plain-copy 5%1"_s));
    EXPECT_EQ(ui.informations.size(), 2);
}

TEST_F(Importer, OffersToDefineWhatIsUndefined)
{
    browse();
    child<QComboBox>("scriptsCombo")->setCurrentIndex(1);
    importAs(u"a/b"_s);
    EXPECT_EQ(ui.informations.size(), 1) << "the name is refused";
    EXPECT_TRUE(ui.questions.isEmpty()) << "and nothing is to be defined for it";
    importAs(u"With MPN"_s);
    EXPECT_EQ(ui.questions, (Messages{{u"Undefined Physical Properties"_s,
                                       u"Define the 2 undefined physical properties?"_s}}));
    EXPECT_TRUE(store.templates().contains(u"With MPN"_s)) << "No imports it all the same";

    ui.answer = true;
    QStringList proposed;
    QTimer::singleShot(0, &dialog, [&] {
        QWidget *creator = QApplication::activeModalWidget();
        for (int i = 0; i < 2; ++i) {
            proposed += creator->findChild<QLineEdit *>(u"nameEdit"_s)->text();
            press(*creator, QDialogButtonBox::Ok);
        }
    });
    importAs(u"Again"_s);
    EXPECT_EQ(proposed.join(u','), u"MPN,MAKER"_s);
    DIDX index;
    ASSERT_TRUE(load_defaultdefs(&index, nullptr));
    EXPECT_TRUE(index.find(u"MPN"_s) && index.find(u"MAKER"_s));
    EXPECT_TRUE(store.templates().contains(u"Again"_s));
}

} // namespace
