// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartsdatabase.h"
#include "support/fakecdb.h"
#include "support/fakenetlist.h"
#include "support/printtext.h"
#include "support/scopeddefinitions.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString resistors = u"Resistors"_s;
const QString misc = u"Miscellaneous"_s;

BOMTemplate templateWith(const QStringList &properties)
{
    BOMFields fields;
    for (const QString &property : properties) {
        BOMField field;
        field.fieldName = u"Column "_s + property;
        field.propertyName = property;
        fields.add(field);
    }
    BOMTemplate settings;
    settings.setFields(fields);
    return settings;
}

class Grouping : public testing::Test
{
protected:
    Grouping()
    {
        database.setNetlist(netlist.cache());
        database.setCurrentTemplate(templateWith({u"VALUE"_s, u"TOLERANCE"_s}));
    }

    void setCaseSensitive(bool isCaseSensitive)
    {
        BOMTemplate settings = database.currentTemplate();
        settings.setCaseSensitiveGrouping(isCaseSensitive);
        database.setCurrentTemplate(settings);
    }
    [[nodiscard]] QStringList lines(const QString &category) const
    {
        QStringList all;
        for (const QString &value : database.categoryValues(category)) {
            for (const QStringList &line : database.groupLines(category, value)) {
                all << value + u": "_s + line.join(u',');
            }
        }
        return all;
    }

    FakeNetlist netlist;
    BOMPartsDatabase database;
};

TEST_F(Grouping, sortsValuesAndReferences)
{
    for (const char *reference : {"R10", "R2", "R1"}) {
        netlist.add(reference, "10k");
    }
    netlist.add("R5", "1k");
    database.load();
    EXPECT_EQ(lines(resistors), (QStringList{u"10k: R1,R2,R10"_s, u"1k: R5"_s}));
    EXPECT_EQ(database.categoryReferences(resistors), (QStringList{u"R1"_s, u"R2"_s, u"R5"_s, u"R10"_s}));
    EXPECT_EQ(database.valueReferences(resistors, u"10k"_s), (QStringList{u"R1"_s, u"R2"_s, u"R10"_s}));
    EXPECT_EQ(database.formattedLines(resistors, u"10k"_s, 50000, 1), QStringList{u"R1-R2,R10"_s});
    EXPECT_EQ(database.lineSummaries(resistors), (QList<QPair<QString, int>>{{u"R1"_s, 3}, {u"R5"_s, 1}}));
    EXPECT_EQ(database.partCount(resistors), 4);
    EXPECT_EQ(database.lineCount(resistors), 2);
}

TEST_F(Grouping, splitsAValueByTheOtherFieldsOnly)
{
    netlist.add("R1", "10k", {{"TOLERANCE", "5%1"}});
    netlist.add("R2", "10k", {{"TOLERANCE", "1%"}});
    netlist.add("R3", "10k", {{"TOLERANCE", "5%1"}, {"CODE", "other"}});
    netlist.add("R4", "10k");
    netlist.add("R5", "10k", {{"TOLERANCE", ""}});
    netlist.add("R6", "22k", {{"TOLERANCE", "1%"}});
    database.load();
    EXPECT_EQ(lines(resistors), (QStringList{u"10k: R4,R5"_s, u"10k: R2"_s, u"10k: R1,R3"_s, u"22k: R6"_s}));
    EXPECT_EQ(database.groupingKey(u"R1"_s), u"5%1,"_s);
    EXPECT_EQ(database.groupingKey(u"R4"_s), u","_s);
    EXPECT_EQ(database.groupingKey(u"R99"_s), u","_s);
    database.setCurrentTemplate(templateWith({u"VALUE"_s}));
    EXPECT_EQ(lines(resistors), (QStringList{u"10k: R1,R2,R3,R4,R5"_s, u"22k: R6"_s}));
    EXPECT_EQ(database.groupingKey(u"R1"_s), QString());
}

TEST_F(Grouping, comparesWholeKeys)
{
    database.setCurrentTemplate(templateWith({u"VALUE"_s, u"A"_s, u"B"_s}));
    netlist.add("R1", "1k", {{"A", "x,y"}, {"B", "z"}});
    netlist.add("R2", "1k", {{"A", "x"}, {"B", "y,z"}});
    netlist.add("R3", "1k", {{"A", ""}, {"B", "xy"}});
    netlist.add("R4", "1k", {{"A", "xy"}, {"B", ""}});
    database.load();
    EXPECT_EQ(lines(resistors), (QStringList{u"1k: R3"_s, u"1k: R1,R2"_s, u"1k: R4"_s}));
}

