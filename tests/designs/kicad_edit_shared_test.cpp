// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/editbatch.h"
#include "designs/kicadtext.h"

#include <gtest/gtest.h>

using namespace kicadtext;

namespace {

const QString root = QStringLiteral("root.kicad_sch");
const QString sub = QStringLiteral("sub.kicad_sch");

std::string unit(int version, int number, const Fields &fields, const std::string &path,
                 const std::string &value = "TL074")
{
    return symbol(version, {.reference = "U1",
                            .value = value,
                            .uuid = "u" + std::to_string(number),
                            .lib = "Amp:TL074",
                            .unit = number,
                            .fields = fields,
                            .uses = {{.path = path, .reference = "U1", .unit = number}}});
}

/// A sheet used twice: R1 and R2 are one symbol.
DesignFolder usedTwice(int version, const Fields &fields = {})
{
    DesignFolder folder;
    folder.write(root,
                 schematic(version, "top", sheet(version, {.uuid = "h1"}) + sheet(version, {.uuid = "h2"})));
    folder.write(sub, schematic(version, "s",
                                symbol(version, {.fields = fields,
                                                 .uses = {{.path = "/top/h1", .reference = "R1"},
                                                          {.path = "/top/h2", .reference = "R2"}}})));
    return folder;
}

} // namespace

TEST(KicadEditShared, AllUnitsInAllFiles)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top",
                                 sheet(v9, {.uuid = "h1"}) + unit(v9, 1, {{"MPN", "a"}}, "/top") +
                                     unit(v9, 2, {{"mpn", ""}}, "/top")));
    const QString below = folder.write(sub, schematic(v9, "s", unit(v9, 3, {}, "/top/h1")));
    const auto plan = makeEdits(folder, {{"U1", "MPN", "b"}, {"U1", "Value", "TL084"}, {"U1", "DNP", "Yes"}});
    EXPECT_EQ(plan.files.size(), 2u);
    EXPECT_EQ(changesOf(plan), "MPN: a > b; Value: TL074 > TL084; DNP: - > 1");
    EXPECT_TRUE(plan.changes[0].alsoChanges.empty());
    const std::string text = contentOf(folder.path(root)) + contentOf(below);
    for (const char *twice : {"\"TL084\"", "(dnp yes)"}) {
        std::size_t count = 0;
        for (std::size_t at = text.find(twice); at != std::string::npos; at = text.find(twice, at + 1)) {
            ++count;
        }
        EXPECT_EQ(count, 3u) << twice;
    }
    EXPECT_NE(text.find("\"mpn\" \"b\""), std::string::npos) << "each unit keeps its spelling";
    EXPECT_EQ(warnings(*folder.load()), "") << "the units agree";
    makeEdits(folder, {{"U1", "MPN"}, {"U1", "DNP"}});
    EXPECT_EQ(property(*folder.load(), "U1", "MPN"), std::nullopt);
    EXPECT_EQ(property(*folder.load(), "U1", "mpn"), std::nullopt);
    EXPECT_EQ(contentOf(below).find("MPN"), std::string::npos);
}

TEST(KicadEditShared, UnitsThatDifferAreMended)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top",
                                 unit(v9, 1, {{"A", "1"}, {"B", "1"}}, "/top") +
                                     unit(v9, 2, {{"A", "2"}}, "/top", "other")));
    const auto plan = makeEdits(folder, {{"U1", "A", "1"}, {"U1", "VALUE", "TL074"}, {"U1", "B", "1"}});
    EXPECT_EQ(changesOf(plan), "A: 1 > 1; Value: TL074 > TL074; B: 1 > 1");
    EXPECT_EQ(warnings(*folder.load()), "");
    EXPECT_TRUE(makeEdits(folder, {{"U1", "A", "1"}, {"U1", "B", "1"}}).files.empty());
}

