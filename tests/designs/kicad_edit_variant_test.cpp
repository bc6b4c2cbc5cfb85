// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/editfixture.h"

#include <gmock/gmock.h>

using namespace kicadtext;
using testing::HasSubstr;

namespace {

std::string variant(const std::string &what)
{
    return " (variant (name \"Lite\")" + what + ")";
}

std::string field(const std::string &name, const std::string &value)
{
    return " (field (name \"" + name + "\") (value \"" + value + "\"))";
}

/// R1 with what is given for its use; R2 makes the variant known.
std::string design(const std::string &more, int version = v10)
{
    const std::vector<Use> first{{.path = "/top", .reference = "R1", .more = more}};
    const std::vector<Use> second{{.path = "/top", .reference = "R2", .more = variant(" (dnp no)")}};
    return schematic(version, "top",
                     symbol(version, {.fields = {{"Footprint", "f"}, {"MPN", "a"}}, .uses = first}) +
                         symbol(version, {.uuid = "s2", .uses = second}));
}

class KicadEditVariant : public EditTest
{
protected:
    KicadEditVariant() { m_variant = QStringLiteral("Lite"); }

    [[nodiscard]] std::unique_ptr<designs::Design> withoutVariant() const { return m_folder.load(); }
};

} // namespace

TEST_F(KicadEditVariant, IsMadeChangedAndLeftWithoutTrace)
{
    write(design(""));
    const auto plan = make({{"R1", "Value", "1\"k"}, {"R1", "DNP", "1"}, {"R1", "BOMSKIP", "Yes"}});
    EXPECT_EQ(changesOf(plan), "Value: 10k > 1\"k; DNP: - > 1; BOMSKIP: - > 1");
    EXPECT_EQ(content(), design(variant(" (dnp yes) (in_bom no)" + field("Value", "1\\\"k"))));
    make({{"R1", "Value", "10k"}, {"R1", "mpn", "b"}, {"R1", "BOMSKIP"}});
    EXPECT_EQ(content(), design(variant(" (dnp yes)" + field("MPN", "b"))));
    make({{"R1", "MPN", "c"}});
    EXPECT_EQ(property(*load(), "R1", "MPN"), "c");
    EXPECT_EQ(property(*withoutVariant(), "R1", "MPN"), "a");
    make({{"R1", "MPN", "a"}, {"R1", "DNP"}});
    EXPECT_EQ(content(), design(""));
}

TEST_F(KicadEditVariant, KeepsWhatElseItSays)
{
    const std::string other = " (variant (name \"Full\") (dnp yes))";
    write(design(other + variant(" (on_board no)" + field("MPN", "b"))));
    make({{"R1", "MPN", "a"}});
    EXPECT_EQ(content(), design(other + variant(" (on_board no)")));
}

TEST_F(KicadEditVariant, StandsOnLinesWhereTheFileDoes)
{
    const std::string before = dataText(QStringLiteral("kicad/edit/variant-on-lines-before.kicad_sch"));
    write(before);
    write(project, "{\"schematic\": {\"variants\": [\"Lite\"]}}");
    make({{"R1", "Value", "2"}});
    EXPECT_EQ(content(), dataText(QStringLiteral("kicad/edit/variant-on-lines-after.kicad_sch")));
    make({{"R1", "Value", "1"}});
    EXPECT_EQ(content(), before);
}

TEST_F(KicadEditVariant, InBomWasTurnedOnce)
{
    write(design("", 20260101));
    make({{"R1", "BOMSKIP", "1"}});
    EXPECT_EQ(content(), design(variant(" (in_bom yes)"), 20260101));
    EXPECT_EQ(marks(*load()), "R1:s- R2:--");
}

TEST_F(KicadEditVariant, WhatItCannotSayIsRefused)
{
    write(design(variant(field("MPN", "b"))));
    EXPECT_THAT(refusal({"R1", "MPN"}), HasSubstr("without the variant"));
    EXPECT_THAT(refusal({"R1", "New", "x"}), HasSubstr("without the variant"));
    EXPECT_EQ(refusal({"R1", "PACKAGE"}), "") << "becomes empty";
    const auto design = withoutVariant();
    EXPECT_THAT(problemsOf(planned(*design, {{"R1", "MPN"}})), HasSubstr("variant \"Lite\""));
    write(schematic(v9, "top", symbol(v9, {.reference = "R1"})));
    write(project, "{\"schematic\": {\"variants\": [\"Lite\"]}}");
    EXPECT_THAT(refusal({"R1", "Value", "1"}), HasSubstr("save the design in KiCad 10"));
}

TEST_F(KicadEditVariant, ChangesOneUseOfASheetOnly)
{
    write(schematic(v10, "top", sheet(v10, {.uuid = "h1"}) + sheet(v10, {.uuid = "h2"})));
    const std::vector<Use> uses{{.path = "/top/h1", .reference = "R1"},
                                {.path = "/top/h2", .reference = "R2", .more = variant(" (dnp yes)")}};
    write(sub, schematic(v10, "s", symbol(v10, {.uses = uses})));
    const auto plan = make({{"R1", "Value", "1"}, {"R2", "Value", "2"}});
    EXPECT_TRUE(plan.changes.at(0).alsoChanges.empty());
    EXPECT_EQ(part(*load(), "R1").value, "1");
    EXPECT_EQ(part(*load(), "R2").value, "2");
    EXPECT_EQ(part(*withoutVariant(), "R2").value, "10k");
}
