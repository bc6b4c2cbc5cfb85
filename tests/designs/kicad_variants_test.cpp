// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"

#include <gtest/gtest.h>

using namespace kicadtext;
using designs::MarkedBy;

namespace {

const QString root = QStringLiteral("root.kicad_sch");

std::string variant(const std::string &name, const std::string &what)
{
    return "\n(variant (name \"" + name + "\") " + what + ")";
}

std::string field(const std::string &name, const std::string &value)
{
    return "(field (name \"" + name + "\") (value \"" + value + "\"))";
}

Part resistor(const std::string &reference, const std::string &variants)
{
    return {.reference = "R?",
            .fields = {{"Footprint", "R:0402"}, {"Tol", "1%"}},
            .uses = {{.path = "/top", .reference = reference, .more = variants}}};
}

} // namespace

TEST(KicadVariants, ChangeFieldsAndFlags)
{
    Part unfitted = resistor("R3", variant("Lite", "(dnp no)") + variant("Full", ""));
    unfitted.dnp = "yes";
    const DesignFolder folder;
    folder.write(root,
                 schematic(v10, "top",
                           symbol(v10, resistor("R1", variant("Full", field("Value", "99k")) +
                                                          variant("Lite", field("Value", "22k") +
                                                                              field("Footprint", "R:0603") +
                                                                              field("Maker", "Us")))) +
                               symbol(v10, resistor("R2", variant("Lite", "(dnp yes)"))) +
                               symbol(v10, unfitted)));
    const auto plain = folder.load();
    EXPECT_EQ(plain->variants(), QStringList({QStringLiteral("Full"), QStringLiteral("Lite")}));
    EXPECT_EQ(property(*plain, "R1", "Value"), "10k");
    EXPECT_EQ(part(*plain, "R2").notFitted, MarkedBy::Nothing);
    EXPECT_EQ(part(*plain, "R3").notFitted, MarkedBy::Symbol);

    const auto lite = folder.load(root, QStringLiteral("Lite"));
    EXPECT_EQ(lite->info().variant, QStringLiteral("Lite"));
    EXPECT_EQ(property(*lite, "R1", "Value"), "22k");
    EXPECT_EQ(property(*lite, "R1", "Footprint"), "R:0603");
    EXPECT_EQ(property(*lite, "R1", "Maker"), "Us");
    EXPECT_EQ(property(*lite, "R1", "Tol"), "1%");
    EXPECT_EQ(property(*lite, "R2", "Value"), "10k");
    EXPECT_EQ(part(*lite, "R2").notFitted, MarkedBy::Symbol);
    EXPECT_EQ(part(*lite, "R3").notFitted, MarkedBy::Nothing);
}

TEST(KicadVariants, InBomWasWrittenTheWrongWayRoundOnce)
{
    for (const int version : {20260101, 20260305, v10}) {
        const DesignFolder folder;
        folder.write(root, schematic(version, "top",
                                     symbol(version, resistor("R1", variant("A", "(in_bom yes)"))) +
                                         symbol(version, resistor("R2", variant("A", "(in_bom no)"))) +
                                         symbol(version, resistor("R3", ""))));
        const auto design = folder.load(root, QStringLiteral("A"));
        const bool inverted = version < v10;
        EXPECT_EQ(part(*design, "R1").notInBom, inverted ? MarkedBy::Symbol : MarkedBy::Nothing) << version;
        EXPECT_EQ(part(*design, "R2").notInBom, inverted ? MarkedBy::Nothing : MarkedBy::Symbol) << version;
        EXPECT_EQ(part(*design, "R3").notInBom, MarkedBy::Nothing) << version;
    }
}

