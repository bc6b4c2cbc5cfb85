// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"

#include <gmock/gmock.h>

#include <QFile>

#include <chrono>
#include <thread>

namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

using Report = ProgramTest;

const char *const heading = "Category,Quantity,References,Value,Stock Code,Unit Cost\n";
const std::string withMark = "Category,Quantity,References,Value,Stock Code,Unit Cost,DNP\n";

TEST_F(Report, GoesToItsFileOrToStandardOutput)
{
    // A byte order mark is one at the start of the file only.
    write(QStringLiteral("list.csv"), "\uFEFFReference,Value,CODE,COST\n"
                                      "R1,10k,S-10k,0.1\nR2,10k,S-10k,0.1\nR10,10k,S-10k,0.1\n"
                                      "C1,\"1,5u\",,\nX1,\uFEFF5%1,,2\n");
    setEnvironment(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1000000000"));
    const std::string lines = std::string(heading) + "Capacitors,1,C1,\"1,5u\",,\n"
                                                     "Resistors,3,\"R1-R2,R10\",10k,S-10k,0.10\n"
                                                     "Miscellaneous,1,X1,\uFEFF5%1,,2.00\n";
    const std::string text = "Bill Of Materials\n=================\nDesign Title:    list\n";
    const std::pair<std::string, std::string> cases[] = {
        {"--csv", lines},
        {"--full-csv",
         "Category,References,Value,Stock Code,Unit Cost\nCapacitors,C1,\"1,5u\",,\nResistors,R1,"},
        {"--ascii", text},
        {"--html", "<?xml "},
        {"--xlsx", "PK"},
        {"--json", R"({"design":{"title":"list","author":"","docno":"","rev":"","created":"",)"
                   R"("modified":"2001-09-09 01:46","variant":"","file":")"}};
    for (const auto &[option, start] : cases) {
        const ProgramRun result = run(("report list.csv --template Default " + option + " out").c_str());
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.out + result.err, "");
        EXPECT_THAT(read(QStringLiteral("out")), StartsWith(start));
        EXPECT_THAT(run(("report list.csv --template Default " + option + " -").c_str()).out,
                    StartsWith(start));
    }
    EXPECT_THAT(run("report list.csv --template Default").out, StartsWith(text));
    EXPECT_THAT(run("report list.csv --template Default --full-csv - --csv out").out,
                StartsWith(cases[1].second));
    EXPECT_EQ(read(QStringLiteral("out")), lines);
}

/// Changes a file as often as it can.
class Rewriter final
{
public:
    explicit Rewriter(const QString &file, qint64 at)
        : m_thread([file, at](const std::stop_token &stop) {
            QFile rewritten(file);
            EXPECT_TRUE(rewritten.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
            for (int number = 10'000'000; !stop.stop_requested(); ++number) {
                rewritten.seek(at);
                rewritten.write(QByteArray::number(number));
                std::this_thread::sleep_for(std::chrono::microseconds(100));
            }
        })
    {
    }

private:
    std::jthread m_thread;
};

TEST_F(Report, OfFilesThatAreWrittenAllTheTimeIsNotMade)
{
    const QByteArray heading = "Reference,Value\n";
    QByteArray rows = "R0,10000000\n";
    for (int number = 1; number < 2'000; ++number) {
        rows += 'R' + QByteArray::number(number) + ",1k\n";
    }
    write(QStringLiteral("list.csv"), heading + rows);
    ProgramRun result;
    {
        const Rewriter rewriter(path(QStringLiteral("list.csv")), heading.size() + 3);
        // Where the other processes leave the writer no time, one of twenty readings may be whole.
        for (int time = 0; time < 10 && result.status != 3; ++time) {
            result = run("report list.csv --csv out.csv");
        }
    }
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.err, AllOf(StartsWith("bom: list.csv: "), HasSubstr("written again and again")));
    EXPECT_EQ(result.out, "");
}

TEST_F(Report, AsSpreadsheetSaysWhyItIsNotWritten)
{
    write(QStringLiteral("long.csv"), "Reference,Value\nR1," + QByteArray(40000, 'x') + "\n");
    write(QStringLiteral("list.xlsx"), "old");
    const ProgramRun refused =
        run("report long.csv --template Default --xlsx list.xlsx --csv long-lines.csv");
    EXPECT_EQ(refused.status, 4);
    EXPECT_THAT(refused.err, HasSubstr("bom: list.xlsx: is not written: A cell of a spreadsheet holds "));
    EXPECT_EQ(read(QStringLiteral("list.xlsx")), "old");
    EXPECT_THAT(read(QStringLiteral("long-lines.csv")), HasSubstr("xxx"));
}

TEST_F(Report, HoldsThePartsThatOthersDefine)
{
    write(QStringLiteral("list.csv"), "Reference,Value,CODE,BOMPART1,DNP\n"
                                      "R1,10k,S-10k,\"'2','SCR','M3','CODE=N-3','COST=0.1'\",\n"
                                      "R2,10k,S-10k,\"1,SCR,M3,CODE=N-3,COST=0.1\",x\n"
                                      "R3,10k,S-10k,\"1,SCR\",\n");
    const ProgramRun result = run("report list.csv --template Default --dnp include --csv -");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, withMark + "Resistors,2,\"R1,R3\",10k,S-10k,,\n"
                                     "Resistors,0,R2,10k,S-10k,,Yes\n"
                                     "Miscellaneous,2,SCR1-SCR2,M3,N-3,0.10,\n"
                                     "Miscellaneous,0,SCR3,M3,N-3,0.10,Yes\n");
    EXPECT_THAT(result.err,
                HasSubstr("2 parts are not fitted: marked in lines of their own, and not counted"));
    EXPECT_THAT(result.err,
                HasSubstr("bom: 1 definition of BOM-only parts cannot be followed (bom check says why)\n"));
    EXPECT_THAT(run("report list.csv --csv -").out, HasSubstr("Miscellaneous,2,SCR1-SCR2,M3"));
}

