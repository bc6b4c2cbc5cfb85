// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/adiscript.h"

#include "support/datatable.h"

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
    for (const auto &[text, where] : dataTable<2>("standalone/refused-scripts.txt")) {
        const AdiScript script = read(good + text);
        EXPECT_THAT(script.error.toStdString(), testing::StartsWith("script " + where)) << text;
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
