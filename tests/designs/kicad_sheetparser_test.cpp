// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicad/sheetparser.h"
#include "designs/kicadtext.h"

#include <QFileInfo>

#include <gtest/gtest.h>

using namespace kicadtext;
using designs::kicad::SheetFile;
using designs::kicad::SheetParser;

namespace {

const QString root = QStringLiteral("root.kicad_sch");

/// A file read on its own, with what its texts live in.
struct Parsed
{
    explicit Parsed(std::string text)
        : bytes(std::move(text))
        , parser(bytes, &file, &arena, &names)
        , ok(parser.parse())
    {
    }

    std::string bytes;
    designs::TextArena arena;
    designs::PropertyNames names;
    SheetFile file;
    SheetParser parser;
    bool ok;
};

std::string crlf(const std::string &text)
{
    std::string result;
    for (const char c : text) {
        result += c == '\n' ? std::string("\r\n") : std::string{c};
    }
    return result;
}

} // namespace

TEST(KicadSheet, ReadsASymbol)
{
    const Parsed parsed(schematic(v9, "top",
                                  symbol(v9, {.reference = "R1",
                                              .value = "4k7 \"E96\"",
                                              .uuid = "s1",
                                              .libName = "R_1",
                                              .inBom = "no",
                                              .dnp = "yes",
                                              .unit = 2,
                                              .fields = {{"Tolerance", "1 %"}}})));
    ASSERT_TRUE(parsed.ok) << parsed.parser.problem().message().toStdString();
    EXPECT_EQ(parsed.file.formatVersion, v9);
    EXPECT_EQ(parsed.file.uuid, "top");
    ASSERT_EQ(parsed.file.symbols.size(), 1u);
    const auto &symbol = parsed.file.symbols.front();
    EXPECT_EQ(symbol.reference, "R1");
    EXPECT_EQ(symbol.value, "4k7 \"E96\"");
    EXPECT_EQ(symbol.uuid, "s1");
    EXPECT_EQ(symbol.libId, "Device:R");
    EXPECT_EQ(symbol.libName, "R_1");
    EXPECT_EQ(symbol.unit, 2);
    EXPECT_FALSE(symbol.inBom);
    EXPECT_TRUE(symbol.dnp);
    ASSERT_EQ(symbol.properties.size(), 1u);
    EXPECT_EQ(parsed.names.name(symbol.properties[0].name), "Tolerance");
    EXPECT_EQ(symbol.properties[0].value, "1 %");
    EXPECT_EQ(parsed.bytes.substr(symbol.offset, 7), "(symbol");
}

TEST(KicadSheet, LocalizedSheetPropertiesOfVersion6)
{
    const Parsed parsed(schematic(v6, "top",
                                  sheet(v6, {.name = "Alim",
                                             .file = "alim.kicad_sch",
                                             .fields = {{"Sheet file", "not this one"}},
                                             .nameProperty = "Nom feuille",
                                             .fileProperty = "Fichier de feuille"})));
    ASSERT_TRUE(parsed.ok);
    EXPECT_EQ(parsed.file.sheets.at(0).name, "Alim");
    EXPECT_EQ(parsed.file.sheets.at(0).file, "alim.kicad_sch");
    EXPECT_EQ(parsed.file.sheets.at(0).properties.size(), 1u);
}

TEST(KicadSheet, ATildeMeantEmptyOnce)
{
    for (const int version : {v6, v9, 20250317, 20250318, v10}) {
        const Parsed parsed(
            schematic(version, "top", symbol(version, {.value = "~", .fields = {{"Datasheet", "~"}}})));
        ASSERT_TRUE(parsed.ok);
        const auto &symbol = parsed.file.symbols.front();
        const std::string expected = version < 20250318 ? "" : "~";
        EXPECT_EQ(symbol.value, expected) << version;
        EXPECT_EQ(symbol.properties[0].value, expected) << version;
    }
}

TEST(KicadSheet, OfFieldsWithTheSameNameTheLastWins)
{
    const Parsed parsed(schematic(
        v9, "top",
        symbol(v9, {.fields = {{"mnp", "a"}, {"MNP", "b"}, {"mnp", "c"}, {"Value", "22k"}, {"MNP", ""}}})));
    ASSERT_TRUE(parsed.ok);
    const auto &symbol = parsed.file.symbols.front();
    ASSERT_EQ(symbol.properties.size(), 2u);
    EXPECT_EQ(symbol.properties[0].value, "c");
    EXPECT_EQ(symbol.properties[1].value, "");
    EXPECT_EQ(symbol.value, "22k");
}

TEST(KicadSheet, PrivateAndBarePropertyNames)
{
    const Parsed parsed(schematic(v9, "top",
                                  symbol(v9, {.more = "(property private \"Note\" \"for us\" (at 0 0 0))"
                                                      "(property \"private\" \"mine\" (at 0 0 0))"
                                                      "(property bare word)"})));
    ASSERT_TRUE(parsed.ok);
    const auto &properties = parsed.file.symbols.front().properties;
    ASSERT_EQ(properties.size(), 3u);
    EXPECT_EQ(parsed.names.name(properties[0].name), "Note");
    EXPECT_EQ(properties[0].value, "for us");
    EXPECT_EQ(parsed.names.name(properties[1].name), "private");
    EXPECT_EQ(properties[1].value, "mine");
    EXPECT_EQ(properties[2].value, "word");
}