TEST_F(Grouping, groupsWhatIsShownNotWhatIsStored)
{
    const ScopedDefinitions definitions("\"FIT\",YESNO\n\"COST\",FLOAT");
    database.setCurrentTemplate(templateWith({u"VALUE"_s, u"FIT"_s, u"COST"_s}));
    netlist.add("R1", "1k", {{"FIT", "0"}, {"COST", "0,5"}});
    netlist.add("R2", "1k", {{"FIT", "no"}, {"COST", "0.5"}});
    netlist.add("R3", "1k", {{"FIT", "1"}, {"COST", "0.5"}});
    database.load();
    EXPECT_EQ(lines(resistors), (QStringList{u"1k: R1,R2"_s, u"1k: R3"_s}));
}

TEST_F(Grouping, letterCaseCountsAsTheTemplateSays)
{
    netlist.add("R1", "10K", {{"TOLERANCE", "A"}});
    netlist.add("R2", "10k", {{"TOLERANCE", "a"}});
    netlist.add("R3", "10k", {{"TOLERANCE", "B"}});
    netlist.add("R4", "4\xc3\x9c", {{"TOLERANCE", "a"}});
    netlist.add("R5", "4\xc3\xbc", {{"TOLERANCE", "A"}});
    database.load();
    EXPECT_EQ(lines(resistors),
              (QStringList{u"10K: R1"_s, u"10k: R3"_s, u"10k: R2"_s, u"4Ü: R4"_s, u"4ü: R5"_s}));
    EXPECT_EQ(database.lineCount(resistors), 5);
    setCaseSensitive(false);
    EXPECT_EQ(lines(resistors), (QStringList{u"10K: R1,R2"_s, u"10K: R3"_s, u"4Ü: R4,R5"_s}));
    EXPECT_EQ(database.valueReferences(resistors, u"10k"_s), (QStringList{u"R1"_s, u"R2"_s, u"R3"_s}));
    setCaseSensitive(true);
    EXPECT_EQ(database.lineCount(resistors), 5);
}

TEST_F(Grouping, followsThePlacementWhenABoardIsSaved)
{
    database.setCurrentTemplate(templateWith({u"VALUE"_s, u".Placed"_s, u".Name"_s}));
    FakeCdb cdb;
    netlist.add("R1", "1k", {}, "RES");
    netlist.add("R2", "1k", {}, "RES");
    netlist.add("R3", "1k", {}, "VAR");
    database.load();
    EXPECT_EQ(lines(resistors), (QStringList{u"1k: R1,R2"_s, u"1k: R3"_s}));
    cdb.place(2, "Top");
    database.updateFieldGrouping();
    EXPECT_EQ(lines(resistors), (QStringList{u"1k: R1"_s, u"1k: R3"_s, u"1k: R2"_s}));
}

TEST_F(Grouping, aPartGoesToTheCategoryOfItsPrefix)
{
    const struct
    {
        const char16_t *reference, *category;
    } cases[] = {
        {u"R1", u"Resistors"},
        {u"RN3", u"Miscellaneous"},
        {u"r5", u"Miscellaneous"},
        {u"U12A", u"Integrated Circuits"},
        {u"U1A2", u"Integrated Circuits"},
        {u"Q1", u"Transistors"},
        {u"R", u"Resistors"},
        {u"12", u"Miscellaneous"},
        {u"R12345678901", u"Resistors"},
        {u"*", u"Miscellaneous"},
        {u"", u"Miscellaneous"},
    };
    for (const auto &expected : cases) {
        netlist.add(QString::fromUtf16(expected.reference).toUtf8(), "x");
    }
    database.load();
    for (const auto &expected : cases) {
        const QString reference = QString::fromUtf16(expected.reference);
        const QString category = QString::fromUtf16(expected.category);
        EXPECT_EQ(database.categoryOf(reference), category) << reference.toStdString();
        EXPECT_TRUE(database.categoryReferences(category).contains(reference)) << reference.toStdString();
    }
}

TEST_F(Grouping, aTakenPrefixLeavesOnlyTheHeading)
{
    netlist.add("R1", "1k");
    netlist.add("L1", "1u");
    database.load();
    database.updateBOMCategories({{u"First"_s, {u"R"_s}, false},
                                  {u"Second"_s, {u"L"_s, u"R"_s}, false},
                                  {u"First"_s, {u"L"_s}, false},
                                  {u"Rest"_s, {u"*"_s}, true},
                                  {u"Third"_s, {u"C"_s}, false}});
    EXPECT_EQ(database.categoryNames(), (QStringList{u"First"_s, u"Second"_s, u"Rest"_s, u"Third"_s}));
    EXPECT_EQ(database.categoryReferences(u"First"_s), QStringList{u"R1"_s});
    EXPECT_EQ(database.partCount(u"Second"_s), 0);
    EXPECT_EQ(database.categoryReferences(u"Rest"_s), QStringList{u"L1"_s});
    EXPECT_EQ(database.miscCategoryName(), u"Rest"_s);
    EXPECT_EQ(database.categoryOf(u"L1"_s), u"Rest"_s);
}

