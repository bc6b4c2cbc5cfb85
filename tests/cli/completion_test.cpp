// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"

#include <gmock/gmock.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using Completion = ProgramTest;

TEST_F(Completion, IsMadeForEveryShellOfWhatHelpSays)
{
    for (const char *form : {"bash", "zsh", "fish", "man"}) {
        const ProgramRun result = run((std::string("completion ") + form).c_str());
        EXPECT_EQ(result.status, 0) << form;
        for (const char *word : {"report", "legacy", "dry", "accept", "require", "variants"}) {
            EXPECT_THAT(result.out, HasSubstr(word)) << form;
        }
        EXPECT_THAT(result.out, Not(HasSubstr("completion man"))) << form;
    }
    EXPECT_EQ(run("completion csh").status, 2);
    EXPECT_THAT(run("--help").out, Not(HasSubstr("completion")));
    EXPECT_THAT(run("completion man").out,
                AllOf(StartsWith(".TH BOM 1 "), HasSubstr("\\fB\\-\\-output, \\-o\\fR \\fIF\\fR\n")));
}

/// The words before the cursor, and what bash offers for the last one.
TEST_F(Completion, OffersBashCommandsOptionsFilesAndNames)
{
    (void)copyData("kicad/variants", "fields-and-flags.kicad_sch");
    write(QStringLiteral("a.csv"), "Reference,Value\nR1,10k\n");
    write(QStringLiteral("notes.txt"), "");
    const std::pair<const char *, const char *> cases[] = {
        {"re", "report"},
        {"-q che", "check"},
        {"template imp", "import import-legacy"},
        {"help var", "variants"},
        {"report --dnp ''", "exclude include only"},
        {"report --dnp = inc", "include"},
        {"report --dnp = only fields-and-flags.kicad_sch --variant = F", "Full"},
        {"report --full", "--full-csv"},
        {"report --template Pu", "Purchasing"},
        {"template show As", "Assembly"},
        {"report ''", "a.csv fields-and-flags.kicad_sch"},
        {"report a.csv --csv n", "notes.txt"},
        {"report --dnp only fields-and-flags.kicad_sch --variant ''", "Full Lite"},
        {"set a.csv ''", ""},
        {"report a.csv --for j", "jlcpcb"},
        {"report --for jlcpcb n", "notes.txt"},
        {"report --for jlcpcb x.csv fields-and-flags.kicad_sch --variant F", "Full"},
    };
    for (const auto &[words, offered] : cases) {
        const ProgramRun result = runInShell(
            QByteArray("$BOM completion bash >c.bash; bash --norc -c 'source ./c.bash; COMP_WORDS=(\"$@\"); "
                       "COMP_CWORD=$(($# - 1)); _bom; echo $(printf \"%s\\n\" \"${COMPREPLY[@]}\" | sort)' - "
                       "$BOM ") +
            words);
        EXPECT_EQ(result.out, std::string(offered) + '\n') << words << result.err;
        EXPECT_EQ(result.err, "") << words;
    }
}

} // namespace
