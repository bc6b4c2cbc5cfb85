// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/referencecell.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using designs::ReferenceCell;

namespace {

using References = std::vector<std::string_view>;

struct CellCase
{
    std::string_view cell;
    References expected;
};

TEST(ReferenceCell, TakesReferencesApart)
{
    const CellCase cases[] = {
        {"R1", {"R1"}},
        {"R1,R2", {"R1", "R2"}},
        {" R1 ; R2;,R3 R4\n R5\t", {"R1", "R2", "R3", "R4", "R5"}},
        {"R1,R1", {"R1", "R1"}},
        {"", {}},
        {" , ", {}},
        {"R1-R4", {"R1", "R2", "R3", "R4"}},
        {"R1-4", {"R1", "R2", "R3", "R4"}},
        {"D33-36, D40", {"D33", "D34", "D35", "D36", "D40"}},
        {"R1 - R3, R5- R6 R8 -9", {"R1", "R2", "R3", "R5", "R6", "R8", "R9"}},
        {"R1\u2013R3\u3001R5\uFF0CR6\u00A0R7", {"R1", "R2", "R3", "R5", "R6", "R7"}},
        {"\uFEFFR1\u200B, R2", {"R1", "R2"}},
        {"R08-R11", {"R08", "R09", "R10", "R11"}},
        {"R098-101", {"R098", "R099", "R100", "R101"}},
        {"R7-R7", {"R7"}},
        {"C17/18/19", {"C17", "C18", "C19"}},
        {"C17/C18", {"C17", "C18"}},
        {"C1/3-5,L2", {"C1", "C3", "C4", "C5", "L2"}},
        {"R1,2,5-7", {"R1", "R2", "R5", "R6", "R7"}},
        {"U1A2-U1A4", {"U1A2", "U1A3", "U1A4"}},
        {"\u00B5P1-2", {"\u00B5P1", "\u00B5P2"}},
        {"X1-2", {"X1", "X2"}},
    };
    for (const CellCase &c : cases) {
        designs::TextArena arena;
        ReferenceCell cell(arena);
        EXPECT_TRUE(cell.read(c.cell)) << c.cell << ": " << cell.error().toStdString();
        EXPECT_EQ(cell.references(), c.expected) << c.cell;
    }
}

TEST(ReferenceCell, LeavesOddNamesWhole)
{
    for (const std::string_view name : {"J1-A", "TP-1", "TP-1-2", "J4-1",   "X1-02",
                                        "J1-1", "U1/A", "CH1/R5", "R?",     "J?-2",
                                        "12",   "1-4",  "1.5-2",  "R1.5-8", "R1.5-R1.8",
                                        "+5V",  "-V",   "#PWR01", "U1A",    "R99999999999999999999",
                                        "/",    "-"}) {
        designs::TextArena arena;
        ReferenceCell cell(arena);
        const bool named = name.size() > 1;
        EXPECT_EQ(cell.read(name), named) << name;
        EXPECT_EQ(cell.references(), named ? References{name} : References{}) << name;
    }
}

TEST(ReferenceCell, RefusesUnclearRanges)
{
    const struct
    {
        std::string_view cell;
        const char *says;
    } cases[] = {
        {"C1, R4-R1", "\"R4-R1\" is a range that runs backwards"},
        {"R1-C4", "joins different kinds"},
        {"R1 - A", "\"R1-A\" is no range"},
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
        {"R1, --", "is no reference"},
        {"R1A-R3B", "\"R1A-R3B\" is no range"},
        {"C1 R1-R3A", "\"R1-R3A\" is no range"},
        {"R1-R3-R5", "\"R1-R3-R5\" is no range"},
        {"U1A-", "without an end"},
    };
    for (const auto &c : cases) {
        designs::TextArena arena;
        ReferenceCell cell(arena);
        EXPECT_FALSE(cell.read(c.cell)) << c.cell;
        EXPECT_TRUE(cell.references().empty()) << c.cell;
        EXPECT_TRUE(cell.error().contains(QLatin1String(c.says))) << cell.error().toStdString();
    }
}

TEST(ReferenceCell, ExpandsUpToItsLimit)
{
    designs::TextArena arena;
    ReferenceCell cell(arena);
    ASSERT_TRUE(cell.read("R1-R100000"));
    EXPECT_EQ(cell.references().size(), 100000U);
    EXPECT_EQ(cell.references().back(), "R100000");
    ASSERT_TRUE(cell.read("R2")) << "the cells before do not count";
}

} // namespace
