// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// Names of the same meaning, from the command line.
#include "tests/cli/programtest.h"

#include <gmock/gmock.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class Fields : public ProgramTest
{
protected:
    Fields() { (void)copyData("fields", "two-names.csv"); }
};

TEST_F(Fields, AreListedByMeaning)
{
    const ProgramRun text = run("fields two-names.csv");
    EXPECT_EQ(text.out, data("fields", "two-names.expected"));
    EXPECT_EQ(text.err, "");
    EXPECT_EQ(text.status, 0);
    EXPECT_THAT(run("fields two-names.csv --json").out,
                AllOf(HasSubstr("{\"meaning\":\"maker\",\"title\":\"maker\",\"use\":\"read\",\"parts\":3,"),
                      HasSubstr("{\"name\":\"manf#\",\"parts\":3,\"reference\":\"R1\",\"text\":\"RC0603\"}"),
                      HasSubstr("{\"reference\":\"R2\",\"texts\":[{\"name\":\"MPN\",\"text\":\"RC0603-B\"},"),
                      HasSubstr("\"meanings\":[\"mpn\",\"house-number\"]}")));
}

TEST_F(Fields, AreReadUnderOtherNamesAndThatIsTold)
{
    const ProgramRun report = run("report two-names.csv --template Purchasing --csv -");
    EXPECT_THAT(report.out, AllOf(HasSubstr("R1,10k,Yageo,RC0603,"), HasSubstr("R2,10k,Yageo,RC0603-B,"),
                                  HasSubstr("R3,22k,,,"), HasSubstr("SCR1,M3,,SCR-1,")));
    EXPECT_EQ(
        report.err,
        "bom: read under other names: MANUFACTURER from \"Mfr\" (3 parts), MPN from \"manf#\" (3 parts)\n"
        "bom: not read, as the names do not say it for certain: MPN may be \"Part Number\" (1 part) "
        "(bom fields tells more)\n"
        "bom: MPN: 1 part has different texts under names of this meaning: R2 (\"RC0603-B\" under MPN is "
        "read, \"RC0603\" under manf# is not)\n"
        "bom: no part has anything in the columns Supplier, Supplier Part Number, Unit Cost (COST; the "
        "design has "
        "\"Unit Price\" (3 parts))\n");
    EXPECT_THAT(run("report two-names.csv --template JLCPCB --csv -").out, HasSubstr(",C100\n"));
    for (const char *options : {"--template Default", "--template Purchasing --exact-names"}) {
        const ProgramRun exact = run((std::string("report two-names.csv --csv - ") + options).c_str());
        EXPECT_THAT(exact.err, Not(HasSubstr("read"))) << options;
        EXPECT_THAT(exact.out, Not(HasSubstr("Yageo"))) << options;
    }
}

TEST_F(Fields, AreRequiredByMeaning)
{
    const ProgramRun check = run("check two-names.csv --require MPN");
    EXPECT_EQ(check.status, 1);
    EXPECT_THAT(check.out, AllOf(HasSubstr("  MPN is empty or missing on 1 part: R3\n"),
                                 HasSubstr("To decide:\n"), HasSubstr("different texts")));
    EXPECT_THAT(run("check two-names.csv --require MPN --exact-names").out,
                HasSubstr("MPN is empty or missing on 4 parts: R1,R3-R4,SCR1\n"));
    write(QStringLiteral("tilde.csv"),
          "Reference,Value,MPN,BOMPART0\nR1,1k,~,\nR2,1k,A,\"1,SCR,M3,manf#=C,MPN=~\"\n");
    EXPECT_THAT(run("check tilde.csv --require MPN").out,
                HasSubstr("MPN is empty or missing on 1 part: R1\n"));
    EXPECT_EQ(run("check two-names.csv --require Mfr_Name --require LCSC --template JLCPCB").status, 1);
}

