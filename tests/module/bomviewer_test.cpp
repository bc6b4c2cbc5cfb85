// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/bomviewer.h"

#include "core/bompartsdatabase.h"
#include "host/framework/hostsettings.h"
#include "host/richtext/textedit.h"
#include "module/bommainwindow.h"
#include "support/scriptedui.h"
#include "tests/module/modulehost.h"
#include "views/bomexcelview.h"
#include "views/bomhtmlview.h"

#include <QAction>
#include <QCoreApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QToolBar>

#include <gtest/gtest.h>

#include <memory>

namespace {

/// A module that runs in a host whose design has R1 and C3.
class BomViewer : public testing::Test
{
protected:
    BomViewer()
    {
        host.server.netlist.add("R1", "10k");
        host.server.netlist.add("C3", "1u");
    }
    ~BomViewer() override
    {
        if (m_module) {
            m_module->removewindow(m_module->getprimarywindow());
        }
        flush();
    }

    BOMVIEWER &module()
    {
        if (!m_module) {
            m_module = std::make_unique<BOMVIEWER>(&host);
        }
        return *m_module;
    }
    void endModule() { m_module.reset(); }
    IBOMVIEWER &viewer() { return *static_cast<IBOMVIEWER *>(module().queryinterface(INTERFACE_BOMVIEWER)); }
    BOMMainWindow *mainWindow()
    {
        return static_cast<BOMMainWindow *>(module().createwindow(&host.frame, 0));
    }
    QString report() { return mainWindow()->findChild<TextEdit *>()->document()->getHtml(); }
    QAction *action(const QString &text)
    {
        for (QAction *found : mainWindow()->findChildren<QAction *>()) {
            if (found->text() == text) {
                return found;
            }
        }
        return nullptr;
    }
    void trigger(const char *text) { action(QLatin1String(text))->trigger(); }
    static void flush() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    ScriptedUi ui;
    ModuleHost host;

private:
    std::unique_ptr<BOMVIEWER> m_module;
};

} // namespace

TEST_F(BomViewer, AsksForTheDesignBeforeItIsTheModule)
{
    const BOMVIEWER *duringConstruction = BOMVIEWER::instance();
    bool hadServer = false;
    host.onProject = [&] {
        duringConstruction = BOMVIEWER::instance();
        hadServer = host.server.cache != nullptr;
    };
    module().onvalidate();

    EXPECT_EQ(duringConstruction, nullptr);
    EXPECT_TRUE(hadServer);
    EXPECT_EQ(BOMVIEWER::instance(), &module());
    EXPECT_EQ(module().getapplnname(), QStringLiteral("BOM"));
    EXPECT_EQ(module().getapplntitle(), QStringLiteral("Bill of Materials"));
    EXPECT_EQ(std::pair(host.server.context, host.server.detail), std::pair(1, 35));
    EXPECT_EQ(BOMPartsDatabase::instance()->parts().size(), 2U);
}

TEST_F(BomViewer, DoesWithoutServerAndProject)
{
    host.hasServer = false;
    host.hasProject = false;
    module().onvalidate();
    Q_EMIT host.design.modified(&host.design);

    EXPECT_NE(mainWindow(), nullptr);
    EXPECT_TRUE(BOMPartsDatabase::instance()->parts().empty());
}

TEST_F(BomViewer, OffersItselfUnderTwoNumbers)
{
    IMODULE *part = module().queryinterface(8);
    ASSERT_NE(part, nullptr);
    EXPECT_EQ(part, module().queryinterface(10));
    EXPECT_EQ(part->queryinterface(8), part);
    EXPECT_EQ(module().queryinterface(7), nullptr);

    module().setinterface(7, &host.server);
    EXPECT_EQ(part->queryinterface(7), static_cast<IMODULE *>(&host.server));
}

TEST_F(BomViewer, BuildsItsWindowOnce)
{
    module().onvalidate();
    EXPECT_EQ(module().createwindow(nullptr, 0), nullptr);
    BOMMainWindow *first = mainWindow();
    EXPECT_TRUE(report().contains(QStringLiteral("10k")));

    EXPECT_EQ(mainWindow(), first);
    EXPECT_EQ(host.frame.widgets, 1);
    EXPECT_EQ(host.frame.menus.keys(), QList<unsigned>({273, 274}));
    EXPECT_EQ(module().getprimarywindow(), first);
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
    EXPECT_TRUE(report().contains(QStringLiteral("10k")));
    EXPECT_EQ(host.frame.widgets, 1);
}

TEST_F(BomViewer, AChangeWithoutReloadIsSilentUntilTheNextOne)
{
    module().onvalidate();
    BOMPartsDatabase *database = BOMPartsDatabase::instance();
    QSignalSpy changes(database, &BOMPartsDatabase::dataChanged);

    viewer().designChanged(false);
    EXPECT_TRUE(database->isUpdating());
    EXPECT_TRUE(database->parts().empty());
    viewer().designChanged(true);

    EXPECT_FALSE(database->isUpdating());
    EXPECT_EQ(database->parts().size(), 2U);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(host.getcontext(), nullptr);
}

TEST_F(BomViewer, AStaleDesignThatCannotBeSentLeavesTheDatabaseSuspended)
{
    module().onvalidate();
    host.server.canSend = false;
    host.server.cache->invalidate();
    module().onvalidate();
    EXPECT_TRUE(BOMPartsDatabase::instance()->isUpdating());

    host.server.canSend = true;
    module().onvalidate();
    EXPECT_FALSE(BOMPartsDatabase::instance()->isUpdating());
    EXPECT_EQ(BOMPartsDatabase::instance()->parts().size(), 2U);
}

