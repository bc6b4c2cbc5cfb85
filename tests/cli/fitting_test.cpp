// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// The columns that a report has when nobody chose a template, or chose columns.
#include "tests/cli/programtest.h"

#include <gmock/gmock.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

class Fitting : public ProgramTest
{
protected:
    /// The heading of the report as CSV, without the columns that all reports have, and the messages.
    [[nodiscard]] std::string columns(const std::string &arguments) const
    {
        const ProgramRun result = run(("report " + arguments + " --csv -").c_str());
        const std::string fixed = "Category,Quantity,References,";
        return result.out.starts_with(fixed)
                   ? result.out.substr(fixed.size(), result.out.find('\n') - fixed.size()) + "\n" + result.err
                   : result.err;
    }

    void writeProject(const QByteArray &schematic) const
    {
        write(QStringLiteral("amp.kicad_pro"), "{\"schematic\":" + schematic + "}");
    }

    void writeAmplifier() const
    {
        write(QStringLiteral("amp.kicad_sch"),
              kicadSchematic({{"R1", "1k", R"((property "Footprint" "R:0603") (property "LCSC" "C1"))"},
                              {"R2", "1k", R"((property "Footprint" "R:0805") (property "LCSC" "C1"))"}}));
    }
};

TEST_F(Fitting, MakesAColumnOfEachMeaningThatPartsHave)
{
    const struct
    {
        const char *list;
        const char *columns;
    } cases[] = {
        {"Reference,Value\nR1,1k\n", "Value\nbom: columns made for what the parts have: Value\n"},
        {"Reference,Value,Footprint,manf#,Mfr,LCSC,MPN,Author\nR1,1k,0603,A,Yageo,C1,,x\nC1,1u,,,,,B,\n",
         "Value,Footprint,Manufacturer,MPN,LCSC\n"},
        // What is not filled, or on parts that are not listed only, has none.
        {"Reference,Value,MPN,LCSC,DNP\nR1,1k,~,,\nR2,1k,,C1,x\n", "Value\n"},
        // A name that is not certain has a column of its own where a part has nothing else.
        {"Reference,Value,MPN,Part Number\nR1,1k,A,\nR2,1k,,B\n", "Value,MPN,Part Number\n"},
        {"Reference,Value,MPN,Part Number\nR1,1k,A,\nR2,1k,A,B\n", "Value,MPN\n"},
        {"Reference,Value,PARTNO\nR1,1k,A\nR2,1k,B\n", "Value,PARTNO\n"},
        // Nothing that tells parts apart is hidden behind another name, or behind a heading that is taken.
        {"Reference,Value,LCSC,LCSC#\nR1,1k,C1,C2\nR2,1k,C1,\n", "Value,LCSC,LCSC#\n"},
        {"Reference,Value,Mouser,Mouser Part Number\nR1,1k,,5-1\nR2,1k,5-2,\nR3,1k,5-3,\n",
         "Value,Mouser,Mouser 2\n"},
        {"Reference,Value,BOMPART1\nU1,A,\"1,SCR,M3,manf#=47\"\nU2,A,\"1,SCR,M3,MPN=48\"\n", "Value,MPN\n"},
        // A description is shown where it says more than the category and tears no line apart.
        {"Reference,Value,Description\nU1,A,Timer\nU2,B,Amplifier\n", "Value,Description\n"},
        {"Reference,Value,Description\nR1,1k,Resistor\nR2,2k,Resistor\n", "Value\n"},
        {"Reference,Value,Description\nR1,1k,Resistor\nR2,1k,Small resistor\n", "Value\n"},
        // A rating is shown where a line would join different ones.
        {"Reference,Value,Tolerance\nR1,1k,1%\nR2,1k,\nR3,2k,5%\n", "Value\n"},
        {"Reference,Value,Tolerance\nR1,1k,1%\nR2,1k,5%\n", "Value,Tolerance\n"},
    };
    for (const auto &c : cases) {
        write(QStringLiteral("list.csv"), c.list);
        EXPECT_THAT(columns("list.csv"), StartsWith(c.columns)) << c.list;
    }
    write(QStringLiteral("list.csv"), "Reference,Value,Price\nR1,1k,0.0045\nR2,1k,0.0045\nX1,x,1\n");
    EXPECT_THAT(run("report list.csv --json -").out,
                AllOf(HasSubstr("\"Resistors\""), HasSubstr("\"Crystals and Oscillators\""),
                      HasSubstr("0.0090"), HasSubstr("1.0090")));
}

