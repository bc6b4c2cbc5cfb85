// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/csvfile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>

using designs::CsvCell;
using designs::CsvFile;
using designs::CsvLimits;
using designs::CsvRow;
using designs::Problem;

namespace {

using Table = std::vector<std::vector<std::string>>;

std::optional<CsvFile> parsed(std::string_view bytes, Problem *error, const CsvLimits &limits = {})
{
    return CsvFile::parse(QByteArray(bytes.data(), qsizetype(bytes.size())), error, limits);
}

Table tableOf(std::string_view bytes)
{
    Problem error;
    const std::optional<CsvFile> file = parsed(bytes, &error);
    if (!file) {
        return {{error.text.toStdString()}};
    }
    designs::TextArena arena;
    Table table;
    for (const CsvRow &row : file->rows()) {
        table.emplace_back();
        for (const CsvCell &cell : file->cells(row)) {
            table.back().emplace_back(file->text(cell, arena));
        }
    }
    return table;
}

} // namespace

TEST(CsvFile, ReadsCells)
{
    const struct
    {
        const char *name;
        std::string_view bytes;
        Table expected;
    } cases[] = {
        {"plain", "a,b\nc,d\n", {{"a", "b"}, {"c", "d"}}},
        {"no end on the last line", "a,b\nc,", {{"a", "b"}, {"c", ""}}},
        {"all kinds of line ends", "a,b\r\nc,d\re,f\n", {{"a", "b"}, {"c", "d"}, {"e", "f"}}},
        {"empty lines are rows", "a,b\n\nc,d\n", {{"a", "b"}, {""}, {"c", "d"}}},
        {"quoted delimiters and line breaks", "\"a,1\",\"b\r\n2\"\nc,d\n", {{"a,1", "b\r\n2"}, {"c", "d"}}},
        {"doubled quotes",
         "\"5\"\" cable\",\"\"\"\",\"\"\nc,d,e\n",
         {{"5\" cable", "\"", ""}, {"c", "d", "e"}}},
        {"quotes inside a cell", "5\" cable,b\"\"\nc,d\n", {{"5\" cable", "b\"\""}, {"c", "d"}}},
        {"blanks around cells", " a ,  \" b \"  ,c\nd,e,f\n", {{"a", " b ", "c"}, {"d", "e", "f"}}},
        {"mark at the beginning", "\xEF\xBB\xBF\"a\",b\nc,d\n", {{"a", "b"}, {"c", "d"}}},
        {"windows letters", "\"\xB5\"\"\",\x80\nc,d\n", {{"\u00B5\"", "\u20AC"}, {"c", "d"}}},
        {"blank tab cells", "a\t\t\" c\"\n\tb\t\n", {{"a", "", " c"}, {"", "b", ""}}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(tableOf(c.bytes), c.expected) << c.name;
    }
}

TEST(CsvFile, RangesCoverEveryByteButDelimitersAndBlanks)
{
    const std::string bytes = "\xEF\xBB\xBFRef; \"V\"\"1\" \r\n\r\nR1;10k\n\"R\n2\";";
    Problem error;
    const std::optional<CsvFile> file = parsed(bytes, &error);
    ASSERT_TRUE(file);
    std::vector<std::string> cells;
    std::string rebuilt = bytes.substr(0, 3);
    for (std::size_t i = 0; i < file->rows().size(); ++i) {
        const CsvRow &row = file->rows()[i];
        for (const CsvCell &cell : file->cells(row)) {
            cells.emplace_back(file->raw(cell));
        }
        const std::size_t next = i + 1 < file->rows().size() ? file->rows()[i + 1].begin : bytes.size();
        rebuilt += bytes.substr(row.begin, row.end - row.begin) + bytes.substr(row.end, next - row.end);
    }
    EXPECT_THAT(cells, testing::ElementsAre("Ref", "\"V\"\"1\"", "", "R1", "10k", "\"R\n2\"", ""));
    EXPECT_EQ(rebuilt, bytes);
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

TEST(CsvFile, RefusesBrokenQuotesWithTheirLine)
{
    const struct
    {
        std::string_view bytes;
        int line;
        const char *says;
    } cases[] = {
        {"a,b\n\"c\n\nd\",\"e\nf\ng\n", 4, "never closed"},
        {"a,b\nc,\"", 2, "never closed"},
        {"a,b\nc,\"d\"\"", 2, "never closed"},
        {"a,b\n\"c\nd\"e,f\n", 3, "behind a closing quote"},
        {"a,b\n\"c\" \"d\",f\n", 2, "behind a closing quote"},
    };
    for (const auto &c : cases) {
        Problem error;
        EXPECT_FALSE(parsed(c.bytes, &error)) << c.bytes;
        EXPECT_EQ(error.line, c.line) << c.bytes;
        EXPECT_TRUE(error.text.contains(QLatin1String(c.says))) << error.text.toStdString();
    }
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

TEST(CsvFile, LoadsOrdinaryFilesOnly)
{
    const QTemporaryDir folder;
    for (const QString &path :
         {folder.path(), folder.filePath(QStringLiteral("none.csv")), QStringLiteral("/dev/zero")}) {
        Problem error;
        EXPECT_FALSE(CsvFile::load(path, &error)) << path.toStdString();
        EXPECT_EQ(error.file, path);
        EXPECT_FALSE(error.text.isEmpty());
    }
}
