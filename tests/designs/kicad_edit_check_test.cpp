// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/editcheck.h"
#include "designs/kicad/sheetparser.h"
#include "designs/kicadtext.h"

#include <gtest/gtest.h>

using namespace designs::kicad;

namespace {

const std::string before = "(a (b \"1\") (c (d \"2\")) (e \"3\"))";

/// Whether the change of the list (c ...) into another text passes as a change of "2" alone.
bool passes(const std::string &list, const std::string &value, std::string tail = " (e \"3\"))")
{
    const std::size_t begin = before.find("(c");
    const std::size_t at = before.find("\"2\"");
    const std::string after = before.substr(0, begin) + list + tail;
    return compareTexts(before, after, {{at, at + 3, value}}, {{begin, before.find(" (e")}}).isEmpty();
}

} // namespace

TEST(KicadEditCheck, NothingButTheSpliceMayDiffer)
{
    EXPECT_TRUE(passes("(c (d \"22\"))", "\"22\""));
    EXPECT_FALSE(passes("(c (f \"22\"))", "\"22\"")) << "another word beside it";
    EXPECT_FALSE(passes("(c (d \"22\"))", "\"22\"", " (e \"4\"))")) << "a change elsewhere";
    EXPECT_FALSE(passes("(c (d \"22\"))", "\"22\"", " (e \"3\")")) << "an end that is missing";
    EXPECT_FALSE(passes("(c (d \"2\"2\"))", "\"2\"2\"")) << "a quote that opens what follows";
    EXPECT_FALSE(passes("(c (d \"2\") (x))", "\"2\") (x)")) << "a parenthesis that closes what was open";
    EXPECT_FALSE(passes("(c (d (x\"2\"))", "(x\"2\""));
}

TEST(KicadEditCheck, TheNewTextMustSayWhatWasAsked)
{
    const auto text = [](const std::string &value, const std::string &other) {
        return kicadtext::schematic(
            kicadtext::v9, "top",
            kicadtext::symbol(kicadtext::v9, {.reference = "R1", .value = value, .fields = {{"A", other}}}));
    };
    const std::string old = text("1", "x");
    designs::TextArena arena;
    designs::PropertyNames names;
    SheetFile sheet;
    ASSERT_TRUE(SheetParser(old, &sheet, &arena, &names).parse());
    SheetRewrite change;
    change.symbols[0].properties = {{"Value", "2"}};
    EXPECT_EQ(compareSheets(sheet, names, change, {}, text("2", "x")), QString());
    EXPECT_NE(compareSheets(sheet, names, change, {}, text("3", "x")), QString());
    EXPECT_NE(compareSheets(sheet, names, change, {}, text("2", "y")), QString());
    EXPECT_NE(compareSheets(sheet, names, change, {}, text("2", "x") + ")"), QString());
    change.symbols[0].dnp = true;
    EXPECT_NE(compareSheets(sheet, names, change, {}, text("2", "x")), QString());
}
