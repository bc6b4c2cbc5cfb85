// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/csvdialect.h"

#include <gtest/gtest.h>

using designs::CsvDialect;
using designs::Problem;
using namespace std::string_view_literals;

namespace {

constexpr auto lf = CsvDialect::LineEnd::Lf;
constexpr auto crLf = CsvDialect::LineEnd::CrLf;
constexpr auto cr = CsvDialect::LineEnd::Cr;
constexpr auto utf8 = CsvDialect::Encoding::Utf8;
constexpr auto windows = CsvDialect::Encoding::Windows1252;

} // namespace

TEST(CsvDialect, IsRecognisedFromTheFirstRecords)
{
    const struct
    {
        const char *name;
        std::string_view bytes;
        CsvDialect expected;
    } cases[] = {
        {"commas", "Ref,Value\nR1,10k\n", {',', lf, utf8, false, false}},
        {"decimal commas", "Ref;Value;Tol\r\nR1;1,5;0,1\r\n", {';', crLf, utf8, false, false}},
        {"lists of commas", "Ref;Value\nR1,R2;10k\nC1,C2;1u\n", {';', lf, utf8, false, false}},
        {"lists of semicolons", "Ref,Value\nR1;R2,10k\nC1;C2,1u\n", {',', lf, utf8, false, false}},
        {"tabs", "Ref\tValue\nR1, R2\t10k\n", {'\t', lf, utf8, false, false}},
        {"bars", "Ref|Value\rR1|10k\r", {'|', cr, utf8, false, false}},
        {"everything quoted", "\"Ref\";\"Value\"\n\"R1,R2,R3\";\"1\"\"; 2\"\n", {';', lf, utf8, false, true}},
        {"quoted with empty cells", "\"Ref\",\"Value\"\n\"R1\",\n", {',', lf, utf8, false, true}},
        {"inch marks open no quotes", "Ref,Size\nW1,5\"\" x;y\nW2,6\" z;\n", {',', lf, utf8, false, false}},
        {"quoted delimiters", "Ref,Value\n\"a;b;c;\",1\n\"a;b;c;\",2\n", {',', lf, utf8, false, false}},
        {"byte order mark", "\xEF\xBB\xBFRef;Value\nR1;1\xC2\xB5\n", {';', lf, utf8, true, false}},
        {"windows letters", "Ref;Value\nC1;1\xB5\n", {';', lf, windows, false, false}},
        {"declared separator", "sep=|\nRef|Value, or so, or so\n", {'|', lf, utf8, false, false}},
        {"one column", "Reference\nR1\n", {',', lf, utf8, false, false}},
        {"nothing", "", {',', lf, utf8, false, false}},
    };
    for (const auto &c : cases) {
        Problem error;
        const std::optional<CsvDialect> dialect = designs::recogniseDialect(c.bytes, &error);
        ASSERT_TRUE(dialect) << c.name << ": " << error.message().toStdString();
        EXPECT_EQ(dialect->delimiter, c.expected.delimiter) << c.name;
        EXPECT_EQ(*dialect, c.expected) << c.name;
    }
}

TEST(CsvDialect, RefusesWhatIsNoText)
{
    const struct
    {
        std::string_view bytes;
        int line;
        const char *says;
    } cases[] = {
        {"\x89PNG\r\n\x1a\n\0\0\0\rIHDR"sv, 3, "no text file"},
        {"PK\x03\x04rest"sv, 0, "spreadsheet"},
        {"\xD0\xCF\x11\xE0rest"sv, 0, "old spreadsheet"},
        {"%PDF-1.7"sv, 0, "PDF"},
        {"\xFF\xFEr\0e\0f\0"sv, 0, "UTF-16"},
        {"\xFE\xFF\0r\0e\0f"sv, 0, "UTF-16"},
        {"Ref,Value\nR1,\0\n"sv, 2, "zero byte"},
        {"\xEF\xBB\xBFRef\r\nR1\r\nC1\xB5\r\n"sv, 3, "UTF-8"},
    };
    for (const auto &c : cases) {
        Problem error;
        EXPECT_FALSE(designs::recogniseDialect(c.bytes, &error)) << c.says;
        EXPECT_EQ(error.line, c.line) << c.says;
        EXPECT_TRUE(error.text.contains(QLatin1String(c.says))) << error.text.toStdString();
    }
}

TEST(CsvDialect, DecodesWindowsLetters)
{
    EXPECT_EQ(designs::utf8FromWindows1252("1\xB5 \x80 \x96 \xE9"), "1\u00B5 \u20AC \u2013 \u00E9");
}
