// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kicadtext;
using namespace Qt::StringLiterals;
using testing::HasSubstr;

TEST(KicadVariants, ChangeFieldsAndFlags)
{
    const QString file = u"kicad/variants/fields-and-flags.kicad_sch"_s;
    const auto plain = loadData(file);
    EXPECT_EQ(plain->variants(), QStringList({u"Full"_s, u"Lite"_s}));
    EXPECT_EQ(properties(*plain, "R1", {"Value", "Footprint", "Maker"}), "10k R:0402 -");
    EXPECT_EQ(marks(*plain), "R1:-- R2:-- R3:-s R4:--");
    const auto lite = loadData(file, u"Lite"_s);
    EXPECT_EQ(lite->info().variant, u"Lite"_s);
    EXPECT_EQ(properties(*lite, "R1", {"Value", "Footprint", "Maker", "Tol"}), "22k R:0603 Us 1%");
    EXPECT_EQ(property(*lite, "R2", "Value"), "10k");
    EXPECT_EQ(marks(*lite), "R1:-- R2:-s R3:-- R4:--");
    // Fields may hold variables and braces, in their names too.
    EXPECT_EQ(properties(*lite, "R4", {"Value", "In{slash}Out"}), "R4/x 2");
    EXPECT_EQ(part(*lite, "R4").properties.size(), 1u) << "the field is the symbol's own";
}

TEST(KicadVariants, InBomWasWrittenTheWrongWayRoundOnce)
{
    for (const int version : {20260101, 20260305, v10}) {
        const auto resistor = [version](const std::string &reference, const std::string &variant,
                                        const std::string &dnp = {}) {
            return symbol(version,
                          {.dnp = dnp, .uses = {{.path = "/top", .reference = reference, .more = variant}}});
        };
        const DesignFolder folder;
        folder.write(root,
                     schematic(version, "top",
                               resistor("R1", "(variant (name \"A\") (in_bom yes))") +
                                   resistor("R2", "(variant (name \"A\") (in_bom no))") + resistor("R3", "") +
                                   // A variant that says nothing of dnp leaves the symbol's.
                                   resistor("R4", "(variant (name \"A\") (in_bom yes))", "yes")));
        EXPECT_EQ(marks(*folder.load(root, u"A"_s)),
                  version < v10 ? "R1:s- R2:-- R3:-- R4:ss" : "R1:-- R2:s- R3:-- R4:-s");
    }
}

TEST(KicadVariants, OfSheetsAndOfOneUseOfASheet)
{
    const QString file = u"kicad/variants/sheets.kicad_sch"_s;
    EXPECT_EQ(marks(*loadData(file)), "R1:-- R2:-h");
    const auto lite = loadData(file, u"Lite"_s);
    EXPECT_EQ(marks(*lite), "R1:hh R2:--");
    EXPECT_EQ(part(*lite, "R1").value, "10k");
    EXPECT_EQ(part(*lite, "R2").value, "0R");
}

TEST(KicadVariants, AnUnknownOneIsRefusedNamingTheOthers)
{
    const DesignFolder folder;
    folder.write(project, R"({"schematic": {"variants": ["Zulu", {"name": "Beta"}, {}]}})");
    folder.write(root, schematic(v10, "top",
                                 symbol(v10, {.uses = {{.path = "/top",
                                                        .reference = "R1",
                                                        .more = "(variant (name \"Alpha\"))"}}})));
    EXPECT_THAT(errorOf(folder.read(root, u"alpha"_s)),
                testing::AllOf(HasSubstr("\"alpha\""), testing::EndsWith("Alpha, Beta, Zulu")));
    EXPECT_EQ(references(*folder.load(root, u"Zulu"_s)), "R1");

    const DesignFolder none;
    none.write(root, schematic(v9, "top", ""));
    EXPECT_THAT(errorOf(none.read(root, u"A"_s)), HasSubstr("it has none"));
}
