// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"

#include <gmock/gmock.h>

#include <QDir>

namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

const QByteArray partList = "Reference,Value,MPN,Manufacturer,Cost\nR1,1k,M1,Ada,0.5\nR2,1k,M1,Ada,0.5\n";

/// A template with one column that is wider than any number says.
QByteArray templateFile(int version, const QByteArray &more = {})
{
    return "<BOMTemplate version=\"" + QByteArray::number(version) +
           "\"><fields "
           "Type=\"QVariantList\"><Element><fieldName>Value</fieldName><propertyName>VALUE</propertyName>"
           "<asciiWidth Type=\"int\" Value=\"99999999999\"/></Element></fields><categories "
           "Type=\"QVariantList\">"
           "<Element><heading>All</heading><isMiscCategory Type=\"bool\" "
           "Value=\"true\"/></Element></categories>" +
           more + "</BOMTemplate>";
}

class TemplateCommandTest : public ProgramTest
{
protected:
    TemplateCommandTest() { write(QStringLiteral("a.csv"), partList); }

    /// Runs it and expects that it is done without a word.
    [[nodiscard]] std::string done(const char *arguments) const
    {
        const ProgramRun run = this->run(arguments);
        EXPECT_EQ(run.status, 0) << arguments;
        EXPECT_EQ(run.err, "") << arguments;
        return run.out;
    }
    void expect(int status, const char *arguments, const std::string &message) const
    {
        const ProgramRun run = this->run(arguments);
        EXPECT_EQ(run.status, status) << arguments;
        EXPECT_THAT(run.err, AllOf(StartsWith("bom: "), HasSubstr(message))) << arguments;
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    }
    const QString folder = QStringLiteral("data/bom/templates/");
};

TEST_F(TemplateCommandTest, ListingAndReportingLeaveNoTrace)
{
    const std::string list = done("template list");
    EXPECT_THAT(list, StartsWith("Default\nAssembly\tcomes with the program\n"));
    EXPECT_THAT(list, HasSubstr("\nPurchasing\tcomes with the program\n"));
    EXPECT_THAT(done("template show Default"), HasSubstr("File: none yet\n"));
    (void)done("report a.csv -q --csv - --template Purchasing");
    EXPECT_FALSE(QDir(path(QStringLiteral("data"))).exists());
}

TEST_F(TemplateCommandTest, ATemplateIsMadeShownExportedImportedAndDeleted)
{
    (void)done("template new Mine --from Purchasing");
    const std::string shown = done("template show mine");
    EXPECT_THAT(shown,
                StartsWith("Template: Mine\nFile: DIR/data/bom/templates/Mine.bomt\nColumns:\n"
                           "  Value: VALUE\n  Manufacturer: MANUFACTURER\n  Part Number: MPN, links\n"));
    EXPECT_THAT(shown, HasSubstr("  Unit Cost: COST, totals with 2 decimals\n"));
    EXPECT_THAT(shown, HasSubstr("  Resistors: R, RN, RV\n"));

    (void)done("template export Mine Yours.bomt");
    EXPECT_EQ(read(QStringLiteral("Yours.bomt")), done("template export Mine -"));
    (void)done("template import Yours.bomt");
    EXPECT_THAT(done("template list"), StartsWith("Default\nMine\nYours\n"));
    (void)done("template delete Mine");
    EXPECT_EQ(read(folder + QStringLiteral("Mine.bomt")), "no file");
    EXPECT_THAT(done("template list"), StartsWith("Default\nYours\n"));
}

TEST_F(TemplateCommandTest, WhatIsRefusedUnreadableOrUnwritableHasItsOwnStatus)
{
    (void)done("template new Mine");
    write(QStringLiteral("Mine.bomt"), QByteArray::fromStdString(read(folder + QStringLiteral("Mine.bomt"))));
    write(QStringLiteral("bad.bomt"), "<BOMTemplate version=\"5\">\n<fields>");
    write(QStringLiteral("con.bomt"), QByteArray::fromStdString(read(QStringLiteral("Mine.bomt"))));
    write(QStringLiteral("empty.bsf"), "nothing\n");
    expect(1, "template new mine", "The name must not be blank or used already");
    expect(1, "template new a/b", "a file can have");
    expect(1, "template import Mine.bomt", "'Mine' already exists");
    expect(1, "template import con.bomt", "cannot be a file name");
    expect(1, "template delete default", "Cannot delete default template");
    expect(1, "template delete Assembly", "comes with the program");
    expect(2, "template", "subcommand");
    expect(2, "template show", "NAME");
    expect(3, "template show None", "there is no template \"None\"");
    expect(3, "template delete None", "there is no template \"None\"");
    expect(3, "template import bad.bomt", "bad.bomt:2: ");
    expect(3, "template import-legacy empty.bsf", "empty.bsf: there is no line \"*BOM SCRIPT\"\n");
    expect(3, "template import-legacy missing.bsf", "missing.bsf: there is no such file\n");
    expect(3, "template new X --from bad.bomt", "bad.bomt:2: ");
    expect(3, "report a.csv --template None", "there is no template \"None\"");
    expect(3, "report a.csv --template none.bomt", "none.bomt: ");
    expect(4, "template export Mine no/such.bomt", "no/such.bomt: cannot be written");
    EXPECT_THAT(done("template list"), StartsWith("Default\nMine\nAssembly"));
}

