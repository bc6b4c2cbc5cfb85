// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicadtext.h"

#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kicadtext;
using namespace Qt::StringLiterals;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;

namespace {

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
        folder.write(level == 0 ? root : u"level%1.kicad_sch"_s.arg(level),
                     schematic(v9, "u" + std::to_string(level), sheets + symbol(v9, {.reference = "R1"})));
    }
}

} // namespace

TEST(KicadHierarchy, NestedSheetsFollowTheirSheetSymbols)
{
    const auto design = loadData(u"kicad/hierarchy/nested/root.kicad_sch"_s);
    QStringList paths;
    for (const designs::SheetUse &use : design->sheets()) {
        paths << use.path;
    }
    EXPECT_EQ(paths.join(u' '), u"/ /Power /Power/Input /Logic"_s);
    EXPECT_EQ(references(*design), "R1 R2 R3 R4");
    EXPECT_EQ(part(*design, "R3").sheet, 2u);
    EXPECT_EQ(design->files().at(part(*design, "R3").file),
              dataPath(u"kicad/hierarchy/nested/input.kicad_sch"_s));
}

TEST(KicadHierarchy, SheetFilesAreRelativeToTheParentsFolder)
{
    const auto design = loadData(u"kicad/hierarchy/folders/root.kicad_sch"_s);
    EXPECT_EQ(references(*design), "R1 R2 R1 R2");
    EXPECT_EQ(design->files().size(), 4);
}

TEST(KicadHierarchy, ASymbolicLinkIsItsTarget)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top",
                                 sheet(v9, {.file = "link.kicad_sch", .uuid = "h1"}) +
                                     sheet(v9, {.file = "shared/real.kicad_sch", .uuid = "h2"})));
    folder.write(u"shared/real.kicad_sch"_s, schematic(v9, "leaf", symbol(v9, {.reference = "R1"})));
    ASSERT_TRUE(QFile::link(u"shared/real.kicad_sch"_s, folder.path(u"link.kicad_sch"_s)));
    const auto design = folder.load();
    EXPECT_EQ(references(*design), "R1 R1");
    EXPECT_EQ(design->files().size(), 2);

    folder.write(u"self/root.kicad_sch"_s, schematic(v9, "top", sheet(v9, {.file = "again.kicad_sch"})));
    ASSERT_TRUE(QFile::link(root, folder.path(u"self/again.kicad_sch"_s)));
    EXPECT_THAT(errorOf(folder.read(u"self/root.kicad_sch"_s)), HasSubstr("contain themselves"));
}

TEST(KicadHierarchy, LoopsNameTheirChain)
{
    const auto result = readData(u"kicad/hierarchy/loop/root.kicad_sch"_s);
    EXPECT_FALSE(result.design);
    EXPECT_EQ(result.error.file, dataPath(u"kicad/hierarchy/loop/b.kicad_sch"_s));
    EXPECT_GT(result.error.line, 1);
    EXPECT_THAT(errorOf(result),
                AllOf(HasSubstr("\"Back\""), EndsWith("a.kicad_sch > b.kicad_sch > a.kicad_sch")));
}

TEST(KicadHierarchy, AMissingFileNamesSheetAndPath)
{
    const DesignFolder folder;
    const std::string gone = sheet(v9, {.name = "Gone", .file = "no/such.kicad_sch"});
    folder.write(root, schematic(v9, "top", "\n\n" + gone));
    const auto result = folder.read(root);
    EXPECT_EQ(result.error.file, folder.path(root));
    EXPECT_GT(result.error.line, 3);
    EXPECT_THAT(errorOf(result),
                AllOf(HasSubstr("\"Gone\""), HasSubstr(folder.path(u"no/such.kicad_sch"_s).toStdString())));
    folder.write(root, schematic(v9, "top", sheet(v9, {.name = "Empty", .file = ""})));
    EXPECT_THAT(errorOf(folder.read(root)), HasSubstr("names no file"));
}

TEST(KicadHierarchy, DepthUsesAndSymbolsAreLimited)
{
    const DesignFolder deep;
    writeTower(deep, 100, 1);
    EXPECT_EQ(deep.load()->components().size(), 101u);
    const DesignFolder deeper;
    writeTower(deeper, 101, 1);
    EXPECT_THAT(errorOf(deeper.read(root)), HasSubstr("100 sheets deep"));
    const DesignFolder manyUses;
    writeTower(manyUses, 40, 2);
    EXPECT_THAT(errorOf(manyUses.read(root)), HasSubstr("sheets more than 100000 times"));
    // 32768 uses of 2000 symbols.
    const DesignFolder manySymbols;
    writeTower(manySymbols, 15, 2);
    std::string symbols;
    for (int i = 0; i < 2000; ++i) {
        symbols += "(symbol)";
    }
    manySymbols.write(u"level15.kicad_sch"_s, schematic(v9, "x", symbols));
    EXPECT_THAT(errorOf(manySymbols.read(root)), HasSubstr("more than 10000000 symbols"));
}