TEST(KicadEditShared, TellsTheFileThatChanges)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top", sheet(v9, {.uuid = "h1"}) + unit(v9, 1, {}, "/top")));
    std::string below = schematic(v9, "s", unit(v9, 2, {{"A", "1"}}, "/top/h1"));
    below.insert(below.find("(unit 2)"), "(dnp yes) ");
    const QString path = folder.write(sub, below);
    // The second unit alone says so, which makes the first one wrong.
    const auto plan = makeEdits(folder, {{"U1", "DNP", "1"}, {"U1", "A"}});
    ASSERT_EQ(changesOf(plan), "DNP: 1 > 1; A: 1 > -");
    EXPECT_EQ(plan.changes[0].file, folder.path(root));
    EXPECT_EQ(plan.changes[1].file, path);
    EXPECT_EQ(warnings(*folder.load()), "");
}

TEST(KicadEditShared, ASheetUsedTwice)
{
    for (const int version : {v7, v9, v10}) {
        const DesignFolder folder = usedTwice(version, {{"MPN", "a"}});
        const auto design = folder.load();
        const auto plan = planned(*design, {{"R2", "MPN", "b"}});
        ASSERT_EQ(plan.changes.size(), 1u);
        EXPECT_EQ(plan.changes[0].alsoChanges, std::vector<std::size_t>{0});
        EXPECT_EQ(problemsOf(planned(*design, {{"R1", "MPN", "b"}, {"R2", "MPN", "b"}})), "");
        const std::vector<std::vector<AskedEdit>> conflicts{
            {{"R1", "MPN", "b"}, {"R2", "mpn", "c"}}, {{"R1", "MPN"}, {"R2", "MPN", "b"}},
            {{"R1", "MPN", "a"}, {"R2", "MPN", "b"}}, {{"R1", "DNP", "1"}, {"R2", "DNP", "0"}},
            {{"R1", "New", "1"}, {"R2", "new", "2"}}, {{"R1", "BOMSKIP", "1"}, {"R2", "bomskip"}}};
        for (const auto &edits : conflicts) {
            const auto refused = planned(*design, edits);
            ASSERT_EQ(refused.problems.size(), 2u) << edits[0].name;
            EXPECT_NE(problemsOf(refused).find("asked to differ: R1, R2"), std::string::npos)
                << problemsOf(refused);
        }
    }
}

TEST(KicadEditShared, Version6RepeatsValueAndFootprint)
{
    const DesignFolder folder;
    const auto rows = [](const std::string &value, const std::string &footprint) {
        return schematic(
            v6, "top",
            sheet(v6, {.uuid = "h1"}) + sheet(v6, {.uuid = "h2"}) +
                instanceTable(
                    {{.path = "/h1/sym", .reference = "R1", .value = value, .footprint = footprint},
                     {.path = "/other/sym", .reference = "R9", .value = "99", .footprint = "x"},
                     {.path = "/h2/sym", .reference = "R2", .value = value == "10k" ? "47k" : value}}));
    };
    const QString top = folder.write(root, rows("10k", "f"));
    folder.write(sub, schematic(v6, "s", symbol(v6, {.value = "old", .fields = {{"Footprint", "f"}}})));
    EXPECT_EQ(property(*folder.load(), "R2", "Value"), "47k");
    const auto plan = makeEdits(folder, {{"R1", "Value", "1\"k"}, {"R1", "PACKAGE"}});
    EXPECT_EQ(changesOf(plan), "Value: 10k > 1\"k; Footprint: f > ");
    EXPECT_EQ(contentOf(top), rows("1\"k", ""));
    const auto design = folder.load();
    EXPECT_EQ(property(*design, "R2", "Value"), "1\"k");
    EXPECT_EQ(property(*design, "R1", "Footprint"), "");
    EXPECT_TRUE(planned(*design, {{"R2", "Value", "1\"k"}}).files.empty());
}

