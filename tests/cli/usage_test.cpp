// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "support/testfiles.h"
#include "support/testpaths.h"
#include "tests/cli/programtest.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

using Usage = ProgramTest;

bool isOneMessage(const std::string &err)
{
    return err.starts_with("bom: ") && err.find('\n') == err.size() - 1;
}

TEST_F(Usage, HelpAndVersionGoToStandardOutput)
{
    const std::pair<const char *, const char *> cases[] = {{"--help", "report"},
                                                           {"--version", "bom "},
                                                           {"report --help", "--full-csv"},
                                                           {"parts --help", "--json"},
                                                           {"check --help", "--require"},
                                                           {"set --help", "--dry-run"},
                                                           {"apply --help", "EDITS"},
                                                           {"undo --help", "DESIGN"},
                                                           {"help", "report"},
                                                           {"-V", "bom "},
                                                           {"help template show", "bom template show"}};
    for (const auto &[arguments, expected] : cases) {
        const ProgramRun result = run(arguments);
        EXPECT_EQ(result.status, 0) << arguments;
        EXPECT_THAT(result.out, HasSubstr(expected)) << arguments;
        EXPECT_EQ(result.err, "") << arguments;
    }
}

/// The command lines stand in tests/data/cli/wrong-usage.txt; the empty one is its end.
TEST_F(Usage, WhatIsWrongIsOneLineAndStatusTwo)
{
    write(QStringLiteral("a.csv"), "Reference,Value\nR1,10k\n");
    write(QStringLiteral("a.kicad_pro"), "{}");
    write(QStringLiteral("a.kicad_pcb"), "(kicad_pcb)");
    write(QStringLiteral("defs.ini"), "[PROPDEFS]\n");
    ASSERT_TRUE(QFile::link(QStringLiteral("page"), path(QStringLiteral("later"))));
    ASSERT_TRUE(QFile::link(QStringLiteral("."), path(QStringLiteral("here"))));
    const QByteArrayList commands =
        readFile(QStringLiteral(BOM_SOURCE_DIR "/tests/data/cli/wrong-usage.txt")).split('\n');
    ASSERT_GT(commands.size(), 20);
    for (const QByteArray &arguments : commands) {
        const ProgramRun result = run(arguments.constData());
        EXPECT_EQ(result.status, 2) << "bom " << arguments.data() << '\n' << result.err;
        EXPECT_TRUE(isOneMessage(result.err)) << "bom " << arguments.data() << '\n' << result.err;
        EXPECT_EQ(result.out, "") << "bom " << arguments.data();
    }
    EXPECT_EQ(read(QStringLiteral("a.csv")), "Reference,Value\nR1,10k\n");
    EXPECT_EQ(read(QStringLiteral("out.csv")) + read(QStringLiteral("page")), "no fileno file");
}

TEST_F(Usage, WhatIsUnknownIsNamed)
{
    const std::string longName(100, 'x');
    const std::pair<std::string, std::string> cases[] = {
        {"frob", "no command \"frob\" "},
        {"--frob", "no option \"--frob\" "},
        {"reprot a.csv", "no command \"reprot\"; did you mean \"report\"? ("},
        {"report -- a.csv extra", "not expected: extra ("},
        {"help chek", "no command \"chek\"; did you mean \"check\"? ("},
        {"template shwo x", "no command \"template shwo\"; did you mean \"show\"? (bom template --help"},
        {"report --htlm x a.csv", "no option \"--htlm\"; did you mean \"--html\"? ("},
        {"report --full", "no option \"--full\"; did you mean \"--full-csv\"? ("},
        {"report a.csv --template Purchsing", "template \"Purchsing\"; did you mean \"Purchasing\"? ("},
        {"template show asembly", "template \"asembly\"; did you mean \"Assembly\"? ("},
        {"report a.csv --template Frob", "template \"Frob\" (bom template list names them)"},
        {"report fields-and-flags.kicad_sch --variant Lit",
         "\"Lit\"; it has Full, Lite; did you mean \"Lite\"?\n"},
        {"template", "bom template --help"},
        {"report a.csv --locale " + longName, "unknown locale \"" + longName.substr(0, 40) + "\"\n"}};
    write(QStringLiteral("a.csv"), "Reference,Value,MPN\nR1,10k,\n");
    (void)copyData("kicad/variants", "fields-and-flags.kicad_sch");
    for (const auto &[arguments, expected] : cases) {
        EXPECT_THAT(run(arguments.c_str()).err, HasSubstr(expected)) << arguments;
    }
    EXPECT_THAT(run("check a.csv --require MPM").out,
                HasSubstr("\n  no part has a property \"MPM\"; did you mean \"MPN\"?\n"));
}

