// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartsdatabase.h"
#include "host/netlist/component.h"
#include "support/fakenetlist.h"
#include "support/fakeprocess.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Loading : public testing::Test
{
protected:
    Loading()
    {
        database.setNetlist(netlist.cache());
        QObject::connect(&database, &BOMPartsDatabase::dataChanged, &database, [this] { ++changes; });
        QObject::connect(&database, &BOMPartsDatabase::currentTemplateModified, &database,
                         [this](bool modified) { modifications.append(modified); });
    }

    [[nodiscard]] QStringList references() const
    {
        QStringList all;
        for (const Part *part : database.parts()) {
            all << part->reference();
        }
        return all;
    }
    int takeChanges() { return std::exchange(changes, 0); }

    FakeProcess process;
    FakeNetlist netlist;
    BOMPartsDatabase database;
    int changes = 0;
    QList<bool> modifications;
};

TEST_F(Loading, takesEveryComponentThatIsNotSkipped)
{
    netlist.add("R2", "1k");
    netlist.addNull();
    netlist.add("R1", "10k", {{"BOMSKIP", ""}});
    netlist.add("C1", "1\xc2\xb5", {{"bomskip", "1"}});
    database.load();
    EXPECT_EQ(references(), (QStringList{u"R2"_s, u"C1"_s}));
    ASSERT_NE(database.part(u"C1"_s), nullptr);
    EXPECT_EQ(database.part(u"C1"_s)->value(), u"1µ"_s);
    EXPECT_EQ(database.part(u"R1"_s), nullptr);
    EXPECT_EQ(takeChanges(), 1);
}

TEST_F(Loading, recordsEveryExtraOccurrence)
{
    for (const char *value : {"1k", "2k", "3k"}) {
        netlist.add("R1", value);
    }
    netlist.add("r1", "4k");
    database.load();
    EXPECT_EQ(references(), (QStringList{u"R1"_s, u"r1"_s}));
    EXPECT_EQ(database.property(u"R1"_s, u"VALUE"_s), u"1k"_s);
    EXPECT_EQ(database.duplicateReferences(), (QStringList{u"R1"_s, u"R1"_s}));
    database.clear();
    EXPECT_EQ(database.duplicateReferences(), QStringList());
}

TEST_F(Loading, needsACommonBitInTheMasks)
{
    netlist.add("R1", "1k");
    netlist.cache()->validMask = 6;
    netlist.cache()->wantedMask = 8;
    database.load();
    EXPECT_EQ(references(), QStringList());
    netlist.cache()->wantedMask = 12;
    database.reload();
    EXPECT_EQ(references(), QStringList{u"R1"_s});
}

TEST_F(Loading, withoutNetlistDoesNothing)
{
    process.design.attachments["BOMNOTES.TXT"] = u"note"_s;
    database.setNetlist(nullptr);
    database.load();
    EXPECT_EQ(takeChanges(), 0);
    EXPECT_EQ(database.notes(), QString());
    database.reload();
    EXPECT_EQ(takeChanges(), 1);
}

TEST_F(Loading, readsTheNotes)
{
    process.design.attachments["BOMNOTES.TXT"] = u"first\nsecond"_s;
    database.load();
    EXPECT_EQ(database.notes(), u"first\nsecond"_s);
    process.hasDesign = false;
    database.load();
    EXPECT_EQ(database.notes(), QString());
}

TEST_F(Loading, replacesTheDesignWithOneNotice)
{
    netlist.add("R1", "1k");
    database.load();
    takeChanges();
    netlist.clear();
    netlist.add("R2", "2k");
    database.reload();
    EXPECT_EQ(references(), QStringList{u"R2"_s});
    EXPECT_EQ(database.part(u"R1"_s), nullptr);
    EXPECT_EQ(takeChanges(), 1);
}

