// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/braceescapes.h"
#include "designs/propertynames.h"
#include "designs/textarena.h"
#include "designs/utf8.h"
#include "support/datatable.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

TEST(BraceEscapes, AreResolvedUnlessTheyAreMarkup)
{
    for (const auto &[text, expected] : dataTable<2>("kicad/brace-escapes.txt")) {
        EXPECT_EQ(designs::kicad::resolveBraceEscapes(text), expected) << text;
    }
}

TEST(PropertyNames, AreHeldOnce)
{
    designs::PropertyNames names;
    const auto first = names.intern(std::string("Tolerance"));
    EXPECT_EQ(names.intern("tolerance"), first + 1);
    for (int i = 0; i < 1000; ++i) {
        names.intern("name" + std::to_string(i));
    }
    EXPECT_EQ(names.intern("Tolerance"), first);
    EXPECT_EQ(names.name(first), "Tolerance");
    EXPECT_EQ(names.size(), 1002u);
}

TEST(PropertyNames, CandidatesAreExactThenAliasThenAnyCase)
{
    designs::PropertyNames names;
    const auto lower = names.intern("package");
    const auto footprint = names.intern("Footprint");
    const auto upper = names.intern("PACKAGE");
    const auto mixed = names.intern("Package");
    names.setAlias("PACKAGE", footprint);
    using Ids = std::vector<designs::NameId>;
    EXPECT_EQ(names.candidates("PACKAGE"), (Ids{upper, footprint, lower, mixed}));
    EXPECT_EQ(names.candidates("Package"), (Ids{mixed, footprint, lower, upper}));
    EXPECT_EQ(names.candidates("FOOTPRINT"), Ids{footprint});
    EXPECT_EQ(names.candidates("none"), Ids{});
    const auto umlaut = names.intern("Größe");
    EXPECT_EQ(names.candidates("GRÖßE"), Ids{umlaut});
}

TEST(TextArena, TextsAndRecordsStayWhereTheyAre)
{
    designs::TextArena arena;
    std::vector<std::string_view> texts;
    std::vector<std::span<std::uint64_t>> records;
    const std::string large(300'000, 'x');
    for (std::uint64_t i = 0; i < 5000; ++i) {
        texts.push_back(arena.copy(std::string(i % 100, 'a') + std::to_string(i)));
        const std::uint64_t record[]{i, i + 1};
        records.push_back(arena.copy(std::span<const std::uint64_t>(record)));
        if (i % 1000 == 0) {
            EXPECT_EQ(arena.copy(large), large);
        }
    }
    for (std::uint64_t i = 0; i < 5000; ++i) {
        ASSERT_EQ(texts[i], std::string(i % 100, 'a') + std::to_string(i));
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(records[i].data()) % alignof(std::uint64_t), 0u);
        ASSERT_EQ(records[i][1], i + 1);
    }
    EXPECT_TRUE(arena.copy(std::string_view()).empty());
    EXPECT_TRUE(arena.copy(std::span<const int>()).empty());
}

TEST(Utf8, WellFormedOnly)
{
    for (const char *text : {"", "ascii", "Größe", "\xE2\x82\xAC", "\xF0\x9F\x94\x8C"}) {
        EXPECT_TRUE(designs::isUtf8(text)) << text;
    }
    for (const char *text :
         {"\xB5", "a\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\x80", "\xE2\x82"}) {
        EXPECT_FALSE(designs::isUtf8(text)) << text;
    }
}
