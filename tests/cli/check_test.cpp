// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"

#include <gmock/gmock.h>

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

struct CheckCase
{
    const char *design;
    int status;
    const char *options = "";
};

using Check = ProgramTest;

TEST_F(Check, AccountsForEverySymbolAndListsWhatIsToDecideAndToKnow)
{
    const CheckCase cases[] = {
        {"every-symbol.kicad_sch", 0},
        {"repeated-references.kicad_sch", 1},
        {"required-properties.csv", 1,
         "--require MPN --require PACKAGE --require Supplier --require .Placed"},
        {"names-that-hide.kicad_sch", 0},
        {"bom-only-parts.csv", 1, "--require VALUE"},
        {"equal-references.csv", 1},
        {"not-annotated.kicad_sch", 1},
        {"in-and-out.csv", 1},
        {"unresolved-variables.csv", 0},
        {"unread-texts.csv", 1, "--template unread-texts.bomt --propdefs unread-texts.ini"},
        {"left-out-bom-only-parts.csv", 0},
        {"unreadable-companions.kicad_sch", 1},
    };
    for (const CheckCase &c : cases) {
        const std::string name = copyData("check", c.design);
        const ProgramRun result = run((std::string("check ") + c.design + ' ' + c.options).c_str());
        EXPECT_EQ(result.status, c.status) << c.design;
        EXPECT_EQ(result.err, "") << c.design;
        EXPECT_EQ(result.out, data("check", name + ".expected")) << c.design;
    }
    EXPECT_THAT(run("parts unreadable-companions.kicad_sch").err,
                HasSubstr("bom: unreadable-companions.kicad_pcb:"));
    EXPECT_EQ(run("check left-out-bom-only-parts.csv --dnp include").out,
              data("check", "left-out-bom-only-parts.included"));
    EXPECT_THAT(run("report unread-texts.csv --template unread-texts.bomt --propdefs unread-texts.ini").err,
                HasSubstr("bom: column Unit Cost: 5 parts have a text that is no number and counts 0: "
                          "\"\"5\"\" on R5, \"$1.50\" on R3, \"1,234.50\" on R1-R2, ...\n"
                          "bom: column Unit Cost: 2 parts have a comma before three digits, which is read as "
                          "the decimal mark: \"1,234\" on R7, \"-12,345\" on R9\n"));
    EXPECT_THAT(run("report not-annotated.kicad_sch --allow-duplicates").err,
                HasSubstr("bom: 3 symbols are not annotated"));
}

TEST_F(Check, TellsProgramsTheSame)
{
    (void)copyData("check", "in-and-out.csv");
    const ProgramRun result = run("check in-and-out.csv --json");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, StartsWith("{\"design\":{\"title\":"));
    EXPECT_THAT(result.out, HasSubstr("{\"name\":\"components\",\"count\":3,\"text\":\"3\"},\n"));
    EXPECT_THAT(result.out, HasSubstr("\"text\":\"1: R1\",\"references\":[\"R1\"]}"));
    EXPECT_THAT(result.out, HasSubstr("\"findings\":[\"in-and-out.csv:2: R1 occurs 2 times"));
    EXPECT_THAT(result.out, EndsWith("\"notices\":[]\n}\n"));
}

TEST_F(Check, TakesOneNameForEachRequire)
{
    (void)copyData("check", "required-properties.csv");
    EXPECT_EQ(run("check required-properties.csv --require VALUE required-properties.csv").status, 2);
    EXPECT_EQ(run("check --require VALUE required-properties.csv").status, 0);
    EXPECT_EQ(run("check required-properties.csv --require mpn --dnp only").status, 1);
}

TEST_F(Check, FindsAReferenceInAndOutOfTheBillForEveryChoice)
{
    (void)copyData("check", "in-and-out.csv");
    const std::string repeated = "in-and-out.csv:2: R1 occurs 2 times, also at in-and-out.csv:3";
    for (const char *choice : {"exclude", "include", "only"}) {
        const ProgramRun result = run((std::string("check in-and-out.csv --dnp ") + choice).c_str());
        EXPECT_EQ(result.status, 1) << choice;
        EXPECT_THAT(result.out, HasSubstr("To decide:\n  " + repeated)) << choice;
    }
    const ProgramRun report = run("report in-and-out.csv");
    EXPECT_EQ(report.status, 0);
    EXPECT_THAT(report.err, HasSubstr(repeated + "; 1 of them is in the bill"));
}

} // namespace