TEST_F(Loading, sendsOneNoticePerBulkChange)
{
    for (int i = 0; i < 10; ++i) {
        netlist.add("R" + QByteArray::number(i), "1k");
    }
    database.load();
    EXPECT_EQ(takeChanges(), 1);
    database.setCurrentTemplate(BOMTemplate());
    EXPECT_EQ(takeChanges(), 1);
    EXPECT_EQ(modifications, QList<bool>()) << "choosing a template does not modify it";
    database.updateBOMFields(database.currentTemplate().fields());
    EXPECT_EQ(takeChanges(), 1);
    database.updateBOMCategories(database.currentTemplate().categories());
    EXPECT_EQ(takeChanges(), 1);
    EXPECT_EQ(modifications, (QList<bool>{true, true}));
    database.updateFieldGrouping();
    EXPECT_EQ(takeChanges(), 1);
    database.clear();
    EXPECT_EQ(takeChanges(), 1);
    database.notify();
    EXPECT_EQ(takeChanges(), 1);
}

TEST_F(Loading, staysSilentWhileSuspended)
{
    netlist.add("R1", "1k");
    database.load();
    takeChanges();
    database.clearAndSuspend();
    database.updateFieldGrouping();
    database.updateBOMCategories(BOMCategory::defaults());
    database.notify();
    EXPECT_TRUE(database.isUpdating());
    EXPECT_EQ(takeChanges(), 0);
    database.reload();
    EXPECT_FALSE(database.isUpdating());
    EXPECT_EQ(references(), QStringList{u"R1"_s});
    EXPECT_EQ(takeChanges(), 1);
}

TEST_F(Loading, aSavedBoardRegroupsOrMarksTheNetlistStale)
{
    FakeDocument board;
    struct StaleMark final : INETSERVER
    {
        IMODULE *queryinterface(unsigned) override { return nullptr; }
        bool sendnetlist(NETCACHE &, int, int) override { return true; }
        void addcache(NETCACHE *) override {}
        void removecache(NETCACHE *) override {}
    } server;
    NETCACHE *cache = netlist.cache();
    cache->setsource(&server);
    cache->validate(1);
    ASSERT_FALSE(cache->isstale());

    database.nimProjectChanged(nullptr);
    board.type = "DSN";
    database.nimProjectChanged(&board);
    EXPECT_FALSE(cache->isstale());
    EXPECT_EQ(takeChanges(), 0);

    board.type = "LYT";
    bool isVisible = true;
    database.setWindowVisibleQuery([&isVisible] { return isVisible; });
    database.nimProjectChanged(&board);
    EXPECT_FALSE(cache->isstale());
    EXPECT_EQ(takeChanges(), 1);

    isVisible = false;
    database.nimProjectChanged(&board);
    EXPECT_TRUE(cache->isstale());
    EXPECT_EQ(takeChanges(), 0);
    cache->setsource(nullptr);
}

TEST_F(Loading, theModulesDatabaseIsOneUntilItIsDestroyed)
{
    BOMPartsDatabase *first = BOMPartsDatabase::instance();
    EXPECT_EQ(BOMPartsDatabase::instance(), first);
    EXPECT_EQ(first->parent(), nullptr);
    QObject watcher;
    bool isDestroyed = false;
    QObject::connect(first, &QObject::destroyed, &watcher, [&isDestroyed] { isDestroyed = true; });
    BOMPartsDatabase::destroyInstance();
    EXPECT_TRUE(isDestroyed);
    EXPECT_TRUE(BOMPartsDatabase::instance()->parts().empty());
    BOMPartsDatabase::destroyInstance();
}

TEST(PropertyNames, areOfferedInThisOrder)
{
    EXPECT_EQ(BOMPartsDatabase::standardPropertyNames(),
              (QStringList{u".Name"_s, u".Placed"_s, u"VALUE"_s, u"PACKAGE"_s}));
    EXPECT_EQ(BOMPartsDatabase::pseudoPropertyNames().value(u".Placed"_s), u"Placed"_s);
}

} // namespace