TEST_F(BomViewer, IgnoresChangesWhileItWrites)
{
    module().onvalidate();
    BOMPartsDatabase *database = BOMPartsDatabase::instance();
    QSignalSpy changes(database, &BOMPartsDatabase::dataChanged);

    database->setWriting(true);
    viewer().designChanged(false);
    viewer().designChanged(true);
    EXPECT_EQ(changes.size(), 0);
    EXPECT_FALSE(database->isUpdating());
    EXPECT_EQ(host.getcontext(), nullptr);

    database->setWriting(false);
    EXPECT_EQ(changes.size(), 1);
    database->setWriting(false);
    EXPECT_EQ(changes.size(), 1);
}

TEST_F(BomViewer, WorksInItsOwnContext)
{
    const APPLNMODULE *sender = nullptr;
    host.server.onSend = [&] { sender = host.getcontext(); };
    module().onvalidate();
    EXPECT_EQ(sender, &module());

    const APPLNMODULE *painter = nullptr;
    QObject::connect(BOMPartsDatabase::instance(), &BOMPartsDatabase::dataChanged, mainWindow(),
                     [&] { painter = host.getcontext(); });
    viewer().designChanged(true);
    EXPECT_EQ(painter, &module());
    EXPECT_EQ(host.getcontext(), nullptr);
}

TEST_F(BomViewer, OthersCanHaveItShown)
{
    EXPECT_FALSE(viewer().isvisible());
    viewer().show();
    EXPECT_EQ(host.frame.state, WINDOW_NORMAL);
    EXPECT_TRUE(viewer().isvisible());
    EXPECT_EQ(host.getcontext(), nullptr);

    host.frame.showframe(WINDOW_HIDDEN);
    EXPECT_FALSE(viewer().isvisible());
}

TEST_F(BomViewer, ABoardThatChangesIsFollowedWhenTheWindowCanBeSeen)
{
    module().onvalidate();
    QSignalSpy changes(BOMPartsDatabase::instance(), &BOMPartsDatabase::dataChanged);
    FakeDocument board;
    Q_EMIT host.design.modified(&board);
    EXPECT_FALSE(host.server.cache->isstale());
    board.type = "LYT";
    Q_EMIT host.design.modified(&board);
    EXPECT_TRUE(host.server.cache->isstale());
    EXPECT_EQ(changes.size(), 0);

    module().onvalidate();
    viewer().show();
    changes.clear();
    Q_EMIT host.design.modified(&board);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_FALSE(host.server.cache->isstale());
}

TEST_F(BomViewer, EndsWithDatabaseThenCacheThenModule)
{
    QStringList order;
    module().onvalidate();
    QObject::connect(BOMPartsDatabase::instance(), &QObject::destroyed,
                     [&] { order << QStringLiteral("database"); });
    host.server.onRemove = [&] {
        order << (host.findmodule("BOM") ? QStringLiteral("cache") : QStringLiteral("cache, too late"));
    };
    const QPointer<BOMMainWindow> window(mainWindow());
    endModule();

    EXPECT_EQ(order, QStringList({QStringLiteral("database"), QStringLiteral("cache")}));
    EXPECT_EQ(host.findmodule("BOM"), nullptr);
    EXPECT_EQ(BOMVIEWER::instance(), nullptr);
    ASSERT_FALSE(window.isNull());
    // What the host did not remove still answers.
    for (QAction *left : window->findChildren<QAction *>()) {
        left->trigger();
    }
    window->updatewindow();
    EXPECT_TRUE(ui.fileRequests.isEmpty());
    delete window;
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
    EXPECT_EQ(ui.questions[0].title, QStringLiteral("Duplicate References Detected"));
    EXPECT_EQ(ui.questions[0].text,
              QStringLiteral("The following references have duplicates:\nR1, C3\nGenerate output anyway?"));
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
    settings.setValue(QStringLiteral("BOM"), QStringLiteral("CurrentTemplate"), QStringLiteral("House"));
    module().onvalidate();
    BOMTemplate house;
    house.setName(QStringLiteral("House"));
    BOMCategory category;
    category.heading = QStringLiteral("Things That Resist");
    category.references = QStringList{QStringLiteral("R")};
    house.setCategories({category});
    ASSERT_TRUE(house.save());

    EXPECT_TRUE(report().contains(QStringLiteral("Things That Resist")));
    // It lacks a place for C3, which is told and mended.
    EXPECT_TRUE(report().contains(QStringLiteral("1u")));
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_TRUE(ui.warnings[0].text.contains(QStringLiteral("House.bomt")));
    HostSettings::install(nullptr);
}

TEST_F(BomViewer, ReloadsByHandEvenWhenItWasSuspended)
{
    module().onvalidate();
    viewer().designChanged(false);
    (void)mainWindow();
    trigger("Reload The &BOM");
    EXPECT_FALSE(BOMPartsDatabase::instance()->isUpdating());
    EXPECT_TRUE(report().contains(QStringLiteral("10k")));
}

TEST_F(BomViewer, TheHtmlOutputIsInNoMenu)
{
    QAction *html = action(QStringLiteral("&HTML"));
    (void)mainWindow();
    EXPECT_EQ(html->shortcut(), QKeySequence(QStringLiteral("Ctrl+Alt+H")));
    EXPECT_EQ(html->associatedObjects(), QList<QObject *>{mainWindow()});
    EXPECT_EQ(host.frame.menus[274]->actions().size(), 8);
}