TEST_F(Report, NamesBomOnlyPartsWhoseReferenceIsTaken)
{
    write(QStringLiteral("list.csv"), "Reference,Value,BOMPART1,BOMPART2,BOMPART3\n"
                                      "U1,reg,\"1,A1,b\",\"1,A,a\",\"2,A,c\"\nA9,x,,,\n");
    const ProgramRun result = run("report list.csv --csv -");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, HasSubstr("bom: references of BOM-only parts and of other parts: A11\n"
                                      "bom: nothing was written: 1 reference occurs more than once"));
    EXPECT_EQ(run("report list.csv --allow-duplicates --csv -").status, 0);
    const ProgramRun check = run("check list.csv");
    EXPECT_EQ(check.status, 1);
    EXPECT_THAT(check.out, HasSubstr("A11 is the reference of a BOM-only part and of another part\n"));
    EXPECT_THAT(check.out, HasSubstr("agree\n"));
}

TEST_F(Report, FollowsTheLocaleAndThePropertyDefinitionsThatAreNamed)
{
    write(QStringLiteral("list.csv"), "Reference,Value,COST\nR1,10k,1234.5\n");
    write(QStringLiteral("text.ini"), "[PROPDEFS]\n\"COST\",STRING\nnonsense\n");
    EXPECT_THAT(run("report list.csv --template Default --csv -").out, HasSubstr("10k,,1234.50\n"));
    EXPECT_THAT(run("report list.csv --template Default --locale C --csv -").out,
                HasSubstr("10k,,1234.50\n"));
    EXPECT_THAT(run("report list.csv --locale de_DE --csv -").out, HasSubstr(",50\""));
    const ProgramRun result = run("report list.csv --template Default --propdefs text.ini --csv -");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("10k,,1234.5\n"));
    EXPECT_THAT(result.err, HasSubstr("bom: text.ini:3: "));
}

