// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kicadtext;
using testing::HasSubstr;
using testing::Not;

namespace {

Part amplifier(std::string reference, int unit, Fields fields = {})
{
    return {.reference = std::move(reference),
            .value = "TL074",
            .lib = "Amp:TL074",
            .unit = unit,
            .fields = std::move(fields)};
}

std::unique_ptr<designs::Design> design(const std::vector<Part> &parts)
{
    std::string body;
    for (const Part &part : parts) {
        body += symbol(v9, part);
    }
    return designOf(v9, body);
}

} // namespace

TEST(KicadUnits, OfOneReferenceAreOnePart)
{
    const auto read =
        design({amplifier("U1", 2), amplifier("U2", 1), amplifier("U1", 1), amplifier("U1", 3)});
    EXPECT_EQ(references(*read), "U1 U2");
    EXPECT_EQ(part(*read, "U1").units, 3u);
    EXPECT_EQ(part(*read, "U2").units, 1u);
    EXPECT_EQ(read->symbols().mergedUnits, 2);
    EXPECT_THAT(warnings(*read), Not(HasSubstr("differ")));
}

TEST(KicadUnits, AreJoinedAcrossSheets)
{
    const DesignFolder folder;
    Part part1 = amplifier("U?", 1);
    part1.uses = {{.path = "/top", .reference = "U1", .unit = 3}};
    Part part2 = amplifier("U?", 1);
    part2.uses = {{.path = "/top/a", .reference = "U1"}, {.path = "/top/b", .reference = "U2"}};
    folder.write(
        root, schematic(v9, "top", symbol(v9, part1) + sheet(v9, {.uuid = "a"}) + sheet(v9, {.uuid = "b"})));
    folder.write(sub, schematic(v9, "s", symbol(v9, part2)));
    const auto read = folder.load();
    EXPECT_EQ(references(*read), "U1 U2");
    EXPECT_EQ(part(*read, "U1").units, 2u);
    EXPECT_EQ(part(*read, "U1").sheet, 1u) << "the lowest unit speaks for the part";
}

TEST(KicadUnits, OthersUnderOneReferenceAreDuplicates)
{
    Part other = amplifier("U1", 2);
    other.lib = "Amp:LM324";
    EXPECT_EQ(references(*design({amplifier("U1", 1), other})), "U1 U1") << "another symbol";
    EXPECT_EQ(references(*design({amplifier("U1", 1), amplifier("U1", 1)})), "U1 U1") << "the same unit";
    const auto read =
        design({amplifier("U1", 1), amplifier("U1", 1), amplifier("U1", 2), amplifier("U1", 2)});
    EXPECT_EQ(references(*read), "U1 U1");
    EXPECT_EQ(read->symbols().mergedUnits, 2);
    EXPECT_EQ(references(*design({{.reference = "R1", .unit = 1}, {.reference = "R1", .unit = 2}})), "R1 R1")
        << "a symbol of one unit has no second one";
}

TEST(KicadUnits, ManyDuplicatesTakeNoLongerEach)
{
    const std::vector<Part> parts(20'000, amplifier("U1", 1));
    EXPECT_EQ(design(parts)->components().size(), parts.size());
}

TEST(KicadUnits, PartsWithoutNumberAreNeverJoined)
{
    const auto read = design({amplifier("U?", 1), amplifier("U?", 2), amplifier("", 1), amplifier("", 2)});
    EXPECT_EQ(read->components().size(), 4u);
    EXPECT_EQ(read->symbols().mergedUnits, 0);
}

TEST(KicadUnits, ThePropertiesAreThoseOfTheLowestUnitThatSaysSomething)
{
    const auto read =
        design({amplifier("U1", 3, {{"Order", "c"}, {"Note", "c"}, {"Only", "c"}}),
                amplifier("U1", 2, {{"Note", ""}, {"Order", "b"}}), amplifier("U1", 1, {{"Order", ""}})});
    EXPECT_EQ(properties(*read, "U1", {"Order", "Note", "Only"}), "b c c");
    EXPECT_THAT(warnings(*read), HasSubstr("U1: its units differ in"));
}

TEST(KicadUnits, DifferencesWarnInLaterUnitsTooAndInValuesAndFlags)
{
    const auto later = design(
        {amplifier("U1", 1), amplifier("U1", 2, {{"Order", "b"}}), amplifier("U1", 3, {{"Order", "c"}})});
    EXPECT_EQ(property(*later, "U1", "Order"), "b");
    EXPECT_THAT(warnings(*later), HasSubstr("Order"));

    Part other = amplifier("U1", 2);
    other.value = "LM324";
    const auto values = design({other, amplifier("U1", 1)});
    EXPECT_EQ(part(*values, "U1").value, "TL074");
    EXPECT_THAT(warnings(*values), HasSubstr("U1: its units differ in Value"));

    Part flagged = amplifier("U1", 2);
    flagged.dnp = "yes";
    flagged.inBom = "no";
    const auto flags = design({amplifier("U1", 1), flagged});
    EXPECT_EQ(marks(*flags), "U1:ss") << "a flag of one unit counts for the part";
    EXPECT_THAT(warnings(*flags), HasSubstr("flags"));
}
