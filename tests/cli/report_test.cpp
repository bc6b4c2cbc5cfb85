// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"

#include <QJsonDocument>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

using Report = ProgramTest;

const char *const heading = "Category,Quantity,References,Value,Stock Code,Unit Cost\n";

TEST_F(Report, OfAPartListGroupsItsParts)
{
    write(QStringLiteral("list.csv"), "Reference,Value,CODE,COST\n"
                                      "R1,10k,S-10k,0.1\n"
                                      "R2,10k,S-10k,0.1\n"
                                      "R10,10k,S-10k,0.1\n"
                                      "C1,\"1,5u\",,\n"
                                      "X1,5%1,,2\n");
    const ProgramRun result = run("report list.csv --csv -");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, std::string(heading) + "Capacitors,1,C1,\"1,5u\",,\n"
                                                 "Resistors,3,\"R1-R2,R10\",10k,S-10k,0.10\n"
                                                 "Miscellaneous,1,X1,5%1,,2.00\n");
}

TEST_F(Report, WritesEachOutputToItsFileAndNothingElse)
{
    write(QStringLiteral("list.csv"), "Reference,Value\nR1,10k\nR2,10k\n");
    const ProgramRun result = run("report list.csv --csv lines.csv --full-csv parts.csv");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(read(QStringLiteral("lines.csv")), std::string(heading) + "Resistors,2,R1-R2,10k,,\n");
    EXPECT_EQ(read(QStringLiteral("parts.csv")), "Category,References,Value,Stock Code,Unit Cost\n"
                                                 "Resistors,R1,10k,,\n"
                                                 "Resistors,R2,10k,,\n");
    EXPECT_EQ(run("report list.csv --full-csv - --csv lines.csv").out, read(QStringLiteral("parts.csv")));
}

TEST_F(Report, PrintsTextInColumnsWhenNoOutputIsNamed)
{
    write(QStringLiteral("list.csv"), "Reference,Value,COST\nR1,10k,0.5\nR2,10k,0.5\n");
    const ProgramRun result = run("report list.csv");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, StartsWith("Bill Of Materials\n=================\nDesign Title:    list\n"));
    EXPECT_THAT(result.out, HasSubstr("\nResistors\n---------\n2    R1-R2 "));
    EXPECT_EQ(run("report list.csv --ascii list.txt").out, "");
    EXPECT_EQ(read(QStringLiteral("list.txt")), result.out);
}

TEST_F(Report, AsJsonHoldsLinesAndTotals)
{
    write(QStringLiteral("list.csv"), "Reference,Value,CODE,COST\n"
                                      "R1,10k,\"a\"\"b\\\",0.5\nR2,10k,\"a\"\"b\\\",0.5\nC1,1u,,\n");
    setEnvironment(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1000000000"));
    const ProgramRun result = run("report list.csv --json -");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, StartsWith(R"({"design":{"title":"list","author":"","docno":"","rev":"",)"
                                       R"("created":"","modified":"2001-09-09 01:46","variant":"",)"
                                       R"("file":"DIR/list.csv"},)"
                                       "\n"
                                       R"("template":"Default",)"
                                       "\n"
                                       R"("columns":["Value","Stock Code","Unit Cost"],)"
                                       "\n"));
    EXPECT_THAT(result.out, HasSubstr(R"({"name":"Resistors","parts":2,"lines":[)"
                                      "\n"
                                      R"({"quantity":2,"references":["R1","R2"],"text":"R1-R2",)"
                                      R"("values":["10k","a\"b\\","0.50"]}],)"
                                      "\n"
                                      R"("subTotals":["","","1.00"]})"));
    EXPECT_THAT(result.out, HasSubstr("\n\"totals\":[\"\",\"\",\"1.00\"]\n}\n"));
    QJsonParseError error;
    QJsonDocument::fromJson(QByteArray::fromStdString(result.out), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
}

