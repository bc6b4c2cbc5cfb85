// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kicadtext;
using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

Part resistor(const std::string &reference)
{
    return {.uuid = reference, .uses = {{.path = "/top", .reference = reference}}};
}

} // namespace

TEST(KicadInstances, ReferencesOfAllVersions)
{
    for (const int version : {v6, v7, v8, v9, v10}) {
        const auto uses = [version](const std::string &path, const std::string &reference) {
            return std::vector<Use>(version < v7 ? 0 : 1, Use{.path = path, .reference = reference});
        };
        const std::string table = instanceTable({{"/s1", "R1", "", ""}, {"/h1/s2", "R2", "", ""}});
        const DesignFolder folder;
        folder.write(root, schematic(version, "top",
                                     symbol(version, {.uuid = "s1", .uses = uses("/top", "R1")}) +
                                         sheet(version, {.uuid = "h1"}) + (version < v7 ? table : "")));
        folder.write(sub, schematic(version, "ignored",
                                    symbol(version, {.uuid = "s2", .uses = uses("/top/h1", "R2")})));
        const auto design = folder.load();
        EXPECT_EQ(references(*design), "R1 R2") << version;
        EXPECT_EQ(design->sheets().at(1).path, u"/Sub"_s) << version;
        EXPECT_EQ(part(*design, "R2").sheet, 1u) << version;
        EXPECT_EQ(part(*design, "R2").name, "R") << version;
        EXPECT_EQ(warnings(*design), "") << version;
    }
}

TEST(KicadInstances, Version6TableOverridesValueAndFootprint)
{
    const auto design = loadData(u"kicad/instances/version-6-table.kicad_sch"_s);
    EXPECT_EQ(properties(*design, "R1", {"Value", "Footprint"}), "1k5 R:0603");
    EXPECT_EQ(properties(*design, "R2", {"Value", "Footprint"}), "2k R:0402");
    EXPECT_EQ(properties(*design, "R3", {"Value", "Footprint"}), "3k R:0805");
    EXPECT_EQ(property(*design, "R4", "Value"), "47k") << "the table's text holds a variable";
}

TEST(KicadInstances, Version6TableCountsInTheRootOnly)
{
    EXPECT_EQ(references(*loadData(u"kicad/instances/version-6-sheet.kicad_sch"_s)), "R7");
    EXPECT_EQ(references(*loadData(u"kicad/instances/version-6-sub.kicad_sch"_s)), "R9");
}

TEST(KicadInstances, ThePathDecidesAndNotTheProject)
{
    EXPECT_EQ(references(*loadData(u"kicad/instances/other-projects.kicad_sch"_s)), "R2");
}

TEST(KicadInstances, WithoutOneTheReferencePropertyCountsWithOneWarningPerSheet)
{
    const auto design = loadData(u"kicad/instances/no-record.kicad_sch"_s);
    EXPECT_EQ(references(*design), "R5 R6 R1 R7");
    ASSERT_EQ(design->warnings().size(), 2u) << warnings(*design);
    EXPECT_THAT(warnings(*design), HasSubstr("sheet /: 2 of its symbols have no record"));
    EXPECT_GT(design->warnings().front().line, 1);
}

TEST(KicadInstances, ASheetUsedSeveralTimes)
{
    const auto design = loadData(u"kicad/instances/used-thrice.kicad_sch"_s);
    EXPECT_EQ(references(*design), "R103 R101 R102");
    EXPECT_EQ(design->symbols().placed, 6);
    EXPECT_EQ(design->symbols().power, 3);
    EXPECT_EQ(design->files().size(), 2);
    EXPECT_EQ(design->sheets().at(3).path, u"/Channel 2"_s);
}

TEST(KicadInstances, PowerSymbolsAreNoComponents)
{
    const auto design = loadData(u"kicad/instances/power-symbols.kicad_sch"_s);
    EXPECT_EQ(references(*design), "V2 R1");
    EXPECT_EQ(design->symbols().power, 4);
}

TEST(KicadInstances, ASymbolMissingInTheLibraryCacheIsNamedOnceAndItsPartsCount)
{
    std::string symbols;
    for (const char *reference : {"X1", "X2", "X3"}) {
        Part part = resistor(reference);
        part.lib = "Lost:X";
        symbols += symbol(v8, part);
    }
    const auto design = designOf(v8, symbols);
    EXPECT_EQ(references(*design), "X1 X2 X3");
    ASSERT_EQ(design->warnings().size(), 1u);
    EXPECT_THAT(warnings(*design), HasSubstr("X1 and 2 more: the symbol Lost:X is missing"));
    EXPECT_GT(design->warnings().front().line, 0);
}