TEST_F(Report, RefusesRepeatedReferencesUnlessTheyAreAllowed)
{
    write(QStringLiteral("amp.kicad_sch"), kicadSchematic({{"R1", "10k"}, {"R2", "1k"}, {"R1", "47k"}}));
    const ProgramRun refused = run("report amp.kicad_sch --csv out.csv");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, "");
    EXPECT_THAT(refused.err, HasSubstr(": R1 occurs 2 times, also at amp.kicad_sch"));
    EXPECT_THAT(refused.err, HasSubstr("bom: nothing was written: 1 reference occurs more than once"));
    EXPECT_EQ(read(QStringLiteral("out.csv")), "no file");

    const ProgramRun allowed = run("report amp.kicad_sch --template Default --allow-duplicates --csv -");
    EXPECT_EQ(allowed.status, 0);
    EXPECT_EQ(allowed.out, std::string(heading) + "Resistors,1,R1,10k,,\nResistors,1,R2,1k,,\n");
    EXPECT_THAT(allowed.err, HasSubstr(": R1 occurs 2 times"));
}

TEST_F(Report, SaysHowManyPartsAreNotFitted)
{
    const QByteArray dnp = "(in_bom yes) (on_board yes) (dnp yes)";
    write(QStringLiteral("amp.kicad_sch"),
          kicadSchematic({{"R1", "10k"},
                          {"R2", "10k", {}, dnp},
                          {"R3", "10k"},
                          {"C1", "1u", {}, dnp},
                          {"H1", "hole", {}, "(in_bom no) (on_board yes) (dnp yes)"}}));
    const std::string marked = "bom: 1 part is excluded from the bill of materials, 1 of them not fitted "
                               "(bom check names them)\n";
    const struct
    {
        const char *choice;
        std::string message;
        std::string lines;
    } cases[] = {{"exclude", "2 parts are not fitted and left out (--dnp include lists them)",
                  heading + std::string("Resistors,2,\"R1,R3\",10k,,\n")},
                 {"include", "2 parts are not fitted: marked in lines of their own, and not counted",
                  withMark + "Capacitors,0,C1,1u,,,Yes\nResistors,2,\"R1,R3\",10k,,,\n"
                             "Resistors,0,R2,10k,,,Yes\n"},
                 {"only", "2 fitted parts are left out (--dnp only)",
                  heading + std::string("Capacitors,1,C1,1u,,\nResistors,1,R2,10k,,\n")}};
    for (const auto &[choice, message, lines] : cases) {
        const ProgramRun result =
            run((std::string("report amp.kicad_sch --template Default --csv - --dnp ") + choice).c_str());
        EXPECT_EQ(result.status, 0);
        EXPECT_THAT(result.err, EndsWith(marked + "bom: " + message + '\n'));
        EXPECT_EQ(result.out, lines);
    }
    EXPECT_THAT(run("report amp.kicad_sch --csv -").err, HasSubstr(cases[0].message));
}

TEST_F(Report, WarnsOfALineThatAnotherReplaces)
{
    write(QStringLiteral("list.csv"), "Reference,Value\nR1,10k\nR01,47k\n");
    EXPECT_EQ(run("report list.csv --fields Value --csv -").err,
              "bom: the line of 1 part R1 is left out of the report, because R1 and R01 count as the same "
              "reference; renumber one of them\n");
    EXPECT_THAT(run("report list.csv --fields Value --full-csv -").err,
                StartsWith("bom: R1 is left out of the report of single parts"));
}

TEST_F(Report, GivesEqualBytesTwice)
{
    QByteArray list = "Reference,Value,MPN\n";
    for (int i = 1; i <= 500; ++i) {
        list += 'R' + QByteArray::number(i) + ',' + QByteArray::number(i % 37) + "k,M" +
                QByteArray::number(i % 11) + '\n';
    }
    write(QStringLiteral("list.csv"), list);
    setEnvironment(QStringLiteral("QT_HASH_SEED"), QStringLiteral("0"));
    const ProgramRun first = run("report list.csv --csv -");
    const ProgramRun firstParts = run("parts list.csv --json");
    setEnvironment(QStringLiteral("QT_HASH_SEED"), QString());
    EXPECT_EQ(run("report list.csv --csv -").out, first.out);
    EXPECT_EQ(run("parts list.csv --json").out, firstParts.out);
    EXPECT_EQ(first.status, 0);
}

} // namespace
