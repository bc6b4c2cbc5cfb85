// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// Tables of edits that are applied to a design.
#include "tests/cli/writetest.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class Apply : public WriteTest
{
protected:
    /// What the edits of such a table print.
    std::string applied(const char *table, const char *options = "")
    {
        write(edits, table);
        return done((std::string("apply amp.kicad_sch edits.csv") + options).c_str());
    }

    /// Expects that the one change in the table of edits is not taken for one that somebody made.
    void expectRefusedAsSpreadsheetChange(const std::string &row)
    {
        const ProgramRun refused = run("apply list.csv edits.csv --dry-run");
        EXPECT_EQ(refused.status, 1) << row;
        EXPECT_THAT(refused.err, AllOf(HasSubstr("edits.csv:2: R"), HasSubstr("as spreadsheets do"))) << row;
        EXPECT_THAT(done("apply list.csv edits.csv --dry-run --accept-spreadsheet-changes"),
                    HasSubstr("would change 1 property"))
            << row;
    }
};

TEST_F(Apply, AReportAppliedAsItIsChangesNothing)
{
    (void)done("report amp.kicad_sch --allow-duplicates --full-csv full.csv --csv lines.csv");
    EXPECT_EQ(done("apply amp.kicad_sch full.csv"), "nothing to change\n");
    EXPECT_EQ(done("apply amp.kicad_sch lines.csv"), "nothing to change\n");
    EXPECT_EQ(read(schematic), m_before);
}

TEST_F(Apply, ApplyTakesTheCellsThatDiffer)
{
    EXPECT_THAT(applied("Category,Quantity,References,Value,Unit Cost,MPN\n"
                        "x,9,\"R1-R2,R4\",10k,2.25,\"a \"\"b\"\"\"\n"
                        ",,SCR1,M4,,\n"
                        ",,J1-2,Plug,,\n"),
                AllOf(HasSubstr("R1 COST: \"1.5\" -> \"2.25\""), HasSubstr("R2,R4 COST: none -> \"2.25\""),
                      HasSubstr("R2,R4 MPN: none -> \"a \"b\"\""),
                      HasSubstr("SCR1 VALUE: \"M3\" -> \"M4\" (a BOM-only part of J1-2)")));
    EXPECT_THAT(applied("References,Unit Cost,MPN\nR1,,\nR2,2.25,\"a \"\"b\"\"\"\n", " --template Default"),
                AllOf(HasSubstr("R1 COST: \"2.25\" -> removed"), HasSubstr("R1 MPN: \"a \"b\"\" -> removed"),
                      HasSubstr("changed 2 properties of 1 part")));
}

TEST_F(Apply, ApplyPassesOverTheReportsOwnColumnsWhereverTheyStand)
{
    write(schematic, kicadSchematic({{"R1", "10k", "(property \"QUANTITY\" \"7\" (at 0 0 0))"}}));
    EXPECT_THAT(applied("References,Value,Category\nR1,11k,Resistors\n"), HasSubstr("changed 1 property"));
    write(edits, "References,Quantity\nR1,1\n");
    EXPECT_THAT(run("apply amp.kicad_sch edits.csv").err,
                HasSubstr("edits.csv:1: column 2 \"Quantity\" may be"));
    EXPECT_THAT(applied("CATEGORY,Quantity,References,Value,Quantity\nResistors,3,R1,12k,8\n"),
                AllOf(HasSubstr("R1 QUANTITY: \"7\" -> \"8\""), HasSubstr("changed 2 properties")));
}

TEST_F(Apply, ARangeHasAsManyDigitsAsItsEnds)
{
    write(schematic,
          kicadSchematic({{"R01", "1"}, {"R02", "1"}, {"R03", "1"}, {"R1", "2"}, {"R2", "2"}, {"R3", "2"}}));
    EXPECT_THAT(done("set amp.kicad_sch R01-R03 MPN=A"),
                AllOf(HasSubstr("R01-R03 MPN"), HasSubstr("changed 3 properties")));
    EXPECT_THAT(done("set amp.kicad_sch R1-R3 MPN=A"),
                AllOf(HasSubstr("R1-R3 MPN"), HasSubstr("changed 3 properties")));
}

TEST_F(Apply, WhatABomOnlyPartHasAlreadyIsNotWritten)
{
    EXPECT_EQ(done("set amp.kicad_sch SCR2 value=M3 MPN="), "nothing to change\n");
    EXPECT_EQ(read(schematic), m_before);
}