TEST_F(Fields, AreWrittenWhereTheyAreRead)
{
    const struct
    {
        const char *command;
        const char *out;
        const char *err;
    } cases[] = {
        {"set two-names.csv R1,SCR1 MPN=N", "R1 manf#: \"RC0603\" -> \"N\"", "MPN as \"manf#\" on 1 part\n"},
        {"set two-names.csv SCR1 MPN=N", "SCR1 MANF#: \"SCR-1\" -> \"N\"", ""},
        {"set two-names.csv R2 MPN=N", "R2 MPN: \"RC0603-B\" -> \"N\"", ""},
        {"set two-names.csv R3 Maker=N", "R3 Mfr: \"\" -> \"N\"", "Maker as \"Mfr\" on 1 part\n"},
        {"set two-names.csv R1 MPN=N --exact-names", "R1 MPN: \"\" -> \"N\"", ""},
        {"set two-names.csv R1 MPN=", "R1 manf#: \"RC0603\" -> removed", "as \"manf#\""},
        {"set two-names.csv R2 MPN=", "R2 MPN: \"RC0603-B\" -> removed",
         "bom: after this other names are read: R2, MPN from \"manf#\" (\"RC0603\")\n"},
        {"set screws.csv SCR1 MPN=", "SCR1 MPN: \"B\" -> \"\"", "SCR1, MPN from \"MANF#\" (\"A\")\n"},
        {"set two-names.csv R1 MPN=a manf#=b", "",
         "R1, manf#: another text is asked for under the name MPN\n"},
        {"set two-names.csv SCR1 MPN=a Mfr_PN=b", "",
         "SCR1, Mfr_PN: another text is asked for under the name MPN\n"},
        {"set two-names.csv SCR1 Maker=a Mfr=b", "",
         "SCR1, Mfr: another text is asked for under the name Maker\n"},
        {"set two-names.csv SCR1 Maker=a Mfr=a", "SCR1 Maker: \"\" -> \"a\" (a BOM", ""},
        {"apply two-names.csv screw.csv", "",
         "SCR1, MPN: the part has this under the name MANF#, which is a column"},
        {"apply two-names.csv two.csv", "",
         "two.csv:2: R4, Mfr PN: the part has this under the name manf#, which the column Mfr Part No stands "
         "for"},
        {"apply two-names.csv one.csv", "R4 manf#: \"RC-22K\" -> \"N\"", "MPN as \"manf#\" on 1 part\n"},
        {"apply two-names.csv both.csv", "",
         "both.csv:2: R4, MPN: the part has this under the name manf#, which is a column as well"},
        {"apply two-names.csv empty.csv", "",
         "empty.csv:2: R1, MPN: the cell is empty and the part has \"RC0603\" under the name manf#, as 2 "
         "more "
         "parts; empty cells"},
        {"apply two-names.csv empty.csv --exact-names", "R3 Value: \"22k\" -> \"N\"", ""},
        {"apply two-names.csv both.csv --exact-names", "R4 MPN: \"\" -> \"N\"", ""},
    };
    write(QStringLiteral("one.csv"), "Reference,MPN\nR1,RC0603\nR4,N\n");
    write(QStringLiteral("screw.csv"), "Reference,MPN,manf#\nSCR1,a,b\n");
    write(QStringLiteral("screws.csv"), "Reference,BOMPART1\nU2,\"1,SCR,M4,manf#=A,MPN=B\"\n");
    write(QStringLiteral("two.csv"), "Reference,Mfr PN,Mfr Part No\nR4,N,RC-22K\n");
    write(QStringLiteral("both.csv"), "Reference,MPN,manf#\nR4,N,RC-22K\n");
    write(QStringLiteral("empty.csv"), "Reference,MPN,Value\nR1,,10k\nR3,,N\nR4, ,22k\nSCR1,~,M3\n");
    for (const auto &c : cases) {
        const ProgramRun result = run((std::string(c.command) + " --dry-run").c_str());
        EXPECT_THAT(result.out, HasSubstr(c.out)) << c.command;
        EXPECT_THAT(result.err, HasSubstr(c.err)) << c.command;
        EXPECT_EQ(result.status, *c.out ? 0 : 1) << c.command;
    }
    // A new property is spelled as most parts spell it.
    write(QStringLiteral("amp.kicad_sch"),
          kicadSchematic({{"R1", "1k"},
                          {"R2", "1k", "(property \"MPN\" \"a\" (at 0 0 0))"},
                          {"R3", "1k", "(property \"Mfr PN\" \"a\" (at 0 0 0))"},
                          {"R4", "1k", "(property \"Mfr PN\" \"a\" (at 0 0 0))"}}));
    EXPECT_THAT(run("set amp.kicad_sch R1,R2 MPN=N").out,
                AllOf(HasSubstr("R1 Mfr PN: none -> \"N\""), HasSubstr("R2 MPN: \"a\" -> \"N\"")));
}

TEST_F(Fields, FollowTheTablesOfTheUserAndOfTheDesign)
{
    setEnvironment(QStringLiteral("XDG_DATA_HOME"), path(QStringLiteral("home")));
    (void)runInShell("mkdir -p home/bom");
    const auto mpnOfR3 = [this] {
        return run("report two-names.csv --template Purchasing --csv -").out.find("22k,,RC-22K") !=
               std::string::npos;
    };
    EXPECT_FALSE(mpnOfR3());
    write(QStringLiteral("home/bom/bomfields.txt"), "[mpn]\nPart No\n");
    EXPECT_TRUE(mpnOfR3());
    write(QStringLiteral("two-names.bomfields.txt"), "[house-number]\nPart No\nx]\n[\n");
    EXPECT_FALSE(mpnOfR3());
    EXPECT_THAT(run("check two-names.csv").out,
                HasSubstr("  two-names.bomfields.txt:4: \"[\" is no heading"));
    EXPECT_EQ(run("report two-names.csv --csv two-names.bomfields.txt").status, 2);
}

TEST_F(Fields, ThatSayDoNotFitUnderOtherNamesAreTold)
{
    write(QStringLiteral("marks.csv"), "Reference,Value,nopop\nR1,1k,x\nR2,1k,\nR3,1k,yes\n");
    const char *notice =
        "2 parts say \"do not fit\" under the name nopop, which leaves no part out as DNP and "
        "BOMSKIP do: R1 (\"x\"), ...";
    const ProgramRun report = run("report marks.csv --csv -");
    EXPECT_THAT(report.err, HasSubstr(notice));
    EXPECT_THAT(report.out, HasSubstr("R1-R3"));
    const ProgramRun check = run("check marks.csv");
    EXPECT_THAT(check.out, HasSubstr(notice));
    EXPECT_EQ(check.status, 1);
    EXPECT_EQ(run("check marks.csv --exact-names").status, 0);
    write(QStringLiteral("words.csv"),
          "Reference,Value,Config,Fitted\nR1,1k,DNF,\nR2,1k,A,no\nR3,1k,B,yes\n");
    EXPECT_THAT(run("report words.csv --csv -").err,
                AllOf(HasSubstr("1 part says \"do not fit\" under the name Config"),
                      HasSubstr("1 part says \"do not fit\" under the name Fitted"),
                      HasSubstr("R2 (\"no\")")));
}

} // namespace
