// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::Not;

using Check = ProgramTest;

TEST_F(Check, AccountsForEverySymbol)
{
    write(QStringLiteral("amp.kicad_sch"),
          kicadSchematic({{"R1", "10k"},
                          {"R2", "10k"},
                          {"R3", "10k", {}, "(in_bom no) (on_board yes) (dnp no)"},
                          {"R4", "10k", {}, "(in_bom yes) (on_board yes) (dnp yes)"},
                          {"R5", "10k", {}, "(in_bom yes) (on_board yes) (dnp yes)"},
                          {"U1", "op", {}, "(in_bom yes) (on_board yes) (dnp no)", "Amplifier:Dual", 1},
                          {"U1", "op", {}, "(in_bom yes) (on_board yes) (dnp no)", "Amplifier:Dual", 2},
                          {"#PWR01", "GND", {}, "(in_bom yes) (on_board yes) (dnp no)", "power:GND"}}));
    const ProgramRun result = run("check amp.kicad_sch");
    EXPECT_EQ(result.status, 0) << result.out;
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, "symbols drawn                          8\n"
                          "power symbols                          1\n"
                          "further units of a part                1\n"
                          "components                             6\n"
                          "in the bill                            3 in 2 lines\n"
                          "not in the bill                        3\n"
                          "  excluded from the BOM on the symbol  1: R3\n"
                          "  not fitted: marked on the symbol     2: R4-R5\n"
                          "of all components, not fitted          2\n"
                          "the sums                               agree\n");
}

TEST_F(Check, FindsRepeatedReferences)
{
    write(QStringLiteral("amp.kicad_sch"),
          kicadSchematic({{"R1", "10k"},
                          {"R1", "47k"},
                          {"H1", "hole", {}, "(in_bom no) (on_board yes) (dnp no)"},
                          {"H1", "hole", {}, "(in_bom no) (on_board yes) (dnp no)"}}));
    const ProgramRun result = run("check amp.kicad_sch");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, HasSubstr("\nTo decide:\n  DIR/amp.kicad_sch:"));
    EXPECT_THAT(result.out, HasSubstr(": R1 occurs 2 times"));
    EXPECT_THAT(result.out, HasSubstr("\nTo know:\n  DIR/amp.kicad_sch:"))
        << "skipped ones do not hurt the bill";
    EXPECT_THAT(result.out, HasSubstr("agree\n"));
}

TEST_F(Check, FindsRequiredPropertiesThatAreEmptyOrMissing)
{
    write(QStringLiteral("list.csv"), "Reference,Value,MPN,Footprint,DNP\n"
                                      "R1,10k,M1,0603,\n"
                                      "R2,10k,,0603,\n"
                                      "R3,10k,\" \",0603,\n"
                                      "R4,10k,,0603,x\n");
    const ProgramRun found = run("check list.csv --require MPN --require PACKAGE --require Supplier");
    EXPECT_EQ(found.status, 1);
    EXPECT_THAT(found.out, HasSubstr("\nTo decide:\n"
                                     "  MPN is empty or missing on 2 parts: R2-R3\n"
                                     "  Supplier is empty or missing on 3 parts: R1-R3\n"));
    EXPECT_THAT(found.out, Not(HasSubstr("PACKAGE is empty")));
    EXPECT_EQ(run("check list.csv --require VALUE list.csv --require PACKAGE").status, 2);
    EXPECT_EQ(run("check --require VALUE list.csv").status, 0);
    EXPECT_EQ(run("check list.csv --require mpn --dnp only").status, 1);
}

TEST_F(Check, NoticesNamesThatHideOneAnother)
{
    write(
        QStringLiteral("amp.kicad_sch"),
        kicadSchematic({{"R1", "10k", "(property \"MPN\" \"a\" (at 0 0 0))"},
                        {"R2", "10k",
                         "(property \"Mpn\" \"b\" (at 0 0 0)) (property \"Footprint\" \"R_0603\" (at 0 0 0)) "
                         "(property \"PACKAGE\" \"0603\" (at 0 0 0))"}}));
    const ProgramRun result = run("check amp.kicad_sch");
    EXPECT_EQ(result.status, 0) << result.out;
    EXPECT_THAT(result.out, HasSubstr("MPN on 1 part, Mpn on 1 part"));
    EXPECT_THAT(result.out, HasSubstr("one of Footprint, PACKAGE hides another with a different text on R2"));
}

