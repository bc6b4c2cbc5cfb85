// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/csvfile.h"

#include "support/datatable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using designs::CsvCell;
using designs::CsvDialect;
using designs::CsvFile;
using designs::CsvLimits;
using designs::CsvRow;
using designs::Problem;

namespace {

std::optional<CsvFile> parsed(std::string_view bytes, Problem *error, const CsvLimits &limits = {})
{
    return CsvFile::parse(QByteArray(bytes.data(), qsizetype(bytes.size())), error, limits);
}

/// The cells in brackets, rows parted by slashes.
std::string cellsOf(std::string_view bytes)
{
    Problem error;
    const std::optional<CsvFile> file = parsed(bytes, &error);
    std::string text = error.text.toStdString();
    designs::TextArena arena;
    for (std::size_t row = 0; file && row < file->rows().size(); ++row) {
        text += row > 0 ? " / " : "";
        for (const CsvCell &cell : file->cells(file->rows()[row])) {
            text += '[' + std::string(file->text(cell, arena)) + ']';
        }
    }
    return text;
}

/// "tab CRLF UTF-8 mark all-quoted".
std::string described(const CsvDialect &dialect)
{
    static constexpr std::array lineEnds = {" LF", " CRLF", " CR"};
    const std::string delimiter = dialect.delimiter == '\t'  ? "tab"
                                  : dialect.delimiter == '|' ? "bar"
                                                             : std::string(1, dialect.delimiter);
    const bool isUtf8 = dialect.encoding == CsvDialect::Encoding::Utf8;
    return delimiter + lineEnds.at(std::size_t(dialect.lineEnd)) + (isUtf8 ? " UTF-8" : " Windows") +
           (dialect.byteOrderMark ? " mark" : "") + (dialect.quotesAll ? " all-quoted" : "");
}

} // namespace

TEST(CsvFile, ReadsCells)
{
    for (const auto &[bytes, cells] : dataTable<2>("csv/cells.txt")) {
        EXPECT_EQ(cellsOf(bytes), cells) << bytes;
    }
}

TEST(CsvFile, RowsKnowTheirLine)
{
    Problem error;
    const std::optional<CsvFile> file = parsed("a,b\r\n\"c\r\n\n\rd\",e\r\rf,g\n", &error);
    ASSERT_TRUE(file);
    std::vector<quint32> lines;
    for (const CsvRow &row : file->rows()) {
        lines.push_back(row.line);
    }
    EXPECT_THAT(lines, testing::ElementsAre(1, 2, 6, 7));
}

TEST(CsvFile, KeepsItsLimits)
{
    const CsvLimits limits{.fileBytes = 40, .rows = 4, .cells = 9, .cellsPerRow = 3};
    const struct
    {
        std::string bytes;
        int failingLine;
    } cases[] = {
        {"a,b,c\na,b,c\na,b,c\n", -1}, {"a,b,c\na,b,c,d\n", 2},   {"a,b,c\na,b,c\na,b,c\na\n", 4},
        {"a\nb\nc\nd\ne\n", 5},        {std::string(41, 'a'), 0},
    };
    for (const auto &c : cases) {
        Problem error;
        error.line = -1;
        EXPECT_EQ(parsed(c.bytes, &error, limits).has_value(), c.failingLine < 0) << c.bytes;
        EXPECT_EQ(error.line, c.failingLine) << c.bytes;
    }
}

TEST(CsvDialect, IsRecognisedFromTheFirstRecords)
{
    for (const auto &[bytes, expected] : dataTable<2>("csv/dialects.txt")) {
        Problem error;
        const std::optional<CsvDialect> dialect = designs::recogniseDialect(bytes, &error);
        EXPECT_EQ(dialect ? described(*dialect) : error.message().toStdString(), expected) << bytes;
    }
}