TEST_F(Apply, ApplyStripsWhatTheFieldPutsAround)
{
    (void)done("template new Shop");
    QByteArray settings = QByteArray::fromStdString(done("template export Shop -"));
    settings.replace("<prefix Type=\"QString\"></prefix>", "<prefix Type=\"QString\">&lt; </prefix>");
    settings.replace("<suffix Type=\"QString\"></suffix>", "<suffix Type=\"QString\">\", EUR </suffix>");
    settings.replace("<applyToEmpty Type=\"bool\" Value=\"false\"/>",
                     "<applyToEmpty Type=\"bool\" Value=\"true\"/>");
    write(QStringLiteral("shop.bomt"), settings);
    (void)done("report amp.kicad_sch --allow-duplicates --template shop.bomt --full-csv full.csv");
    EXPECT_EQ(done("apply amp.kicad_sch full.csv --template shop.bomt"), "nothing to change\n");
    EXPECT_THAT(read(QStringLiteral("full.csv")),
                HasSubstr("Resistors,R1,\"< 10k, EUR \",\"< , EUR \",\"< 1.50, EUR \"\n"));
    EXPECT_THAT(
        applied("References,Unit Cost,Value\nR1,\"< 2.5, EUR\",12k\nR2,\"< 3, EUR \",\"< 10k, EUR\"\n",
                " --template shop.bomt"),
        AllOf(HasSubstr("R1 COST: \"1.5\" -> \"2.5\""), HasSubstr("R2 COST: none -> \"3\""),
              HasSubstr("R1 Value: \"10k\" -> \"12k\""), HasSubstr("changed 3 properties of 2 parts")));
    EXPECT_THAT(applied("References,Unit Cost\nR1,\"< , EUR\"\n", " --template shop.bomt"),
                HasSubstr("R1 COST: \"2.5\" -> removed"));
}

TEST_F(Apply, ApplyReadsWhatAReportWroteOfThousands)
{
    write(list, "Reference,Value,COST\nR1,1k,1234.5\nR2,2k,3\n");
    (void)done("report list.csv --csv full.csv --locale de_DE");
    EXPECT_THAT(read(QStringLiteral("full.csv")), HasSubstr("\"1.234,50\""));
    EXPECT_EQ(done("apply list.csv full.csv --locale de_DE"), "nothing to change\n");
    write(edits, "Reference;COST\nR2;1.234\n");
    const ProgramRun refused = run("apply list.csv edits.csv --locale de_DE");
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.err, HasSubstr("edits.csv:2: R2, COST: \"1.234\" has a mark before three digits"));
    write(edits, "Reference;COST\nR1;1.234,60\nR2;1,234\n");
    EXPECT_THAT(done("apply list.csv edits.csv --locale de_DE"),
                AllOf(HasSubstr("-> \"1234.60\""), HasSubstr("-> \"1.234\"")));
}

TEST_F(Apply, ApplyTakesNoChangesThatSpreadsheetsMakeByThemselves)
{
    const QString before = QStringLiteral("Reference,Value,A,B,COST\nR1,1k,0402,1E3,3.9\nR2,1k,1-2,=A1,0\n");
    write(list, before.toUtf8());
    write(edits, "Reference,A,B,COST\nR1,0402,1E3,3.90\nR2,1-2,=A1,0.00\n");
    EXPECT_EQ(done("apply list.csv edits.csv"), "nothing to change\n");
    for (const char *row : {"R1,402,1E3,", "R1,0402,1.00E+03,", "R1,0402,1000,", "R2,02-Jan,=A1,",
                            "R2,2026-02-01,=A1,", "R2,44563,=A1,", "R2,1-2,7,", "R2,1-2,#NAME?,"}) {
        write(edits, QByteArray("Reference,A,B,COST\n") + row + (row[1] == '1' ? "3.9\n" : "0\n"));
        expectRefusedAsSpreadsheetChange(row);
    }
    write(edits, "Reference,A,B,COST\nR1,0603,2E3,3.95\nR2,1-3,=A2,1\n");
    EXPECT_THAT(done("apply list.csv edits.csv"), HasSubstr("changed 6 properties"));
}

TEST_F(Apply, WhatSpreadsheetsMakeOfATextIsToldFromAnEdit)
{
    struct Case
    {
        const char *before;
        QStringList made;
        const char *edited;
    };
    const Case cases[] = {
        {"8934071179001234567", {QStringLiteral("8934071179001230000")}, "8934071179001234568"},
        {"1:1",
         {QStringLiteral("1:01"), QStringLiteral("01:01:00"), QStringLiteral("1:01:00 AM"),
          QStringLiteral("0.042361111")},
         "1:2"},
        {"12:30", {QStringLiteral("0.520833333"), QStringLiteral("12:30:00")}, "0.5"},
        {"true", {QStringLiteral("TRUE"), QStringLiteral("WAHR")}, "FALSE"},
        {"False", {QStringLiteral("FALSE"), QStringLiteral("FALSCH")}, "no"},
        {"Jan 5", {QStringLiteral("05. Jan"), QStringLiteral("5-Jan"), QStringLiteral("Jan-05")}, "6-Jan"},
        {"5 March 2026", {QStringLiteral("05. Mrz 26"), QStringLiteral("5-Mar-26")}, "5-May-26"},
    };
    for (const Case &c : cases) {
        write(list, QByteArray("Reference,Value,A\nR1,1k,") + c.before + '\n');
        for (const QString &made : c.made) {
            write(edits, "Reference,A\nR1," + made.toUtf8() + '\n');
            expectRefusedAsSpreadsheetChange(made.toStdString());
        }
        write(edits, QByteArray("Reference,A\nR1,") + c.edited + '\n');
        EXPECT_THAT(done("apply list.csv edits.csv --dry-run"), HasSubstr("would change 1 property"));
    }
}

