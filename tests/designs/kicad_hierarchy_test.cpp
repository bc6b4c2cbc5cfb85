// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace kicadtext;

namespace {

const QString root = QStringLiteral("root.kicad_sch");

std::string paths(const designs::Design &design)
{
    std::string text;
    for (const designs::SheetUse &use : design.sheets()) {
        text += use.path.toStdString() + ' ';
    }
    return text;
}

std::string leaf(std::string_view reference)
{
    return schematic(v9, "leaf", symbol(v9, {.reference = std::string(reference)}));
}

/// Files 0 to `levels`, each using the next one `width` times.
void writeTower(const DesignFolder &folder, int levels, int width)
{
    for (int level = 0; level <= levels; ++level) {
        std::string sheets;
        for (int i = 0; level < levels && i < width; ++i) {
            const std::string number = std::to_string(i);
            sheets += sheet(v9, {.name = "S" + number,
                                 .file = "level" + std::to_string(level + 1) + ".kicad_sch",
                                 .uuid = "h" + number});
        }
        folder.write(level == 0 ? root : QStringLiteral("level%1.kicad_sch").arg(level),
                     schematic(v9, "u" + std::to_string(level), sheets + symbol(v9, {.reference = "R1"})));
    }
}

} // namespace

TEST(KicadHierarchy, NestedSheetsFollowTheirSheetSymbols)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top",
                                 sheet(v9, {.name = "Power", .file = "power.kicad_sch", .uuid = "h1"}) +
                                     sheet(v9, {.name = "Logic", .file = "logic.kicad_sch", .uuid = "h2"}) +
                                     symbol(v9, {.reference = "R1"})));
    folder.write(QStringLiteral("power.kicad_sch"),
                 schematic(v9, "p",
                           symbol(v9, {.uuid = "s", .uses = {{.path = "/top/h1", .reference = "R2"}}}) +
                               sheet(v9, {.name = "Input", .file = "input.kicad_sch", .uuid = "h3"})));
    folder.write(QStringLiteral("input.kicad_sch"),
                 schematic(v9, "i", symbol(v9, {.uses = {{.path = "/top/h1/h3", .reference = "R3"}}})));
    folder.write(QStringLiteral("logic.kicad_sch"), leaf("R4"));
    const auto design = folder.load();
    EXPECT_EQ(paths(*design), "/ /Power /Power/Input /Logic ");
    EXPECT_EQ(references(*design), "R1 R2 R3 R4");
    EXPECT_EQ(part(*design, "R3").sheet, 2u);
    EXPECT_EQ(design->files().at(part(*design, "R3").file), folder.path(QStringLiteral("input.kicad_sch")));
}

TEST(KicadHierarchy, SheetFilesAreRelativeToTheParentsFolder)
{
    const DesignFolder folder;
    folder.write(root, schematic(v8, "top", sheet(v8, {.file = "a/mid.kicad_sch"})));
    folder.write(QStringLiteral("a/mid.kicad_sch"),
                 schematic(v8, "mid",
                           sheet(v8, {.file = "b/leaf.kicad_sch", .uuid = "h1"}) +
                               sheet(v8, {.file = "../up.kicad_sch", .uuid = "h2"}) +
                               sheet(v8, {.file = "b\\leaf.kicad_sch", .uuid = "h3"}) +
                               sheet(v8, {.file = "${KIPRJMOD}/up.kicad_sch", .uuid = "h4"})));
    folder.write(QStringLiteral("a/b/leaf.kicad_sch"), leaf("R1"));
    folder.write(QStringLiteral("up.kicad_sch"), leaf("R2"));
    const auto design = folder.load();
    EXPECT_EQ(references(*design), "R1 R2 R1 R2");
    EXPECT_EQ(design->files().size(), 4);
}