TEST_F(TemplateCommandTest, AnOldHeaderComesAlongIntoReportsAndExports)
{
    ASSERT_TRUE(QDir(path({})).mkpath(folder));
    write(folder + QStringLiteral("old.html"), "<div id='customHeader'>ACME</div>");
    write(QStringLiteral("old.bomt"),
          templateFile(2, "<htmlTemplateFileName>old.html</htmlTemplateFileName>"));
    const std::string told = "The BOM template 'old' has been upgraded.  Some styling may have changed.";
    EXPECT_THAT(done("template show old.bomt"), HasSubstr("Document header: ACME\n"));
    expect(0, "report a.csv --html x.html --pdf x.pdf --template ./old.bomt", told);
    EXPECT_THAT(read(QStringLiteral("x.html")), HasSubstr("ACME"));
    write(folder + QStringLiteral("old.bomt"), QByteArray::fromStdString(read(QStringLiteral("old.bomt"))));
    expect(0, "template export old new.bomt", told);
    EXPECT_THAT(read(QStringLiteral("new.bomt")), HasSubstr("ACME"));
}

TEST_F(TemplateCommandTest, AFileOfALaterVersionIsReadWithAWordAndNotReplaced)
{
    const QByteArray later = templateFile(6);
    ASSERT_TRUE(QDir(path({})).mkpath(folder));
    write(folder + QStringLiteral("Default.bomt"), later);
    const std::string told = "Default.bomt: has the format version 6, which is later than 5";
    expect(0, "report a.csv --ascii x.txt", told);
    EXPECT_THAT(read(QStringLiteral("x.txt")), HasSubstr("1k"));
    expect(1, "template reset", "Save it nevertheless? No.");
    EXPECT_EQ(read(folder + QStringLiteral("Default.bomt")), later.toStdString());
}

TEST_F(TemplateCommandTest, AFolderThatCannotBeWrittenKeepsWhatIsThere)
{
    write(QStringLiteral("data"), {});
    expect(4, "template new Mine", "data/bom/templates/Mine.bomt: ");
    expect(4, "template reset", "data/bom/templates/Default.bomt: ");
    write(QStringLiteral("Y.bomt"), QByteArray::fromStdString(done("template export Assembly -")));
    expect(4, "template import Y.bomt", "data/bom/templates/Y.bomt: ");
    EXPECT_THAT(done("template list"), StartsWith("Default\nAssembly"));
}

TEST_F(TemplateCommandTest, TheReportFollowsTheTemplate)
{
    EXPECT_THAT(done("report a.csv -q --csv - --template purchasing"),
                StartsWith("Category,Quantity,References,Value,Manufacturer,Part Number,Supplier,"
                           "Supplier Part Number,Unit Cost\nResistors,2,R1-R2,1k,Ada,M1,,,0.50\n"));
    EXPECT_THAT(done("report a.csv -q --csv - --template JLCPCB"), EndsWith("Parts,2,\"R1,R2\",1k,,\n"));

    write(QStringLiteral("bare.bomt"), "<BOMTemplate version=\"5\"><x/></BOMTemplate>");
    const ProgramRun repaired = run("report a.csv --template ./bare.bomt");
    EXPECT_EQ(repaired.status, 0);
    EXPECT_THAT(repaired.err, HasSubstr("bare.bomt: The template has no field for VALUE"));
    EXPECT_EQ(run("report a.csv --template bare.bomt --csv bare.bomt").status, 2);
    EXPECT_EQ(read(QStringLiteral("bare.bomt")), "<BOMTemplate version=\"5\"><x/></BOMTemplate>");
}

TEST_F(TemplateCommandTest, TheUsersDefaultAndCopiesOfShippedOnesCountUntilTheyAreGone)
{
    const QByteArray own =
        "<BOMTemplate version=\"5\"><fields Type=\"QVariantList\"><Element><fieldName Type=\"QString\">Val"
        "</fieldName><propertyName Type=\"QString\">VALUE</propertyName></Element></fields>"
        "</BOMTemplate>";
    ASSERT_TRUE(QDir().mkpath(path(folder)));
    write(folder + QStringLiteral("Default.bomt"), own);
    write(folder + QStringLiteral("Purchasing.bomt"), own);
    const std::string plain = "Category,Quantity,References,Val\n";
    EXPECT_THAT(run("report a.csv --csv -").out, StartsWith(plain));
    EXPECT_THAT(run("report a.csv -q --csv - --template Purchasing").out, StartsWith(plain));
    EXPECT_THAT(done("template list"), Not(HasSubstr("Purchasing\tcomes")));
    EXPECT_EQ(done("template reset") + done("template delete Purchasing"), "");
    EXPECT_THAT(done("report a.csv -q --csv -"), StartsWith("Category,Quantity,References,Value,Stock Code"));
    EXPECT_THAT(done("template list"), HasSubstr("Purchasing\tcomes"));
}

TEST_F(TemplateCommandTest, ALegacyScriptThatIsNamedBecomesATemplate)
{
    write(QStringLiteral("old.bsf"), "*BOM SCRIPT One\nFIELD=MPN,9,Number,x,\"\",\"\",NO,0\n*END SCRIPT\n"
                                     "*BOM SCRIPT Two\nCATEGORY=R,Resistors,1\n*END SCRIPT\n");
    expect(3, "template import-legacy old.bsf", "bom: old.bsf: name one of the scripts \"One\", \"Two\"\n");
    const ProgramRun one = run("template import-legacy old.bsf --script one");
    EXPECT_EQ(one.status, 0);
    EXPECT_EQ(one.out, "One\n");
    EXPECT_EQ(one.err, "bom: properties without a definition: MPN\n");
    EXPECT_THAT(run("template show One").out, HasSubstr("Number"));
    EXPECT_EQ(run("template import-legacy old.bsf --script One").out, "One-copy\n");
    expect(1, "template import-legacy old.bsf --script Two --name one", "used already");
    EXPECT_EQ(done("template import-legacy old.bsf --script Two --name Mine"), "Mine\n");
    EXPECT_THAT(run("template list").out, HasSubstr("Mine\n"));
}

} // namespace
