// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/partlistreader.h"
#include "designs/designfolder.h"
#include "designs/formats/designreader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace designs;
using testing::HasSubstr;

namespace {

/// An edit that names its part by the reference.
struct Asked
{
    std::string reference;
    std::string name;
    std::optional<std::string> value;
};

class CsvEditTest : public testing::Test
{
protected:
    std::unique_ptr<Design> read(const std::string &text)
    {
        ReadResult result = readDesign(m_folder.write(QStringLiteral("list.csv"), text));
        EXPECT_TRUE(result.design) << result.error.message().toStdString();
        return result.design ? std::move(result.design) : std::make_unique<Design>();
    }

    static std::vector<Edit> editsOf(const Design &design, const std::vector<Asked> &asked)
    {
        std::vector<Edit> edits;
        for (const Asked &one : asked) {
            const auto &parts = design.components();
            const auto at = std::ranges::find(parts, std::string_view(one.reference), &Component::reference);
            EXPECT_NE(at, parts.end()) << one.reference;
            edits.push_back({std::size_t(at - parts.begin()), one.name, one.value});
        }
        return edits;
    }

    /// The list after the edits; the messages where they are refused, "unchanged" where nothing is to do.
    std::string edited(const std::string &text, const std::vector<Asked> &asked)
    {
        const auto design = read(text);
        const EditPlan plan = design->planEdits(editsOf(*design, asked));
        std::string messages;
        for (const EditProblem &problem : plan.problems) {
            messages += problem.problem.message().toStdString() + '\n';
        }
        EXPECT_TRUE(messages.empty() || plan.files.empty());
        return !plan.problems.empty() ? messages
               : plan.files.empty()   ? "unchanged"
                                      : plan.files.front().after.toStdString();
    }

