// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicad/sheetparser.h"
#include "designs/kicadtext.h"

#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kicadtext;
using namespace Qt::StringLiterals;

namespace {

/// A file read on its own, with what its texts live in.
struct Parsed
{
    explicit Parsed(std::string text)
        : bytes(std::move(text))
        , parser(bytes, &file, &arena, &names)
    {
        EXPECT_TRUE(parser.parse()) << parser.problem().message().toStdString() << bytes;
    }

    /// "NAME=VALUE" for each property of the first symbol but reference and value.
    std::string properties() const
    {
        std::string text;
        for (const designs::Property &property : file.symbols.at(0).properties) {
            text += text.empty() ? "" : "; ";
            text += std::string(names.name(property.name)) + '=' + std::string(property.value);
        }
        return text;
    }

    std::string bytes;
    designs::TextArena arena;
    designs::PropertyNames names;
    designs::kicad::SheetFile file;
    designs::kicad::SheetParser parser;
};

Parsed parsed(int version, const Part &part)
{
    return Parsed(schematic(version, "top", symbol(version, part)));
}

} // namespace

TEST(KicadSheet, ReadsASymbol)
{
    const Parsed parsed(dataText(u"kicad/sheet/symbol.kicad_sch"_s));
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
    // Private properties count, a name may be the word "private", and names may be bare words.
    EXPECT_EQ(parsed.properties(), "Tolerance=1 %; Note=for us; private=mine; bare=word");
    EXPECT_EQ(parsed.bytes.substr(symbol.offset, 7), "(symbol");
}

TEST(KicadSheet, LocalizedSheetPropertiesOfVersion6)
{
    const Parsed parsed(dataText(u"kicad/sheet/localized-version-6.kicad_sch"_s));
    EXPECT_EQ(parsed.file.sheets.at(0).name, "Alim");
    EXPECT_EQ(parsed.file.sheets.at(0).file, "alim.kicad_sch");
    EXPECT_EQ(parsed.file.sheets.at(0).properties.size(), 1u);
}

TEST(KicadSheet, ATildeMeantEmptyOnce)
{
    for (const int version : {v6, v9, 20250317, 20250318, v10}) {
        const Parsed tilde = parsed(version, {.value = "~", .fields = {{"Datasheet", "~"}}});
        const std::string expected = version < 20250318 ? "" : "~";
        EXPECT_EQ(tilde.file.symbols.at(0).value, expected) << version;
        EXPECT_EQ(tilde.properties(), "Datasheet=" + expected) << version;
    }
}

TEST(KicadSheet, OfFieldsWithTheSameNameTheLastWinsAndMandatoryOnesAreKnownInAnyLetterCase)
{
    const Parsed twice = parsed(v9, {.fields = {{"mnp", "a"},
                                                {"MNP", "b"},
                                                {"mnp", "c"},
                                                {"VALUE", "22k"},
                                                {"footprint", "R:0402"},
                                                {"MNP", ""}}});
    EXPECT_EQ(twice.properties(), "mnp=c; MNP=; Footprint=R:0402");
    EXPECT_EQ(twice.file.symbols.front().value, "22k");
}

TEST(KicadSheet, UnknownTokensAndEmbeddedFilesAreSkipped)
{
    const Parsed parsed(dataText(u"kicad/sheet/unknown-tokens.kicad_sch"_s));
    ASSERT_EQ(parsed.file.symbols.size(), 1u);
    EXPECT_EQ(parsed.file.symbols[0].instances[0].reference, "R2");
    EXPECT_EQ(parsed.file.sheets.size(), 1u);
    EXPECT_NE(parsed.file.librarySymbol(parsed.file.symbols[0]), nullptr);
}

TEST(KicadSheet, TextThatIsNotUtf8IsReadWithAWarning)
{
    const auto design = designOf(v9, symbol(v9, {.reference = "R1", .value = "10\xB5 F"}));
    EXPECT_EQ(references(*design), "R1");
    EXPECT_THAT(warnings(*design), testing::ContainsRegex("root.kicad_sch:[1-9].*not UTF-8"));
}

TEST(KicadSheet, TitleBlock)
{
    const QString path = dataPath(u"kicad/sheet/title-block.kicad_sch"_s);
    const auto design = loadData(u"kicad/sheet/title-block.kicad_sch"_s);
    EXPECT_EQ(design->info().title, u"Amp"_s);
    EXPECT_EQ(design->info().created, u"2026-01-02"_s);
    EXPECT_EQ(design->info().revision, u"B"_s);
    EXPECT_EQ(design->info().author, u"Us / Co"_s);
    EXPECT_EQ(design->info().documentNumber, u"DOC-7"_s);
    EXPECT_EQ(design->info().file, path);
    EXPECT_EQ(design->info().modified, QFileInfo(path).lastModified());
}
