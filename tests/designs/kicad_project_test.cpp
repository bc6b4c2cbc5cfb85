// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"

#include <gtest/gtest.h>

using namespace kicadtext;
using designs::Side;

namespace {

const QString root = QStringLiteral("root.kicad_sch");
const QString project = QStringLiteral("root.kicad_pro");
const QString board = QStringLiteral("root.kicad_pcb");

void writeTwoRoots(const DesignFolder &folder)
{
    folder.write(project, R"({"schematic": {"top_level_sheets": [
        {"filename": "root.kicad_sch", "name": "Main", "uuid": "top"},
        {"filename": "parts/second.kicad_sch", "name": "Second", "uuid": "virtual"}]}})");
    folder.write(root, schematic(v10, "top", symbol(v10, {.uses = {{.path = "/top", .reference = "R1"}}})));
    folder.write(QStringLiteral("parts/second.kicad_sch"),
                 schematic(v10, "own",
                           symbol(v10, {.uses = {{.path = "/virtual", .reference = "R2"}}}) +
                               sheet(v10, {.file = "third.kicad_sch", .uuid = "h"})));
    folder.write(QStringLiteral("parts/third.kicad_sch"),
                 schematic(v10, "t", symbol(v10, {.uses = {{.path = "/virtual/h", .reference = "R3"}}})));
    folder.write(QStringLiteral("other.kicad_sch"), schematic(v10, "o", symbol(v10, {.reference = "R9"})));
}

} // namespace

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
        EXPECT_EQ(design->info().variant, QStringLiteral("blue"));
    }
    EXPECT_FALSE(folder.read(QStringLiteral("none.kicad_pro")).design);
}

TEST(KicadProject, WithoutSchematicNamesIt)
{
    const DesignFolder folder;
    folder.write(project, "{}");
    const auto result = folder.read(project);
    EXPECT_FALSE(result.design);
    EXPECT_EQ(result.error.file, folder.path(root));
}

TEST(KicadProject, BrokenIsAnErrorOnlyWhenAskedFor)
{
    for (const char *text : {"{\n \"a\": }", "[1]", "", "\x89PNG\r\n", "{\"a\": {"}) {
        const DesignFolder folder;
        folder.write(project, text);
        folder.write(root, schematic(v9, "top", symbol(v9, {.reference = "R1"})));
        const auto result = folder.read(project);
        EXPECT_FALSE(result.design) << text;
        EXPECT_EQ(result.error.file, folder.path(project)) << text;
        EXPECT_NE(warnings(*folder.load(root)).find("root.kicad_pro"), std::string::npos) << text;
    }
    const DesignFolder folder;
    folder.write(project, "{\n\n \"a\": }");
    EXPECT_EQ(folder.read(project).error.line, 3);
}

TEST(KicadProject, SeveralRoots)
{
    const DesignFolder folder;
    writeTwoRoots(folder);
    for (const QString &name : {project, root, QStringLiteral("parts/second.kicad_sch")}) {
        const auto design = folder.load(name);
        const bool ownProject = name != QStringLiteral("parts/second.kicad_sch");
        EXPECT_EQ(references(*design), ownProject ? "R1 R2 R3" : "R? R?") << name.toStdString();
    }
}

TEST(KicadProject, ASchematicThatIsNoRootStandsAlone)
{
    const DesignFolder folder;
    writeTwoRoots(folder);
    folder.write(QStringLiteral("other.kicad_pro"), R"({"schematic": {"top_level_sheets": [
        {"filename": "root.kicad_sch", "uuid": "top"}]}})");
    EXPECT_EQ(references(*folder.load(QStringLiteral("other.kicad_sch"))), "R9");
}

TEST(KicadBoard, TellsTheSides)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top", ""));
    folder.write(board,
                 "(kicad_pcb (version 20221018) (generator pcbnew)\n"
                 " (footprint \"R:0402\" (layer \"F.Cu\") (at 1 2) (fp_text reference \"R1\" (at 0 0) (layer "
                 "\"B.SilkS\")) (fp_text user \"${REFERENCE}\" (layer \"F.Fab\")))\n"
                 " (footprint \"R:0402\" (layer \"B.Cu\") (property \"Reference\" \"R2\" (layer \"F.SilkS\"))"
                 " (property \"Value\" \"10k\"))\n"
                 " (module R:0402 (layer B.Cu) (fp_text reference R3 (at 0 0)))\n"
                 " (gr_text \"(\\\"\" (layer \"F.Cu\")))\n");
    const auto design = folder.load();
    EXPECT_EQ(design->placement("R1"), Side::Top);
    EXPECT_EQ(design->placement("R2"), Side::Bottom);
    EXPECT_EQ(design->placement("R3"), Side::Bottom);
    EXPECT_EQ(design->placement("R4"), Side::NotPlaced);
    EXPECT_TRUE(design->warnings().empty());
}

TEST(KicadBoard, BrokenIsAWarning)
{
    for (const char *text :
         {"", "(kicad_pcb (footprint \"R\" (layer \"F.Cu\") (fp_text reference R1)", "(kicad_sch)"}) {
        const DesignFolder folder;
        folder.write(root, schematic(v9, "top", ""));
        folder.write(board, text);
        const auto design = folder.load();
        EXPECT_EQ(design->placement("R1"), Side::NotPlaced) << text;
        EXPECT_EQ(design->placement("R2"), Side::NotPlaced) << text;
        ASSERT_EQ(design->warnings().size(), 1u) << text;
        EXPECT_EQ(design->warnings()[0].file, folder.path(board));
    }
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top", ""));
    EXPECT_EQ(folder.load()->placement("R1"), Side::NotPlaced);
    EXPECT_TRUE(folder.load()->warnings().empty()) << "a design needs no board";
}