TEST(KicadEditFlags, AreSetWhereTheVersionKnowsThem)
{
    for (const int version : {v7, v8, v9, v10}) {
        const DesignFolder folder;
        const std::string before =
            schematic(version, "top",
                      symbol(version, {.reference = "R1"}) +
                          symbol(version, {.reference = "R2", .dnp = "no", .fields = {{"dnp", "no"}}}) +
                          symbol(version, {.reference = "R3", .inBom = "no", .dnp = "yes"}));
        folder.write(root, before);
        const auto plan = makeEdits(folder, {{"R1", "Dnp", "Yes"},
                                             {"R1", "bomskip", "1"},
                                             {"R2", "DNP", "true"},
                                             {"R3", "DNP", "No"},
                                             {"R3", "BOMSKIP"}});
        EXPECT_EQ(changesOf(plan), "DNP: - > 1; BOMSKIP: - > 1; DNP: - > 1; DNP: 1 > -; BOMSKIP: 1 > -");
        const std::string after =
            schematic(version, "top",
                      symbol(version, {.reference = "R1", .inBom = "no", .dnp = "yes"}) +
                          symbol(version, {.reference = "R2", .dnp = "yes", .fields = {{"dnp", "1"}}}) +
                          symbol(version, {.reference = "R3", .inBom = "yes", .dnp = "no"}));
        EXPECT_EQ(contentOf(folder.path(root)), after);
        makeEdits(folder, {{"R2", "DNP", "0"}});
        EXPECT_EQ(property(*folder.load(), "R2", "dnp"), "");
        EXPECT_EQ(part(*folder.load(), "R2").notFitted, designs::MarkedBy::Nothing);
        EXPECT_NE(refusal(*folder.load(), {"R1", "DNP", "maybe"}), "");
        EXPECT_EQ(changesOf(planned(*folder.load(), {{"R2", "DNP"}, {"R1", "DNP", "1"}})), "");
    }
}

TEST(KicadEditFlags, Version6TakesAProperty)
{
    const DesignFolder folder;
    const std::string before = schematic(v6, "top",
                                         symbol(v6, {.reference = "R1"}) +
                                             symbol(v6, {.reference = "R2", .fields = {{"dnp", "no"}}}));
    folder.write(root, before);
    makeEdits(folder, {{"R1", "DNP", "1"}, {"R2", "DNP", "1"}});
    EXPECT_EQ(property(*folder.load(), "R1", "dnp"), "1") << "spelled as elsewhere";
    EXPECT_EQ(property(*folder.load(), "R2", "dnp"), "1");
    EXPECT_EQ(contentOf(folder.path(root)).find("(dnp"), std::string::npos);
    makeEdits(folder, {{"R1", "DNP"}, {"R2", "DNP", "No"}});
    EXPECT_EQ(contentOf(folder.path(root)),
              schematic(v6, "top", symbol(v6, {.reference = "R1"}) + symbol(v6, {.reference = "R2"})));
}

TEST(KicadEditFlags, AStoredBomskipGoesWithTheFlag)
{
    const DesignFolder folder;
    folder.write(
        root,
        schematic(v9, "top", symbol(v9, {.reference = "R1", .inBom = "no", .fields = {{"BomSkip", "x"}}})));
    EXPECT_EQ(changesOf(makeEdits(folder, {{"R1", "BOMSKIP"}})), "BOMSKIP: x > -");
    EXPECT_EQ(contentOf(folder.path(root)), schematic(v9, "top", symbol(v9, {.reference = "R1"})));
}

TEST(KicadEditFlags, OfSheetsAndRuleAreasAreRefused)
{
    const DesignFolder folder;
    folder.write(root,
                 schematic(v10, "top",
                           sheet(v10, {.name = "Radio", .uuid = "h1", .inBom = "no", .dnp = "yes"}) +
                               symbol(v10, {.reference = "R2", .at = "5 5 0"}) +
                               "(rule_area (dnp yes) (polyline (pts (xy 0 0) (xy 9 0) (xy 9 9) (xy 0 9))))"));
    folder.write(
        sub,
        schematic(v10, "s", symbol(v10, {.dnp = "yes", .uses = {{.path = "/top/h1", .reference = "R1"}}})));
    const auto design = folder.load();
    EXPECT_NE(refusal(*design, {"R1", "DNP"}).find("the sheet /Radio"), std::string::npos);
    EXPECT_NE(refusal(*design, {"R1", "BOMSKIP", "no"}).find("the sheet /Radio"), std::string::npos);
    EXPECT_NE(refusal(*design, {"R2", "DNP", "0"}).find("rule area"), std::string::npos);
    EXPECT_EQ(refusal(*design, {"R1", "DNP", "1"}), "") << "it is there already";
}
