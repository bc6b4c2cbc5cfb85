// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/spreadsheetreport.h"

#include "report/reportfixture.h"
#include "report/xlsxtext.h"
#include "views/report/spreadsheet.h"

#include <clocale>

using namespace Qt::StringLiterals;

namespace {

/// In sheets with the default fields: A category, B quantity, C references, D value, E code, F cost.
class SpreadsheetOutput : public ReportFixture
{
protected:
    [[nodiscard]] SpreadsheetReport output() { return spreadsheetReport(dataReport()); }
    /// That the sheet has these lines of xlsxText().
    void expectLines(const QByteArrayList &lines)
    {
        const QByteArray text = xlsxText(output().file);
        for (const QByteArray &line : lines) {
            EXPECT_TRUE(text.contains('\n' + line + '\n')) << line.toStdString() << "\n"
                                                           << text.toStdString();
        }
    }

    const QString cost = u"Unit Cost"_s;
};

TEST_F(SpreadsheetOutput, OnlyNumericPropertiesAreNumbers)
{
    const char *const texts[] = {"0603", "=1+1", "1E3", "+1",  "-5",         "@SUM(A1)", "'x",
                                 "TRUE", "1/2",  "a&b", "<&>", "  blanks  ", "a\nb",     "_x0041_"};
    QByteArrayList expected;
    int row = 7;
    const auto add = [&](const char *text, const char *cost) {
        const QByteArray number = QByteArray::number(++row);
        netlist.add("R" + number, text, {{"CODE", text}, {"COST", cost}});
        return number;
    };
    for (const char *text : texts) {
        const QByteArray number = add(text, "1E3");
        const QByteArray shown = QByteArray(text).replace("\n", "\\n").replace("_x", "_x005F_x");
        expected << 'D' + number + " \"" + shown + "\" [@]" << 'E' + number + " \"" + shown + "\" [@]"
                 << 'F' + number + " 1000 [0.00]";
    }
    expected << 'D' + add("\x01\xef\xbf\xbf", "") + " \"\xef\xbf\xbd\xef\xbf\xbd\" [@]"
             << 'F' + add("1k", "n/a") + " \"n/a\"" << 'F' + add("1k", "\"0805\"") + " \"0805\""
             << 'F' + add("1k", "nan") + " \"nan\"";
    database.load();
    expectLines(expected);
}

TEST_F(SpreadsheetOutput, ShowsNumbersAsTheFieldSays)
{
    const std::tuple<int, QString, QString, QString> cases[] = {
        {0, {}, {}, u"General"_s},
        {3, {}, u" \"each\""_s, uR"(0.000" "\""each"\")"_s},
        {3, u"$"_s, u" \"each\""_s, uR"("$"0.000" "\""each"\")"_s},
        {3, u";"_s, u" \"each\""_s, {}},
        {100, u"$;"_s, {}, u"\"$;\"0.000000000000000;\"$;\"-0.000000000000000"_s},
    };
    BOMField field;
    for (const auto &[precision, prefix, suffix, format] : cases) {
        field.precision = precision;
        field.prefix = prefix;
        field.suffix = suffix;
        EXPECT_EQ(numberFormat(field), format);
    }
    ui.numberFormat = QLocale(QLocale::German, QLocale::Germany);
    netlist.add("R1", "1k", {{"COST", "1,25"}});
    database.load();
    changeField(cost, [](BOMField &changed) { changed.prefix = u"€"_s; });
    expectLines({"F8 1.25 [\"€\"0.00;\"€\"-0.00]"});
    // Too long for a format: texts.
    const QByteArray prefix(200, 'x');
    changeField(cost, [&prefix](BOMField &changed) { changed.prefix = QString::fromLatin1(prefix); });
    expectLines({"F8 \"" + prefix + "1,25\"", "F9 \"" + prefix + "1,25\""});
}

TEST_F(SpreadsheetOutput, TotalsThatNoFormulaGivesAreNumbers)
{
    netlist.add("R1", "1k", {{"COST", "1"}, {"CODE", "2"}});
    netlist.add("R01", "2k", {{"COST", "4"}, {"CODE", "3"}});
    netlist.add("C1", "1u", {{"COST", "8"}, {"CODE", "5"}});
    database.load();
    changeField(u"Stock Code"_s, [](BOMField &field) { field.generateTotals = true; });
    changeTemplate([](BOMTemplate &settings) { settings.setExcludeValueField(true); });
    expectLines({"D6 \"Stock Code\"", "E6 \"Unit Cost\"", "E9 8 [0.00] =SUMPRODUCT(B8,E8)"});
    // Codes are texts, which formulas pass over.
    expectLines({"D9 5 [General]", "D12 5 [General]", "D13 10 [General]"});
    // One line that counts is not shown.
    expectLines({"E12 5 [0.00]", "E13 13 [0.00]"});
}

TEST_F(SpreadsheetOutput, LinksOpenFilesAndAddresses)
{
    process.design.info["FILENAME"] = u"/designs/amp/amp.kicad_sch"_s;
    netlist.add("U1", "a",
                {{"BOMLINKS", "VALUE=docs%2Fa%20%231.pdf,CODE=javascript:alert(1),COST=https://x"},
                 {"CODE", "c"},
                 {"COST", "7"}});
    netlist.add("U2", "b", {{"BOMLINKS", "VALUE=https://x/internal:y?q=%22%26"}});
    netlist.add("U3", "c", {{"BOMLINKS", "VALUE=https://x/" + QByteArray(3000, 'x')}});
    netlist.add("U4", "d", {{"BOMLINKS", "VALUE=https://x/" + QByteArray(1000, '[')}});
    const char *const malformed[] = {"https:// www.x", "http://[::1", "http://[::1]/x", "https://x%01y",
                                     "http://"};
    int number = 10;
    for (const char *link : malformed) {
        netlist.add("U" + QByteArray::number(number++), link, {{"BOMLINKS", QByteArray("VALUE=") + link}});
    }
    database.load();
    for (const QString &field : {u"Value"_s, u"Stock Code"_s, cost}) {
        changeField(field, [](BOMField &changed) { changed.enableLinks = true; });
    }
    expectLines({"link D8 file:///designs/amp/docs/a%20%231.pdf", "link F8 https://x",
                 "link D9 https://x/internal%3Ay?q=%22&", "D8 \"a\" [@]", "E8 \"c\" [@]", "F8 7 [0.00]"});
    EXPECT_EQ(xlsxText(output().file).count("\nlink "), 3);
    const QStringList notices{
        u"A link of a spreadsheet has at most 2079 characters; 2 longer ones are text."_s,
        u"Malformed links are text: U10 (Value), U11 (Value), U12 (Value), U13 (Value), U14 (Value)."_s};
    EXPECT_EQ(output().notices, notices);
}

TEST_F(SpreadsheetOutput, HasNumbersOfTheFormatInAHostWithADecimalComma)
{
    netlist.add("R1", "1k", {{"COST", "1.5"}});
    database.load();
    const QByteArray expected = output().file;
    const QTemporaryDir folder;
    const QString source = QStringLiteral(BOM_SOURCE_DIR "/tests/data/report/decimal-comma.locale");
    QProcess::execute(u"localedef"_s, {u"-c"_s, u"--quiet"_s, u"-i"_s, source, folder.filePath(u"comma"_s)});
    qputenv("LOCPATH", folder.path().toUtf8());
    ASSERT_TRUE(setlocale(LC_NUMERIC, "comma"));
    const QByteArray file = output().file;
    EXPECT_STREQ(localeconv()->decimal_point, ",") << "the locale stays the host's";
    setlocale(LC_NUMERIC, "C");
    EXPECT_TRUE(file == expected) << xlsxText(file).toStdString();
}

TEST_F(SpreadsheetOutput, NeverCutsTexts)
{
    QByteArray references;
    for (int i = 1; i < 20000; i += 2) {
        references += ",R" + QByteArray::number(i);
        netlist.add("R" + QByteArray::number(i), "1k", {{"COST", "0.5"}});
    }
    database.load();
    const qsizetype end = references.lastIndexOf(',', Spreadsheet::MostCharacters) + 1;
    expectLines({"C8 \"" + references.mid(1, end - 1) + '"', "C9 \"" + references.mid(end) + '"',
                 "F10 5000 [0.00] =SUMPRODUCT(B8:B9,F8:F9)",
                 "highest row 409.0"}); // Wrapped texts need high rows.
    EXPECT_FALSE(xlsxText(output().file).contains("\nB9 ")) << "rows that go on have no quantity";
    netlist.add("C1", QByteArray(32768, 'x'));
    database.reload();
    EXPECT_EQ(output().file, QByteArray());
    EXPECT_TRUE(output().problem.startsWith(
        u"A cell of a spreadsheet holds 32767 characters; this text has 32768: xxxx"_s));
}

TEST(Spreadsheet, EndsWhereTheFormatEnds)
{
    Spreadsheet sheet({});
    sheet.beginSheet(u"rows"_s);
    for (int row = 1; row < 1048576; ++row) {
        sheet.nextRow();
    }
    EXPECT_EQ(sheet.problem(), QString());
    sheet.nextRow();
    EXPECT_EQ(sheet.problem(), u"The report has more rows than a spreadsheet, which holds 1048576."_s);
    EXPECT_EQ(sheet.bytes(), QByteArray());

    Spreadsheet links({});
    links.beginSheet(u"links"_s);
    int linked = 0;
    for (int row = 0; row < 65533; ++row) {
        linked += links.link(0, QUrl(u"https://x"_s), {}) ? 1 : 0;
        links.text(0, u"x"_s, CellLook::Link);
        links.nextRow();
    }
    EXPECT_EQ(linked, 65530);
    EXPECT_EQ(links.notices(), QStringList{u"A spreadsheet has at most 65530 links; 3 more are text."_s});
    EXPECT_FALSE(links.bytes().isEmpty());
}

TEST_F(SpreadsheetOutput, OfEqualReportsIsEqualBytes)
{
    netlist.add("R1", "1k");
    process.design.attachments["BOMNOTES.TXT"] = u"first\nsecond"_s;
    database.load();
    const QByteArray first = output().file;
    EXPECT_TRUE(output().file == first);
    EXPECT_EQ(first.mid(10, 4), QByteArray("\0\0\x21\0", 4)) << "the archive's time is the start of 1980";
    expectLines({"created 2026-01-02T03:04:05Z"});
}

} // namespace
