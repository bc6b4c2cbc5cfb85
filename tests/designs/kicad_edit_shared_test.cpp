// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/editfixture.h"

#include <gmock/gmock.h>

using namespace kicadtext;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string unit(int number, const Fields &fields, const std::string &path,
                 const std::string &value = "TL074", const std::string &dnp = {})
{
    return symbol(v9, {.reference = "U1",
                       .value = value,
                       .uuid = "u" + std::to_string(number),
                       .lib = "Amp:TL074",
                       .dnp = dnp,
                       .unit = number,
                       .fields = fields,
                       .uses = {{.path = path, .reference = "U1", .unit = number}}});
}

std::size_t countOf(const std::string &text, std::string_view part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

class KicadEditShared : public EditTest
{
};

class KicadEditFlags : public EditTest
{
};

} // namespace

TEST_F(KicadEditShared, AllUnitsInAllFilesChange)
{
    write(schematic(v9, "top",
                    sheet(v9, {.uuid = "h1"}) + unit(1, {{"MPN", "a"}}, "/top") +
                        unit(2, {{"mpn", ""}}, "/top")));
    write(sub, schematic(v9, "s", unit(3, {}, "/top/h1")));
    const auto plan = make({{"U1", "MPN", "b"}, {"U1", "Value", "TL084"}, {"U1", "DNP", "Yes"}});
    EXPECT_EQ(plan.files.size(), 2u);
    EXPECT_EQ(changesOf(plan), "MPN: a > b; Value: TL074 > TL084; DNP: - > 1");
    EXPECT_TRUE(plan.changes[0].alsoChanges.empty());
    const std::string text = content() + content(sub);
    EXPECT_EQ(countOf(text, "\"TL084\""), 3u);
    EXPECT_EQ(countOf(text, "(dnp yes)"), 3u);
    EXPECT_THAT(text, HasSubstr("\"mpn\" \"b\"")) << "each unit keeps its spelling";
    EXPECT_EQ(warnings(*load()), "") << "the units agree";
    make({{"U1", "MPN"}, {"U1", "DNP"}});
    EXPECT_EQ(properties(*load(), "U1", {"MPN", "mpn"}), "- -");
    EXPECT_THAT(content(sub), Not(HasSubstr("MPN")));
}

TEST_F(KicadEditShared, UnitsThatDifferAreMended)
{
    write(schematic(v9, "top",
                    unit(1, {{"A", "1"}, {"B", "1"}}, "/top") + unit(2, {{"A", "2"}}, "/top", "other")));
    const auto plan = make({{"U1", "A", "1"}, {"U1", "VALUE", "TL074"}, {"U1", "B", "1"}});
    EXPECT_EQ(changesOf(plan), "A: 1 > 1; Value: TL074 > TL074; B: 1 > 1");
    EXPECT_EQ(warnings(*load()), "");
    EXPECT_TRUE(make({{"U1", "A", "1"}, {"U1", "B", "1"}}).files.empty());
}

TEST_F(KicadEditShared, ThePlanTellsTheFileThatChanges)
{
    const QString top = write(schematic(v9, "top", sheet(v9, {.uuid = "h1"}) + unit(1, {}, "/top")));
    const QString below = write(sub, schematic(v9, "s", unit(2, {{"A", "1"}}, "/top/h1", "TL074", "yes")));
    // The second unit alone says so, which makes the first one wrong.
    const auto plan = make({{"U1", "DNP", "1"}, {"U1", "A"}});
    ASSERT_EQ(changesOf(plan), "DNP: 1 > 1; A: 1 > -");
    EXPECT_EQ(plan.changes[0].file, top);
    EXPECT_EQ(plan.changes[1].file, below);
    EXPECT_EQ(warnings(*load()), "");
}

TEST_F(KicadEditShared, TwoUsesOfASheetChangeTogetherOrNotAtAll)
{
    const std::vector<Use> uses{{.path = "/top/h1", .reference = "R1"},
                                {.path = "/top/h2", .reference = "R2"}};
    const std::vector<std::vector<AskedEdit>> conflicts{
        {{"R1", "MPN", "b"}, {"R2", "mpn", "c"}}, {{"R1", "MPN"}, {"R2", "MPN", "b"}},
        {{"R1", "MPN", "a"}, {"R2", "MPN", "b"}}, {{"R1", "DNP", "1"}, {"R2", "DNP", "0"}},
        {{"R1", "New", "1"}, {"R2", "new", "2"}}, {{"R1", "BOMSKIP", "1"}, {"R2", "bomskip"}}};
    for (const int version : {v7, v9, v10}) {
        write(schematic(version, "top", sheet(version, {.uuid = "h1"}) + sheet(version, {.uuid = "h2"})));
        write(sub, schematic(version, "s", symbol(version, {.fields = {{"MPN", "a"}}, .uses = uses})));
        const auto design = load();
        const auto plan = planned(*design, {{"R2", "MPN", "b"}});
        ASSERT_EQ(plan.changes.size(), 1u);
        EXPECT_EQ(plan.changes[0].alsoChanges, std::vector<std::size_t>{0});
        EXPECT_EQ(problemsOf(planned(*design, {{"R1", "MPN", "b"}, {"R2", "MPN", "b"}})), "");
        for (const auto &edits : conflicts) {
            const auto refused = planned(*design, edits);
            ASSERT_EQ(refused.problems.size(), 2u) << edits[0].name;
            EXPECT_THAT(problemsOf(refused), HasSubstr("asked to differ: R1, R2"));
        }
    }
}

