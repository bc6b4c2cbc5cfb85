// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"
#include "support/datatable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kicadtext;
using namespace Qt::StringLiterals;
using testing::StartsWith;

namespace {

/// The text that a field shows in a design with a bit of everything; R1 and R2 are one symbol of a sheet that
/// is used twice.
std::string shown(const std::string &text, std::string_view reference = "R1")
{
    const DesignFolder folder;
    for (const QString &name : {root, project, u"outer.kicad_sch"_s}) {
        folder.write(name, dataText(u"kicad/variables/"_s + name));
    }
    std::string inner = dataText(u"kicad/variables/inner.kicad_sch"_s);
    inner.replace(inner.find("\"@TEXT@\""), 8, inQuotes(text));
    folder.write(u"inner.kicad_sch"_s, inner);
    return property(*folder.load(), reference, "Text").value_or("nothing");
}

} // namespace

TEST(KicadTextVariables, AreLookedUpFromTheInsideOut)
{
    for (const auto &[text, expected] : dataTable<2>("kicad/variables/shown.txt")) {
        EXPECT_EQ(shown(text), expected) << text;
    }
    EXPECT_EQ(shown("${RAIL} ${SHEETPATH} ${REFERENCE}", "R2"), "+3V3 /Twin/Inner/ R2")
        << "another use of the sheet";
    const std::pair<int, std::string> units[] = {{26, "Z"}, {27, "AA"}, {52, "AZ"}, {53, "BA"}};
    for (const auto &[unit, letters] : units) {
        const auto design =
            designOf(v10, symbol(v10, {.reference = "U1", .unit = unit, .fields = {{"Note", "${UNIT}"}}}));
        EXPECT_EQ(property(*design, "U1", "Note"), letters);
    }
}

TEST(KicadTextVariables, AnEscapedOneIsLiteralFromVersion10On)
{
    const auto design = designOf(v10, symbol(v10, {.reference = "R1", .fields = {{"Note", "\\${VALUE}"}}}));
    EXPECT_EQ(property(*design, "R1", "Note"), "${VALUE}");
}

TEST(KicadTextVariables, RecursionEnds)
{
    EXPECT_THAT(shown("${LoopA}"), StartsWith("abab"));
    EXPECT_THAT(shown("x${TEXT}"), StartsWith("xxx"));
}

TEST(KicadTextVariables, ManyBracesTakeLinearTime)
{
    std::string open;
    for (int i = 0; i < 200'000; ++i) {
        open += "${";
    }
    EXPECT_EQ(shown(open), open);
    const std::string braces(200'000, '{');
    EXPECT_EQ(shown(braces), braces);
}

TEST(KicadTextVariables, ABombOfVariablesIsLeftAsItStands)
{
    Fields fields{{"F0", ""}};
    for (int level = 1; level < 10; ++level) {
        std::string text;
        for (int i = 0; i < 20; ++i) {
            text += "${F" + std::to_string(level - 1) + "}";
        }
        fields.emplace_back("F" + std::to_string(level), text);
    }
    const auto design = designOf(v9, symbol(v9, {.reference = "R1", .fields = fields}));
    EXPECT_EQ(property(*design, "R1", "F1"), "");
    EXPECT_THAT(warnings(*design), testing::HasSubstr("text variables"));
}

TEST(KicadTextVariables, OfTheTitleBlock)
{
    const auto design = loadData(u"kicad/variables/root.kicad_sch"_s);
    EXPECT_EQ(design->info().title, u"root 7 B ${VALUE}"_s);
    EXPECT_EQ(design->info().author, u"Ann"_s);
    EXPECT_EQ(design->info().documentNumber, u"D-7"_s);
}
