// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/sexprscanner.h"

#include "support/datatable.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

using designs::kicad::SexprScanner;
using designs::kicad::unescapeQuoted;
using Token = SexprScanner::Token;

namespace {

/// All tokens in a notation of one line: "(keyword", ")", bare words as they are, quoted ones in ticks.
std::string tokens(std::string_view text)
{
    SexprScanner scanner(text);
    std::string result;
    for (;;) {
        switch (scanner.next()) {
        case Token::Open:
            result += "(" + std::string(scanner.keyword()) + " ";
            break;
        case Token::Close:
            result += ") ";
            break;
        case Token::Text:
            result += scanner.isQuoted() ? "'" + std::string(scanner.text()) + "' "
                                         : std::string(scanner.text()) + " ";
            break;
        case Token::End:
            return result + "END";
        case Token::Error:
            return result + "ERROR " + std::to_string(scanner.errorLine());
        }
    }
}

/// Where a list ends, one character after the other: the offset behind its ")", or npos when the text is
/// broken first. Texts end on their line; a line that begins with "#" is a comment.
std::size_t naiveListEnd(std::string_view text, std::size_t from)
{
    int depth = 1;
    bool quoted = false;
    bool blankSoFar = false;
    for (std::size_t i = from; i < text.size(); ++i) {
        const char c = text[i];
        if (quoted) {
            if (c == '\n') {
                return std::string_view::npos;
            }
            i += c == '\\' ? 1 : 0;
            quoted = c != '"';
            continue;
        }
        if (c == '#' && blankSoFar) {
            i = std::min(text.find('\n', i), text.size());
            continue;
        }
        quoted = c == '"';
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        blankSoFar = c == '\n' || (blankSoFar && (c == ' ' || c == '\t' || c == '\r'));
        if (depth == 0) {
            return i + 1;
        }
    }
    return std::string_view::npos;
}

/// Skips the list that begins behind `prefix` and says where the scanner then stands.
std::size_t skippedTo(std::string_view text, std::size_t prefix)
{
    SexprScanner scanner(text);
    while (scanner.tokenOffset() < prefix || scanner.offset() <= prefix) {
        if (scanner.next() != Token::Open) {
            ADD_FAILURE() << "no list at " << prefix;
            return 0;
        }
    }
    return scanner.skipList() ? scanner.offset() : std::string_view::npos;
}

std::string randomLists(std::mt19937 *random)
{
    // clang-format off
    static const std::vector<std::string> pieces{
        "(", ")", "(a ", ") ", "word", " ", "\n", "  # note ) \" (\n", "\"t\"", "\"(\"", "\")\"",
        "\"\\\"\"", "\"\\\\\"", "\"#\"", "x#y", "\r\n#(((\r\n", "\t", "\"\"", "\n \t#\n",
        "\"\\\\\\\")\"", "\xC3\xA9", "\"\xC3\xA9\"", "(b \"c d\" e)", "(c", "(d ",
        "\"                    \""};
    // clang-format on
    std::string text;
    for (auto count = (*random)() % 80; count > 0; --count) {
        text += pieces[(*random)() % pieces.size()];
    }
    return text + "\n" + std::string(100, ')');
}

} // namespace

TEST(KicadScanner, GivesTokens)
{
    for (const auto &[text, expected] : dataTable<2>("kicad/tokens.txt")) {
        EXPECT_EQ(tokens(text), expected) << text;
    }
}

TEST(KicadScanner, ResolvesEscapes)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {R"(a\"b\\c)", "a\"b\\c"},
        {R"(\a\b\f\n\r\t\v)", "\a\b\f\n\r\t\v"},
        {R"(\x41\x4a\x4A1\x7)", "AJJ1\x07"},
        {R"(\xg)", "\\xg"},
        {R"(\101\60\7z)", "A0\x07z"},
        {R"(\1011)", "A1"},
        {R"(\xC3\xA9)", "\xC3\xA9"},
        {R"(C:\lib\q)", "C:\\lib\\q"},
        {R"(\8\9)", "\\8\\9"},
        {"tail\\", "tail\\"},
        {R"(\x)", "\\x"},
    };
    for (const auto &[raw, expected] : cases) {
        EXPECT_EQ(unescapeQuoted(raw), expected) << raw;
    }
    EXPECT_EQ(tokens("(a \"\\\"\" \"\\\\\" \"b\\\\\\\")\")"), "(a '\"' '\\' 'b\\\")' ) END");
}

TEST(KicadScanner, SkipsAListWhereverItLiesInItsBlock)
{
    const std::vector<std::string> lists{
        "(s a)",
        "(s \"(\")",
        "(s \"a\\\"(b\" c)",
        "(s \"\\\\\" (t))",
        "(s \"" + std::string(70, '(') + "\" (t \"x\"))",
        "(s \"" + std::string(61, 'x') + "\\\\\" )",
        "(s\n  # a comment ) \" with ( and quote\n  (t))",
        "(s \"# no comment )\" \"#\" t#u)",
        "(s\r\n\t#)\r\n)",
        "(s " + std::string(64, '(') + std::string(64, ')') + ")",
        "(s" + std::string(130, ' ') + "\"" + std::string(130, ')') + "\")",
    };
    for (const std::string &list : lists) {
        for (std::size_t shift = 0; shift < 130; ++shift) {
            const std::string text =
                std::string(shift, ' ') + list + "(next \"" + std::string(80, ')') + "\")";
            EXPECT_EQ(skippedTo(text, shift), shift + list.size()) << "shifted by " << shift << ": " << list;
        }
    }
}

TEST(KicadScanner, SkipsRandomListsAsANaiveReaderDoes)
{
    std::mt19937 random(20261);
    for (int round = 0; round < 3000; ++round) {
        const std::string list = "(s " + randomLists(&random);
        const std::string text = std::string(std::size_t(round % 64), ' ') + list;
        const std::size_t start = std::size_t(round % 64);
        ASSERT_EQ(skippedTo(text, start), naiveListEnd(text, start + 3)) << "round " << round << ": " << text;
    }
}

TEST(KicadScanner, SaysWhereSkippingFailed)
{
    for (std::size_t shift = 0; shift < 70; ++shift) {
        const std::string start = "(s\n" + std::string(shift, 'x') + "\n";
        SexprScanner open(start);
        ASSERT_EQ(open.next(), Token::Open);
        EXPECT_FALSE(open.skipList());
        EXPECT_EQ(open.errorLine(), 3);
        const std::string unclosed =
            start + "\"text" + std::string(shift, ' ') + "\n)" + std::string(100, ' ');
        SexprScanner quoted(unclosed);
        ASSERT_EQ(quoted.next(), Token::Open);
        EXPECT_FALSE(quoted.skipList());
        EXPECT_EQ(quoted.errorLine(), 3) << shift;
        EXPECT_EQ(quoted.next(), Token::Error);
    }
}

TEST(KicadScanner, RefusesBottomlessNesting)
{
    const auto skips = [](int depth) {
        const std::string text =
            "(s " + std::string(std::size_t(depth), '(') + std::string(std::size_t(depth), ')') + ")";
        SexprScanner scanner(text);
        return scanner.next() == Token::Open && scanner.skipList();
    };
    EXPECT_TRUE(skips(SexprScanner::maximumDepth - 70));
    EXPECT_FALSE(skips(SexprScanner::maximumDepth + 70));
    EXPECT_FALSE(skips(100'000));
}