TEST_F(KicadEditShared, Version6RepeatsValueAndFootprint)
{
    const auto rows = [](const std::string &value, const std::string &footprint, const std::string &second) {
        return schematic(
            v6, "top",
            sheet(v6, {.uuid = "h1"}) + sheet(v6, {.uuid = "h2"}) +
                instanceTable({{.path = "/h1/sym", .reference = "R1", .value = value, .footprint = footprint},
                               {.path = "/other/sym", .reference = "R9", .value = "99", .footprint = "x"},
                               {.path = "/h2/sym", .reference = "R2", .value = second}}));
    };
    write(rows("10k", "f", "47k"));
    write(sub, schematic(v6, "s", symbol(v6, {.value = "old", .fields = {{"Footprint", "f"}}})));
    EXPECT_EQ(property(*load(), "R2", "Value"), "47k");
    const auto plan = make({{"R1", "Value", "1\"k"}, {"R1", "PACKAGE"}});
    EXPECT_EQ(changesOf(plan), "Value: 10k > 1\"k; Footprint: f > ");
    EXPECT_EQ(content(), rows("1\"k", "", "1\"k"));
    EXPECT_EQ(property(*load(), "R2", "Value"), "1\"k");
    EXPECT_EQ(property(*load(), "R1", "Footprint"), "");
    EXPECT_TRUE(planned(*load(), {{"R2", "Value", "1\"k"}}).files.empty());
}

TEST_F(KicadEditFlags, AreSetWhereTheVersionKnowsThem)
{
    for (const int version : {v7, v8, v9, v10}) {
        write(schematic(version, "top",
                        symbol(version, {.reference = "R1"}) +
                            symbol(version, {.reference = "R2", .dnp = "no", .fields = {{"dnp", "no"}}}) +
                            symbol(version, {.reference = "R3", .inBom = "no", .dnp = "yes"})));
        const auto plan = make({{"R1", "Dnp", "Yes"},
                                {"R1", "bomskip", "1"},
                                {"R2", "DNP", "true"},
                                {"R3", "DNP", "No"},
                                {"R3", "BOMSKIP"}});
        EXPECT_EQ(changesOf(plan), "DNP: - > 1; BOMSKIP: - > 1; DNP: - > 1; DNP: 1 > -; BOMSKIP: 1 > -");
        EXPECT_EQ(content(),
                  schematic(version, "top",
                            symbol(version, {.reference = "R1", .inBom = "no", .dnp = "yes"}) +
                                symbol(version, {.reference = "R2", .dnp = "yes", .fields = {{"dnp", "1"}}}) +
                                symbol(version, {.reference = "R3", .inBom = "yes", .dnp = "no"})));
        make({{"R2", "DNP", "0"}});
        EXPECT_EQ(property(*load(), "R2", "dnp"), "");
        EXPECT_EQ(marks(*load()), "R1:ss R2:-- R3:--");
        EXPECT_NE(refusal({"R1", "DNP", "maybe"}), "");
        EXPECT_EQ(changesOf(make({{"R2", "DNP"}, {"R1", "DNP", "1"}})), "");
    }
}

TEST_F(KicadEditFlags, Version6TakesAProperty)
{
    write(schematic(v6, "top",
                    symbol(v6, {.reference = "R1"}) +
                        symbol(v6, {.reference = "R2", .fields = {{"dnp", "no"}}})));
    make({{"R1", "DNP", "1"}, {"R2", "DNP", "1"}});
    EXPECT_EQ(property(*load(), "R1", "dnp"), "1") << "spelled as elsewhere";
    EXPECT_EQ(property(*load(), "R2", "dnp"), "1");
    EXPECT_THAT(content(), Not(HasSubstr("(dnp")));
    make({{"R1", "DNP"}, {"R2", "DNP", "No"}});
    EXPECT_EQ(content(),
              schematic(v6, "top", symbol(v6, {.reference = "R1"}) + symbol(v6, {.reference = "R2"})));
}

TEST_F(KicadEditFlags, AStoredBomskipGoesWithTheFlag)
{
    const Fields fields{{"BomSkip", "x"}};
    write(schematic(v9, "top", symbol(v9, {.reference = "R1", .inBom = "no", .fields = fields})));
    EXPECT_EQ(changesOf(make({{"R1", "BOMSKIP"}})), "BOMSKIP: x > -");
    EXPECT_EQ(content(), schematic(v9, "top", symbol(v9, {.reference = "R1"})));
}

TEST_F(KicadEditFlags, OfSheetsAndRuleAreasAreRefused)
{
    write(schematic(v10, "top",
                    sheet(v10, {.name = "Radio", .uuid = "h1", .inBom = "no", .dnp = "yes"}) +
                        symbol(v10, {.reference = "R2", .at = "5 5 0"}) +
                        "(rule_area (dnp yes) (polyline (pts (xy 0 0) (xy 9 0) (xy 9 9) (xy 0 9))))"));
    const std::vector<Use> uses{{.path = "/top/h1", .reference = "R1"}};
    write(sub, schematic(v10, "s", symbol(v10, {.dnp = "yes", .uses = uses})));
    EXPECT_THAT(refusal({"R1", "DNP"}), HasSubstr("the sheet /Radio"));
    EXPECT_THAT(refusal({"R1", "BOMSKIP", "no"}), HasSubstr("the sheet /Radio"));
    EXPECT_THAT(refusal({"R2", "DNP", "0"}), HasSubstr("rule area"));
    EXPECT_EQ(refusal({"R1", "DNP", "1"}), "") << "it is there already";
}
