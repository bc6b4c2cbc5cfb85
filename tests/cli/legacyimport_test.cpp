// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

using LegacyImport = ProgramTest;

TEST_F(LegacyImport, MakesATemplateOfTheScriptThatIsNamed)
{
    write(QStringLiteral("old.bsf"), "*BOM SCRIPT One\nFIELD=MPN,9,Number,x,\"\",\"\",NO,0\n*END SCRIPT\n"
                                     "*BOM SCRIPT Two\nCATEGORY=R,Resistors,1\n*END SCRIPT\n");
    const ProgramRun unnamed = run("template import-legacy old.bsf");
    EXPECT_EQ(unnamed.status, 3);
    EXPECT_EQ(unnamed.err, "bom: old.bsf: name one of the scripts \"One\", \"Two\"\n");

    const ProgramRun one = run("template import-legacy old.bsf --script one");
    EXPECT_EQ(one.status, 0);
    EXPECT_EQ(one.out, "One\n");
    EXPECT_EQ(one.err, "bom: properties without a definition: MPN\n");
    EXPECT_THAT(run("template show One").out, HasSubstr("Number"));
    EXPECT_EQ(run("template import-legacy old.bsf --script One").out, "One-copy\n");
    EXPECT_EQ(run("template import-legacy old.bsf --script Two --name one").status, 1) << "the name is taken";
    EXPECT_EQ(run("template import-legacy old.bsf --script Two --name Mine").out, "Mine\n");
    EXPECT_THAT(run("template list").out, HasSubstr("Mine\n"));
}

TEST_F(LegacyImport, SaysWhatIsWrongWithAFile)
{
    write(QStringLiteral("empty.bsf"), "nothing\n");
    const ProgramRun result = run("template import-legacy empty.bsf");
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.err, "bom: empty.bsf: there is no line \"*BOM SCRIPT\"\n");
    EXPECT_EQ(run("template import-legacy missing.bsf").err, "bom: missing.bsf: there is no such file\n");
}

} // namespace