TEST_F(Check, CountsBomOnlyPartsApartAndNamesFaultyDefinitions)
{
    write(QStringLiteral("list.csv"), "Reference,Value,BOMPART1,BOMPART2,BOMPART3\n"
                                      "U1,reg,\"2,SCR,M3\",\"1,SCR\",\"two,SCR,M3\"\n"
                                      "U2,reg,\"1,HS,sink\",\"2000000000,SCR,M3\",\"1,NUT,M3 nut,CODE\"\n");
    const ProgramRun result = run("check list.csv --require VALUE");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, HasSubstr("components                     2\n"
                                      "in the bill                    2 and 4 BOM-only parts in 4 lines\n"
                                      "not in the bill                0\n"));
    EXPECT_THAT(result.out,
                HasSubstr("agree\n\nTo decide:\n"
                          "  U1: BOMPART2: makes no parts; it needs a count, a prefix and a value\n"
                          "  U1: BOMPART3: makes no parts; its count is no number\n"
                          "  U2: BOMPART3: has a field that is not NAME=VALUE and is passed over\n"
                          "  U2: BOMPART2: makes no parts; its count is above 100000\n"));
}

TEST_F(Check, FindsLinesThatReplaceEachOther)
{
    write(QStringLiteral("list.csv"), "Reference,Value\nJ,a\nJ00,b\nJ5-J6,a\nR1,10k\n");
    const ProgramRun result = run("check list.csv");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, HasSubstr("components                       5\n"
                                      "in the bill                      2 in 2 lines\n"
                                      "left out for an equal reference  3: J,J5-J6\n"
                                      "not in the bill                  0\n"));
    EXPECT_THAT(result.out, HasSubstr("agree\n\nTo decide:\n"
                                      "  the line of 3 parts J,J5-J6 is left out of the report, because J "
                                      "and J00 count as the same reference; renumber one of them\n"));
}

TEST_F(Check, FindsSymbolsThatAreNotAnnotated)
{
    write(QStringLiteral("amp.kicad_sch"), kicadSchematic({{"R1", "1k"}, {"R?", "1k"}, {"", "2k"}}));
    const ProgramRun result = run("check amp.kicad_sch");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, HasSubstr(": R? is not annotated\n"));
    EXPECT_THAT(result.out, HasSubstr(": a symbol has no reference\n"));
    EXPECT_THAT(run("report amp.kicad_sch").err, HasSubstr("bom: 2 symbols are not annotated"));
}

TEST_F(Check, FindsAReferenceInAndOutOfTheBillForEveryChoice)
{
    write(QStringLiteral("list.csv"), "Reference,Value,DNP\nR1,10k,\nR1,47k,x\n");
    for (const char *choice : {"exclude", "include", "only"}) {
        const ProgramRun result = run((std::string("check list.csv --dnp ") + choice).c_str());
        EXPECT_EQ(result.status, 1) << choice;
        EXPECT_THAT(result.out, HasSubstr("To decide:\n  DIR/list.csv:2: R1 occurs 2 times, also at "
                                          "DIR/list.csv:3"))
            << choice;
    }
    const ProgramRun report = run("report list.csv");
    EXPECT_EQ(report.status, 0);
    EXPECT_THAT(report.err, HasSubstr("R1 occurs 2 times, also at DIR/list.csv:3; 1 of them is in the bill"));
}

TEST_F(Check, FindsABoardThatCannotBeRead)
{
    write(QStringLiteral("amp.kicad_sch"), kicadSchematic({{"R1", "1k"}}));
    write(QStringLiteral("amp.kicad_pcb"), "(kicad_pcb (footprint");
    const ProgramRun result = run("check amp.kicad_sch");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, HasSubstr("DIR/amp.kicad_pcb:"));
    EXPECT_THAT(run("parts amp.kicad_sch").err, HasSubstr("bom: DIR/amp.kicad_pcb:"));
}

TEST_F(Check, NoticesTextVariablesThatAreNotResolved)
{
    write(QStringLiteral("list.csv"), "Reference,Value,MPN,DNP\n"
                                      "R1,${RES},,\nR2,1k,A${X}B,\nR3,${open,,\nR4,${RES},,x\n");
    const ProgramRun result = run("check list.csv");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out,
                HasSubstr("To know:\n  a text variable ${...} is not resolved on 2 parts: R1-R2\n"));
}

TEST_F(Check, FindsNotesThatCannotBeRead)
{
    write(QStringLiteral("list.csv"), "Reference,Value\nR1,10k\n");
    write(QStringLiteral("list.bomnotes.txt"), "\xff\xff");
    const ProgramRun result = run("check list.csv");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, HasSubstr("DIR/list.bomnotes.txt: is no UTF-8 text"));
}

} // namespace
