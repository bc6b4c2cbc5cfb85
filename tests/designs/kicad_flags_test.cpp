// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"
#include "designs/notfitted.h"

#include <gtest/gtest.h>

using namespace kicadtext;
using designs::MarkedBy;

namespace {

const QString root = QStringLiteral("root.kicad_sch");
const QString sub = QStringLiteral("sub.kicad_sch");
const QString deep = QStringLiteral("deep.kicad_sch");

std::string area(std::string_view flags, std::string_view points)
{
    return "\n(rule_area " + std::string(flags) + " (polyline (pts " + std::string(points) +
           ") (stroke (width 0)) (uuid \"p\")))";
}

} // namespace

TEST(KicadFlags, OfTheSymbol)
{
    const DesignFolder folder;
    folder.write(root,
                 schematic(v8, "top",
                           symbol(v8, {.reference = "R1"}) + symbol(v8, {.reference = "R2", .inBom = "no"}) +
                               symbol(v8, {.reference = "R3", .dnp = "yes"}) +
                               symbol(v8, {.reference = "R4", .inBom = "no", .dnp = "yes"}) +
                               symbol(v8, {.reference = "R5", .inBom = "", .dnp = "no"})));
    const auto design = folder.load();
    const std::vector<std::tuple<std::string, MarkedBy, MarkedBy>> expected{
        {"R1", MarkedBy::Nothing, MarkedBy::Nothing}, {"R2", MarkedBy::Symbol, MarkedBy::Nothing},
        {"R3", MarkedBy::Nothing, MarkedBy::Symbol},  {"R4", MarkedBy::Symbol, MarkedBy::Symbol},
        {"R5", MarkedBy::Nothing, MarkedBy::Nothing},
    };
    for (const auto &[reference, notInBom, notFitted] : expected) {
        EXPECT_EQ(part(*design, reference).notInBom, notInBom) << reference;
        EXPECT_EQ(part(*design, reference).notFitted, notFitted) << reference;
    }
}

TEST(KicadFlags, OfTheSheetsAbove)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top",
                                 sheet(v9, {.name = "A", .uuid = "h1", .dnp = "yes"}) +
                                     sheet(v9, {.name = "B", .uuid = "h2", .inBom = "no"}) +
                                     sheet(v9, {.name = "C", .uuid = "h3", .inBom = "yes", .dnp = "no"})));
    const auto uses = [](const std::string &tail, const std::string &number) {
        return std::vector<Use>{{.path = "/top/h1" + tail, .reference = "R1" + number},
                                {.path = "/top/h2" + tail, .reference = "R2" + number},
                                {.path = "/top/h3" + tail, .reference = "R3" + number}};
    };
    folder.write(
        sub,
        schematic(v9, "s",
                  symbol(v9, {.uses = uses("", "1")}) + symbol(v9, {.dnp = "yes", .uses = uses("", "2")}) +
                      sheet(v9, {.name = "Deep", .file = "deep.kicad_sch", .uuid = "d", .dnp = "yes"})));
    folder.write(deep, schematic(v9, "d", symbol(v9, {.uses = uses("/d", "3")})));
    const auto design = folder.load();
    ASSERT_EQ(references(*design), "R11 R12 R13 R21 R22 R23 R31 R32 R33");
    EXPECT_EQ(part(*design, "R11").notFitted, MarkedBy::Sheet);
    EXPECT_EQ(part(*design, "R11").notFittedSheet, 1u);
    EXPECT_EQ(part(*design, "R12").notFitted, MarkedBy::Symbol);
    EXPECT_EQ(part(*design, "R13").notFitted, MarkedBy::Sheet);
    EXPECT_EQ(part(*design, "R13").notFittedSheet, 1u) << "the outermost sheet says it first";
    EXPECT_EQ(part(*design, "R21").notInBom, MarkedBy::Sheet);
    EXPECT_EQ(design->sheets().at(part(*design, "R23").notInBomSheet).path, QStringLiteral("/B"));
    EXPECT_EQ(part(*design, "R21").notFitted, MarkedBy::Nothing);
    EXPECT_EQ(part(*design, "R31").notFitted, MarkedBy::Nothing);
    EXPECT_EQ(design->sheets().at(part(*design, "R33").notFittedSheet).path, QStringLiteral("/C/Deep"));
}

