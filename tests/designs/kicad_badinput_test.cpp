// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/kicad/sheetparser.h"
#include "designs/kicadtext.h"
#include "support/datatable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kicadtext;
using namespace Qt::StringLiterals;
using namespace std::string_literals;
using testing::HasSubstr;

namespace {

struct BadInput
{
    std::string name;
    std::string text;
    int line = 0;
    std::string says;
};

/// The text `count` times, with the number in the place of "%".
std::string repeated(const std::string &text, int count)
{
    std::string result;
    for (int i = 0; i < count; ++i) {
        std::string one = text;
        result += one.replace(one.find('%'), 1, std::to_string(i));
    }
    return result;
}

std::vector<BadInput> badInputs()
{
    const std::string good = schematic(v9, "top", symbol(v9, {.reference = "R1"}));
    const std::size_t inText = good.find("Reference\" \"R1") + 12;
    const int lineOfText = int(std::count(good.begin(), good.begin() + std::ptrdiff_t(inText), '\n')) + 1;
    const int lines = int(std::count(good.begin(), good.end(), '\n'));
    std::vector<BadInput> inputs;
    for (const auto &[text, line, says] : dataTable<3>("kicad/bad-input.txt")) {
        inputs.push_back({text, text, std::stoi(line), says});
    }
    const std::vector<BadInput> made = {
        {"cut in a text", good.substr(0, inText), lineOfText, "not closed on its line"},
        {"cut behind a text", good.substr(0, inText + 3), lineOfText, "cut off"},
        {"last parenthesis missing", good.substr(0, good.size() - 2), lines, "cut off"},
        {"text behind the end", good + "\n\n(more)", lines + 3, "behind the end"},
        {"word behind the end", good + ")", lines + 1, "behind the end"},
        {"nested without end", "(kicad_sch (version 20250114)\n" + std::string(100'000, '('), 2,
         "nested deeper"},
        {"nested in a symbol",
         "(kicad_sch (version 20250114)\n(symbol (property \"A\" " + std::string(100'000, '(') +
             std::string(100'000, ')') + ")))",
         2, "nested deeper"},
        {"too many properties",
         "(kicad_sch (version 20250114)\n(symbol\n" + repeated("(property \"P%\" \"\")", 1001) + "))", 3,
         "1000 properties"},
        {"too many fields of a variant",
         "(kicad_sch (version 20260306)\n(symbol (instances (project (path (variant" +
             repeated("(field (name \"P%\"))", 1001) + "))))))",
         2, "1000 properties"},
        {"too many corners",
         "(kicad_sch (version 20260306)\n(rule_area (dnp yes) (polyline (pts" + repeated("(xy 1 %)", 10'001) +
             "))))",
         2, "10000 corners"},
    };
    inputs.insert(inputs.end(), made.begin(), made.end());
    return inputs;
}

} // namespace

TEST(KicadBadInput, IsRefusedWithFileAndLineInTheRootAndBelow)
{
    const DesignFolder folder;
    folder.write(u"above.kicad_sch"_s, schematic(v9, "top", sheet(v9, {.file = "root.kicad_sch"})));
    for (const BadInput &input : badInputs()) {
        const QString path = folder.write(root, input.text);
        for (const QString &opened : {root, u"above.kicad_sch"_s}) {
            const auto result = folder.read(opened);
            EXPECT_EQ(result.error.file, path) << input.name;
            EXPECT_EQ(result.error.line, input.line) << input.name;
            EXPECT_THAT(errorOf(result), HasSubstr(input.says)) << input.name;
        }
    }
}

TEST(KicadBadInput, EveryCutOfASmallDesignIsRefused)
{
    const std::string good = schematic(
        v10, "top",
        "(title_block (title \"T\") (comment 1 \"c\"))" +
            symbol(v10, {.fields = {{"A\\\"", "b\\"}},
                         .uses = {{.path = "/top", .reference = "R1", .more = "(variant (name \"A\"))"}}}) +
            sheet(v10, {}) + "(rule_area (dnp yes) (polyline (pts (xy 0 0) (xy 1 1) (xy 1 0))))");
    const auto problemOf = [](const std::string &text) {
        // Exactly as long as the text, so that reading behind its end shows.
        const std::vector<char> bytes(text.begin(), text.end());
        designs::TextArena arena;
        designs::PropertyNames names;
        designs::kicad::SheetFile file;
        designs::kicad::SheetParser parser({bytes.data(), bytes.size()}, &file, &arena, &names);
        return parser.parse() ? designs::Problem() : parser.problem();
    };
    const std::size_t whole = good.rfind(')') + 1;
    EXPECT_EQ(problemOf(good.substr(0, whole)), designs::Problem());
    for (std::size_t length = 0; length < whole; ++length) {
        const designs::Problem problem = problemOf(good.substr(0, length));
        EXPECT_FALSE(problem.text.isEmpty()) << "cut at " << length;
        EXPECT_GT(problem.line, 0) << "cut at " << length;
    }
}

TEST(KicadBadInput, OddButReadable)
{
    const std::string odd =
        "(symbol)(symbol (property))(symbol (property \"Reference\"))(symbol (lib_id) (at) "
        "(unit x) (uuid) (instances (project (path)) (path)))"
        "(symbol_instances (path))(rule_area)(title_block)";
    EXPECT_EQ(designOf(v10, odd)->components().size(), 4u);
    const DesignFolder folder;
    for (const std::string &text :
         {"(kicad_sch (version 20250114) \0 (wire \0\0) \"\0\")"s, "(kicad_sch (version 20250114))"s}) {
        folder.write(root, text);
        EXPECT_EQ(folder.load()->components().size(), 0u);
    }
    folder.write(root, "(kicad_sch (version 20991231))");
    EXPECT_EQ(folder.load()->warnings().size(), 1u) << "of a later KiCad";
}