TEST(KicadVariants, OfSheets)
{
    const DesignFolder folder;
    folder.write(
        root,
        schematic(v10, "top",
                  sheet(v10, {.name = "Radio",
                              .uuid = "h1",
                              .dnp = "no",
                              .uses = {{.path = "/top", .more = variant("Lite", "(dnp yes) (in_bom no)")}}}) +
                      sheet(v10, {.name = "Spare",
                                  .uuid = "h2",
                                  .dnp = "yes",
                                  .uses = {{.path = "/top", .more = variant("Lite", "(dnp no)")}}})));
    folder.write(QStringLiteral("sub.kicad_sch"),
                 schematic(v10, "s",
                           symbol(v10, {.uses = {{.path = "/top/h1", .reference = "R1"},
                                                 {.path = "/top/h2", .reference = "R2"}}})));
    const auto plain = folder.load();
    EXPECT_EQ(part(*plain, "R1").notFitted, MarkedBy::Nothing);
    EXPECT_EQ(part(*plain, "R2").notFitted, MarkedBy::Sheet);
    const auto lite = folder.load(root, QStringLiteral("Lite"));
    EXPECT_EQ(part(*lite, "R1").notFitted, MarkedBy::Sheet);
    EXPECT_EQ(part(*lite, "R1").notInBom, MarkedBy::Sheet);
    EXPECT_EQ(part(*lite, "R2").notFitted, MarkedBy::Nothing);
}

TEST(KicadVariants, ApplyToOneUseOfASheetOnly)
{
    const DesignFolder folder;
    folder.write(root, schematic(v10, "top", sheet(v10, {.uuid = "h1"}) + sheet(v10, {.uuid = "h2"})));
    folder.write(QStringLiteral("sub.kicad_sch"),
                 schematic(v10, "s",
                           symbol(v10, {.uses = {{.path = "/top/h1", .reference = "R1"},
                                                 {.path = "/top/h2",
                                                  .reference = "R2",
                                                  .more = variant("A", field("Value", "0R"))}}})));
    const auto design = folder.load(root, QStringLiteral("A"));
    EXPECT_EQ(part(*design, "R1").value, "10k");
    EXPECT_EQ(part(*design, "R2").value, "0R");
}

TEST(KicadVariants, FieldsMayHoldVariablesAndBraces)
{
    const DesignFolder folder;
    folder.write(
        root, schematic(v10, "top",
                        symbol(v10, {.fields = {{"In{slash}Out", "1"}},
                                     .uses = {{.path = "/top",
                                               .reference = "R1",
                                               .more = variant("A", field("Value", "${REFERENCE}{slash}x") +
                                                                        field("In{slash}Out", "2"))}}})));
    const auto design = folder.load(root, QStringLiteral("A"));
    EXPECT_EQ(part(*design, "R1").value, "R1/x");
    EXPECT_EQ(part(*design, "R1").properties.size(), 1u) << "the field is the symbol's own";
    EXPECT_EQ(part(*design, "R1").properties[0].value, "2");
}

TEST(KicadVariants, AnUnknownOneIsRefusedNamingTheOthers)
{
    const DesignFolder folder;
    folder.write(QStringLiteral("root.kicad_pro"),
                 R"({"schematic": {"variants": ["Zulu", {"name": "Beta"}, {}]}})");
    folder.write(root, schematic(v10, "top", symbol(v10, resistor("R1", variant("Alpha", "")))));
    const auto result = folder.read(root, QStringLiteral("alpha"));
    EXPECT_FALSE(result.design);
    EXPECT_TRUE(result.error.text.contains(QLatin1String("\"alpha\""))) << result.error.text.toStdString();
    EXPECT_TRUE(result.error.text.endsWith(QLatin1String("Alpha, Beta, Zulu")))
        << result.error.text.toStdString();
    EXPECT_EQ(references(*folder.load(root, QStringLiteral("Zulu"))), "R1");

    const DesignFolder none;
    none.write(root, schematic(v9, "top", ""));
    EXPECT_TRUE(none.read(root, QStringLiteral("A")).error.text.contains(QLatin1String("it has none")));
}
