// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(KicadFlags, OfTheSymbolWinOverAPropertyDnp)
{
    EXPECT_EQ(marks(*loadData(u"kicad/flags/symbols.kicad_sch"_s)), "R1:-- R2:s- R3:-s R4:ss R5:-- R6:-s");
}

TEST(KicadFlags, OfTheSheetsAbove)
{
    const auto design = loadData(u"kicad/flags/sheets.kicad_sch"_s);
    EXPECT_EQ(marks(*design), "R11:-h R12:-s R13:-h R21:h- R22:hs R23:hh R31:-- R32:-s R33:-h");
    EXPECT_EQ(part(*design, "R11").notFittedSheet, 1u);
    EXPECT_EQ(part(*design, "R13").notFittedSheet, 1u) << "the outermost sheet says it first";
    EXPECT_EQ(design->sheets().at(part(*design, "R23").notInBomSheet).path, u"/B"_s);
    EXPECT_EQ(design->sheets().at(part(*design, "R33").notFittedSheet).path, u"/C/Deep"_s);
}

TEST(KicadFlags, OfRuleAreasAroundTheSymbol)
{
    EXPECT_EQ(marks(*loadData(u"kicad/flags/rule-areas.kicad_sch"_s)), "R1:-a R2:-- R3:a- R4:-- R5:-s");
}

TEST(KicadFlags, APropertyDnpInAnyCaseOrFromAVariable)
{
    EXPECT_EQ(marks(*loadData(u"kicad/flags/dnp-property.kicad_sch"_s)),
              "R1:-p R2:-p R3:-- R4:-- R5:-p R6:-- R7:-- R8:-p");
}