TEST_F(Apply, NewPropertiesAreToldWithThoseThatTheyMayBe)
{
    write(list, "Reference,Value,MPN,Part_No,MPN2\nR1,1k,a,,\nR2,1k,a,,\nR3,1k,a,,\n");
    const std::tuple<const char *, const char *, const char *> cases[] = {
        {"MPM", "new property MPM on 3 parts\n", "nearly the same name: MPN\n"},
        {"PMN", "new property PMN on 3 parts\n", "nearly the same name: MPN\n"},
        {"PART/NO", "new property PART/NO on 3 parts\n", "nearly the same name: Part_No\n"},
        {"PART NO.", "", "PART NO. as \"Part_No\" on 3 parts\n"},
        {"MPN3", "new property MPN3 on 3 parts\n", ""},
        {"Mpn", "", ""},
        {"DNP", "", ""},
    };
    for (const auto &[name, told, similar] : cases) {
        write(edits, QByteArray("Reference,Value,") + name + "\n\"R1,R2,R3\",1k,1\n");
        const ProgramRun result = runInShell("$BOM apply list.csv edits.csv --dry-run --new-property '" +
                                             QByteArray(name).toLower() + "'");
        EXPECT_EQ(result.status, 0) << name << result.err;
        EXPECT_THAT(result.out, HasSubstr(std::string(told) + "would change 3 properties")) << name;
        EXPECT_THAT(result.err, HasSubstr(similar));
        EXPECT_EQ(result.err.empty(), std::string(similar).empty()) << result.err;
    }
    EXPECT_THAT(done("set amp.kicad_sch R1,SCR1 TOLERANCE=1%"),
                HasSubstr("\nnew property TOLERANCE on 2 parts\n"));
    EXPECT_THAT(done("set amp.kicad_sch R1,SCR1 TOLERANCE=2%"), Not(HasSubstr("new")));
}

TEST_F(Apply, ApplyRefusesWhatItDoesNotUnderstandWithItsLine)
{
    const std::pair<const char *, const char *> cases[] = {
        {"References,Valeu\nR1,1\n",
         "edits.csv:1: column 2 \"Valeu\" is neither a field of the template nor a "
         "property; the design has Value (--new-property \"Valeu\" makes it one)"},
        {"References,Stock Code,CODE\nR1,1,2\n", "edits.csv:2: R1, CODE: two values"},
        {"References,MPN,MPN\nR1,1,1\n", "edits.csv:1: the heading \"MPN\" stands over two columns"},
        {"References,Nut,cost,COST\nR1,1,2,3\n", "edits.csv:1: column 2 \"Nut\" is neither"},
        {"References,Value\nR1,1\nR9,2\n", "edits.csv:3: R9: the design has no part of this reference"},
        {"References,Value\nR1,1\n\n\"R2,R1\",2\n", "edits.csv:4: R1 has other texts on line 2"},
        {"References,Value\n,1\n", "edits.csv:2: "},
        {"References,Value,.Placed\nR1,10k,Top\n", "edits.csv:2: R1, .Placed: "},
        {"References,Value,.Name\nR3,10k,Q\n", "edits.csv:2: R3, .Name: "},
        {"References,Value,COST\nR1,10k\n", "edits.csv:2: R1, COST: the row has no cell for it"},
        {"References,Value\nR1,10k,x\n", "edits.csv:2: there is a text behind the last column"},
        {"References,COST\nR1,cheap\n", "edits.csv:2: R1, COST: \"cheap\""},
        {"References,Value\nC7,5u\n", "C7, VALUE: several symbols"},
        {"References,Value\nR1,\" \"\n", "R1, VALUE: a part cannot be without a value"},
        {"References,Value\nR1,\n",
         "edits.csv:2: R1, VALUE: a part cannot be without a value (amp.kicad_sch:"},
    };
    for (const auto &[table, message] : cases) {
        write(edits, table);
        expectRefused("apply amp.kicad_sch edits.csv --template Default", message);
    }
    expectRefused("apply amp.kicad_sch edits.csv --new-property MPM",
                  "edits.csv:1: there is no column \"MPM\"");
    write(edits, "Part,Value\nR1,1\n");
    expectRefused("apply amp.kicad_sch edits.csv", "edits.csv:1: there is no reference column", 3);
}

} // namespace
