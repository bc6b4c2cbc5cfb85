// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/coredesign.h"
#include "support/scopeddefinitions.h"

namespace {

const QString resistors = u"Resistors"_s;
const QString misc = u"Miscellaneous"_s;

class Grouping : public CoreDesign
{
protected:
    Grouping() { database.setCurrentTemplate(templateWith({u"VALUE"_s})); }
};

TEST_F(Grouping, ComparesWholeKeysOfWhatIsShown)
{
    const ScopedDefinitions definitions("\"FIT\",YESNO\n\"COST\",FLOAT");
    database.setCurrentTemplate(templateWith({u"VALUE"_s, u"A"_s, u"B"_s, u"FIT"_s, u"COST"_s}));
    load({{"R1", "1k", {{"A", "x,y"}, {"B", "z"}}},
          {"R2", "1k", {{"A", "x"}, {"B", "y,z"}}},
          {"R3", "1k", {{"A", ""}, {"B", "xy"}}},
          {"R4", "1k", {{"A", "xy"}, {"B", ""}}},
          {"R5", "2k", {{"FIT", "0"}, {"COST", "0,5"}}},
          {"R6", "2k", {{"FIT", "no"}, {"COST", "0.5"}}},
          {"R7", "2k", {{"FIT", "1"}, {"COST", "0.5"}}}});
    EXPECT_EQ(lines(), "1k: R3 | 1k: R2 | 1k: R1 | 1k: R4 | 2k: R5,R6 | 2k: R7");
}

TEST_F(Grouping, FollowsThePlacementWhenABoardIsSaved)
{
    database.setCurrentTemplate(templateWith({u"VALUE"_s, u".Placed"_s, u".Name"_s}));
    FakeCdb cdb;
    netlist.add("R1", "1k", {}, "RES");
    netlist.add("R2", "1k", {}, "RES");
    netlist.add("R3", "1k", {}, "VAR");
    database.load();
    EXPECT_EQ(lines(), "1k: R1,R2 | 1k: R3");
    cdb.place(2, "Top");
    database.updateFieldGrouping();
    EXPECT_EQ(lines(), "1k: R1 | 1k: R3 | 1k: R2");
}

TEST_F(Grouping, PutsAPartIntoTheCategoryOfItsPrefix)
{
    const QString circuits = u"Integrated Circuits"_s;
    const std::pair<QString, QString> cases[] = {
        {u"R1"_s, resistors},
        {u"RN3"_s, misc},
        {u"r5"_s, misc},
        {u"U12A"_s, circuits},
        {u"U1A2"_s, circuits},
        {u"R"_s, resistors},
        {u"Q1"_s, u"Transistors"_s},
        {u"12"_s, misc},
        {u"R12345678901"_s, resistors},
        {u"*"_s, misc},
        {u""_s, misc},
    };
    for (const auto &[reference, category] : cases) {
        netlist.add(reference.toUtf8(), "x");
    }
    database.load();
    for (const auto &[reference, category] : cases) {
        EXPECT_EQ(database.categoryOf(reference), category) << reference.toStdString();
        EXPECT_TRUE(database.categoryReferences(category).contains(reference)) << reference.toStdString();
    }
}

TEST_F(Grouping, LeavesOnlyTheHeadingToATakenPrefix)
{
    load({{"R1", "1k"}, {"L1", "1u"}});
    database.updateBOMCategories({{u"First"_s, {u"R"_s}, false},
                                  {u"Second"_s, {u"L"_s, u"R"_s}, false},
                                  {u"First"_s, {u"L"_s}, false},
                                  {u"Rest"_s, {u"*"_s}, true},
                                  {u"Third"_s, {u"C"_s}, false}});
    EXPECT_EQ(joined(database.categoryNames()), "First | Second | Rest | Third");
    EXPECT_EQ(references(u"First"_s), "R1");
    EXPECT_EQ(database.partCount(u"Second"_s), 0);
    EXPECT_EQ(references(u"Rest"_s), "L1");
    EXPECT_EQ(database.categoryOf(u"Q1"_s), u"Rest"_s);
    EXPECT_EQ(database.categoryOf(u"L1"_s), u"Rest"_s);
}

TEST_F(Grouping, HasAMiscellaneousCategoryWithoutOneInTheTemplate)
{
    database.updateBOMCategories({{resistors, {u"R"_s}, false}, {u"Capacitors"_s, {u"C"_s}, false}});
    load({{"Q1", "BC547"}});
    EXPECT_EQ(database.categoryOf(u"Q1"_s), misc);
    EXPECT_EQ(database.partCount(misc), 1);
    database.updateBOMCategories({{resistors, {u"R"_s}, false}});
    EXPECT_EQ(database.partCount(misc), 1);
}

TEST_F(Grouping, MovesPartsBetweenCategoriesAndListsEmptyOnesAsTheTemplateSays)
{
    load({{"R1", "1k"}, {"C1", "1u"}});
    for (int repeat = 0; repeat < 3; ++repeat) {
        database.updateBOMCategories({{u"All"_s, {u"C"_s, u"R"_s}, false}, {misc, {}, true}});
        EXPECT_EQ(references(u"All"_s), "C1 | R1");
        EXPECT_EQ(database.partCount(resistors), 0);
        EXPECT_EQ(database.currentTemplate().categories().size(), 2);
        database.updateBOMCategories(BOMCategory::defaults());
        EXPECT_EQ(database.categoryNames().size(), 7) << "empty ones among them";
        EXPECT_EQ(references(resistors), "R1");
        EXPECT_EQ(database.partCount(u"All"_s), 0);
    }
    BOMTemplate settings = database.currentTemplate();
    settings.setSuppressEmptyCategories(true);
    database.setCurrentTemplate(settings);
    EXPECT_EQ(joined(database.categoryNames()), "Capacitors | Resistors");
    database.clear();
    EXPECT_EQ(database.categoryNames().size(), 0);
    EXPECT_EQ(database.partCount(resistors), 0);
}

TEST_F(Grouping, TakesFieldsInColumnOrderWithoutWhatSetOrderDropped)
{
    BOMFields fields = templateWith({u"VALUE"_s, u"A"_s, u"B"_s, u"C"_s}).fields();
    fields.setOrder({u"C"_s, u"VALUE"_s, u"A"_s});
    database.updateBOMFields(fields);
    EXPECT_EQ(joined(database.currentTemplate().fields().names()), "C | VALUE | A");
    EXPECT_EQ(database.currentTemplate().fields().get(u"B"_s), BOMField())
        << "the record is gone, not only its place";
    load({{"R1", "1k", {{"A", "5%1"}, {"B", "b"}, {"C", "c"}}},
          {"R2", "1k", {{"A", "5%1"}, {"B", "x"}, {"C", "c"}}},
          {"R3", "1k"}});
    EXPECT_EQ(database.groupingKey(u"R1"_s), u"c,5%1,"_s);
    EXPECT_EQ(database.groupingKey(u"R3"_s), u",,"_s);
    EXPECT_EQ(database.groupingKey(u"R99"_s), u",,"_s);
    EXPECT_EQ(joined(database.formattedLines(resistors, u"1k"_s, 50000, 1)), "R3 | R1-R2");
}

TEST_F(Grouping, GivesNothingForUnknownNames)
{
    load({{"R1", "1k"}});
    EXPECT_EQ(database.partCount(u"x"_s) + database.lineCount(u"x"_s), 0);
    EXPECT_EQ(lines(u"x"_s) + references(u"x"_s), "");
    EXPECT_TRUE(database.groupLines(u"x"_s, u"1k"_s).isEmpty());
    EXPECT_TRUE(database.groupLines(resistors, u"2k"_s).isEmpty());
    EXPECT_TRUE(database.valueReferences(resistors, u"2k"_s).isEmpty());
    EXPECT_TRUE(database.lineSummaries(u"x"_s).isEmpty());
    EXPECT_EQ(database.categories().groupedLines(u"x"_s), nullptr);
}

TEST_F(Grouping, NamesTheLinesThatAReportLeavesOut)
{
    load({{"R1", "1k"}, {"R01", "2k"}, {"R2", "2k"}, {"J0", "a"}, {"J", "b"}});
    const BOMCategories &categories = database.categories();
    EXPECT_EQ(categories.replacedLines(true),
              (QList<ReplacedLine>{{resistors, {u"R1"_s}, u"R01"_s}, {misc, {u"J0"_s}, u"J"_s}}));
    const ReportLines report = categories.reportLines(resistors, true);
    ASSERT_EQ(report.lines.size(), 1U);
    EXPECT_EQ(joined(referencesOf(report.lines.front())), "R01 | R2");
    EXPECT_EQ(categories.reportLines(resistors, false).lines.size(), 2U);
    EXPECT_EQ(categories.replacedLines(false).size(), 2);
}

TEST(CategoryGroups, KeepsItsLinesWithoutAGrouping)
{
    CategoryGroups groups(nullptr);
    Part part(nullptr, nullptr, u"R1"_s, u"1k"_s);
    groups.add(part);
    groups.add(part);
    EXPECT_EQ(groups.parts().size(), 1U);
    testing::internal::CaptureStderr();
    groups.regroup();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "BOM: Use of bad CatParts with null database\n");
    EXPECT_EQ(groups.lines().lineCount(), 0U);
}

} // namespace
