// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kicadtext;
using namespace Qt::StringLiterals;
using designs::Side;
using testing::HasSubstr;

TEST(KicadProject, OpensItsSchematic)
{
    const DesignFolder folder;
    folder.write(project, R"({"text_variables": {"X": "1", "VARIANT": "blue", "ODD": 5}, "schematic": {}})");
    const QString path =
        folder.write(root, schematic(v9, "top", symbol(v9, {.reference = "R1", .value = "${X}k"})));
    for (const QString &name : {project, root}) {
        const auto design = folder.load(name);
        EXPECT_EQ(part(*design, "R1").value, "1k");
        EXPECT_EQ(design->info().file, path);
        EXPECT_EQ(design->info().variant, u"blue"_s);
    }
    EXPECT_FALSE(folder.read(u"none.kicad_pro"_s).design);
}

TEST(KicadProject, WithoutSchematicNamesIt)
{
    const DesignFolder folder;
    folder.write(project, "{}");
    EXPECT_THAT(errorOf(folder.read(project)), HasSubstr(folder.path(root).toStdString()));
}

TEST(KicadProject, BrokenIsAnErrorOnlyWhenAskedFor)
{
    for (const char *text : {"{\n\n \"a\": }", "[1]", "", "\x89PNG\r\n", "{\"a\": {"}) {
        const DesignFolder folder;
        folder.write(project, text);
        folder.write(root, schematic(v9, "top", symbol(v9, {.reference = "R1"})));
        const auto result = folder.read(project);
        EXPECT_FALSE(result.design) << text;
        EXPECT_EQ(result.error.file, folder.path(project)) << text;
        EXPECT_EQ(result.error.line == 3, std::string_view(text).starts_with("{\n\n")) << text;
        EXPECT_THAT(warnings(*folder.load(root)), HasSubstr("root.kicad_pro")) << text;
    }
}

TEST(KicadProject, SeveralRootsAreReadFromAnyOfThem)
{
    const std::vector<std::pair<QString, std::string>> cases{
        {u"root.kicad_pro"_s, "R1 R2 R3"},
        {u"root.kicad_sch"_s, "R1 R2 R3"},
        {u"parts/second.kicad_sch"_s, "R? R?"},
        // Its project lists another schematic only.
        {u"other.kicad_sch"_s, "R9"},
    };
    for (const auto &[name, expected] : cases) {
        EXPECT_EQ(references(*loadData(u"kicad/project/several-roots/"_s + name)), expected);
    }
}

TEST(KicadBoard, TellsTheSides)
{
    const auto design = loadData(u"kicad/project/board/sides.kicad_sch"_s);
    EXPECT_EQ(design->placement("R1"), Side::Top);
    EXPECT_EQ(design->placement("R2"), Side::Bottom);
    EXPECT_EQ(design->placement("R3"), Side::Bottom);
    EXPECT_EQ(design->placement("R4"), Side::NotPlaced);
    EXPECT_EQ(warnings(*design), "");
}

TEST(KicadBoard, BrokenIsAWarningAndMissingIsNone)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top", ""));
    const auto without = folder.load();
    EXPECT_EQ(without->placement("R1"), Side::NotPlaced);
    EXPECT_EQ(warnings(*without), "");
    for (const char *text :
         {"", "(kicad_pcb (footprint \"R\" (layer \"F.Cu\") (fp_text reference R1)", "(kicad_sch)"}) {
        const QString board = folder.write(u"root.kicad_pcb"_s, text);
        const auto design = folder.load();
        EXPECT_EQ(design->placement("R1"), Side::NotPlaced) << text;
        EXPECT_EQ(design->placement("R2"), Side::NotPlaced) << text;
        ASSERT_EQ(design->warnings().size(), 1u) << text;
        EXPECT_EQ(design->warnings()[0].file, board);
    }
}
