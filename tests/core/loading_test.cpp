// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/coredesign.h"

namespace {

class Loading : public CoreDesign
{
protected:
    Loading()
    {
        QObject::connect(&database, &BOMPartsDatabase::currentTemplateModified, &database,
                         [this](bool modified) { modifications.append(modified); });
    }

    QList<bool> modifications;
};

TEST_F(Loading, TakesEveryComponentThatIsNotSkipped)
{
    netlist.addNull();
    load({{"R2", "1k"},
          {"R1", "10k", {{"BOMSKIP", ""}, {"BOMPART1", "1,SCR,M3"}, {"BOMLINKS", "A=b"}}},
          {"C1", "1\xc2\xb5", {{"bomskip", "1"}}}});
    EXPECT_EQ(references(), "R2 | C1");
    EXPECT_EQ(database.property(u"C1"_s, u"VALUE"_s), u"1µ"_s);
    EXPECT_TRUE(database.links(u"R1"_s).isEmpty());
    EXPECT_EQ(takeChanges(), 1);
}

TEST_F(Loading, RecordsEveryExtraOccurrence)
{
    load({{"R1", "1k"}, {"R1", "2k"}, {"R1", "3k"}, {"r1", "4k"}});
    EXPECT_EQ(references(), "R1 | r1");
    EXPECT_EQ(database.property(u"R1"_s, u"VALUE"_s), u"1k"_s);
    EXPECT_EQ(joined(database.duplicateReferences()), "R1 | R1");
    database.clear();
    EXPECT_EQ(joined(database.duplicateReferences()), "");
}

TEST_F(Loading, NeedsACommonBitInTheMasks)
{
    netlist.cache()->validMask = 6;
    netlist.cache()->wantedMask = 8;
    load({{"R1", "1k"}});
    EXPECT_EQ(references(), "");
    netlist.cache()->wantedMask = 12;
    database.reload();
    EXPECT_EQ(references(), "R1");
}

TEST_F(Loading, ReadsTheNotesOfADesignWithANetlist)
{
    process.design.attachments["BOMNOTES.TXT"] = u"first\nsecond"_s;
    database.setNetlist(nullptr);
    database.load();
    EXPECT_EQ(takeChanges(), 0);
    EXPECT_EQ(database.notes(), QString());
    database.reload();
    EXPECT_EQ(takeChanges(), 1);
    database.setNetlist(netlist.cache());
    database.load();
    EXPECT_EQ(database.notes(), u"first\nsecond"_s);
    process.hasDesign = false;
    database.load();
    EXPECT_EQ(database.notes(), QString());
}

TEST_F(Loading, SendsOneNoticePerBulkChange)
{
    load({{"R1", "1k"}, {"R2", "1k"}, {"C1", "1u", {{"BOMPART1", "2,SCR,M3"}}}});
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

TEST_F(Loading, TellsOfTemplateSettingsThatDiffer)
{
    BOMTemplate settings;
    database.setCurrentTemplate(settings);
    takeChanges();
    settings.setSuppressEmptyCategories(true);
    settings.setGroupReferences(false);
    settings.setFullTextOuputs(true);
    settings.setAppendNotes(true);
    EXPECT_TRUE(database.setTemplateOptions(settings));
    EXPECT_FALSE(database.setTemplateOptions(settings));
    EXPECT_EQ(database.currentTemplate().toVariantMap(), settings.toVariantMap());
    EXPECT_EQ(takeChanges(), 1);
    settings.setCaseSensitiveGrouping(false);
    database.restoreTemplateLayout(settings, false);
    EXPECT_EQ(takeChanges(), 1);
    EXPECT_EQ(modifications, (QList<bool>{true, false}));
}

TEST(DatabaseOfTheModule, IsOneUntilItIsDestroyed)
{
    BOMPartsDatabase *first = BOMPartsDatabase::instance();
    EXPECT_EQ(BOMPartsDatabase::instance(), first);
    EXPECT_EQ(first->parent(), nullptr);
    bool isDestroyed = false;
    QObject::connect(first, &QObject::destroyed, [&isDestroyed] { isDestroyed = true; });
    BOMPartsDatabase::destroyInstance();
    EXPECT_TRUE(isDestroyed);
    EXPECT_TRUE(BOMPartsDatabase::instance()->parts().empty());
    BOMPartsDatabase::destroyInstance();
}

} // namespace