TEST_F(Usage, AFolderStandsForTheOneDesignInIt)
{
    const QDir here(path({}));
    ASSERT_TRUE(here.mkdir(QStringLiteral("kicad")) && here.mkdir(QStringLiteral("lists")));
    write(QStringLiteral("kicad/bom.csv"), "Reference,Value\nC1,1u\n");
    write(QStringLiteral("kicad/_autosave-a.kicad_sch"), "");
    write(QStringLiteral("kicad/a.kicad_sch"), kicadSchematic({{"R1", "10k"}, {"R1", "22k"}}));
    write(QStringLiteral("lists/a.csv"), "Reference,Value\nR2,10k\n");
    EXPECT_THAT(run("check kicad").out,
                HasSubstr("  kicad/a.kicad_sch:19: R1 occurs 2 times, also at kicad/"));
    EXPECT_THAT(run("check .").err, HasSubstr("bom: .: this folder has no design in it"));
    EXPECT_THAT(run("report lists/ --csv -").out, HasSubstr("R2"));
    write(QStringLiteral("lists/b.csv"), "Reference,Value\nR3,10k\n");
    for (const char *command : {"report lists", "undo lists", "variants lists", "set lists R1 A=1"}) {
        const ProgramRun result = run(command);
        EXPECT_EQ(result.status, 2) << command;
        EXPECT_EQ(result.err,
                  "bom: lists: this folder has several designs, name one of them: a.csv, b.csv\n");
    }
}

TEST_F(Usage, TheEndingOfAnOutputSaysItsForm)
{
    write(QStringLiteral("a.csv"), "Reference,Value\nR1,10k\n");
    EXPECT_EQ(run("report a.csv -o b.csv -o b.TXT --output b.html -o b.json -o b.pdf -o b.xlsx").status, 0);
    EXPECT_EQ(read(QStringLiteral("b.csv")), run("report a.csv --csv -").out);
    EXPECT_EQ(read(QStringLiteral("b.TXT")), run("report a.csv").out);
    const std::pair<const char *, const char *> starts[] = {
        {"b.html", "<!DOCTYPE"}, {"b.json", "{"}, {"b.pdf", "%PDF"}, {"b.xlsx", "PK"}};
    for (const auto &[name, start] : starts) {
        EXPECT_THAT(read(QString::fromLatin1(name)), HasSubstr(start)) << name;
    }
    EXPECT_THAT(run("report a.csv -o b.docx").err,
                HasSubstr("-o takes .csv, .html, .json, .pdf, .txt and .xlsx"));
}

TEST_F(Usage, QuietLeavesOutNoticesAndKeepsErrors)
{
    write(QStringLiteral("a.csv"), "Reference,Value,DNP\nR1,10k,\nR2,10k,1\n");
    EXPECT_NE(run("report a.csv").err, "");
    EXPECT_EQ(run("report a.csv -q").err, "");
    EXPECT_EQ(run("--quiet report a.csv").out, run("report a.csv").out);
    EXPECT_NE(run("report b.csv -q").err, "");
}

TEST_F(Usage, VariantsAreListed)
{
    (void)copyData("kicad/variants", "fields-and-flags.kicad_sch");
    write(QStringLiteral("a.csv"), "Reference,Value\nR1,10k\n");
    EXPECT_EQ(run("variants fields-and-flags.kicad_sch").out, "Full\nLite\n");
    EXPECT_EQ(run("variants fields-and-flags.kicad_sch --json").out, "{\"variants\":[\"Full\",\"Lite\"]}\n");
    EXPECT_EQ(run("variants a.csv").err, "bom: a.csv: the design has no variants\n");
    EXPECT_EQ(run("variants b.csv").status, 3);
}

TEST_F(Usage, AnInputThatCannotBeReadIsNamedAndStatusThree)
{
    ASSERT_TRUE(QDir(path(QString())).mkdir(QStringLiteral("folder.kicad_sch")));
    write(QStringLiteral("a.csv"), "Reference,Value\nR1,10k\n");
    write(QStringLiteral("half.kicad_sch"), "(kicad_sch\n\t(version 20231120)\n\t(symbol");
    write(QStringLiteral("empty.kicad_sch"), "");
    write(QStringLiteral("norefs.csv"), "Reference,Value\nR1,10k\n,47k\n");
    const std::pair<const char *, const char *> cases[] = {{"missing.kicad_sch", "missing.kicad_sch: "},
                                                           {"missing.csv", "missing.csv: "},
                                                           {"folder.kicad_sch", "folder.kicad_sch: "},
                                                           {"half.kicad_sch", "half.kicad_sch:"},
                                                           {"empty.kicad_sch", "empty.kicad_sch"},
                                                           {"norefs.csv", "norefs.csv:3: "},
                                                           {"a.csv --variant Lite", "Lite"},
                                                           {"a.csv --propdefs missing.ini", "missing.ini: "}};
    for (const auto &[arguments, expected] : cases) {
        for (const char *command : {"report", "parts", "check"}) {
            const ProgramRun result = run((std::string(command) + ' ' + arguments).c_str());
            EXPECT_EQ(result.status, 3) << command << ' ' << arguments;
            EXPECT_TRUE(isOneMessage(result.err)) << result.err;
            EXPECT_THAT(result.err, HasSubstr(expected)) << command;
            EXPECT_EQ(result.out, "") << command << ' ' << arguments;
        }
    }
}