TEST_F(Grouping, withoutMiscellaneousCategoryPartsStillHaveOne)
{
    database.updateBOMCategories({{resistors, {u"R"_s}, false}, {u"Capacitors"_s, {u"C"_s}, false}});
    netlist.add("Q1", "BC547");
    database.load();
    EXPECT_EQ(database.categoryOf(u"Q1"_s), misc);
    EXPECT_EQ(database.partCount(misc), 1);
    database.updateBOMCategories({{resistors, {u"R"_s}, false}});
    EXPECT_EQ(database.partCount(misc), 1);
}

TEST_F(Grouping, theTemplateDecidesOnEmptyCategories)
{
    netlist.add("R1", "1k");
    netlist.add("X1", "1k");
    database.load();
    EXPECT_EQ(database.categoryNames().size(), 7);
    EXPECT_EQ(lines(u"Diodes"_s), QStringList());
    BOMTemplate settings = database.currentTemplate();
    settings.setSuppressEmptyCategories(true);
    database.setCurrentTemplate(settings);
    EXPECT_EQ(database.categoryNames(), (QStringList{resistors, misc}));
}

TEST_F(Grouping, categoriesMoveThePartsThatAreHeld)
{
    netlist.add("R1", "1k");
    netlist.add("C1", "1u");
    database.load();
    for (int repeat = 0; repeat < 3; ++repeat) {
        database.updateBOMCategories({{u"All"_s, {u"C"_s, u"R"_s}, false}, {misc, {}, true}});
        EXPECT_EQ(database.categoryReferences(u"All"_s), (QStringList{u"C1"_s, u"R1"_s}));
        EXPECT_EQ(database.partCount(resistors), 0);
        EXPECT_EQ(database.currentTemplate().categories().size(), 2);
        database.updateBOMCategories(BOMCategory::defaults());
        EXPECT_EQ(database.categoryReferences(resistors), QStringList{u"R1"_s});
        EXPECT_EQ(database.partCount(u"All"_s), 0);
    }
    database.clear();
    EXPECT_EQ(database.partCount(resistors), 0);
    EXPECT_EQ(database.categoryNames().size(), 7);
}

TEST_F(Grouping, takesFieldsInColumnOrderWithoutWhatSetOrderDropped)
{
    BOMFields fields = templateWith({u"VALUE"_s, u"A"_s, u"B"_s, u"C"_s}).fields();
    fields.setOrder({u"Column C"_s, u"Column VALUE"_s, u"Column A"_s});
    database.updateBOMFields(fields);
    EXPECT_EQ(database.groupingFieldNames(), (QStringList{u"C"_s, u"VALUE"_s, u"A"_s}));
    EXPECT_EQ(database.fields().get(u"Column B"_s), BOMField()) << "the record is gone, not only its place";
    EXPECT_EQ(database.currentTemplate().fields(), database.fields());
    netlist.add("R1", "1k", {{"A", "a"}, {"B", "b"}, {"C", "c"}});
    database.load();
    EXPECT_EQ(database.groupingKey(u"R1"_s), u"c,a,"_s);
}

TEST_F(Grouping, unknownNamesGiveNothing)
{
    netlist.add("R1", "1k");
    database.load();
    EXPECT_EQ(database.partCount(u"x"_s), 0);
    EXPECT_EQ(database.lineCount(u"x"_s), 0);
    EXPECT_EQ(database.categoryValues(u"x"_s), QStringList());
    EXPECT_EQ(database.categoryReferences(u"x"_s), QStringList());
    EXPECT_EQ(database.groupLines(u"x"_s, u"1k"_s), QList<QStringList>());
    EXPECT_EQ(database.groupLines(resistors, u"2k"_s), QList<QStringList>());
    EXPECT_EQ(database.valueReferences(resistors, u"2k"_s), QStringList());
    EXPECT_TRUE(database.lineSummaries(u"x"_s).isEmpty());
    EXPECT_EQ(database.categoryLines(u"x"_s), nullptr);
}

TEST_F(Grouping, namesTheLinesThatAReportLeavesOut)
{
    netlist.add("R1", "1k");
    netlist.add("R01", "2k");
    netlist.add("R2", "2k");
    netlist.add("J0", "a");
    netlist.add("J", "b");
    database.load();
    EXPECT_EQ(database.replacedLines(true),
              (QList<ReplacedLine>{{resistors, {u"R1"_s}, u"R01"_s}, {misc, {u"J0"_s}, u"J"_s}}));
    const ReportLines report = database.reportLines(resistors, true);
    ASSERT_EQ(report.lines.size(), 1U);
    EXPECT_EQ(referencesOf(report.lines.front()), (QStringList{u"R01"_s, u"R2"_s}));
    EXPECT_EQ(database.reportLines(resistors, false).lines.size(), 2U);
    EXPECT_EQ(database.replacedLines(false).size(), 2);
}

TEST(CategoryGroups, withoutDatabaseKeepsItsLines)
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
