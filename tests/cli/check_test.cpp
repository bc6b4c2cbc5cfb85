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
    EXPECT_EQ(result.out, "symbols drawn              8\n"
                          "power symbols              1\n"
                          "further units of a part    1\n"
                          "components                 6\n"
                          "in the bill                3 in 2 lines\n"
                          "skipped                    3\n"
                          "  in_bom no on the symbol  1: R3\n"
                          "  not fitted (symbol)      2: R4-R5\n"
                          "not fitted                 2\n"
                          "the sums                   agree\n");
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
    EXPECT_THAT(result.out, HasSubstr("\nthe sums                   agree\n"));
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

TEST_F(Check, FindsLinesThatReplaceEachOther)
{
    write(QStringLiteral("list.csv"), "Reference,Value\nR1,10k\nR01,47k\n");
    const ProgramRun result = run("check list.csv");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, HasSubstr("R01"));
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
