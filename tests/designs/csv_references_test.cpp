// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/referencecell.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using designs::ReferenceCell;

namespace {

/// The references that a cell names, with blanks between, or why it cannot be read.
std::string named(std::string_view cell)
{
    designs::TextArena arena;
    ReferenceCell reader(arena);
    if (!reader.read(cell)) {
        EXPECT_TRUE(reader.references().empty()) << cell;
        return reader.error().toStdString();
    }
    std::string text;
    for (const std::string_view reference : reader.references()) {
        text += (text.empty() ? "" : " ") + std::string(reference);
    }
    return text;
}

} // namespace

TEST(CsvReferences, TakesReferencesApart)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"R1", "R1"},
        {"R1,R2", "R1 R2"},
        {" R1 ; R2;,R3 R4\n R5\t", "R1 R2 R3 R4 R5"},
        {"R1,R1", "R1 R1"},
        {"", ""},
        {" , ", ""},
        {"R1-R4", "R1 R2 R3 R4"},
        {"R1-4", "R1 R2 R3 R4"},
        {"D33-36, D40", "D33 D34 D35 D36 D40"},
        {"R1 - R3, R5- R6 R8 -9", "R1 R2 R3 R5 R6 R8 R9"},
        {"R1\u2013R3\u3001R5\uFF0CR6\u00A0R7", "R1 R2 R3 R5 R6 R7"},
        {"\uFEFFR1\u200B, R2", "R1 R2"},
        {"R08-R11", "R08 R09 R10 R11"},
        {"R098-101", "R098 R099 R100 R101"},
        {"R7-R7", "R7"},
        {"C17/18/19", "C17 C18 C19"},
        {"C17/C18", "C17 C18"},
        {"C1/3-5,L2", "C1 C3 C4 C5 L2"},
        {"R1,2,5-7", "R1 R2 R5 R6 R7"},
        {"U1A2-U1A4", "U1A2 U1A3 U1A4"},
        {"\u00B5P1-2", "\u00B5P1 \u00B5P2"},
        {"X1-2", "X1 X2"},
        {"R1 to R3, R5 THRU 7", "R1 R2 R3 R5 R6 R7"},
        {"R1..R3 C1:C2 L1~3", "R1 R2 R3 C1 C2 L1 L2 L3"},
        {"R1toR3,X1-2toX1-3", "R1 R2 R3 X1-2 X1-3"},
        {"R1+R3&R5 + R7", "R1 R3 R5 R7"},
        {"R1\uFF1BR2\uFF06R4\uFF5ER6", "R1 R2 R4 R5 R6"},
        {"X1 X2,x1 x2,R1,x3,R2 X3 R4 & x4", "X1 X2 x1 x2 R1 x3 R2 X3 R4 x4"},
        {"X1-1-X1-3,J1.1-J1.2", "X1-1 X1-2 X1-3 J1.1 J1.2"},
        {"12,13", "12 13"},
        {"L1 TOR1,TO1 TO2,+V1,-V2", "L1 TOR1 TO1 TO2 +V1 -V2"},
    };
    for (const auto &[cell, references] : cases) {
        EXPECT_EQ(named(cell), references) << cell;
    }
}

TEST(CsvReferences, LeavesOddNamesWhole)
{
    // clang-format off
    for (const char *name :
         {"J1-A", "TP-1", "TP-1-2", "J4-1", "X1-02", "J1-1", "U1/A", "CH1/R5", "R?", "J?-2", "12",
          "R1.5-8", "+5V", "-V", "#PWR01", "U1A", "R\uFF11", "R99999999999999999999"}) {
        // clang-format on
        EXPECT_EQ(named(name), name);
    }
}

TEST(CsvReferences, RefusesUnclearRanges)
{
    const std::vector<std::pair<std::string, const char *>> cases = {
        {"C1, R4-R1", "\"R4-R1\" is a range that runs backwards"},
        {"R1-C4", "joins different kinds"},
        {"R1 - A", "\"R1 - A\" is no range"},
        {"R 1", "\"R\" is no reference"},
        {"R1 (2x)", "\"(2x)\" is no reference"},
        {"R1 x2", "\"x2\" may be a count"},
        {"C1,R1 \u00D72", "\"\u00D72\" may be a count"},
        {"R1 - R3  x3", "\"x3\" may be a count"},
        {"N/A", "\"N/A\" is no reference"},
        {"R1, None", "\"None\" is no reference"},
        {"R(1-3)", "is no reference"},
        {"R1 and R3", "\"and\" is no reference"},
        {"R1 to", "\"to\" is no reference"},
        {"to R3", "\"to\" is no reference"},
        {"R1&", "joins nothing"},
        {"R1..", "without an end"},
        {"R3:R1", "runs backwards"},
        {"R2,R1..C3", "\"R2,R1..C3\" joins different kinds"},
        {"U1:A", "\"U1:A\" is no range: write its references one by one, a part of several units once"},
        {"R08-R9", "differ in their zeros"},
        {"R1-R3-5", "is no range"},
        {"R5,foo,12", "\"12\" is no reference"},
        {"R1to3", "put blanks around"},
        {"TP-1,2", "\"2\" is no reference"},
        {"1-4", "is no reference"},
        {"TP\u20131", "is no range"},
        {"R4 - 1", "is no range"},
        {"12 - 14", "is no range"},
        {"R1-", "without an end"},
        {"R1 - , R4", "without an end"},
        {"R1 -5 -R9", "another dash"},
        {"R1-5 -R9", "is no range"},
        {"R1-R04", "differ in their zeros"},
        {"R5,8-6", "runs backwards"},
        {"C7-4/8", "several ways"},
        {"R1-R100001", "more than 100000 references"},
        {"R1-R999999999999", "more than 100000 references"},
        {"R1-R99999999999999999999999", "more than 100000 references"},
        {"R99999999999999999999-R99999999999999999999", "more than 100000 references"},
        {"R1-R60000,C1-C60000", "\"C1-C60000\" makes more"},
        {"R1, --", "without an end"},
        {"/", "is no reference"},
        {"-", "is no reference"},
        {"R1A-R3B", "\"R1A-R3B\" is no range"},
        {"C1 R1-R3A", "\"R1-R3A\" is no range"},
        {"R1-R3-R5", "\"R1-R3-R5\" is no range"},
        {"U1A-", "without an end"},
        {"R1-3-R5", "is no range"},
        {"R1-R3*", "is no range"},
        {"R1/R3A", "is no range"},
        {"R1/R3 to 5", "is no range"},
        {"R1-R3 to 5", "is no range"},
        {"R\uFF11-R\uFF13", "digits other than 0 to 9"},
        {"R1,\uFF12", "digits other than 0 to 9"},
        {"R1to R3", "\"R1to\" is no reference"},
        {"R1 toR3", "\"toR3\" is no reference"},
        {"R1 to3", "\"to3\" is no reference"},
        {"R1\n-R3", "without a beginning"},
    };
    for (const auto &[cell, says] : cases) {
        EXPECT_THAT(named(cell), testing::HasSubstr(says)) << cell;
    }
}

TEST(CsvReferences, ExpandsUpToItsLimit)
{
    designs::TextArena arena;
    ReferenceCell cell(arena);
    ASSERT_TRUE(cell.read("R1-R100000"));
    EXPECT_EQ(cell.references().size(), 100000U);
    EXPECT_EQ(cell.references().back(), "R100000");
    ASSERT_TRUE(cell.read("R2")) << "the cells before do not count";
}