TEST(KicadHierarchy, ASymbolicLinkIsItsTarget)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top",
                                 sheet(v9, {.file = "link.kicad_sch", .uuid = "h1"}) +
                                     sheet(v9, {.file = "shared/real.kicad_sch", .uuid = "h2"})));
    folder.write(QStringLiteral("shared/real.kicad_sch"), leaf("R1"));
    ASSERT_TRUE(
        QFile::link(QStringLiteral("shared/real.kicad_sch"), folder.path(QStringLiteral("link.kicad_sch"))));
    const auto design = folder.load();
    EXPECT_EQ(references(*design), "R1 R1");
    EXPECT_EQ(design->files().size(), 2);

    folder.write(QStringLiteral("self/root.kicad_sch"),
                 schematic(v9, "top", sheet(v9, {.file = "again.kicad_sch"})));
    ASSERT_TRUE(
        QFile::link(QStringLiteral("root.kicad_sch"), folder.path(QStringLiteral("self/again.kicad_sch"))));
    EXPECT_FALSE(folder.read(QStringLiteral("self/root.kicad_sch")).design);
}

TEST(KicadHierarchy, LoopsNameTheirChain)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top", "\n" + sheet(v9, {.name = "A", .file = "a.kicad_sch"})));
    folder.write(QStringLiteral("a.kicad_sch"),
                 schematic(v9, "a", sheet(v9, {.name = "B", .file = "b.kicad_sch"})));
    folder.write(QStringLiteral("b.kicad_sch"),
                 schematic(v9, "b", sheet(v9, {.name = "Back", .file = "a.kicad_sch"})));
    const auto result = folder.read(root);
    EXPECT_FALSE(result.design);
    EXPECT_EQ(result.error.file, folder.path(QStringLiteral("b.kicad_sch")));
    EXPECT_GT(result.error.line, 1);
    EXPECT_TRUE(result.error.text.contains(QLatin1String("\"Back\""))) << result.error.text.toStdString();
    EXPECT_TRUE(result.error.text.endsWith(QLatin1String("a.kicad_sch > b.kicad_sch > a.kicad_sch")))
        << result.error.text.toStdString();
}

TEST(KicadHierarchy, AMissingFileNamesSheetAndPath)
{
    const DesignFolder folder;
    folder.write(root,
                 schematic(v9, "top", "\n\n" + sheet(v9, {.name = "Gone", .file = "no/such.kicad_sch"})));
    const auto result = folder.read(root);
    EXPECT_FALSE(result.design);
    EXPECT_EQ(result.error.file, folder.path(root));
    EXPECT_GT(result.error.line, 3);
    EXPECT_TRUE(result.error.text.contains(QLatin1String("\"Gone\"")));
    EXPECT_TRUE(result.error.text.contains(folder.path(QStringLiteral("no/such.kicad_sch"))));

    folder.write(root, schematic(v9, "top", sheet(v9, {.name = "Empty", .file = ""})));
    EXPECT_TRUE(folder.read(root).error.text.contains(QLatin1String("names no file")));
}

TEST(KicadHierarchy, AFileBelowThatIsBrokenIsNamed)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top", sheet(v9, {})));
    folder.write(QStringLiteral("sub.kicad_sch"), "(kicad_sch (version 20250114)\n  (uuid \"cut");
    const auto result = folder.read(root);
    EXPECT_FALSE(result.design);
    EXPECT_EQ(result.error.file, folder.path(QStringLiteral("sub.kicad_sch")));
    EXPECT_EQ(result.error.line, 2);
}

TEST(KicadHierarchy, DepthIsLimited)
{
    const DesignFolder folder;
    writeTower(folder, 100, 1);
    EXPECT_EQ(folder.load()->components().size(), 101u);
    const DesignFolder deeper;
    writeTower(deeper, 101, 1);
    const auto result = deeper.read(root);
    EXPECT_FALSE(result.design);
    EXPECT_TRUE(result.error.text.contains(QLatin1String("100 sheets deep")))
        << result.error.text.toStdString();
}

TEST(KicadHierarchy, TheNumberOfUsesIsLimited)
{
    const DesignFolder folder;
    writeTower(folder, 40, 2);
    const auto result = folder.read(root);
    EXPECT_FALSE(result.design);
    EXPECT_TRUE(result.error.text.contains(QLatin1String("100000"))) << result.error.text.toStdString();
}

TEST(KicadHierarchy, TheNumberOfSymbolsIsLimited)
{
    const DesignFolder folder;
    writeTower(folder, 15, 2);
    std::string symbols;
    for (int i = 0; i < 2000; ++i) {
        symbols += "(symbol)";
    }
    folder.write(QStringLiteral("level15.kicad_sch"), schematic(v9, "x", symbols));
    EXPECT_FALSE(folder.read(root).design) << "32768 uses of 2000 symbols";
}
