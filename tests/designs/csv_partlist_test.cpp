// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/partlistreader.h"
#include "designs/designfolder.h"
#include "support/datatable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using designs::Component;
using designs::MarkedBy;
using designs::Problem;
using designs::ReadResult;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

/// "R1=10k@5 MPN:x Package:y" of every component.
std::vector<std::string> described(const designs::Design &design)
{
    std::vector<std::string> parts;
    for (const Component &component : design.components()) {
        std::string text = std::string(component.reference) + '=' + std::string(component.value) + '@' +
                           std::to_string(component.line);
        for (const designs::Property &property : component.properties) {
            text += ' ' + std::string(design.names().name(property.name)) + ':' + std::string(property.value);
        }
        parts.push_back(text + (component.notFitted == MarkedBy::Property ? " not fitted" : ""));
    }
    return parts;
}

class CsvPartList : public testing::Test
{
protected:
    [[nodiscard]] ReadResult read(std::string_view bytes) const
    {
        m_folder.write(m_file, bytes);
        return m_folder.read(m_file);
    }

    /// With its references counted anew.
    [[nodiscard]] std::unique_ptr<designs::Design> load(std::string_view bytes) const
    {
        m_folder.write(m_file, bytes);
        return m_folder.load(m_file);
    }

    const QString m_file = u"list.csv"_s;
    DesignFolder m_folder;
};

} // namespace

TEST_F(CsvPartList, ReadsTitleHeadingsAndGroupedRows)
{
    const auto design = loadData(u"csv/collated.csv"_s);
    const std::string rest = " Item:1 Footprint:Capacitor_SMD:C_0603 Description:Ceramic, \"X7R\"\n50 V dnp:";
    EXPECT_THAT(described(*design),
                ElementsAre("C1=100n@6" + rest, "C2=100n@6" + rest, "C7=100n@6" + rest,
                            "R1=10k@8 Item:2 Footprint:Resistor_SMD:R_0603 Description: dnp:",
                            "R2=10k@8 Item:2 Footprint:Resistor_SMD:R_0603 Description: dnp:",
                            "J1-A=Header@10 Item:3 Footprint: Description: dnp:x not fitted"));
    EXPECT_EQ(warnings(*design), "");
}

TEST_F(CsvPartList, ReadsWindowsLettersAndSaysSo)
{
    const auto design = loadData(u"csv/windows.csv"_s);
    const std::string rest = " Description:Widerstand; d\u00FCnn Footprint:0603";
    EXPECT_THAT(described(*design), ElementsAre("R1=10k\u00B5@2" + rest, "R2=10k\u00B5@2" + rest));
    EXPECT_THAT(warnings(*design), HasSubstr("Windows-1252"));
}

TEST_F(CsvPartList, TellsAboutTheDesign)
{
    const auto design = load("Designator,Comment,Pattern\nR1,10k,0603\n");
    const QFileInfo file(m_folder.path(m_file));
    EXPECT_EQ(design->info().file, file.absoluteFilePath());
    EXPECT_EQ(design->info().modified, file.lastModified());
    EXPECT_EQ(design->files(), QStringList{file.absoluteFilePath()});
    ASSERT_EQ(design->sheets().size(), 1U);
    EXPECT_EQ(design->sheets()[0].path, u"/"_s);
    EXPECT_EQ(design->names().name(design->names().candidates("PACKAGE").at(0)), "Pattern");
    EXPECT_EQ(design->names().candidates("VALUE").at(0), design->valueName());
    EXPECT_EQ(design->stored(design->components()[0], design->valueName()), "10k");
    EXPECT_EQ(design->stored(design->components()[0], design->referenceName()), "R1");
}

