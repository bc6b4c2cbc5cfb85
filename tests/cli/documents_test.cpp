// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"

#include <QProcess>
#include <QRegularExpression>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::Not;

/// The report as a web page and as a PDF file.
class Documents : public ProgramTest
{
protected:
    Documents() { setEnvironment(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1767322800")); }

    /// What a program prints about a file of the test's folder; both streams.
    [[nodiscard]] std::string tell(const char *program, QString arguments, const QString &name) const
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QLatin1String(program),
                      arguments.replace(QLatin1String("FILE"), path(name)).split(u' '));
        const bool isDone = process.waitForFinished() && process.exitCode() == 0;
        return (isDone ? "" : "failed: " + process.errorString().toStdString()) +
               process.readAll().toStdString();
    }
    [[nodiscard]] std::string pdfText(const QString &name) const
    {
        return tell("pdftotext", QStringLiteral("-layout FILE -"), name);
    }
};

TEST_F(Documents, AreValidXhtmlWhateverTheDesignHolds)
{
    const QByteArray large(1024 * 1024, 'x');
    const QByteArray list = "Reference,Value,CODE,COST,BOMLINKS\n"
                            "R1,<script>alert(1)</script>,\"\"\"&amp;'\",1,VALUE=javascript:alert(1)\n"
                            "R2,]]>,--><!--,nan,VALUE=https%3A%2F%2Fx%3Fa%3D1%26b%3D%3C%22\n"
                            "R3,\x01\x02\x1b[31m,\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d \xe2\x80\xae,1e400,\n"
                            "C1,5%1 %L2 %%,\xf0\x9f\x98\x80\xef\xbf\xbf,,\n";
    write(QStringLiteral("list.csv"), list);
    write(QStringLiteral("large.csv"), list + "U1," + large + ",,,\n");
    write(QStringLiteral("large.bomnotes.txt"), "<h1>Notes</h1>\n\t& more  \x02\n");
    const ProgramRun result = run("report large.csv --html page.html");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(tell("xmllint", QStringLiteral("--nonet --noout --valid FILE"), QStringLiteral("page.html")),
              "");
    const std::string page = read(QStringLiteral("page.html"));
    EXPECT_THAT(page, HasSubstr("&lt;script&gt;alert(1)&lt;/script&gt;"));
    EXPECT_THAT(page, HasSubstr("5%1 %L2 %%"));
    EXPECT_THAT(page, Not(HasSubstr("javascript")));
    EXPECT_THAT(page, HasSubstr(large.toStdString()));
    EXPECT_EQ(run("report list.csv --pdf page.pdf").status, 0);
    EXPECT_THAT(pdfText(QStringLiteral("page.pdf")), HasSubstr("5%1 %L2 %%"));
}

TEST_F(Documents, OfEqualInputsAreEqual)
{
    write(QStringLiteral("list.csv"), "Reference,Value\nR1,10k\n");
    EXPECT_EQ(run("report list.csv --html a.html --pdf a.pdf").status, 0);
    setEnvironment(QStringLiteral("TZ"), QStringLiteral("Asia/Tokyo"));
    EXPECT_EQ(run("report list.csv --html b.html --pdf b.pdf").status, 0);
    EXPECT_EQ(read(QStringLiteral("a.html")), read(QStringLiteral("b.html")));
    EXPECT_EQ(read(QStringLiteral("a.pdf")), read(QStringLiteral("b.pdf")));
    EXPECT_THAT(read(QStringLiteral("a.html")), HasSubstr("Friday, 2 January 2026 03:00:00"));
    EXPECT_THAT(read(QStringLiteral("a.pdf")), HasSubstr("/CreationDate (D:20260102030000Z)"));
    EXPECT_EQ(run("report list.csv --html -").out, read(QStringLiteral("a.html")));
    EXPECT_EQ(run("report list.csv --pdf -").out, read(QStringLiteral("a.pdf")));
}