TEST_F(Fitting, TakesTheProjectsSettingsWhereTheyAreTheUsersOwn)
{
    writeAmplifier();
    const QByteArray shown =
        R"({"name":"%1","filter_string":"R*","fields_ordered":[{"name":"Reference","show":true},)"
        R"({"name":"%2","label":"Mine","show":true},{"name":"Value","show":true},)"
        R"({"name":"MPN","show":false},{"name":"${QUANTITY}","show":true}]})";
    const auto settings = [&shown](const char *name, const char *field) {
        return QByteArray(shown).replace("%1", name).replace("%2", field);
    };
    const std::string made = "Value,Footprint,LCSC\nbom: columns made for what the parts have";
    writeProject("{\"bom_settings\":" + settings("Grouped By Value", "LCSC") + "}");
    EXPECT_THAT(columns("amp.kicad_sch"),
                AllOf(StartsWith("Mine,Value,Footprint\nbom: columns of the project's BOM settings: Mine, "
                                 "Value; and Footprint, "
                                 "which tell parts apart\n"),
                      HasSubstr("the filter \"R*\" of the project's BOM settings is not followed")));
    writeProject("{\"bom_settings\":" + settings("Grouped By Value", "Datasheet") + "}");
    EXPECT_THAT(columns("amp.kicad_sch"), StartsWith(made));
    writeProject("{\"bom_settings\":" + settings("Shop", "Datasheet") + ",\"bom_presets\":[" +
                 settings("Line", "LCSC") + ",7]}");
    EXPECT_THAT(columns("amp.kicad_sch"), StartsWith("Mine,Value,Footprint\n"));
    EXPECT_THAT(columns("amp.kicad_sch --preset line"), StartsWith("Mine,Value,Footprint\n"));
    EXPECT_THAT(columns("amp.kicad_sch --preset Lime"),
                HasSubstr("no BOM preset \"Lime\"; did you mean \"Line\"? (it has Line, Shop)"));
    for (const char *broken :
         {"7", "{}", R"({"fields_ordered":{}})", R"({"fields_ordered":[{"show":true}]})"}) {
        writeProject(QByteArray("{\"bom_settings\":") + broken + "}");
        EXPECT_THAT(
            columns("amp.kicad_sch"),
            AllOf(StartsWith(made), HasSubstr("amp.kicad_pro: some of the BOM settings cannot be read: ")))
            << broken;
    }
}

TEST_F(Fitting, TakesATemplateBesideTheDesignAndTheUsersOwnDefault)
{
    writeAmplifier();
    EXPECT_EQ(run("template new Kept --for amp.kicad_sch").status, 0);
    const std::string kept = columns("amp.kicad_sch --template Kept");
    EXPECT_EQ(kept, "Value,Footprint,LCSC\n");
    EXPECT_EQ(columns("amp.kicad_sch --exact-names").substr(0, 27), "Value,Stock Code,Unit Cost\n");
    setEnvironment(QStringLiteral("XDG_DATA_HOME"), path(QStringLiteral("home")));
    (void)runInShell("mkdir -p home/bom/templates");
    const QString legacy = QStringLiteral("home/bom/templates/BOMTemplates.ini");
    write(legacy, "[Templates]\nOld=x\n");
    EXPECT_THAT(columns("amp.kicad_sch"), HasSubstr("Value,Footprint,LCSC\n")) << "of the former store";
    (void)runInShell("rm -r home");
    EXPECT_EQ(run("template new Kept --for amp.kicad_sch").status, 0);
    EXPECT_EQ(run("template new Default --from Assembly").status, 1);
    EXPECT_EQ(run("template reset").status, 0);
    EXPECT_THAT(columns("amp.kicad_sch"), StartsWith("Value,Stock Code,Unit Cost\n"));
    EXPECT_EQ(run("template export Kept amp.bomt").status, 0);
    EXPECT_THAT(columns("amp.kicad_sch --fields Value"), StartsWith("Value\n"));
    EXPECT_EQ(run("template delete Kept").status, 0);
}

TEST_F(Fitting, TakesColumnsFromTheCommandLine)
{
    writeAmplifier();
    EXPECT_EQ(columns("amp.kicad_sch --fields Reference,Footprint,Value,Nothing --labels Ref,,V,V"),
              "Footprint,V,V 2\nbom: no part has anything in the column V 2 (Nothing)\n");
    EXPECT_EQ(columns("amp.kicad_sch --fields Footprint"), "Footprint\n");
    for (const char *wrong : {"--labels A", "--fields A, --labels A", "--fields A --labels A,B"}) {
        EXPECT_EQ(run((std::string("report amp.kicad_sch ") + wrong).c_str()).status, 2) << wrong;
    }
    EXPECT_EQ(run("report amp.kicad_sch --fields A --template Default").status, 2);
}

TEST_F(Fitting, WhatOtherTemplatesJoinOrLeaveEmptyIsTold)
{
    write(QStringLiteral("list.csv"),
          "Reference,Value,Footprint,manf#,Tolerance,Price\n"
          "R1,1k,0603,A,1%,2\nR2,1k,0805,A,,2\nR3,1k,0603,,5%,\nR4,2k,0603,A,1%,\n");
    const std::string difference =
        "R1-R3 are one line and differ in PACKAGE: \"0603\" on R1,R3, \"0805\" on R2";
    const ProgramRun report = run("report list.csv --template Default --json -");
    EXPECT_THAT(report.err,
                AllOf(HasSubstr("bom: 1 line joins parts that differ in what no column shows (bom "
                                "check lists them): " +
                                difference + "\n"),
                      HasSubstr("bom: no part has anything in the columns Stock Code (CODE), Unit Cost "
                                "(COST; the design has \"Price\" (2 parts))\n")));
    EXPECT_THAT(
        report.out,
        HasSubstr("{\"property\":\"MPN\",\"texts\":[\n{\"text\":\"A\",\"references\":[\"R1\",\"R2\"]},"
                  "\n{\"text\":\"\",\"references\":[\"R3\"]}]}"));
    const ProgramRun check = run("check list.csv --template Default");
    EXPECT_EQ(check.status, 1);
    EXPECT_THAT(check.out, AllOf(HasSubstr("  " + difference + "\n"), HasSubstr("differ in MPN"),
                                 HasSubstr("differ in Tolerance: \"1%\" on R1, none on R2, \"5%\" on R3\n")));
    EXPECT_EQ(run("check list.csv").status, 0);
}

} // namespace