TEST_F(CsvPartList, ChoosesColumnsByTheirHeadings)
{
    const std::vector<std::pair<std::string, const char *>> cases = {
        {"Ref,b,c,d", "R1=@2 b:R2 c:R3 d:R4"},
        {"b,c,d, ref. des. ", "R4=@2 b:R1 c:R2 d:R3"},
        {"PART-REFS,Val,QTY,d", "R1=R2@2 d:R4"},
        {"Comment,Value,Reference Designator(s),Count", "R3=R2@2 Comment:R1"},
        {"Reference,Designator,b,c", "R2=@2 Reference:R1 b:R3 c:R4"},
        {"Refs,MPN,mpn,MPN", "R1=@2 MPN:R2 mpn:R3 MPN (2):R4"},
        {"Refs,MPN,MPN,MPN (2)", "R1=@2 MPN:R2 MPN (3):R3 MPN (2):R4"},
        {"Refs,,b,", "R1=@2 Column 2:R2 b:R3 Column 4:R4"},
    };
    for (const auto &[headings, part] : cases) {
        EXPECT_THAT(described(*load(headings + "\nR1,R2,R3,R4\n")), ElementsAre(part)) << headings;
    }
    EXPECT_THAT(described(*load("Refs,,b\nR1,,x\n")), ElementsAre("R1=@2 b:x"));
    EXPECT_THAT(described(*load(std::string(19, '\n') + "Refs\nR1\n")), ElementsAre("R1=@21"));
}

TEST_F(CsvPartList, MarksPartsWhoseDnpIsAnyTextButAWordForNo)
{
    for (const char *text : {"", "0", "no", "NO", "n", "N", "false", "False", "~", " ", " no "}) {
        EXPECT_EQ(marks(*load("Ref,Dnp\nR1,\"" + std::string(text) + "\"\n")), "R1:--") << text;
    }
    for (const char *text : {"1", "yes", "y", "true", "DNP", "x", "00", "none", "do not fit"}) {
        EXPECT_EQ(marks(*load("Ref,Dnp\nR1," + std::string(text) + "\n")), "R1:-p") << text;
    }
}

TEST_F(CsvPartList, ReadsAnEmptyMarkerCellAsNoProperty)
{
    EXPECT_THAT(described(*load("Ref,Value,BomSkip,bomlinks,BOMPART1,BOMPARTS,Note\n"
                                "R1,1k,,\" \",,,\nR2,1k,1,a,b,c,d\nR3,1k\n")),
                ElementsAre("R1=1k@2 Note:", "R2=1k@3 BomSkip:1 bomlinks:a BOMPART1:b BOMPARTS:c Note:d",
                            "R3=1k@4 Note:"));
}

TEST_F(CsvPartList, LeavesOutReferencesWithANumberSign)
{
    const auto design = load("Ref,Value,Qty\nR1 #FLG1,1k,2\n\"#PWR1-3,#PWR07\",GND,4\nR2,1k,1\n");
    EXPECT_THAT(described(*design), ElementsAre("R1=1k@2", "R2=1k@4"));
    EXPECT_EQ(design->symbols().power, 5);
    EXPECT_EQ(design->symbols().placed, 7);
    EXPECT_EQ(warnings(*design),
              "list.csv:2: references that begin with \"#\" are no parts: 5 left out, the first one here\n");
}

TEST_F(CsvPartList, NamesTheSameFileInEveryMessage)
{
    const QString path = m_folder.write(m_file, "Ref,Qty\nR1,5\n");
    const QString relative = QDir::current().relativeFilePath(path);
    const auto design = designs::readPartList(relative).design;
    ASSERT_TRUE(design);
    ASSERT_EQ(design->warnings().size(), 2U);
    EXPECT_EQ(design->warnings()[0].file, path);
    EXPECT_EQ(design->warnings()[1].file, path);
    m_folder.write(m_file, "Ref\nR1-\n");
    EXPECT_EQ(designs::readPartList(relative).error.file, path);
}

