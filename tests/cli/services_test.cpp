// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "report/xlsxtext.h"
#include "tests/cli/programtest.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class Services : public ProgramTest
{
protected:
    Services()
    {
        write(QStringLiteral("list.csv"),
              "Reference,Value,Footprint,LCSC#,manf#,Voltage,DNP\n"
              "\"C1,C2,C3\",100n,Cap:C_0402,C1525,CL05,16V,\nC4,100n,Cap:C_0402,C1525,CL05,50V,\n"
              "C5,100n,Other:C_0402,C1525,CL05,16V,\nC6,100n,Cap:C_0402,C1525,CL05,16V,x\n"
              "R1,\"1k \"\"0,1%\"\"\",Res:R_0402,,,,\nr1,1k,R_0402,0603,=1+1,,\n");
    }
};

TEST_F(Services, GetTheColumnsThatTheyTakeOfFittedPartsThatAgree)
{
    const ProgramRun jlcpcb = run("report list.csv --dnp include --for jlcpcb -");
    EXPECT_EQ(jlcpcb.status, 0);
    EXPECT_EQ(jlcpcb.out, "Comment,Designator,Footprint,JLCPCB Part #\n"
                          "100n,\"C1,C2,C3\",C_0402,C1525\n100n,C4,C_0402,C1525\n100n,C5,C_0402,C1525\n"
                          "\"1k \"\"0,1%\"\"\",R1,R_0402,\n1k,r1,R_0402,0603\n");
    EXPECT_THAT(
        jlcpcb.err,
        AllOf(HasSubstr("bom: 1 part is not fitted and left out\n"),
              HasSubstr("LCSC from \"LCSC#\" (7 parts)"),
              HasSubstr("bom: JLCPCB assembly: 1 part has no \"JLCPCB Part #\" (LCSC): R1\n"
                        "bom: JLCPCB assembly: R1 and r1 are one designator there"),
              HasSubstr(
                  "bom: JLCPCB assembly: the rows of C1 and C4 look alike; their parts differ in Voltage\n"),
              HasSubstr("the rows of C1 and C5 look alike; their parts differ in PACKAGE\n")));
    EXPECT_EQ(run("report list.csv --for PCBWay out.xlsx --for jlcpcb both.csv --csv -").status, 0);
    EXPECT_EQ(read(QStringLiteral("both.csv")), jlcpcb.out);
    const QByteArray sheet = xlsxText(QByteArray::fromStdString(read(QStringLiteral("out.xlsx"))));
    EXPECT_TRUE(sheet.startsWith("A1 \"Item #\"\n")) << sheet.data();
    EXPECT_TRUE(sheet.contains("A2 1\nB2 \"C1,C2,C3\" [@]\nC2 3\nE2 \"CL05\" [@]\nF2 \"100n\" [@]\n"))
        << sheet.data();
    EXPECT_TRUE(sheet.contains("\nE6 \"=1+1\" [@]\n")) << sheet.data();
}

TEST_F(Services, TakeNoMoreDesignatorsInARowThanTheySay)
{
    QByteArray list = "Reference,Value,LCSC\n";
    for (int i = 1; i <= 401; ++i) {
        list += 'R' + QByteArray::number(i) + ",1k,C1\n";
    }
    write(QStringLiteral("long.csv"), list);
    const QStringList rows = QString::fromStdString(run("report long.csv --for pcbway -").out).split(u'\n');
    ASSERT_EQ(rows.size(), 5);
    EXPECT_TRUE(rows.at(2).startsWith(QStringLiteral("2,\"R201,"))) << rows.at(2).toStdString();
    EXPECT_TRUE(rows.at(2).contains(QStringLiteral(",R400\",200,")));
    EXPECT_TRUE(rows.at(3).startsWith(QStringLiteral("3,R401,1,")));
}