TEST_F(Documents, PdfRepeatsTheHeadingsOnEveryPage)
{
    QByteArray list = "Reference,Value\n";
    for (int i = 1; i <= 120; ++i) {
        list += "R" + QByteArray::number(i) + ",V" + QByteArray::number(i) + "\n";
    }
    write(QStringLiteral("list.csv"), list);
    EXPECT_EQ(run("report list.csv --pdf list.pdf").status, 0);
    const QString text = QString::fromStdString(pdfText(QStringLiteral("list.pdf")));
    QStringList pages = text.split(QChar::FormFeed, Qt::SkipEmptyParts);
    ASSERT_GE(pages.size(), 3);
    for (const QString &page : pages) {
        EXPECT_TRUE(page.contains(QStringLiteral("References"))) << page.toStdString();
    }
    EXPECT_TRUE(pages[1].contains(QStringLiteral("120 Resistors")));
    for (int i = 1; i <= 120; ++i) {
        EXPECT_EQ(text.count(QRegularExpression(QStringLiteral("\\bV%1\\b").arg(i))), 1) << i;
    }
    EXPECT_THAT(tell("pdfinfo", QStringLiteral("FILE"), QStringLiteral("list.pdf")), HasSubstr("(A4)"));
}

TEST_F(Documents, LeaveOutWhatTemplatesBringThatActsOrHasNoEnd)
{
    write(QStringLiteral("list.csv"), "Reference,Value\nR1,10k\n");
    const QByteArray table = "<table><tr><td>";
    const std::pair<QByteArray, const char *> headers[]{
        {"<p onclick=\"x()\">ACME<script>alert(1)</script><b>", "fetch something: script, onclick\n"},
        {"<img src=\"/dev/zero\"/>ACME", "fetch something: image /dev/zero\n"},
        {"<p style=\"background: url(/dev/zero)\">ACME</p>",
         "fetch something: style background: url(/dev/zero)\n"},
        {table.repeated(30),
         "without the header of the template: The HTML elements are nested too deeply.\n"},
        {QByteArray("<div>").repeated(20'000), "The HTML elements are nested too deeply.\n"}};
    for (const auto &[header, message] : headers) {
        write(QStringLiteral("t.bomt"),
              "<BOMTemplate version=\"5\"><CSS Type=\"QString\">@import '/dev/zero'; p { "
              "background: url(/dev/zero) }</CSS><DocumentHeader Type=\"QString\">" +
                  QString::fromUtf8(header).toHtmlEscaped().toUtf8() + "</DocumentHeader></BOMTemplate>");
        const ProgramRun result = run("report list.csv --template t.bomt --html page.html --pdf page.pdf");
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_THAT(result.err, HasSubstr(message));
        EXPECT_THAT(result.err,
                    HasSubstr("style sheet of the template is used without what would fetch something"));
        EXPECT_EQ(
            tell("xmllint", QStringLiteral("--nonet --noout --valid FILE"), QStringLiteral("page.html")), "");
        for (const char *active : {"script", "onclick", "/dev/zero", "@import"}) {
            EXPECT_THAT(read(QStringLiteral("page.html")), Not(HasSubstr(active)))
                << header.left(30).toStdString();
        }
    }
}

TEST_F(Documents, PdfNeedsAFont)
{
    write(QStringLiteral("list.csv"), "Reference,Value\nR1,10k\n");
    write(QStringLiteral("fonts.conf"), "<?xml version=\"1.0\"?><fontconfig></fontconfig>");
    setEnvironment(QStringLiteral("FONTCONFIG_FILE"), path(QStringLiteral("fonts.conf")));
    const ProgramRun result = run("report list.csv --pdf list.pdf --html list.html");
    EXPECT_EQ(result.status, 4);
    EXPECT_THAT(result.err, HasSubstr("bom: list.pdf: is not written: no fonts are installed\n"));
    EXPECT_EQ(read(QStringLiteral("list.pdf")), "no file");
    EXPECT_THAT(read(QStringLiteral("list.html")), HasSubstr("10k"));
}

TEST_F(Documents, NeedAPlatformForPdfOnly)
{
    write(QStringLiteral("list.csv"), "Reference,Value\nR1,10k\n");
    setEnvironment(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("none-such"));
    for (const char *arguments :
         {"report list.csv --csv a --full-csv b --html c --xlsx d --json e --ascii f", "check list.csv",
          "parts list.csv", "set list.csv R1 Value=1k", "apply list.csv a", "template show Default"}) {
        EXPECT_EQ(run(arguments).status, 0) << arguments;
    }
}

TEST_F(Documents, TellOfNotesThatCannotBeRead)
{
    write(QStringLiteral("list.csv"), "Reference,Value\nR1,10k\n");
    write(QStringLiteral("list.bomnotes.txt"), "caf\xe9\n");
    for (const char *arguments : {"report list.csv --html out", "report list.csv --pdf out"}) {
        EXPECT_THAT(run(arguments).err, HasSubstr("list.bomnotes.txt: is no UTF-8 text"));
    }
    EXPECT_EQ(run("report list.csv --fields Value --csv out").err, "");
}

} // namespace
