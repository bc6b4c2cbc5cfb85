// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// The commands that change a design.
#include "tests/cli/writetest.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class Write : public WriteTest
{
};

TEST_F(Write, SetChangesWhatIsNamedAndNothingElse)
{
    EXPECT_THAT(done("set amp.kicad_sch R1 VALUE=4k7"),
                AllOf(HasSubstr("R1 Value: \"10k\" -> \"4k7\" (amp.kicad_sch:"),
                      HasSubstr("\nchanged 1 property of 1 part in 1 file\n")));
    std::string expected = m_before;
    expected.replace(expected.find("10k"), 3, "4k7");
    EXPECT_EQ(read(schematic), expected);
    EXPECT_EQ(done("set amp.kicad_sch R1 value=4k7"), "nothing to change\n");
}

TEST_F(Write, SetReachesSkippedAndNotFittedPartsUnitsAndBomOnlyParts)
{
    const ProgramRun result = run("set amp.kicad_sch R3-R4,J1-2,U1,SCR2 MPN=X1");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("SCR2 MPN: \"\" -> \"X1\" (a BOM-only part of J1-2)\n"));
    EXPECT_THAT(result.err, HasSubstr("those of J1-2 may change places"));
    const std::string all = done("parts amp.kicad_sch --dnp include --json");
    for (const char *reference : {"R3", "R4", "J1-2", "U1", "SCR2"}) {
        const std::size_t at = all.find(std::string("{\"reference\":\"") + reference + '"');
        ASSERT_NE(at, std::string::npos) << reference;
        EXPECT_LT(all.find("\"MPN\":\"X1\"", at), all.find("{\"reference\"", at + 1)) << reference << all;
    }
    EXPECT_EQ(all.find("\"MPN\":\"X1\"", all.find("\"SCR1\"")),
              all.find("\"MPN\":\"X1\"", all.find("\"SCR2\"")));
}

TEST_F(Write, ADryRunTellsTheSameAndWritesNothing)
{
    const std::string dry = done("set amp.kicad_sch R1,R2 VALUE=4k7 MPN=A --dry-run");
    EXPECT_EQ(read(schematic), m_before);
    EXPECT_EQ(QDir(path({})).entryList(QDir::Files | QDir::Hidden),
              (QStringList{schematic, QStringLiteral("defs.ini")}));
    const std::string real = done("set amp.kicad_sch R1,R2 VALUE=4k7 MPN=A");
    EXPECT_EQ(dry.substr(0, dry.find("would change")), real.substr(0, real.find("changed")));
}

TEST_F(Write, EditsAreRefusedByNameAllOrNone)
{
    const std::pair<const char *, const char *> cases[] = {
        {"set amp.kicad_sch R1,R9 MPN=A", "R9: the design has no part of this reference"},
        {"set amp.kicad_sch R1-R9 MPN=A", "R5: the design has no part of this reference"},
        {"set amp.kicad_sch R4-R1 MPN=A", "R4-R1"},
        {"set amp.kicad_sch C7 MPN=A", "C7, MPN: several symbols have this reference"},
        {"set amp.kicad_sch R1 VALUE= MPN=A", "VALUE"},
        {"set amp.kicad_sch R1,R2 Reference=R8", "Reference"},
        {"set amp.kicad_sch R1 POL=maybe --propdefs defs.ini", "R1, POL: \"maybe\""},
        {"set amp.kicad_sch R3 POL=maybe --propdefs defs.ini", "R3, POL: \"maybe\""},
        {"set amp.kicad_sch R1 COST=cheap --propdefs defs.ini", "a decimal number"},
        {"set amp.kicad_sch R1 COST=1,234 --propdefs defs.ini", "a decimal number"},
        {"set amp.kicad_sch R1 PINS=1,234 --propdefs defs.ini", "a whole number"},
        {"set amp.kicad_sch R1 COST=1,5 --propdefs defs.ini", "a decimal number (--locale tells"},
        {"set amp.kicad_sch R1 COST=1.234 --locale de_DE", "for decimals: write 1234 or 1,234\n"},
        {"set amp.kicad_sch R3 COST=-1.234 --locale tr_TR", "write -1234 or -1,234\n"},
        {"set amp.kicad_sch R1 COST=1,234 --locale en_US", "write 1234 or 1.234\n"},
        {"set amp.kicad_sch R1 COST=0,125 --locale en_US", "write 0.125\n"},
        {"set amp.kicad_sch R1 COST=0.125.000,5 --locale de_DE", "a decimal number"},
        {"set amp.kicad_sch R1 PINS=0.125 --locale de_DE --propdefs defs.ini", "a whole number"},
        {"set amp.kicad_sch R10-R99999 MPN=A", "99980 more references that the design does not have"},
        {"set amp.kicad_sch R1 PINS=1.5 --propdefs defs.ini", "a whole number"},
        {"set amp.kicad_sch R1 PACKAGE=0402 Footprint=0805", "another text is asked for"},
        {"set amp.kicad_sch R1 MPN=a\nb", "R1, MPN"},
        {"set amp.kicad_sch R1 .Placed=Top", "R1, .Placed: this tells what cannot be changed"},
        {"set amp.kicad_sch N1 MPN=A", "N1, MPN: a symbol that is left out and a BOM-only part"},
        {"set amp.kicad_sch J1-2,SCR1 BOMPART1=1,S,x VALUE=M4", "J1-2, BOMPART1: "},
        {"set amp.kicad_sch R3 MPN=x\"\nEND\n\nDATA", "R3, MPN"},
    };
    for (const auto &[arguments, message] : cases) {
        expectRefused(arguments, message);
    }
}