TEST_F(CsvPartList, KeepsRepeatedReferencesApart)
{
    EXPECT_THAT(described(*load("Ref,Value\nR1,1k\nR1,2k\n\n  ,\nR2,3k\n")),
                ElementsAre("R1=1k@2", "R1=2k@3", "R2=3k@6"));
}

TEST_F(CsvPartList, RefusesWhatWouldLoseSomethingAndWhatIsNoText)
{
    for (const auto &[bytes, line, says] : dataTable<3>("csv/refused-lists.txt")) {
        const ReadResult result = read(bytes);
        EXPECT_EQ(std::to_string(result.error.line), line) << bytes;
        EXPECT_EQ(result.error.file, m_folder.path(m_file));
        EXPECT_THAT(errorOf(result), HasSubstr(says));
    }
}

TEST_F(CsvPartList, RefusesVariantsAndTooManyParts)
{
    m_folder.write(m_file, "Ref,Value\nR1,1k\n");
    EXPECT_THAT(errorOf(m_folder.read(m_file, u"lite"_s)), HasSubstr("no variants"));
    std::string many = "Ref,Value\n";
    for (int row = 0; row < 21; ++row) {
        many += "R1-R100000,1k\n";
    }
    const ReadResult large = read(many);
    EXPECT_FALSE(large.design);
    EXPECT_EQ(large.error.line, 22);
}

TEST_F(CsvPartList, WarnsAndGoesOn)
{
    EXPECT_EQ(warnings(*load(
                  "Ref,Qty,Value\nR1-R2,3,1k\nR3\nR4,1.0,,,\nR5,two,x\nR6,\"1\n\",x\nR7-R9,\"3,00\",x\n")),
              "list.csv:2: the quantity is \"3\", but the row names 2 references: the references count\n"
              "list.csv:3: the row has only 1 of 3 cells: the others are read as empty\n"
              "list.csv:5: the quantity is \"two\", but the row names 1 reference: the references count\n");
    EXPECT_THAT(
        warnings(*load("Ref,Designator\n")),
        testing::ContainsRegex("2 \"Designator\" and 1 \"Ref\".*\nlist.csv:1: there is no value column\n"
                               ".*no part follows"));
}

TEST_F(CsvPartList, TakesHyphensForNamesWhereTheListSaysSo)
{
    const std::pair<std::string_view, const char *> cases[] = {
        {"Ref\nJ1-1\nJ1-2\n", "J1-1 J1-2"},
        {"Ref\nJ1\nJ1-2\n", "J1 J1-2"},
        {"Ref\nX1-1-X1-3\nX1-5\n", "X1-1 X1-2 X1-3 X1-5"},
        {"Ref,Qty\n\"X1-2,X1-5\",2\n", "X1-2 X1-5"},
        {"Ref,Qty\nX1-2,2\n", "X1 X2"},
        {"Category,References\nJ,X1-2\nR,R7\n", "X1-2 R7"},
        {"Category,References\nJ,X1-2\nR,\"R7,R8\"\n", "X1 X2 R7 R8"},
    };
    for (const auto &[bytes, references] : cases) {
        const auto design = load(bytes);
        std::string named;
        for (const Component &component : design->components()) {
            named += (named.empty() ? "" : " ") + std::string(component.reference);
        }
        EXPECT_EQ(named, references) << bytes;
    }
    EXPECT_EQ(
        warnings(*load("Ref,Value\nR1,1\nR1-4,1\nJ1,1\nJ1-1,1\nJ1-2,1\n")),
        "list.csv:3: \"R1-4\" is the name of one part and no range, because the list has \"R1\" by itself\n");
}

TEST_F(CsvPartList, TakesXForANameWhereTheListHasOne)
{
    for (const char *row : {"X1", "\"C1; X1\"", "X1 C1"}) {
        const auto design = load("Ref\nR1 X2\n" + std::string(row) + '\n');
        ASSERT_TRUE(design) << row;
        EXPECT_EQ(design->components()[1].reference, "X2") << row;
    }
}

