// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/editbatch.h"
#include "designs/kicadtext.h"

#include <gtest/gtest.h>

using namespace kicadtext;

namespace {

const QString root = QStringLiteral("root.kicad_sch");
const QString lite = QStringLiteral("Lite");

std::string design(const std::string &variant, int version = v10)
{
    return schematic(version, "top",
                     symbol(version, {.fields = {{"Footprint", "f"}, {"MPN", "a"}},
                                      .uses = {{.path = "/top", .reference = "R1", .more = variant}}}) +
                         symbol(version, {.uuid = "s2",
                                          .uses = {{.path = "/top",
                                                    .reference = "R2",
                                                    .more = " (variant (name \"Lite\") (dnp no))"}}}));
}

std::string field(const std::string &name, const std::string &value)
{
    return " (field (name \"" + name + "\") (value \"" + value + "\"))";
}

} // namespace

TEST(KicadEditVariant, IsMadeChangedAndLeftWithoutTrace)
{
    const DesignFolder folder;
    folder.write(root, design(""));
    const auto plan =
        makeEdits(folder, {{"R1", "Value", "1\"k"}, {"R1", "DNP", "1"}, {"R1", "BOMSKIP", "Yes"}}, lite);
    EXPECT_EQ(changesOf(plan), "Value: 10k > 1\"k; DNP: - > 1; BOMSKIP: - > 1");
    EXPECT_EQ(contentOf(folder.path(root)),
              design(" (variant (name \"Lite\") (dnp yes) (in_bom no)" + field("Value", "1\\\"k") + ")"));
    makeEdits(folder, {{"R1", "Value", "10k"}, {"R1", "mpn", "b"}, {"R1", "BOMSKIP"}}, lite);
    EXPECT_EQ(contentOf(folder.path(root)),
              design(" (variant (name \"Lite\") (dnp yes)" + field("MPN", "b") + ")"));
    makeEdits(folder, {{"R1", "MPN", "c"}}, lite);
    EXPECT_EQ(property(*folder.load(root, lite), "R1", "MPN"), "c");
    EXPECT_EQ(property(*folder.load(), "R1", "MPN"), "a");
    makeEdits(folder, {{"R1", "MPN", "a"}, {"R1", "DNP"}}, lite);
    EXPECT_EQ(contentOf(folder.path(root)), design(""));
}

TEST(KicadEditVariant, KeepsWhatElseItSays)
{
    const DesignFolder folder;
    const std::string other = " (variant (name \"Full\") (dnp yes))";
    folder.write(root, design(other + " (variant (name \"Lite\") (on_board no)" + field("MPN", "b") + ")"));
    makeEdits(folder, {{"R1", "MPN", "a"}}, lite);
    EXPECT_EQ(contentOf(folder.path(root)), design(other + " (variant (name \"Lite\") (on_board no))"));
}

TEST(KicadEditVariant, InLines)
{
    const std::string start =
        "(kicad_sch\r\n\t(version 20260306)\r\n\t(uuid \"t\")\r\n\t(symbol\r\n\t\t(lib_id \"a:b\")"
        "\r\n\t\t(uuid \"s\")\r\n\t\t(property \"Value\" \"1\")\r\n\t\t(instances\r\n\t\t\t(project "
        "\"\"\r\n\t\t\t\t(path \"/t\"\r\n\t\t\t\t\t(reference \"R1\")\r\n\t\t\t\t\t(unit 1)";
    const std::string end = "\r\n\t\t\t\t)\r\n\t\t\t)\r\n\t\t)\r\n\t)\r\n)\r\n";
    const DesignFolder folder;
    folder.write(root, start + end);
    folder.write(QStringLiteral("root.kicad_pro"), "{\"schematic\": {\"variants\": [\"Lite\"]}}");
    makeEdits(folder, {{"R1", "Value", "2"}}, lite);
    const std::string in = "\r\n\t\t\t\t\t";
    EXPECT_EQ(contentOf(folder.path(root)), start + in + "(variant" + in + "\t(name \"Lite\")" + in +
                                                "\t(field" + in + "\t\t(name \"Value\")" + in +
                                                "\t\t(value \"2\")" + in + "\t)" + in + ")" + end);
    makeEdits(folder, {{"R1", "Value", "1"}}, lite);
    EXPECT_EQ(contentOf(folder.path(root)), start + end);
}

TEST(KicadEditVariant, InBomWasTurnedOnce)
{
    const DesignFolder folder;
    folder.write(root, design("", 20260101));
    makeEdits(folder, {{"R1", "BOMSKIP", "1"}}, lite);
    EXPECT_EQ(contentOf(folder.path(root)), design(" (variant (name \"Lite\") (in_bom yes))", 20260101));
    EXPECT_EQ(part(*folder.load(root, lite), "R1").notInBom, designs::MarkedBy::Symbol);
}

TEST(KicadEditVariant, WhatItCannotSayIsRefused)
{
    const DesignFolder folder;
    folder.write(root, design(" (variant (name \"Lite\")" + field("MPN", "b") + ")"));
    const auto chosen = folder.load(root, lite);
    EXPECT_NE(refusal(*chosen, {"R1", "MPN"}).find("without the variant"), std::string::npos);
    EXPECT_NE(refusal(*chosen, {"R1", "New", "x"}).find("without the variant"), std::string::npos);
    EXPECT_EQ(refusal(*chosen, {"R1", "PACKAGE"}), "") << "becomes empty";
    EXPECT_NE(refusal(*folder.load(), {"R1", "MPN"}).find("variant \"Lite\""), std::string::npos);
    folder.write(root, schematic(v9, "top", symbol(v9, {.reference = "R1"})));
    folder.write(QStringLiteral("root.kicad_pro"), "{\"schematic\": {\"variants\": [\"Lite\"]}}");
    EXPECT_NE(refusal(*folder.load(root, lite), {"R1", "Value", "1"}).find("save the design in KiCad 10"),
              std::string::npos);
}

TEST(KicadEditVariant, OneUseOfASheetOnly)
{
    const DesignFolder folder;
    folder.write(root, schematic(v10, "top", sheet(v10, {.uuid = "h1"}) + sheet(v10, {.uuid = "h2"})));
    folder.write(QStringLiteral("sub.kicad_sch"),
                 schematic(v10, "s",
                           symbol(v10, {.uses = {{.path = "/top/h1", .reference = "R1"},
                                                 {.path = "/top/h2",
                                                  .reference = "R2",
                                                  .more = "(variant (name \"Lite\") (dnp yes))"}}})));
    const auto plan = makeEdits(folder, {{"R1", "Value", "1"}, {"R2", "Value", "2"}}, lite);
    EXPECT_TRUE(plan.changes.at(0).alsoChanges.empty());
    const auto again = folder.load(root, lite);
    EXPECT_EQ(part(*again, "R1").value, "1");
    EXPECT_EQ(part(*again, "R2").value, "2");
    EXPECT_EQ(part(*folder.load(), "R2").value, "10k");
}