TEST_F(Write, ValuesAreStoredAsTheDefinitionsSay)
{
    EXPECT_THAT(
        done("set amp.kicad_sch R1,R3 POL=yes COST=1.234,5 PINS=1.500 --propdefs defs.ini --locale de_DE"),
        AllOf(HasSubstr("R1,R3 POL: none -> \"1\" (amp.kicad_sch:19, 32)\n"),
              HasSubstr("R1 COST: \"1.5\" -> \"1234.5\""), HasSubstr("R3 COST: none -> \"1234.5\""),
              HasSubstr("R1,R3 PINS: none -> \"1500\"")));
}

TEST_F(Write, WrongUsageIsStatusTwo)
{
    expectRefused("set amp.kicad_sch R1 MPN", "is no NAME=VALUE", 2);
    expectRefused("set amp.kicad_sch R1 =x", "is no NAME=VALUE", 2);
    expectRefused("set amp.kicad_sch R1 MPN=a mpn=b", "named twice", 2);
    expectRefused("set amp.kicad_sch R1", "bom --help", 2);
    expectRefused("apply amp.kicad_sch", "bom --help", 2);
    expectRefused("apply amp.kicad_sch none.csv", "none.csv: there is no such file", 3);
    expectRefused("set none.kicad_sch R1 A=b", "none.kicad_sch: there is no such file", 3);
    expectRefused("undo amp.kicad_sch", "nothing to take back", 1);
}

TEST_F(Write, AFileThatCannotBeWrittenIsStatusFour)
{
    const QString lock = QStringLiteral("~amp.kicad_sch.lck");
    write(lock, {});
    expectRefused("set amp.kicad_sch R1 MPN=A", "amp.kicad_sch", 4);
    expectRefused("set amp.kicad_sch R1 MPN=A --propdefs defs.ini", "amp.kicad_sch", 4);
    EXPECT_THAT(read(QStringLiteral("defs.ini")), Not(HasSubstr("BOMLINKS"))) << "nothing was written";
    expectRefused("set amp.kicad_sch R1 MPN=A --dry-run", "amp.kicad_sch", 4);
    ASSERT_TRUE(QFile::remove(path(lock)));
    (void)done("set amp.kicad_sch R1 MPN=A");
    write(lock, {});
    EXPECT_EQ(run("undo amp.kicad_sch").status, 4);
}

