// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/adiscript.h"

#include <gmock/gmock.h>

#include <sstream>

namespace {

using Assignments = std::vector<AdiAssignment>;

AdiScript read(const std::string &text, const AdiLimits &limits = {})
{
    std::istringstream stream(text);
    return readAdiScript(stream, limits);
}

TEST(AdiScript, HoldsRecordsOfOneReferenceEach)
{
    const AdiScript script = read("DATA NAME : R1-\n"
                                  "\"VALUE\"   :   \"10 kΩ\"\n"
                                  "\"MPN\"   :   \"[REMOVE]\"\n"
                                  "END\n\n"
                                  "DATA NAME : J1-A--\n"
                                  "\"NOTE\"   :   \"\"\n"
                                  "END\n\n");
    EXPECT_EQ(script.error, QString());
    EXPECT_EQ(script.assignments,
              (Assignments{{"R1", "VALUE", "10 kΩ"}, {"R1", "MPN", std::nullopt}, {"J1-A-", "NOTE", ""}}));
    EXPECT_EQ(read("").error, QString());
}

TEST(AdiScript, CarriesTextsThatLookLikeScript)
{
    const std::pair<const char *, AdiAssignment> cases[] = {
        {R"("A"   :   "say "hi"")", {"R1", "A", "say \"hi\""}},
        {R"("A"   :   "x"   :   "y")", {"R1", "A", R"(x"   :   "y)"}},
        {R"("A" : "B"   :   "x")", {"R1", R"(A" : "B)", "x"}},
        {R"("A"   :   "END")", {"R1", "A", "END"}},
        {R"("DATA NAME : R2-"   :   "" END")", {"R1", "DATA NAME : R2-", "\" END"}},
        {R"("A"   :   "[remove]")", {"R1", "A", "[remove]"}},
        {R"("A"   :   "\n%1\\")", {"R1", "A", R"(\n%1\\)"}},
    };
    for (const auto &[line, expected] : cases) {
        const AdiScript script = read(std::string("DATA NAME : R1-\n") + line + "\nEND\n\n");
        EXPECT_EQ(script.error, QString()) << line;
        EXPECT_EQ(script.assignments, Assignments{expected}) << line;
    }
}

TEST(AdiScript, IsRefusedAsAWholeWithTheLineThatIsWrong)
{
    const std::string good = "DATA NAME : R1-\n\"A\"   :   \"x\"\nEND\n\n";
    const std::pair<std::string, const char *> cases[] = {
        {"\n", "line 5"},
        {"DATA NAME : R2\nEND\n\n", "line 5"},
        {"data name : R2-\nEND\n\n", "line 5"},
        {"DATA NAME : -\nEND\n\n", "line 5: the reference is missing"},
        {"DATA NAME : R2-\r\nEND\n\n", "line 5"},
        {"DATA NAME : R2-\n\"A\" : \"x\"\nEND\n\n", "line 6"},
        {"DATA NAME : R2-\n\"A\"   :   \"x\nEND\n\n", "line 6"},
        {"DATA NAME : R2-\n\"A\"   :   \"\nEND\n\n", "line 6"},
        {"DATA NAME : R2-\n\"A\"   :   \"x\" \nEND\n\n", "line 6"},
        {"DATA NAME : R2-\n\"A\"   :   \"x\ny\"\nEND\n\n", "line 6"},
        {"DATA NAME : R2-\n\"\"   :   \"x\"\nEND\n\n", "line 6: the property has no name"},
        {"DATA NAME : R2-\n\"A\"   :   \"\xC3\"\nEND\n\n", "line 6: the line is no UTF-8"},
        {"DATA NAME : R2-\n\nEND\n\n", "line 6"},
        {"DATA NAME : R2-\nEND\nDATA NAME : R3-\nEND\n\n", "line 7: an empty line must follow END"},
        {"DATA NAME : R2-\nEND\n", "line 7: the script ends"},
        {"DATA NAME : R2-\n", "line 6: the script ends"},
        {"DATA NAME : R2-", "line 5: the script ends within a line"},
    };
    for (const auto &[text, where] : cases) {
        const AdiScript script = read(good + text);
        EXPECT_THAT(script.error.toStdString(), testing::StartsWith(std::string("script ") + where)) << text;
        EXPECT_TRUE(script.assignments.empty()) << text;
    }
}

TEST(AdiScript, HasLimits)
{
    const std::string two = "DATA NAME : R1-\n\"A\"   :   \"123\"\n\"B\"   :   \"1\"\nEND\n\n";
    EXPECT_EQ(read(two, {15, 2}).error, QString());
    EXPECT_THAT(read(two, {14, 2}).error.toStdString(), testing::HasSubstr("line 1: the line is longer"));
    EXPECT_THAT(read(two, {15, 1}).error.toStdString(), testing::HasSubstr("line 3: the script holds more"));
}

} // namespace