TEST(KicadFlags, OfRuleAreas)
{
    const std::string square = "(xy 0 0) (xy 10 0) (xy 10 10) (xy 0 10)";
    const std::string hook = "(xy 20 0) (xy 40 0) (xy 40 40) (xy 30 40) (xy 30 10) (xy 20 10) (xy 20 0)";
    const std::string body =
        symbol(v10, {.reference = "R1", .at = "5 5 0"}) + symbol(v10, {.reference = "R2", .at = "11 5 90"}) +
        symbol(v10, {.reference = "R3", .at = "35.5 30 0"}) +
        symbol(v10, {.reference = "R4", .at = "25 30 0"}) +
        symbol(v10, {.reference = "R5", .dnp = "yes", .at = "5 5 0"}) +
        area("(exclude_from_sim no) (in_bom yes) (on_board yes) (dnp yes)", square) +
        area("(in_bom no) (dnp no)", hook) + area("(dnp yes)", "") + area("(dnp yes)", "(xy 5 5)");
    const DesignFolder folder;
    folder.write(root, schematic(v10, "top", body));
    const auto design = folder.load();
    EXPECT_EQ(part(*design, "R1").notFitted, MarkedBy::RuleArea);
    EXPECT_EQ(part(*design, "R1").notInBom, MarkedBy::Nothing);
    EXPECT_EQ(part(*design, "R2").notFitted, MarkedBy::Nothing);
    EXPECT_EQ(part(*design, "R3").notInBom, MarkedBy::RuleArea);
    EXPECT_EQ(part(*design, "R4").notInBom, MarkedBy::Nothing);
    EXPECT_EQ(part(*design, "R5").notFitted, MarkedBy::Symbol);
}

TEST(KicadFlags, APropertyDnpInAnyCase)
{
    const DesignFolder folder;
    folder.write(root, schematic(v6, "top",
                                 symbol(v6, {.reference = "R1", .fields = {{"DNP", "1"}}}) +
                                     symbol(v6, {.reference = "R2", .fields = {{"dnp", "DNP"}}}) +
                                     symbol(v6, {.reference = "R3", .fields = {{"Dnp", "~"}}}) +
                                     symbol(v6, {.reference = "R4", .fields = {{"DNP", "No"}}}) +
                                     symbol(v6, {.reference = "R5", .fields = {{"DNP", "0"}, {"dnp", "x"}}}) +
                                     symbol(v6, {.reference = "R6", .fields = {{"DNP ", "1"}}})));
    const auto design = folder.load();
    std::string marked;
    for (const designs::Component &component : design->components()) {
        marked += component.notFitted == MarkedBy::Property ? "P" : "-";
    }
    EXPECT_EQ(marked, "PP--P-");
}

TEST(KicadFlags, APropertyDnpMayComeFromAVariable)
{
    const DesignFolder folder;
    folder.write(QStringLiteral("root.kicad_pro"),
                 "{\"text_variables\": {\"LITE\": \"0\", \"FULL\": \"1\"}}");
    folder.write(root, schematic(v8, "top",
                                 symbol(v8, {.reference = "R1", .fields = {{"DNP", "${LITE}"}}}) +
                                     symbol(v8, {.reference = "R2", .fields = {{"DNP", "${FULL}"}}})));
    const auto design = folder.load();
    EXPECT_EQ(part(*design, "R1").notFitted, MarkedBy::Nothing);
    EXPECT_EQ(part(*design, "R2").notFitted, MarkedBy::Property);
}

TEST(KicadFlags, TheFlagWinsOverTheProperty)
{
    const DesignFolder folder;
    folder.write(
        root, schematic(v9, "top", symbol(v9, {.reference = "R1", .dnp = "yes", .fields = {{"DNP", "0"}}})));
    EXPECT_EQ(part(*folder.load(), "R1").notFitted, MarkedBy::Symbol);
}

TEST(NotFitted, Words)
{
    for (const char *text : {"", "0", "no", "NO", "n", "N", "false", "False", "~", " ", " no "}) {
        EXPECT_FALSE(designs::saysNotFitted(text)) << text;
    }
    for (const char *text : {"1", "yes", "y", "true", "DNP", "x", "00", "none", "do not fit"}) {
        EXPECT_TRUE(designs::saysNotFitted(text)) << text;
    }
}