TEST_F(CsvPartList, LeavesOutRowsThatRepeatTheHeadingsOrSumUp)
{
    const auto design =
        load("Ref,Value\nR1,1k\nRef,Value\nR2,1k\nTotal,5\n,Total: 2 parts\nTOTAL1,5\nSum,adder\n");
    EXPECT_THAT(described(*design), ElementsAre("R1=1k@2", "R2=1k@4", "TOTAL1=5@7", "Sum=adder@8"));
    EXPECT_EQ(warnings(*design),
              "list.csv:3: the row repeats the headings and names no parts: it is left out\n"
              "list.csv:5: the row sums up (\"Total\") and names no parts: it is left out\n"
              "list.csv:6: the row sums up (\"Total: 2 parts\") and names no parts: it is left out\n");
}

TEST_F(CsvPartList, TellsOfTextsThatLookLikePlaceholdersAsTheyAre)
{
    const auto design = load("Ref,%3,%3,Qty\nR1-R2,a,b,%2\n");
    EXPECT_EQ(warnings(*design),
              "list.csv:1: column 3 repeats the heading \"%3\": it is read as \"%3 (2)\"\n"
              "list.csv:1: there is no value column\n"
              "list.csv:2: the quantity is \"%2\", but the row names 2 references: the references count\n");
}

TEST_F(CsvPartList, SumsUpEqualWarnings)
{
    std::string bytes = "Ref,Value\n";
    for (int row = 1; row <= 50; ++row) {
        bytes += 'R' + std::to_string(row) + '\n';
    }
    const auto design = load(bytes);
    EXPECT_EQ(design->warnings().size(), 21U);
    EXPECT_THAT(warnings(*design), HasSubstr("list.csv:51: 30 more rows"));
}

TEST_F(CsvPartList, CountsReferencesAnew)
{
    const std::string_view lists[] = {
        "Title\n\n Ref ;Value\r\n\"R1,R2\r\nR3\";\"a;\"\"b\"\"\"\r\nR4-R9;5\"\" x\r\n\r\nR10;\"\"\r\n",
        "\xEF\xBB\xBF\"Value\",\"Refs\"\r\"x\",\"C17/18/19 C20/C21, D1/3-5\"\r",
        "Ref;V\nR1 - R3, R5- R6 R8 -9;\nR1,2,5-7,9-R11;\nR08-R11, "
        "R7-R7;\nU1A2-U1A4;\nX1-2;\nR1\u2013R3\u3001R5\u00A0R6;\n",
        "Ref|V\nJ1-A TP-1 TP-1-2|\nJ4-1 J99999999999999999999-1|\nX1-02 J1-1|\nU1/A CH1/R5 R? "
        "J?-2|\n12|\nR1.5-8, +5V, "
        "-V, #PWR01, #PWR2-4,7 #PWR8/9 #FLG-1 #X1/Y R3,4|\nR1 to R3, C1..C3 L1~3&L7+L9|\n",
        "Ref\tV\nR1\x96R4\t\n C2\xA0 C3 \t\n",
        "Ref,V\n\"R1\nJ1\",\"a\"\"b\"\n",
        "Value,Ref\n5\"\" cable,W1\n \"x\" , \"W2 W3\" \n",
    };
    for (const std::string_view bytes : lists) {
        SCOPED_TRACE(bytes);
        EXPECT_FALSE(load(bytes)->components().empty());
    }
}

TEST_F(CsvPartList, CountsTheFileAsItIsNow)
{
    const auto design = load("Ref,Value\nR1,1k\n");
    Problem error;
    m_folder.write(m_file, "Ref,Value\nR1-R500000000,1k\n");
    EXPECT_EQ(design->recount(&error).placed, 500000000);
    QFile::remove(m_folder.path(m_file));
    EXPECT_EQ(design->recount(&error).placed, 0);
    EXPECT_FALSE(error.text.isEmpty());
}
