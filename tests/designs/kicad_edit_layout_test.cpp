// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/editfixture.h"

#include <gmock/gmock.h>

using namespace kicadtext;
using testing::HasSubstr;

namespace {

class KicadEditLayout : public EditTest
{
};

std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

/// The data files of layouts by name, and one with the line ends of Windows.
std::vector<std::pair<std::string, std::string>> layouts()
{
    std::vector<std::pair<std::string, std::string>> all;
    for (const char *name : {"6", "7", "8-without-last-line-end", "9-with-a-link-in-the-sibling",
                             "9-nothing-hidden", "10", "10-nothing-hidden", "one-line"}) {
        all.emplace_back(name,
                         dataText(QStringLiteral("kicad/edit/layout-%1.kicad_sch").arg(QLatin1String(name))));
    }
    all.emplace_back("7 with CRLF", replaced(all[1].second, "\n", "\r\n"));
    return all;
}

} // namespace

TEST_F(KicadEditLayout, ChangingAddingAndRemovingKeepTheFilesManner)
{
    for (const auto &[name, text] : layouts()) {
        SCOPED_TRACE(name);
        // Between "@@" stands the property that is added.
        const std::size_t first = text.find("@@");
        const std::size_t last = text.rfind("@@");
        const std::string before = text.substr(0, first) + text.substr(last + 2);
        write(before);
        EXPECT_EQ(changesOf(make({{"R1", "VALUE", "22k"}})), "Value: 10k > 22k");
        EXPECT_EQ(content(), replaced(replaced(before, "\"10k\"", "\"22k\""), " 10k)", " \"22k\")"));
        write(before);
        make({{"R1", "MPN", "x"}});
        EXPECT_EQ(content(), replaced(text, "@@", ""));
        make({{"R1", "mpn"}});
        EXPECT_EQ(content(), before);
    }
}

TEST_F(KicadEditLayout, ThePlanTellsWhereThingsStand)
{
    const std::string text = dataText(QStringLiteral("kicad/edit/comments.kicad_sch"));
    const QString file = write(text);
    const auto plan = planned(*load(), {{"R1", "New", "x"}, {"R1", "Value", "1"}});
    ASSERT_EQ(plan.changes.size(), 2u);
    EXPECT_EQ(plan.changes[0].file, file);
    EXPECT_EQ(plan.changes[0].line, 4) << "the symbol";
    EXPECT_EQ(plan.changes[1].line, 11) << "the property";
    EXPECT_EQ(plan.changes[1].edit, 1u);
    EXPECT_EQ(plan.files.at(0).before, designs::fingerprintOf(text));
}

TEST_F(KicadEditLayout, NamesAreFoundAndSpelledAsStored)
{
    write(schematic(v6, "top",
                    symbol(v6, {.reference = "R1", .fields = {{"FOOTPRINT", "a"}, {"mpn", "1"}}}) +
                        symbol(v6, {.reference = "R2", .fields = {{"MPN", "1"}, {"mpn", "2"}}}) +
                        symbol(v6, {.reference = "R3"})));
    const auto plan = make({{"R1", "PACKAGE", "b"},
                            {"R1", "Mpn", "7"},
                            {"R2", "MPN", "8"},
                            {"R3", "Mpn", "9"},
                            {"R3", "New One", "n"},
                            {"R2", "new one", "n"}});
    EXPECT_EQ(changesOf(plan),
              "Footprint: a > b; mpn: 1 > 7; MPN: 1 > 8; mpn: - > 9; New One: - > n; New One: - > n");
    EXPECT_THAT(content(), testing::AllOf(HasSubstr("(property \"FOOTPRINT\" \"b\""),
                                          HasSubstr("(property \"mpn\" \"9\" (id 4)"),
                                          HasSubstr("(property \"New One\" \"n\" (id 5)")));
    EXPECT_EQ(property(*load(), "R2", "mpn"), "2") << "the twin stays";
}

TEST_F(KicadEditLayout, TheLastEditCountsAndNothingIsDoneForNothing)
{
    write(schematic(v9, "top", symbol(v9, {.reference = "R1", .fields = {{"A", "1"}}})));
    const auto none = make({{"R1", "A", "2"}, {"R1", "Value", "10k"}, {"R1", "Gone"}, {"R1", "a", "1"}});
    EXPECT_EQ(changesOf(none), "");
    EXPECT_TRUE(none.files.empty());
    const auto last = make({{"R1", "Value", ""}, {"R1", "A"}, {"R1", "VALUE", "1"}, {"R1", "A", "3"}});
    EXPECT_EQ(changesOf(last), "Value: 10k > 1; A: 1 > 3");
}

TEST_F(KicadEditLayout, WhatEverySymbolHasBecomesEmpty)
{
    const Fields fields{{"Footprint", "f"}, {"Datasheet", "d"}, {"Description", "e"}};
    write(schematic(v9, "top", symbol(v9, {.reference = "R1", .fields = fields})));
    make({{"R1", "PACKAGE"}, {"R1", "datasheet"}, {"R1", "Description"}});
    for (const char *name : {"Footprint", "Datasheet", "Description"}) {
        EXPECT_EQ(property(*load(), "R1", name), "") << name;
    }
    EXPECT_NE(refusal({"R1", "Value"}), "");
    EXPECT_NE(refusal({"R1", "VALUE", ""}), "");
    EXPECT_NE(refusal({"R1", "reference", "R2"}), "");
    write(schematic(v7, "top", symbol(v7, {.reference = "R1", .fields = fields})));
    make({{"R1", "Description"}});
    EXPECT_EQ(property(*load(), "R1", "Description"), std::nullopt) << "an ordinary one up to version 7";
}

TEST_F(KicadEditLayout, AStaleFileIsNotTouched)
{
    const std::string text = schematic(v9, "top", symbol(v9, {.reference = "R1"}));
    const QString file = write(text);
    const auto design = load();
    write(text + "\n");
    const auto plan = planned(*design, {{"R1", "Value", "1"}});
    EXPECT_EQ(problemsOf(plan),
              file.toStdString() + ": was changed since it was read; read the design again\n");
    EXPECT_EQ(plan.problems.at(0).edit, std::nullopt);
}

TEST_F(KicadEditLayout, CommentsSwallowNothing)
{
    const std::string before = dataText(QStringLiteral("kicad/edit/comments.kicad_sch"));
    write(before);
    make({{"R1", "A"}});
    EXPECT_EQ(content(), replaced(before, "  (property \"A\" \"1\" (at 0 0 0))", ""));
    EXPECT_EQ(property(*load(), "R1", "B"), "2");
    make({{"R1", "B"}, {"R1", "C", "3"}});
    EXPECT_EQ(properties(*load(), "R1", {"B", "C"}), "- 3");
}