TEST_F(Write, ReadOnlyDefinitionsMatterWhenLinksAreWritten)
{
    const QString definitions = path(QStringLiteral("defs.ini"));
    ASSERT_TRUE(QFile::setPermissions(definitions, QFile::ReadOwner));
    EXPECT_EQ(run("set amp.kicad_sch R1 MPN=A --propdefs defs.ini").err, "");
    const ProgramRun linked = run("set amp.kicad_sch R1 BOMLINKS=MPN=https:%2F%2Fx --propdefs defs.ini");
    EXPECT_EQ(linked.status, 0);
    EXPECT_THAT(linked.err, HasSubstr("BOMLINKS could not be defined"));
    ASSERT_TRUE(QFile::setPermissions(definitions, QFile::ReadOwner | QFile::WriteOwner));
    (void)done("set amp.kicad_sch R1 MPN=B --propdefs defs.ini");
    EXPECT_THAT(read(QStringLiteral("defs.ini")), HasSubstr("BOMLINKS"));
}

TEST_F(Write, FilesThatMayNotBelongTogetherAreReadOnlyWhenAskedFor)
{
    const QString journal = QStringLiteral(".amp.kicad_sch.bom-journal");
    write(journal, R"({"version":1,"state":"committed","token":"0123456789abcdef","files":[{"file":)"
                   R"("amp.kicad_sch","before":"1-00000000000000000000000000000000",)"
                   R"("after":"2-00000000000000000000000000000000"}]})");
    write(QStringLiteral("~amp.kicad_sch.lck"), "{}");
    const std::string states = "bom: amp.kicad_sch: was changed meanwhile\n";
    for (const char *command : {"report amp.kicad_sch", "parts amp.kicad_sch", "check amp.kicad_sch",
                                "set amp.kicad_sch R1 MPN=A", "undo amp.kicad_sch"}) {
        expectRefused(command, states, 3);
    }
    const ProgramRun result = run("parts amp.kicad_sch --as-is");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.err, HasSubstr(states));
    EXPECT_THAT(result.out, HasSubstr("R1"));
    // Without KiCad's lock nothing is completed either: no file holds what the journal says.
    ASSERT_TRUE(QFile::remove(path(QStringLiteral("~amp.kicad_sch.lck"))));
    for (const char *command : {"report amp.kicad_sch", "undo amp.kicad_sch"}) {
        expectRefused(command, states, 3);
    }
    // Another design has the sheet, too.
    write(QStringLiteral("top.kicad_sch"),
          R"((kicad_sch (version 20231120) (uuid "t") (sheet (at 0 0) (size 9 9) (uuid "s")
              (property "Sheetname" "Amp") (property "Sheetfile" "amp.kicad_sch"))))");
    expectRefused("parts top.kicad_sch", states, 3);
    EXPECT_EQ(run("parts top.kicad_sch --as-is").status, 0);
    EXPECT_EQ(read(schematic), m_before);
}

TEST_F(Write, WhatWasDoneIsToldWhereItCannotBePrinted)
{
    for (const char *command : {"set amp.kicad_sch R1 VALUE=4k7", "undo amp.kicad_sch"}) {
        const ProgramRun result = run(command, QStringLiteral("/dev/full"));
        EXPECT_EQ(result.status, 4) << command;
        EXPECT_THAT(result.err, HasSubstr("all the same")) << command;
    }
    EXPECT_EQ(read(schematic), m_before);
}

TEST_F(Write, ANewPropertyOfNearlyTheNameOfAnotherHasToBeMeant)
{
    write(list, "Reference,Value,MPN,Mode\nR1,1k,a,x\n");
    const std::string misspelt = "set list.csv R1 PMN=b --dry-run";
    const ProgramRun refused = run(misspelt.c_str());
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.err,
              "bom: the design has no property \"PMN\"; did you mean \"MPN\"? (--new makes it)\n");
    EXPECT_EQ(refused.out, "");
    EXPECT_EQ(run((misspelt + " --new").c_str()).status, 0);
    for (const char *meant : {"PMN=", "Tolerance=1", "CODE=1", "DNP=1"}) {
        EXPECT_EQ(run((std::string("set list.csv R1 ") + meant + " --dry-run").c_str()).status, 0) << meant;
    }
}

