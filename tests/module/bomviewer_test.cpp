// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/module/bomviewerfixture.h"

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
    EXPECT_EQ(module().getapplnname(), u"BOM"_s);
    EXPECT_EQ(module().getapplntitle(), u"Bill of Materials"_s);
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
    QObject::connect(BOMPartsDatabase::instance(), &QObject::destroyed, [&] { order << u"database"_s; });
    host.server.onRemove = [&] { order << (host.findmodule("BOM") ? u"cache"_s : u"cache, too late"_s); };
    const QPointer<BOMMainWindow> window(mainWindow());
    endModule();

    EXPECT_EQ(order, QStringList({u"database"_s, u"cache"_s}));
    EXPECT_EQ(host.findmodule("BOM"), nullptr);
    EXPECT_EQ(BOMVIEWER::instance(), nullptr);
    ASSERT_FALSE(window.isNull());
    // What the host did not remove still answers.
    for (QAction *left : window->findChildren<QAction *>()) {
        const auto *owner = qobject_cast<QWidget *>(left->parent());
        if (!owner || owner->isEnabled()) {
            left->trigger();
        }
    }
    window->updatewindow();
    EXPECT_TRUE(ui.fileRequests.isEmpty());
    delete window;
}
