// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"

#include <gtest/gtest.h>

using namespace kicadtext;

namespace {

const QString root = QStringLiteral("root.kicad_sch");

/// The text that a field of R1 shows in a design with a bit of everything.
std::string shown(const std::string &text)
{
    const DesignFolder folder;
    folder.write(
        QStringLiteral("root.kicad_pro"),
        R"({"text_variables": {"REV": "7", "Mixed": "case", "DEEP": "<${REV}>", "TITLE": "not this"}})");
    folder.write(root, schematic(v9, "top",
                                 "(title_block (title \"Demo ${REV}\") (rev \"B\") (comment 3 \"third\"))" +
                                     symbol(v9, {.reference = "C9",
                                                 .value = "100n",
                                                 .uuid = "uuid-of-c9",
                                                 .fields = {{"Voltage", "${REV}V"}}}) +
                                     sheet(v9, {.name = "Outer",
                                                .file = "outer.kicad_sch",
                                                .uuid = "h1",
                                                .fields = {{"Channel", "outer"}, {"Rail", "+5V"}}})));
    folder.write(QStringLiteral("outer.kicad_sch"), schematic(v9, "o",
                                                              sheet(v9, {.name = "Inner",
                                                                         .file = "inner.kicad_sch",
                                                                         .uuid = "h2",
                                                                         .fields = {{"channel", "inner"}}})));
    const Fields fields{{"Footprint", "R_SMD:R_0402"},
                        {"Tol", "1%"},
                        {"Nested", "${Tol}/${VALUE}"},
                        {"LoopA", "a${LoopB}"},
                        {"LoopB", "b${LoopA}"},
                        {"Name", "Tol"},
                        {"Text", text}};
    folder.write(QStringLiteral("inner.kicad_sch"),
                 schematic(v9, "i",
                           "(title_block (title \"Inner title\"))" +
                               symbol(v9, {.uuid = "s",
                                           .fields = fields,
                                           .uses = {{.path = "/top/h1/h2", .reference = "R1", .unit = 2}}})));
    return property(*folder.load(), "R1", "Text").value_or("nothing");
}

} // namespace

TEST(KicadTextVariables, AreLookedUpFromTheInsideOut)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {"no variable", "no variable"},
        {"${Tol}", "1%"},
        {"a ${tol} b ${TOL}${TOL}", "a 1% b 1%1%"},
        {"${REFERENCE} ${Value}", "R1 10k"},
        {"${Nested}", "1%/10k"},
        {"${${Name}}", "1%"},
        {"${C9:VALUE} ${C9:Voltage} ${uuid-of-c9:REFERENCE}", "100n 7V C9"},
        {"${C9:NoSuch} ${Q1:VALUE}", "${C9:NoSuch} ${Q1:VALUE}"},
        {"${FOOTPRINT_NAME} ${FOOTPRINT_LIBRARY}", "R_0402 R_SMD"},
        {"${SYMBOL_NAME} ${SYMBOL_LIBRARY} ${UNIT}", "R Device B"},
        {"${SHEETNAME} ${SHEETPATH} ${SHEETFILE} ${FILENAME}",
         "Inner /Outer/Inner/ inner.kicad_sch root.kicad_sch"},
        {"${CHANNEL} ${RAIL}", "inner +5V"},
        {"${TITLE} [${COMMENT3}]", "Inner title []"},
        {"${REV} ${Mixed} ${MIXED}", "7 case ${MIXED}"},
        {"${DEEP}", "<7>"},
        {"${UNKNOWN} ${} ${", "${UNKNOWN} ${} ${"},
        {"${UNKNOWN ${Tol}", "${UNKNOWN 1%"},
        {"~{RESET} $Tol {Tol} }", "~{RESET} $Tol {Tol} }"},
        {"{dollar}{slash}", "$/"},
        {"@{1+1}", "@{1+1}"},
    };
    for (const auto &[text, expected] : cases) {
        EXPECT_EQ(shown(text), expected) << text;
    }
}

TEST(KicadTextVariables, RecursionEnds)
{
    EXPECT_EQ(shown("${LoopA}").substr(0, 4), "abab");
    EXPECT_EQ(shown("x${TEXT}").substr(0, 3), "xxx");
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
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top", symbol(v9, {.reference = "R1", .fields = fields})));
    const auto design = folder.load();
    EXPECT_EQ(property(*design, "R1", "F1"), "");
    EXPECT_NE(warnings(*design).find("text variables"), std::string::npos);
}

TEST(KicadTextVariables, AreResolvedPerInstance)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top",
                                 sheet(v9, {.name = "Left", .uuid = "h1", .fields = {{"Gain", "10"}}}) +
                                     sheet(v9, {.name = "Right", .uuid = "h2", .fields = {{"Gain", "20"}}})));
    folder.write(QStringLiteral("sub.kicad_sch"),
                 schematic(v9, "s",
                           symbol(v9, {.value = "${GAIN}k ${SHEETNAME} ${REFERENCE}",
                                       .uses = {{.path = "/top/h1", .reference = "R1"},
                                                {.path = "/top/h2", .reference = "R2"}}})));
    const auto design = folder.load();
    EXPECT_EQ(part(*design, "R1").value, "10k Left R1");
    EXPECT_EQ(part(*design, "R2").value, "20k Right R2");
}

TEST(KicadTextVariables, InVersion6sTableOfInstances)
{
    const DesignFolder folder;
    folder.write(root, schematic(v6, "top",
                                 symbol(v6, {.uuid = "s1", .fields = {{"Ohm", "47"}}}) +
                                     instanceTable({{"/s1", "R1", "${OHM}k", ""}})));
    EXPECT_EQ(part(*folder.load(), "R1").value, "47k");
}

TEST(KicadTextVariables, OfTheTitleBlock)
{
    const DesignFolder folder;
    folder.write(QStringLiteral("root.kicad_pro"), R"({"text_variables": {"NO": "42", "AUTHOR": "Ann"}})");
    folder.write(root,
                 schematic(v9, "top",
                           "(title_block (title \"${PROJECTNAME} ${NO} ${REVISION} ${VALUE}\") (rev \"C\")"
                           " (company \"Us\") (comment 1 \"D-${NO}\"))"));
    const auto design = folder.load();
    EXPECT_EQ(design->info().title, QStringLiteral("root 42 C ${VALUE}"));
    EXPECT_EQ(design->info().author, QStringLiteral("Ann"));
    EXPECT_EQ(design->info().documentNumber, QStringLiteral("D-42"));
}
