// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// What the reader goes on from, but not without a word: one message per cause, with file and line.
#include "designs/designfolder.h"
#include "designs/kicadtext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kicadtext;
using testing::HasSubstr;

namespace {

const QString root = QStringLiteral("root.kicad_sch");

Use rootUse(const std::string &reference)
{
    return {.path = "/top", .reference = reference};
}

std::unique_ptr<designs::Design> designOf(int version, const std::string &body)
{
    const DesignFolder folder;
    folder.write(root, schematic(version, "top", body));
    return folder.load();
}

} // namespace

TEST(KicadWarnings, SymbolsWithoutARecordForTheirSheetAreCountedOncePerSheet)
{
    const auto design = designOf(v8, symbol(v8, {.reference = "R1", .uuid = "a", .uses = {rootUse("R1")}}) +
                                         symbol(v8, {.reference = "R2", .uuid = "b"}) +
                                         symbol(v8, {.reference = "R3", .uuid = "c"}) +
                                         symbol(v8, {.reference = "#PWR01", .uuid = "d"}));
    EXPECT_EQ(references(*design), "R1 R2 R3");
    ASSERT_EQ(design->warnings().size(), 1u);
    EXPECT_THAT(warnings(*design), HasSubstr("sheet /: 2 of its symbols have no record"));
    EXPECT_GT(design->warnings().front().line, 1);
}

TEST(KicadWarnings, ASymbolMissingInTheLibraryCacheIsNamedOnceAndItsPartsCount)
{
    const auto missing = [](const std::string &reference) {
        return symbol(
            v8, {.reference = reference, .uuid = reference, .lib = "Lost:X", .uses = {rootUse(reference)}});
    };
    const auto design = designOf(v8, missing("X1") + missing("X2") + missing("X3"));
    EXPECT_EQ(references(*design), "X1 X2 X3");
    ASSERT_EQ(design->warnings().size(), 1u);
    EXPECT_THAT(warnings(*design), HasSubstr("X1 and 2 more: the symbol Lost:X is missing"));
    EXPECT_GT(design->warnings().front().line, 0);
}

TEST(KicadWarnings, LinesOfComponentsAreThoseOfTheirSymbols)
{
    // The file must still be there: lines are looked up when they are asked for.
    const DesignFolder folder;
    folder.write(root, schematic(v8, "top",
                                 symbol(v8, {.uuid = "a", .uses = {rootUse("R1")}}) +
                                     symbol(v8, {.uuid = "b", .uses = {rootUse("R2")}})));
    const auto design = folder.load();
    const int first = design->lineOf(part(*design, "R1"));
    const int second = design->lineOf(part(*design, "R2"));
    EXPECT_GT(first, 1);
    const std::string one = symbol(v8, {.uuid = "a", .uses = {rootUse("R1")}});
    EXPECT_EQ(second - first, std::count(one.begin(), one.end(), '\n'));
}

TEST(KicadWarnings, MandatoryFieldsAreKnownInAnyLetterCase)
{
    const auto design = designOf(v8, symbol(v8, {.value = "1k",
                                                 .uuid = "a",
                                                 .fields = {{"VALUE", "2k"}, {"footprint", "R:0402"}},
                                                 .uses = {rootUse("R1")}}));
    EXPECT_EQ(property(*design, "R1", "Value"), "2k");
    EXPECT_EQ(property(*design, "R1", "Footprint"), "R:0402");
    EXPECT_EQ(property(*design, "R1", "VALUE"), std::nullopt);
}

TEST(KicadWarnings, AnEscapedVariableIsLiteralFromVersion10On)
{
    const auto text = [](int version) {
        const auto design = designOf(version, symbol(version, {.value = "4k7",
                                                               .uuid = "a",
                                                               .fields = {{"Note", "\\${VALUE}"}},
                                                               .uses = {rootUse("R1")}}));
        return property(*design, "R1", "Note");
    };
    EXPECT_EQ(text(v10), "${VALUE}");
    EXPECT_EQ(text(v9), "\\4k7");
}