TEST_F(Services, AreDescribedByFilesOfTheUser)
{
    QDir().mkpath(path(QStringLiteral("data/bom/services")));
    write(
        QStringLiteral("data/bom/services/house.txt"),
        "# Ours\nneeds = \"No = 1\"\nmost designators = 2\nseparator = \" \"\napart = Plating\n\n[columns]\n"
        "# = designators\n\"#\" = item number\nRef=designators\n\"No = 1\" = property MPN\nFor = text us, "
        "\nCase = property PACKAGE\n");
    EXPECT_EQ(run("report list.csv --for house -").out,
              "#,Ref,No = 1,For,Case\n1,C1 C2,CL05,\"us,\",Cap:C_0402\n"
              "2,C3,CL05,\"us,\",Cap:C_0402\n3,C4,CL05,\"us,\",Cap:C_0402\n4,C5,CL05,\"us,\",Other:C_0402\n"
              "5,R1,,\"us,\",Res:R_0402\n6,r1,=1+1,\"us,\",R_0402\n");
    EXPECT_THAT(run("report list.csv --for huose -").err,
                HasSubstr("there is no assembly service \"huose\"; did you mean \"house\"? (known: house, "
                          "jlcpcb, pcbway)"));
    EXPECT_EQ(run("completion services").out, "house\njlcpcb\npcbway\n");
}

TEST_F(Services, ThatCannotBeReadAreNamedAndNothingIsWritten)
{
    const std::string columns = "[columns]\nRef = designators\n";
    const std::pair<std::string, const char *> cases[] = {
        {"", "bad.txt: has no columns; they stand below a line [columns]"},
        {"title = x\n[columns]\nA = value\n", ": has no column that holds the designators"},
        {"needs = MPN\n" + columns, ":1: the service needs the column \"MPN\", and there is none"},
        {"needs = ref\n" + columns, ":1: the service needs the column \"ref\", which holds no property"},
        {"\ncolour = red\n" + columns, ":2: \"colour\" is no setting; known are title,"},
        {"title = a\nTitle = b\n" + columns, ":2: \"title\" stands in line 1 as well"},
        {"title =\n" + columns, ":1: \"title\" says nothing"},
        {"most designators = 0\n" + columns, ":1: \"0\" is no number from 1 to 1000000"},
        {"ignores letter case = maybe\n" + columns, ":1: \"maybe\" is neither yes nor no"},
        {columns + "REF = value\n", ":3: the heading \"REF\" stands in line 2 as well"},
        {columns + "A = price\n", ":3: \"price\" is nothing that a column can hold; known are value,"},
        {columns + "A = property\n", ":3: \"property\" is nothing that a column can hold"},
        {columns + "nonsense\n", ":3: \"nonsense\" is no column such as"},
        {columns + "\"A = value\n", ":3: \"\"A = value\" is no column such as"},
        {columns + std::string(1001, 'A') + " = value\n", ":3: is longer than 1000 characters"},
        {columns + "[columns]\n", ":3: \"[columns]\" is no heading"},
        {std::string("title = \0\n", 10) + columns, ": is no UTF-8 text"},
        {"title = \xff\n" + columns, ": is no UTF-8 text"},
        {std::string(1024 * 1024 + 1, '#'), ": is larger than 1 MB"}};
    for (const auto &[text, problem] : cases) {
        write(QStringLiteral("bad.txt"), QByteArray::fromStdString(text));
        const ProgramRun result = run("report list.csv --csv lines.csv --for ./bad.txt out.csv");
        EXPECT_EQ(result.status, 3) << text.substr(0, 80);
        EXPECT_THAT(result.err, AllOf(StartsWith("bom: "), HasSubstr(problem)));
        EXPECT_EQ(read(QStringLiteral("lines.csv")) + read(QStringLiteral("out.csv")), "no fileno file");
    }
}

TEST_F(Services, AreWrittenToFilesThatMayBeWritten)
{
    write(QStringLiteral("own.csv"), "[columns]\nRef = designators\n");
    const std::pair<const char *, const char *> cases[] = {
        {"--for jlcpcb out.pdf", "out.pdf: --for writes .csv and .xlsx"},
        {"--for jlcpcb list.csv", "list.csv: belongs to the design"},
        {"--for ./own.csv own.csv", "own.csv: belongs to the design"},
        {"--for jlcpcb a.csv --csv a.csv", "two outputs cannot go to the same file"},
        {"--for jlcpcb a.csv --dnp only", "--dnp only leaves out all others"},
        {"--for jlcpcb", "--for"}};
    for (const auto &[options, message] : cases) {
        const ProgramRun result = run((std::string("report list.csv ") + options).c_str());
        EXPECT_EQ(result.status, 2) << options;
        EXPECT_THAT(result.err, HasSubstr(message));
    }
    EXPECT_THAT(read(QStringLiteral("list.csv")), Not(StartsWith("Comment")));
    EXPECT_EQ(run("report list.csv --for jlcpcb no/folder/a.csv").status, 4);
}

} // namespace