/// Its text would name another file.
TEST_F(Usage, AnArgumentThatIsNoTextIsNamedAndStatusTwo)
{
    write(QStringLiteral("a.csv"), "Reference,Value\nR1,10k\n");
    for (const char *arguments :
         {"report a.csv --csv a\xff", "parts '\xc3\x28.csv'", "set a.csv R1 MPN=\xed\xa0\x80"}) {
        const ProgramRun result = runInShell(QByteArray("exec $BOM ") + arguments);
        EXPECT_EQ(result.status, 2) << arguments;
        EXPECT_TRUE(isOneMessage(result.err)) << result.err;
        EXPECT_THAT(result.err, HasSubstr("is no text in UTF-8")) << arguments;
        EXPECT_EQ(result.out, "") << arguments;
    }
    EXPECT_EQ(QDir(path({})).entryList(QDir::Files),
              (QStringList{QStringLiteral("a.csv"), QStringLiteral("command.sh")}));
}

/// None of these ends when it is read, or begins.
TEST_F(Usage, AnInputThatIsNoFileIsNamedAndNotWaitedFor)
{
    write(QStringLiteral("a.csv"), "Reference,Value\nR1,10k\n");
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(QStringLiteral("pipe"))).constData(), 0600), 0);
    const QString link = path(QStringLiteral("link"));
    for (const QString &target : {path(QStringLiteral("pipe")), QStringLiteral("/proc/kmsg"), link}) {
        QFile::remove(link);
        ASSERT_TRUE(QFile::link(target, link));
        for (const char *command : {"report link", "apply a.csv link", "report a.csv --propdefs link",
                                    "report a.csv --template ./link", "template import link",
                                    "template import-legacy ./link --script x"}) {
            const ProgramRun result = run(command);
            EXPECT_THAT(result.err, HasSubstr("link")) << command;
            // What cannot be found empty without waiting is taken for empty definitions.
            if (target != QStringLiteral("/proc/kmsg") ||
                !std::string(command).ends_with("--propdefs link")) {
                EXPECT_EQ(result.status, 3) << command << ' ' << qPrintable(target);
                EXPECT_EQ(result.out, "") << command;
            }
        }
    }
}

TEST_F(Usage, AnOutputThatCannotBeWrittenIsNamedAndStatusFour)
{
    write(QStringLiteral("a.csv"), "Reference,Value\nR1,10k\n");
    ASSERT_TRUE(QDir(path(QString())).mkdir(QStringLiteral("folder")));
    ASSERT_TRUE(QFile::link(QStringLiteral("loop"), path(QStringLiteral("loop"))));
    for (const char *output : {"/nonexistent/x.csv", "/dev/full", "folder", "loop"}) {
        for (const char *option : {"--csv", "--full-csv", "--ascii", "--html", "--pdf", "--xlsx", "--json"}) {
            const std::string arguments = std::string("report a.csv -q ") + option + ' ' + output;
            const ProgramRun result = run(arguments.c_str());
            EXPECT_EQ(result.status, 4) << arguments;
            EXPECT_TRUE(isOneMessage(result.err)) << result.err;
            EXPECT_THAT(result.err, StartsWith(std::string("bom: ") + output + ": cannot be written: "));
        }
    }
}

TEST_F(Usage, AFullStandardOutputIsNoticed)
{
    write(QStringLiteral("a.csv"), "Reference,Value\nR1,10k\n");
    for (const char *command :
         {"report a.csv -q", "parts a.csv", "parts a.csv --json", "check a.csv", "--help"}) {
        const ProgramRun result = run(command, QStringLiteral("/dev/full"));
        EXPECT_EQ(result.status, 4) << command;
        EXPECT_THAT(result.err, StartsWith("bom: standard output: ")) << command;
    }
}

TEST_F(Usage, OneOutputThatFailsDoesNotStopTheOther)
{
    write(QStringLiteral("a.csv"), "Reference,Value\nR1,10k\n");
    EXPECT_EQ(run("report a.csv --csv /nonexistent/x.csv --full-csv full.csv").status, 4);
    EXPECT_THAT(read(QStringLiteral("full.csv")), HasSubstr("Resistors,R1,10k"));
}

} // namespace
