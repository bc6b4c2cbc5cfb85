// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"

#include <gtest/gtest.h>

using namespace kicadtext;
using designs::MarkedBy;

namespace {

const QString root = QStringLiteral("root.kicad_sch");

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
    const DesignFolder folder;
    std::string body;
    for (const Part &part : parts) {
        body += symbol(v9, part);
    }
    folder.write(root, schematic(v9, "top", body));
    return folder.load();
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
    EXPECT_FALSE(QString::fromStdString(warnings(*read)).contains(QLatin1String("differ")));
}

TEST(KicadUnits, AreJoinedAcrossSheets)
{
    const DesignFolder folder;
    Part part1 = amplifier("U?", 1);
    part1.uses = {{.path = "/top", .reference = "U1", .unit = 3}};
    Part part2 = amplifier("U?", 1);
    part2.uses = {{.path = "/top/a", .reference = "U1", .unit = 1},
                  {.path = "/top/b", .reference = "U2", .unit = 1}};
    folder.write(root, schematic(v9, "top",
                                 symbol(v9, part1) + sheet(v9, {.name = "A", .uuid = "a"}) +
                                     sheet(v9, {.name = "B", .uuid = "b"})));
    folder.write(QStringLiteral("sub.kicad_sch"), schematic(v9, "s", symbol(v9, part2)));
    const auto read = folder.load();
    EXPECT_EQ(references(*read), "U1 U2");
    EXPECT_EQ(part(*read, "U1").units, 2u);
    EXPECT_EQ(part(*read, "U1").sheet, 1u) << "the lowest unit speaks for the part";
}

TEST(KicadUnits, TheSameUnitTwiceIsADuplicate)
{
    EXPECT_EQ(references(*design({amplifier("U1", 1), amplifier("U1", 1)})), "U1 U1");
    const auto read =
        design({amplifier("U1", 1), amplifier("U1", 1), amplifier("U1", 2), amplifier("U1", 2)});
    EXPECT_EQ(references(*read), "U1 U1");
    EXPECT_EQ(read->symbols().mergedUnits, 2);
    EXPECT_EQ(references(*design({{.reference = "R1", .unit = 1}, {.reference = "R1", .unit = 2}})), "R1 R1")
        << "a symbol of one unit has no second one";
}

TEST(KicadUnits, ManyDuplicatesTakeNoLongerEach)
{
    std::vector<Part> parts(20'000, amplifier("U1", 1));
    EXPECT_EQ(design(parts)->components().size(), parts.size());
}

TEST(KicadUnits, DifferentSymbolsUnderOneReferenceAreDuplicates)
{
    Part other = amplifier("U1", 2);
    other.lib = "Amp:LM324";
    EXPECT_EQ(references(*design({amplifier("U1", 1), other})), "U1 U1");
}

TEST(KicadUnits, PartsWithoutNumberAreNeverJoined)
{
    const auto read = design({amplifier("U?", 1), amplifier("U?", 2), amplifier("", 1), amplifier("", 2)});
    EXPECT_EQ(read->components().size(), 4u);
    EXPECT_EQ(read->symbols().mergedUnits, 0);
}

TEST(KicadUnits, ThePropertiesOfTheLowestUnitThatSaysSomething)
{
    const auto read =
        design({amplifier("U1", 3, {{"Order", "c"}, {"Note", "c"}, {"Only", "c"}}),
                amplifier("U1", 2, {{"Note", ""}, {"Order", "b"}}), amplifier("U1", 1, {{"Order", ""}})});
    EXPECT_EQ(property(*read, "U1", "Order"), "b");
    EXPECT_EQ(property(*read, "U1", "Note"), "c");
    EXPECT_EQ(property(*read, "U1", "Only"), "c");
    EXPECT_NE(warnings(*read).find("U1: its units differ in"), std::string::npos);
}

TEST(KicadUnits, DifferencesBetweenLaterUnitsWarnToo)
{
    const auto read = design(
        {amplifier("U1", 1), amplifier("U1", 2, {{"Order", "b"}}), amplifier("U1", 3, {{"Order", "c"}})});
    EXPECT_EQ(property(*read, "U1", "Order"), "b");
    EXPECT_NE(warnings(*read).find("Order"), std::string::npos) << warnings(*read);
}

TEST(KicadUnits, DifferentValuesWarn)
{
    Part other = amplifier("U1", 2);
    other.value = "LM324";
    const auto read = design({other, amplifier("U1", 1)});
    EXPECT_EQ(part(*read, "U1").value, "TL074");
    EXPECT_NE(warnings(*read).find("U1: its units differ in Value"), std::string::npos) << warnings(*read);
}

TEST(KicadUnits, AFlagOfOneUnitCountsForThePart)
{
    Part flagged = amplifier("U1", 2);
    flagged.dnp = "yes";
    flagged.inBom = "no";
    const auto read = design({amplifier("U1", 1), flagged});
    EXPECT_EQ(part(*read, "U1").notFitted, MarkedBy::Symbol);
    EXPECT_EQ(part(*read, "U1").notInBom, MarkedBy::Symbol);
    EXPECT_NE(warnings(*read).find("flags"), std::string::npos);
}