TEST_F(Report, AsSpreadsheetIsWrittenOrSaysWhyNot)
{
    write(QStringLiteral("list.csv"), "Reference,Value\nR1,10k\n");
    setEnvironment(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1000000000"));
    EXPECT_EQ(run("report list.csv --xlsx list.xlsx").status, 0);
    const std::string file = read(QStringLiteral("list.xlsx"));
    EXPECT_THAT(file, StartsWith("PK"));
    EXPECT_EQ(run("report list.csv --xlsx -").out, file);
    write(QStringLiteral("long.csv"), "Reference,Value\nR1," + QByteArray(40000, 'x') + "\n");
    const ProgramRun refused = run("report long.csv --xlsx list.xlsx --csv long-lines.csv");
    EXPECT_EQ(refused.status, 4);
    EXPECT_THAT(refused.err, StartsWith("bom: list.xlsx: is not written: A cell of a spreadsheet holds "));
    EXPECT_EQ(read(QStringLiteral("list.xlsx")), file);
    EXPECT_THAT(read(QStringLiteral("long-lines.csv")), HasSubstr("xxx"));
}

TEST_F(Report, HoldsThePartsThatOthersDefine)
{
    write(QStringLiteral("list.csv"), "Reference,Value,CODE,BOMPART1,DNP\n"
                                      "R1,10k,S-10k,\"'2','SCR','M3','CODE=N-3','COST=0.1'\",\n"
                                      "R2,10k,S-10k,\"1,SCR,M3,CODE=N-3,COST=0.1\",x\n"
                                      "R3,10k,S-10k,\"1,SCR\",\n");
    const ProgramRun result = run("report list.csv --dnp include --csv -");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, std::string(heading) + "Resistors,3,R1-R3,10k,S-10k,\n"
                                                 "Miscellaneous,3,SCR1-SCR3,M3,N-3,0.10\n");
    EXPECT_THAT(result.err,
                HasSubstr("the line SCR1-SCR3 mixes fitted and not fitted parts; not fitted: SCR3"));
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

TEST_F(Report, WritesNumbersInTheLocaleThatIsAskedFor)
{
    write(QStringLiteral("list.csv"), "Reference,Value,COST\nR1,10k,1234.5\n");
    EXPECT_THAT(run("report list.csv --csv -").out, HasSubstr("10k,,1234.50\n"));
    EXPECT_THAT(run("report list.csv --locale C --csv -").out, HasSubstr("10k,,1234.50\n"));
    const ProgramRun german = run("report list.csv --locale de_DE --csv -");
    EXPECT_EQ(german.status, 0);
    EXPECT_THAT(german.out, HasSubstr(",50\""));
}

TEST_F(Report, FollowsThePropertyDefinitionsThatAreNamed)
{
    write(QStringLiteral("list.csv"), "Reference,Value,COST\nR1,10k,1.5\n");
    write(QStringLiteral("text.ini"), "[PROPDEFS]\n\"COST\",STRING\nnonsense\n");
    const ProgramRun result = run("report list.csv --propdefs text.ini --csv -");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("10k,,1.5\n"));
    EXPECT_THAT(result.err, HasSubstr("bom: text.ini:3: "));
}

TEST_F(Report, RefusesRepeatedReferencesUnlessTheyAreAllowed)
{
    write(QStringLiteral("amp.kicad_sch"), kicadSchematic({{"R1", "10k"}, {"R2", "1k"}, {"R1", "47k"}}));
    const ProgramRun refused = run("report amp.kicad_sch --csv out.csv");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, "");
    EXPECT_THAT(refused.err, HasSubstr(": R1 occurs 2 times, also at DIR/amp.kicad_sch"));
    EXPECT_THAT(refused.err, HasSubstr("bom: nothing was written: 1 reference occurs more than once"));
    EXPECT_EQ(read(QStringLiteral("out.csv")), "no file");

    const ProgramRun allowed = run("report amp.kicad_sch --allow-duplicates --csv -");
    EXPECT_EQ(allowed.status, 0);
    EXPECT_EQ(allowed.out, std::string(heading) + "Resistors,1,R1,10k,,\nResistors,1,R2,1k,,\n");
    EXPECT_THAT(allowed.err, HasSubstr(": R1 occurs 2 times"));
}

/// R1 and R3 are fitted, R2, C1 and H1 are not, H1 is no part of the bill either.
QByteArray unfitted()
{
    const QByteArray dnp = "(in_bom yes) (on_board yes) (dnp yes)";
    return kicadSchematic({{"R1", "10k"},
                           {"R2", "10k", {}, dnp},
                           {"R3", "10k"},
                           {"C1", "1u", {}, dnp},
                           {"H1", "hole", {}, "(in_bom no) (on_board yes) (dnp yes)"}});
}

TEST_F(Report, SaysHowManyPartsAreNotFitted)
{
    write(QStringLiteral("amp.kicad_sch"), unfitted());
    const std::string marked = "bom: 1 part is excluded from the bill of materials, 1 of them not fitted "
                               "(bom check names them)\n";
    const ProgramRun excluded = run("report amp.kicad_sch --csv -");
    EXPECT_EQ(excluded.status, 0);
    EXPECT_EQ(excluded.err, marked + "bom: 2 parts are not fitted and left out (--dnp include lists them)\n");
    EXPECT_EQ(excluded.out, std::string(heading) + "Resistors,2,\"R1,R3\",10k,,\n");

    const ProgramRun included = run("report amp.kicad_sch --dnp include --csv -");
    EXPECT_EQ(included.status, 0);
    EXPECT_EQ(included.err,
              marked + "bom: the line R1-R3 mixes fitted and not fitted parts; not fitted: R2\n");
    EXPECT_EQ(included.out, std::string(heading) + "Capacitors,1,C1,1u,,\nResistors,3,R1-R3,10k,,\n");

    const ProgramRun only = run("report amp.kicad_sch --dnp only --csv -");
    EXPECT_EQ(only.status, 0);
    EXPECT_EQ(only.err, marked + "bom: 2 fitted parts are left out (--dnp only)\n");
    EXPECT_EQ(only.out, std::string(heading) + "Capacitors,1,C1,1u,,\nResistors,1,R2,10k,,\n");
}

TEST_F(Report, WarnsOfALineThatAnotherReplaces)
{
    write(QStringLiteral("list.csv"), "Reference,Value\nR1,10k\nR01,47k\n");
    const ProgramRun result = run("report list.csv --csv -");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.err, HasSubstr("R01"));
    EXPECT_THAT(result.err, HasSubstr("R1"));
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
