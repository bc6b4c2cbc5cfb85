// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/module/bomviewerfixture.h"

#include "host/framework/hostsettings.h"
#include "templates/templatepaths.h"
#include "views/bomexcelview.h"
#include "views/bomhtmlview.h"

#include <QLineEdit>
#include <QTest>

TEST_F(BomViewer, BuildsItsWindowOnce)
{
    module().onvalidate();
    EXPECT_EQ(module().createwindow(nullptr, 0), nullptr);
    BOMMainWindow *first = mainWindow();
    EXPECT_TRUE(report().contains(u"10k"_s));

    EXPECT_EQ(mainWindow(), first);
    EXPECT_EQ(host.frame.widgets, 1);
    EXPECT_EQ(host.frame.menus.keys(), QList<unsigned>({273, 274, 275, 276, 277}));
    EXPECT_EQ(module().getprimarywindow(), first);
}

TEST_F(BomViewer, GivesTheKeyboardToTheReportOfADesignThatWasOpened)
{
    QLineEdit field;
    host.frame.window.addToolBar(u"bar"_s)->addWidget(&field);
    field.setFocusPolicy(Qt::NoFocus);
    host.frame.window.show();
    host.frame.window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&host.frame.window));
    module().onvalidate();
    EXPECT_TRUE(mainWindow()->findChild<TextEdit *>()->hasFocus());
    field.setFocus();
    module().onvalidate();
    EXPECT_TRUE(field.hasFocus());
    module().removewindow(mainWindow());
    flush();
    field.setFocus();
    (void)mainWindow();
    EXPECT_TRUE(field.hasFocus());
}

TEST_F(BomViewer, RemovesOnlyItsOwnWindow)
{
    const QPointer<BOMMainWindow> first(mainWindow());
    class Other final : public APPLNWINDOW
    {
        bool createwindow(APPLNFRAME *) override { return true; }
        bool isvisible() const override { return false; }
        void showwindow(unsigned) override {}
        void updatewindow() override {}
        void addctrlbar(QToolBar *, unsigned, unsigned) override {}
    } other;
    other.setowner(&module());

    module().removewindow(&other);
    flush();
    EXPECT_EQ(other.getowner(), nullptr);
    EXPECT_EQ(mainWindow(), first);

    module().removewindow(first);
    EXPECT_EQ(module().getprimarywindow(), nullptr);
    EXPECT_FALSE(viewer().isvisible());
    EXPECT_FALSE(first.isNull());
    flush();
    EXPECT_TRUE(first.isNull());
    EXPECT_TRUE(host.frame.menus.isEmpty() && host.frame.bars.isEmpty());

    module().onvalidate();
    EXPECT_TRUE(report().contains(u"10k"_s));
    EXPECT_EQ(host.frame.widgets, 1);
}

TEST_F(BomViewer, WritesReportsAfterAskingAboutDuplicates)
{
    module().onvalidate();
    trigger("&CSV");
    EXPECT_TRUE(ui.questions.isEmpty());
    EXPECT_EQ(ui.fileRequests.size(), 1);

    for (const char *reference : {"R1", "R1", "C3"}) {
        host.server.netlist.add(reference, "2k");
    }
    host.server.cache->invalidate();
    module().onvalidate();
    trigger("&ASCII");
    ASSERT_EQ(ui.questions.size(), 1);
    EXPECT_EQ(ui.questions[0].title, u"Duplicate References Detected"_s);
    EXPECT_EQ(ui.questions[0].text,
              u"The following references have duplicates:\nR1, C3\nGenerate output anyway?"_s);
    EXPECT_EQ(ui.fileRequests.size(), 1);

    ui.answer = true;
    for (const char *text : {"&ASCII", "&CSV", "&PDF", "&HTML", "&Open In Excel", "&Open In Excel"}) {
        trigger(text);
    }
    EXPECT_EQ(ui.fileRequests.size(), 7);
    EXPECT_EQ(mainWindow()->findChildren<BOMExcelView *>().size(), 1);
}

TEST_F(BomViewer, StartsWithTheTemplateThatWasCurrentLast)
{
    MemoryHostSettings settings;
    HostSettings::install(&settings);
    settings.setValue(u"BOM"_s, u"CurrentTemplate"_s, u"House"_s);
    module().onvalidate();
    BOMTemplate house;
    house.setName(u"House"_s);
    house.setCategories({{u"Things That Resist"_s, {u"R"_s}, false}});
    ASSERT_TRUE(house.save());

    EXPECT_TRUE(report().contains(u"Things That Resist"_s));
    // It lacks a place for C3, which is told and mended.
    EXPECT_TRUE(report().contains(u"1u"_s));
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_TRUE(ui.warnings[0].text.contains(u"House.bomt"_s));
    HostSettings::install(nullptr);
}

TEST_F(BomViewer, KeepsChangesOfTheTemplateUntilTheUserHasDecided)
{
    module().onvalidate();
    EXPECT_TRUE(mainWindow()->canbeclosed());
    BOMPartsDatabase *database = BOMPartsDatabase::instance();
    BOMTemplate changed = database->currentTemplate();
    changed.setGroupReferences(false);
    ASSERT_TRUE(database->setTemplateOptions(changed));
    EXPECT_FALSE(mainWindow()->canbeclosed());

    module().removewindow(mainWindow());
    flush();
    EXPECT_EQ(ui.saveQuestions.size(), 1);
    (void)mainWindow();
    EXPECT_FALSE(database->currentTemplate().groupReferences());
    ui.saveAnswer = HostUi::SaveAnswer::Discard;
    EXPECT_TRUE(mainWindow()->canbeclosed());
    EXPECT_TRUE(database->currentTemplate().groupReferences());
    EXPECT_TRUE(mainWindow()->canbeclosed());
    EXPECT_EQ(ui.saveQuestions.size(), 2);

    ASSERT_TRUE(database->setTemplateOptions(changed));
    ui.saveAnswer = HostUi::SaveAnswer::Save;
    EXPECT_TRUE(mainWindow()->canbeclosed());
    QString problem;
    const auto saved = BOMTemplate::fromFile(templateFilePath(u"Default"_s), &problem);
    EXPECT_TRUE(saved && !saved->groupReferences()) << problem.toStdString();

    // What the view changes by itself reaches the store as well.
    Q_EMIT mainWindow()->findChild<BOMHTMLView *>()->currentTemplateModified(true);
    ui.saveAnswer = HostUi::SaveAnswer::Cancel;
    EXPECT_FALSE(mainWindow()->canbeclosed());
}

TEST_F(BomViewer, TakesTheTipOfACommandAwayAfterIt)
{
    (void)mainWindow();
    host.frame.statusText = u"Output BOM in CSV"_s;
    trigger("&CSV");
    QCoreApplication::processEvents();
    EXPECT_EQ(host.frame.statusText, QString());
}

TEST_F(BomViewer, ReloadsByHandEvenWhenItWasSuspended)
{
    module().onvalidate();
    viewer().designChanged(false);
    (void)mainWindow();
    trigger("Reload The &BOM");
    EXPECT_FALSE(BOMPartsDatabase::instance()->isUpdating());
    EXPECT_TRUE(report().contains(u"10k"_s));
}

TEST_F(BomViewer, TheHtmlOutputIsInNoMenu)
{
    QAction *html = action(u"&HTML"_s);
    (void)mainWindow();
    EXPECT_EQ(html->shortcut(), QKeySequence(u"Ctrl+Alt+H"_s));
    EXPECT_EQ(html->associatedObjects(), QList<QObject *>{mainWindow()});
    EXPECT_EQ(host.frame.menus[274]->actions().size(), 9);
}