    DesignFolder m_folder;
};

TEST_F(CsvEditTest, ChangesOnlyTheCellAndKeepsTheManner)
{
    EXPECT_EQ(edited("\xEF\xBB\xBF"
                     "My board;;\r\n\r\nRef;\"Value\";MPN\nR1; 10k ;\"a\"\r\n\"R2\";1k;'b'",
                     {{"R1", "value", "22k"}, {"R1", "mpn", "x\"y"}, {"R2", "MPN", "1;2"}}),
              "\xEF\xBB\xBF"
              "My board;;\r\n\r\nRef;\"Value\";MPN\nR1; 22k ;\"x\"\"y\"\r\n\"R2\";1k;\"1;2\"");
    EXPECT_EQ(edited("Ref\tValue\rR1\t1k\r", {{"R1", "VALUE", "a\nb"}}), "Ref\tValue\rR1\t\"a\nb\"\r");
    EXPECT_EQ(edited("\"Ref\",\"Value\"\n\"R1\",\"\"\n", {{"R1", "Value", " 1"}}),
              "\"Ref\",\"Value\"\n\"R1\",\" 1\"\n");
    EXPECT_EQ(edited("Ref,Value,A,B\nR1\nR2,1,,\n", {{"R1", "A", "x"}}), "Ref,Value,A,B\nR1,,x\nR2,1,,\n");
    EXPECT_EQ(edited("Ref,Value\nR1,1k\n", {{"R1", "Value", "2k"}, {"R1", "VALUE", "1k"}}), "unchanged");
    EXPECT_EQ(edited("Ref,Value,Package\nR1,1k,0603\n", {{"R1", "PACKAGE", "0805"}, {"R1", "Value", {}}}),
              "Ref,Value,Package\nR1,,0805\n");
}

TEST_F(CsvEditTest, SplitsARowWhereReferencesDiffer)
{
    const std::string list = "Qty,Ref,Value,MPN\n7,\"R1,R2, R4-R7,#X,R9\",10k,a\n1,C1,1u,\n";
    EXPECT_EQ(edited(list, {{"R5", "MPN", "b"}, {"R1", "MPN", "b"}, {"R9", "MPN", "c"}}),
              "Qty,Ref,Value,MPN\n5,\"R2,R4,R6,R7,#X\",10k,a\n2,\"R1,R5\",10k,b\n1,\"R9\",10k,c\n1,C1,1u,\n");
    EXPECT_EQ(edited("Ref;Qty;Value\r\nR01-R12; 12;1k", {{"R06", "Value", "2k"}}),
              "Ref;Qty;Value\r\nR01-R05,R07-R12; 11;1k\r\nR06; 1;2k");
    EXPECT_EQ(edited("Ref;Qty;Value\nC17/18/19;;1k\n", {{"C17", "Value", "2k"}}),
              "Ref;Qty;Value\nC18,C19;;1k\nC17;;2k\n");
    // All alike: no new row, and the cell with the references stays as it is written.
    EXPECT_EQ(edited("Ref,Value\nR1 - R2,1\n", {{"R1", "Value", "2"}, {"R2", "Value", "2"}}),
              "Ref,Value\nR1 - R2,2\n");
    EXPECT_EQ(edited("Ref,Value\n\"R1 R2\",1\n", {{"R1", "Value", "2"}, {"R2", "Value", "3"}}),
              "Ref,Value\n\"R1\",2\n\"R2\",3\n");
    // Parted from "foo", the bare 12 would be R12.
    EXPECT_THAT(edited("Ref,Value\n\"R5,foo,12\",1\n", {{"foo", "Value", "2"}}),
                HasSubstr("list.csv:2: the ref"));
}

TEST_F(CsvEditTest, AddsAColumnForANewName)
{
    EXPECT_EQ(edited("Title\nRef,Value\nR1,1k\n\nR2\n\"R3,R4\",2k\n",
                     {{"R1", "MPN", "a"}, {"R4", "mpn", "b"}, {"R4", "BOMSKIP", "Yes"}}),
              "Title\nRef,Value,MPN,BOMSKIP\nR1,1k,a,\n\nR2\n\"R3\",2k,,\n\"R4\",2k,b,Yes\n");
    EXPECT_EQ(edited("\"Ref\",\"Value\"\n\"R1\",\"1\"\n\"R2\",\"1\"", {{"R2", "A,B", "x"}}),
              "\"Ref\",\"Value\",\"A,B\"\n\"R1\",\"1\",\"\"\n\"R2\",\"1\",\"x\"");
    EXPECT_EQ(edited("Ref\nR1\n\nR2", {{"R2", "A", "x"}}), "Ref,A\nR1,\n\nR2,x");
    EXPECT_EQ(edited("Ref\nR1\n", {{"R1", "A", "x"}, {"R1", "B", "y"}, {"R1", "A", {}}}), "Ref,B\nR1,y\n");
    EXPECT_EQ(edited("Ref\nR1\n", {{"R1", "A", ""}, {"R1", "B", {}}}), "unchanged");
    EXPECT_EQ(edited("Ref\nR1\n", {{"R1", "VALUE", "1k"}, {"R1", "PACKAGE", "0603"}}),
              "Ref,VALUE,PACKAGE\nR1,1k,0603\n");
    EXPECT_THAT(edited("Ref\nR1\n", {{"R1", "Qty", "1"}}), HasSubstr("no column \"Qty\""));
}

TEST_F(CsvEditTest, KeepsWindows1252AndRefusesWhatItLacks)
{
    EXPECT_EQ(edited("Ref,Value,Maker\nR1,1k,M\xFCller\n", {{"R1", "Value", "5\xE2\x82\xAC \xC2\xB5"}}),
              "Ref,Value,Maker\nR1,5\x80 \xB5,M\xFCller\n");
    EXPECT_THAT(edited("Ref,Value,Maker\nR1,1k,M\xFCller\n", {{"R1", "Value", "1k\xCE\xA9"}}),
                HasSubstr("list.csv:2: the text \"1k\xCE\xA9\" has characters"));
    // The only letter that tells the encoding would be read as UTF-8 then.
    EXPECT_THAT(edited("Ref,Value\nR1,\xFC\n", {{"R1", "Value", "\xC3\x83\xC2\xA4"}}),
                HasSubstr("would not be read as it is meant"));
}

TEST_F(CsvEditTest, RefusesByNameAndReason)
{
    const std::string list = "Ref,Qty,Value,Footprint\nR1,1,1k,0603\n";
    const std::vector<std::pair<Asked, const char *>> refused = {
        {{"R1", "ref", "R2"}, "reference of a part cannot be changed"},
        {{"R1", "Qty", "2"}, "quantity cannot be changed"},
        {{"R1", "qty", {}}, "quantity cannot be changed"},
        {{"R1", "Comment", "x"}, "meaning of its own"},
        {{"R1", "a\nb", "x"}, "line break"},
        {{"R1", " a", "x"}, "blanks around it"},
        {{"R1", "DNP", "perhaps"}, "can be Yes or No"},
        {{"R1", "BOMPART1", " "}, "blanks alone"},
        {{"R1", "A", std::string("a\0b", 3)}, "no valid text"},
        {{"R1", "A", "\xFF"}, "no valid text"},
    };
    for (const auto &[asked, why] : refused) {
        const std::string messages = edited(list, {{"R1", "Value", "2k"}, asked});
        EXPECT_THAT(messages, testing::AllOf(HasSubstr("list.csv:2: "), HasSubstr(why)));
    }
    const auto design = read(list);
    m_folder.write(QStringLiteral("list.csv"), list + "R2,1,1k,0603\n");
    const EditPlan plan = design->planEdits(editsOf(*design, {{"R1", "Value", "2k"}}));
    ASSERT_EQ(plan.problems.size(), 1U);
    EXPECT_EQ(plan.problems[0].problem.text, QStringLiteral("was changed since it was read"));
}

TEST_F(CsvEditTest, TellsWhatEachEditDoes)
{
    const auto design = read("Ref,Value,Dnp,BOMSKIP\nR1,1k,,\n\"R2,R3\",2k,Yes,x\n");
    const EditPlan plan = design->planEdits(editsOf(*design, {{"R3", "DNP", {}},
                                                              {"R1", "Value", "9k"},
                                                              {"R2", "value", "2k"},
                                                              {"R1", "VALUE", "3k"},
                                                              {"R2", "BOMSKIP", "No"},
                                                              {"R1", "New", "n"}}));
    const QString file = design->info().file;
    std::vector<Change> changes = plan.changes;
    ASSERT_EQ(changes.size(), 4U);
    const auto is = [&](const Change &change, std::size_t edit, const char *name,
                        const std::optional<std::string> &before, const std::optional<std::string> &after,
                        int line) {
        EXPECT_EQ(change.edit, edit);
        EXPECT_EQ(change.name, name);
        EXPECT_EQ(change.before, before);
        EXPECT_EQ(change.after, after);
        EXPECT_EQ(change.line, line);
        EXPECT_EQ(change.file, file);
    };
    is(changes[0], 0, "Dnp", "Yes", std::nullopt, 3);
    is(changes[1], 3, "Value", "1k", "3k", 2);
    is(changes[2], 4, "BOMSKIP", "x", std::nullopt, 3);
    is(changes[3], 5, "New", std::nullopt, "n", 2);
}

} // namespace