TEST(KicadSheet, UnknownTokensAreSkipped)
{
    const std::string unknown =
        "\n(novelty yes \"(\" (deep (deeper \")\")) \"\\\"\") bare \"text\" (in_pos_files yes)"
        "\n# a comment (with \" parentheses\n";
    const Parsed parsed(
        schematic(v10, "top",
                  unknown +
                      symbol(v10, {.reference = "R1",
                                   .more = unknown,
                                   .uses = {{.path = "/top", .reference = "R2", .more = unknown}}}) +
                      sheet(v10, {.uses = {{.path = "/top", .more = unknown}}}) + unknown,
                  "\n  (lib_symbols" + unknown + librarySymbol("Device:R", 1, unknown) + ")"));
    ASSERT_TRUE(parsed.ok) << parsed.parser.problem().message().toStdString();
    ASSERT_EQ(parsed.file.symbols.size(), 1u);
    EXPECT_EQ(parsed.file.symbols[0].instances[0].reference, "R2");
    EXPECT_EQ(parsed.file.sheets.size(), 1u);
    EXPECT_NE(parsed.file.librarySymbol(parsed.file.symbols[0]), nullptr);
}

TEST(KicadSheet, LayoutDoesNotMatter)
{
    const std::string text =
        schematic(v7, "top", symbol(v7, {.reference = "R1", .value = "a  b"}) + sheet(v7, {}));
    std::string oneLine = text;
    std::string tabs;
    for (char &c : oneLine) {
        tabs += c == ' ' ? std::string(" ") : c == '(' ? std::string("\n\t\t(") : std::string{c};
        c = c == '\n' ? ' ' : c;
    }
    for (const std::string &layout :
         {text, crlf(text), oneLine, tabs, text.substr(0, text.size() - 1), "\xEF\xBB\xBF" + text}) {
        const Parsed parsed(layout);
        ASSERT_TRUE(parsed.ok) << parsed.parser.problem().message().toStdString() << layout;
        EXPECT_EQ(parsed.file.symbols.at(0).value, "a  b");
        EXPECT_EQ(parsed.file.sheets.at(0).file, "sub.kicad_sch");
    }
}

TEST(KicadSheet, TextsLoseTheirEscapes)
{
    const Parsed parsed(schematic(
        v9, "top",
        symbol(v9, {.value = "1{slash}2 ${A}{dblquote}", .fields = {{"N", "C:\\x\ny\"\tÄ{unknown}"}}})));
    ASSERT_TRUE(parsed.ok);
    EXPECT_EQ(parsed.file.symbols[0].value, "1/2 ${A}\"");
    EXPECT_EQ(parsed.file.symbols[0].properties[0].value, "C:\\x\ny\"\tÄ{unknown}");
    EXPECT_TRUE(parsed.file.symbols[0].hasVariables);
}

TEST(KicadSheet, EmbeddedFilesAreSkipped)
{
    const Parsed parsed(
        schematic(v9, "top",
                  "\n  (embedded_fonts no)\n  (embedded_files (file (name \"a.pdf\") (type datasheet)\n"
                  "    (data |KLUv/WD\n      AAAA+//=\n    |)\n (checksum \"AB\")))" +
                      symbol(v9, {.reference = "R1"})));
    ASSERT_TRUE(parsed.ok);
    EXPECT_EQ(parsed.file.symbols.size(), 1u);
}

TEST(KicadSheet, TextThatIsNotUtf8IsReadWithAWarning)
{
    const DesignFolder folder;
    folder.write(root,
                 schematic(v9, "top", symbol(v9, {.reference = "R1", .value = "10\xB5 F", .uses = {}})));
    const auto design = folder.load();
    EXPECT_EQ(references(*design), "R1");
    EXPECT_NE(warnings(*design).find("not UTF-8"), std::string::npos);
    EXPECT_EQ(warnings(*design).find("root.kicad_sch:0:"), std::string::npos) << "the line is missing";
}

TEST(KicadSheet, TitleBlock)
{
    const DesignFolder folder;
    const QString path = folder.write(
        root,
        schematic(
            v8, "top",
            "\n(title_block (title \"Amp\") (date \"2026-01-02\") (rev \"B\") (company \"Us {slash} Co\")"
            " (comment 1 \"DOC-7\") (comment 9 \"last\") (comment 12 \"no such\"))"));
    const auto design = folder.load();
    EXPECT_EQ(design->info().title, QStringLiteral("Amp"));
    EXPECT_EQ(design->info().created, QStringLiteral("2026-01-02"));
    EXPECT_EQ(design->info().revision, QStringLiteral("B"));
    EXPECT_EQ(design->info().author, QStringLiteral("Us / Co"));
    EXPECT_EQ(design->info().documentNumber, QStringLiteral("DOC-7"));
    EXPECT_EQ(design->info().file, path);
    EXPECT_EQ(design->info().modified, QFileInfo(path).lastModified());
}