TEST_F(Write, EqualChangesAreToldOnceWithTheFirstOfTheirPlaces)
{
    write(list, "Reference,Value,MPN\nR1,1,a\nR2,1,a\nR3,1,b\nR4,1,a\nR5,1,a\nR6,1,a\nR7,1,a\nR8,1,a\n");
    EXPECT_EQ(done("set list.csv R1-R8 MPN=c --dry-run"),
              "R1-R2,R4-R8 MPN: \"a\" -> \"c\" (list.csv:2, 3, 5, 6, 7 and 2 more places)\n"
              "R3 MPN: \"b\" -> \"c\" (list.csv:4)\n"
              "would change 8 properties of 8 parts in 1 file; nothing was written\n");
    const std::string shared = copyData("kicad/variants", "sheets.kicad_sch") + ".kicad_sch";
    (void)copyData("kicad/variants", "sheets-sub.kicad_sch");
    EXPECT_THAT(done(("set " + shared + " R1 VALUE=4k7 --dry-run").c_str()), HasSubstr("also changes R2\n"));
    EXPECT_THAT(done(("set " + shared + " R1,R2 VALUE=4k7 --dry-run").c_str()),
                AllOf(HasSubstr("R1-R2 Value: "), Not(HasSubstr("also changes"))));
}

TEST_F(Write, ChangesOfAVariantNameIt)
{
    const std::string name = copyData("kicad/variants", "fields-and-flags.kicad_sch");
    for (const char *option : {" --dry-run", ""}) {
        const std::string out =
            done(("set " + name + ".kicad_sch R1 VALUE=4k7 --variant Lite" + option).c_str());
        EXPECT_THAT(out, AllOf(HasSubstr("R1 Value: \"22k\" -> \"4k7\" ("), HasSubstr(", variant Lite)\n")));
    }
    EXPECT_THAT(done(("set " + name + ".kicad_sch R1 VALUE=4k7").c_str()), Not(HasSubstr("variant")));
}

TEST_F(Write, AnEmptyPropertyHidesNoOtherFromEdits)
{
    write(list, "Reference,Value,MPN,Mpn\nR1,1k,,a\nR2,1k,b,\nR3,1k,,\n");
    EXPECT_THAT(done("set list.csv R1,R2,R3 MPN=c"),
                AllOf(HasSubstr("R1 Mpn: \"a\" -> \"c\""), HasSubstr("R2 MPN: \"b\" -> \"c\""),
                      HasSubstr("R3 MPN: \"\" -> \"c\"")));
    (void)done("set list.csv R1 mpn=");
    EXPECT_THAT(done("parts list.csv --json"), HasSubstr("\"MPN\":\"\",\"Mpn\":\"\""));
    write(schematic,
          kicadSchematic(
              {{"R1", "1k", "(property \"MPN\" \"\" (at 0 0 0)) (property \"Mpn\" \"a\" (at 0 0 0))"}}));
    EXPECT_THAT(done("set amp.kicad_sch R1 MPN=c"), HasSubstr("R1 Mpn: \"a\" -> \"c\""));
    EXPECT_THAT(done("parts amp.kicad_sch --json"), HasSubstr("\"MPN\":\"\",\"Mpn\":\"c\""));
}

TEST_F(Write, UndoGivesTheFilesBackOnce)
{
    (void)done("set amp.kicad_sch R1 VALUE=1k");
    (void)done("set amp.kicad_sch R2 VALUE=2k");
    const std::string second = read(schematic);
    EXPECT_EQ(done("undo amp.kicad_sch"), "amp.kicad_sch has its previous content again\n");
    EXPECT_NE(read(schematic), second);
    EXPECT_EQ(run("undo amp.kicad_sch").status, 1);

    (void)done("set amp.kicad_sch R2 VALUE=2k");
    write(schematic, QByteArray::fromStdString(second + "\n"));
    const ProgramRun result = run("undo amp.kicad_sch");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("amp.kicad_sch"));
    EXPECT_EQ(read(schematic), second + "\n");

    (void)done("set amp.kicad_sch R1 VALUE=3k --no-backup");
    EXPECT_THAT(run("undo amp.kicad_sch").err, HasSubstr("nothing to take back"));
}

TEST_F(Write, APartListIsWrittenToo)
{
    write(list, "\"Designator\";\"Value\"\r\n\"R1,R2\";\"10k\"\r\n\"C1\";\"1u\"\r\n");
    (void)done("set list.csv R2 VALUE=47k");
    EXPECT_EQ(read(list),
              "\"Designator\";\"Value\"\r\n\"R1\";\"10k\"\r\n\"R2\";\"47k\"\r\n\"C1\";\"1u\"\r\n");
}

} // namespace
