// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"

#include <gtest/gtest.h>

using namespace kicadtext;

namespace {

const QString root = QStringLiteral("root.kicad_sch");
const QString sub = QStringLiteral("sub.kicad_sch");

/// A root with one resistor and one sheet, whose file holds a resistor with a reference of its own.
std::unique_ptr<designs::Design> smallDesign(int version)
{
    const DesignFolder folder;
    const bool table = version < v7;
    const auto uses = [table](const std::string &path, const std::string &reference) {
        return std::vector<Use>(table ? 0 : 1, Use{.path = path, .reference = reference});
    };
    std::string body =
        symbol(version, {.uuid = "s1", .uses = uses("/top", "R1")}) + sheet(version, {.uuid = "h1"});
    if (table) {
        body += instanceTable({{"/s1", "R1", "", ""}, {"/h1/s2", "R2", "", ""}});
    }
    folder.write(root, schematic(version, "top", body));
    folder.write(
        sub, schematic(version, "ignored", symbol(version, {.uuid = "s2", .uses = uses("/top/h1", "R2")})));
    return folder.load();
}

} // namespace

TEST(KicadInstances, ReferencesOfAllVersions)
{
    for (const int version : {v6, v7, v8, v9, v10}) {
        const auto design = smallDesign(version);
        EXPECT_EQ(references(*design), "R1 R2") << version;
        EXPECT_EQ(design->sheets().at(1).path, QStringLiteral("/Sub")) << version;
        EXPECT_EQ(part(*design, "R2").sheet, 1u) << version;
        EXPECT_EQ(part(*design, "R2").name, "R") << version;
        EXPECT_EQ(warnings(*design), "") << version;
    }
}

TEST(KicadInstances, Version6TableOverridesValueAndFootprint)
{
    const DesignFolder folder;
    const Fields footprint{{"Footprint", "R:0402"}};
    folder.write(root, schematic(v6, "top",
                                 symbol(v6, {.value = "1k", .uuid = "s1", .fields = footprint}) +
                                     symbol(v6, {.value = "2k", .uuid = "s2", .fields = footprint}) +
                                     symbol(v6, {.value = "3k", .uuid = "s3"}) +
                                     instanceTable({{"/s1", "R1", "1k5", "R:0603"},
                                                    {"/s2", "R2", "", ""},
                                                    {"/s3", "R3", "~", "R:0805"}})));
    const auto design = folder.load();
    EXPECT_EQ(property(*design, "R1", "Value"), "1k5");
    EXPECT_EQ(property(*design, "R1", "Footprint"), "R:0603");
    EXPECT_EQ(property(*design, "R2", "Value"), "2k");
    EXPECT_EQ(property(*design, "R2", "Footprint"), "R:0402");
    EXPECT_EQ(property(*design, "R3", "Value"), "3k");
    EXPECT_EQ(property(*design, "R3", "Footprint"), "R:0805");
}

TEST(KicadInstances, Version6TableCountsInTheRootOnly)
{
    const DesignFolder folder;
    folder.write(root,
                 schematic(v6, "top", sheet(v6, {.uuid = "h1"}) + instanceTable({{"/h1/s1", "R7", "", ""}})));
    folder.write(sub, schematic(v6, "other",
                                symbol(v6, {.reference = "R3", .uuid = "s1"}) +
                                    instanceTable({{"/s1", "R9", "stale", ""}})));
    EXPECT_EQ(references(*folder.load()), "R7");
    EXPECT_EQ(references(*folder.load(sub)), "R9");
}

TEST(KicadInstances, ThePathDecidesAndNotTheProject)
{
    const DesignFolder folder;
    const std::vector<Use> uses{{.path = "/elsewhere", .reference = "R50", .project = "demo"},
                                {.path = "/elsewhere/top", .reference = "R51", .project = "demo"},
                                {.path = "/top", .reference = "R2", .project = "renamed"},
                                {.path = "/top/h9", .reference = "R52", .project = "demo"}};
    folder.write(root, schematic(v9, "top", symbol(v9, {.reference = "R50", .uses = uses})));
    EXPECT_EQ(references(*folder.load()), "R2");
}

TEST(KicadInstances, WithoutAnInstanceTheReferencePropertyCounts)
{
    const DesignFolder folder;
    const std::vector<Use> other{{.path = "/elsewhere", .reference = "R50", .unit = 2}};
    folder.write(root, schematic(v9, "top",
                                 symbol(v9, {.reference = "R5", .uses = other}) +
                                     symbol(v9, {.reference = "R6"}) + sheet(v9, {.uuid = "h1"})));
    folder.write(sub, schematic(v6, "old", symbol(v6, {.reference = "R7"})));
    EXPECT_EQ(references(*folder.load()), "R5 R6 R7");
}

TEST(KicadInstances, ASheetUsedSeveralTimes)
{
    const DesignFolder folder;
    std::string sheets;
    std::vector<Use> uses;
    for (const char *number : {"3", "1", "2"}) {
        sheets += sheet(v8, {.name = std::string("Channel ") + number, .uuid = std::string("h") + number});
        uses.push_back({.path = std::string("/top/h") + number, .reference = std::string("R10") + number});
    }
    folder.write(root, schematic(v8, "top", sheets));
    folder.write(sub, schematic(v8, "x",
                                symbol(v8, {.value = "4k7", .uses = uses}) +
                                    symbol(v8, {.reference = "#PWR01", .lib = "power:GND"})));
    const auto design = folder.load();
    EXPECT_EQ(references(*design), "R103 R101 R102");
    EXPECT_EQ(design->symbols().placed, 6);
    EXPECT_EQ(design->symbols().power, 3);
    EXPECT_EQ(design->files().size(), 2);
    EXPECT_EQ(design->sheets().at(3).path, QStringLiteral("/Channel 2"));
}

TEST(KicadInstances, PowerSymbolsAreNoComponents)
{
    const DesignFolder folder;
    const std::string cache = "\n  (lib_symbols" + librarySymbol("power:GND", 1, " (power)") +
                              librarySymbol("power:VCC_1", 1, " (power local)") + librarySymbol("power:VCC") +
                              librarySymbol("Device:R") + librarySymbol("Flag:F") + "\n  )";
    folder.write(
        root, schematic(v10, "top",
                        symbol(v10, {.reference = "GND1", .lib = "power:GND"}) +
                            symbol(v10, {.reference = "#FLG01", .lib = "Flag:F"}) +
                            symbol(v10, {.reference = "V1", .lib = "power:VCC", .libName = "power:VCC_1"}) +
                            symbol(v10, {.reference = "V2", .lib = "power:VCC"}) +
                            symbol(v10, {.lib = "Flag:F", .uses = {{.path = "/top", .reference = "#F1"}}}) +
                            symbol(v10, {.reference = "R1"}),
                        cache));
    const auto design = folder.load();
    EXPECT_EQ(references(*design), "V2 R1");
    EXPECT_EQ(design->symbols().power, 4);
}

TEST(KicadInstances, ASymbolMissingInTheCacheCountsWithAWarning)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top", symbol(v9, {.reference = "X1", .lib = "Lost:Thing"})));
    const auto design = folder.load();
    EXPECT_EQ(references(*design), "X1");
    EXPECT_NE(warnings(*design).find("Lost:Thing"), std::string::npos) << warnings(*design);
}
