// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "report/reportfixture.h"
#include "views/report/asciireport.h"
#include "views/report/csvreport.h"
#include "views/report/textwidths.h"

using namespace Qt::StringLiterals;

namespace {

using Csv = ReportFixture;

TEST_F(Csv, DropsQuotesAndLineBreaksAndEnclosesCommas)
{
    changeField(u"Unit \"Cost\", net"_s, [](BOMField &field) { field.propertyName = u"COST"_s; });
    const QByteArray headings = "References,Value,Stock Code,Unit Cost,\"Unit Cost, net\"\n";
    EXPECT_EQ(csvReport(dataReport(), CsvRows::Lines), "Category,Quantity," + headings)
        << "of an empty design";
    EXPECT_EQ(csvReport(dataReport(), CsvRows::Parts), "Category," + headings);
    netlist.add("R1", "10\"x2", {{"CODE", "a\r\nb"}});
    netlist.add("R2", "1,2", {{"CODE", "\"\"\n"}});
    netlist.add("R3", "5%1", {{"CODE", "\",\""}});
    database.load();
    EXPECT_EQ(csvReport(dataReport(), CsvRows::Lines), "Category,Quantity," + headings +
                                                           "Resistors,1,R1,10x2,ab,,\n"
                                                           "Resistors,1,R2,\"1,2\",,,\n"
                                                           "Resistors,1,R3,5%1,\",\",,\n");
}

TEST_F(Csv, IsReadBySpreadsheetProgramsInTheirLocale)
{
    netlist.add("R1", "1,2;3", {{"CODE", "a"}});
    database.load();
    const std::pair<const char *, const char *> cases[] = {
        {"de_DE", ";\"1,2;3\";a;"}, {"fr_CH", ";\"1,2;3\";a;"}, {"C", ",\"1,2;3\",a,"}};
    for (const auto &[locale, cell] : cases) {
        const CsvDialect dialect = spreadsheetDialect(QLocale(QString::fromLatin1(locale)));
        const QByteArray csv = csvReport(dataReport(), CsvRows::Lines, dialect);
        EXPECT_EQ(csv.left(3), "\xEF\xBB\xBF") << locale;
        EXPECT_TRUE(csv.contains(cell)) << csv.data();
    }
}

TEST_F(Csv, EnclosesReferencesAndLeavesOutValuesWhereTheTemplateSaysSo)
{
    for (const auto &[reference, value] : {std::pair("R1", "1k"), {"R2", "2k"}, {"R4", "2k"}}) {
        netlist.add(reference, value);
    }
    database.load();
    changeTemplate([](BOMTemplate &settings) {
        settings.setAlwaysQuoteRefs(true);
        settings.setExcludeValueField(true);
        settings.setGroupReferences(false);
    });
    EXPECT_EQ(csvReport(dataReport(), CsvRows::Lines), "Category,Quantity,References,Stock Code,Unit Cost\n"
                                                       "Resistors,1,\"R1\",,\n"
                                                       "Resistors,2,\"R2,R4\",,\n");
    EXPECT_EQ(csvReport(dataReport(), CsvRows::Parts).split('\n').at(1), "Resistors,\"R1\",,");
}

class Ascii : public ReportFixture
{
protected:
    Ascii()
    {
        changeTemplate([](BOMTemplate &settings) {
            settings.setAsciiQuantityWidth(4);
            settings.setAsciiRefWidth(10);
        });
        // A copy: every change replaces the template.
        const QStringList names = database.currentTemplate().fields().names();
        for (const QString &name : names) {
            changeField(name, [](BOMField &field) { field.asciiWidth = 8; });
        }
    }

    /// What follows the information block, line by line.
    [[nodiscard]] QByteArrayList table()
    {
        const QByteArray text = asciiReport(dataReport());
        return text.mid(text.indexOf("\n\n") + 2).split('\n');
    }
};

TEST(TerminalColumns, BreakTextsBehindSignsAndCountWideCharactersTwice)
{
    struct Case
    {
        QString text;
        int width;
        QStringList lines;
    };
    const Case cases[] = {{u""_s, 8, {}},
                          {u"100n 50V X7R"_s, 8, {u"100n 50V"_s, u"X7R"_s}},
                          {u"RC0603FR-0710KL"_s, 9, {u"RC0603FR-"_s, u"0710KL"_s}},
                          {u"LMK107BJ475"_s, 6, {u"LMK107"_s, u"BJ475"_s}},
                          {u"電阻器"_s, 4, {u"電阻"_s, u"器"_s}},
                          {u"電"_s, 1, {u"電"_s}},
                          {u"e\u0301\u00b5\U0001F600"_s, 2, {u"e\u0301\u00b5"_s, u"\U0001F600"_s}}};
    for (const auto &[text, width, lines] : cases) {
        EXPECT_EQ(wrappedText(text, width), lines) << qPrintable(text);
    }
}

TEST(PrintedColumns, AreMeasuredByTheWidthOfLetters)
{
    const auto needOf = [](const QString &text, TextMeasure measure) {
        ColumnNeeds needs(u" -", measure);
        needs.add({text});
        return needs.needs().constFirst();
    };
    EXPECT_EQ(needOf(u"4711"_s, TextMeasure::Print), (ColumnNeed{4, 4}));
    EXPECT_EQ(needOf(u"GRMW"_s, TextMeasure::Print), (ColumnNeed{6, 6})) << "3277 thousandths";
    EXPECT_EQ(needOf(u"ill fit"_s, TextMeasure::Print), (ColumnNeed{4, 2}));
    EXPECT_EQ(needOf(u"ill GRMW"_s, TextMeasure::Terminal), (ColumnNeed{8, 4}));
    EXPECT_EQ(needOf(u"電阻"_s, TextMeasure::Print), (ColumnNeed{4, 4}));
}

TEST(TerminalColumns, GiveWayWhereNoWordIsBroken)
{
    struct Case
    {
        QList<ColumnNeed> needs;
        int room;
        QList<int> widths;
    };
    const Case cases[] = {{{}, 80, {}},
                          {{{3, 3}, {40, 8}}, 80, {3, 40}},
                          {{{3, 3}, {40, 8}, {15, 15}}, 40, {3, 22, 15}},
                          {{{3, 3}, {40, 30}, {30, 30}}, 40, {3, 19, 18}},
                          {{{40, 8}, {40, 8}, {40, 8}}, 10, {6, 6, 6}}};
    for (const auto &[needs, room, widths] : cases) {
        EXPECT_EQ(fittedWidths(needs, room), widths) << room;
    }
}

TEST_F(Ascii, WrapsReferencesAndCutsValues)
{
    for (const char *reference : {"R1", "R2", "R3", "R4", "R5"}) {
        netlist.add(reference, "10k/0.1W/5%", {{"COST", "0.5"}});
    }
    // A micro sign, a line separator and a character of two units.
    netlist.add("C1", "1\u00b5\nx", {{"CODE", "12\u20284567\U0001f600"}});
    database.load();
    changeTemplate([](BOMTemplate &settings) { settings.setGroupReferences(false); });
    EXPECT_EQ(table(),
              (QByteArrayList{"QTY PART-REFS Value   Stock CoUnit Cos",
                              "--- --------- -----   ----------------", "Capacitors", "----------",
                              "1   C1        1\u00b5 x    12 4567         ", "", "Resistors", "---------",
                              "5   R1,R2,R3, 10k/0.1W        0.50    ", "    R4,R5", "", ""}));
    EXPECT_TRUE(asciiReport(report()).contains("Revision:        \nAuthor:          \n")) << "no variant";
}

TEST_F(Ascii, HasTheColumnsAndWidthsOfTheTemplate)
{
    netlist.add("R1", "10k", {{"CODE", "S-1"}, {"COST", "0.5"}});
    database.load();
    changeField(u"Stock Code"_s, [](BOMField &field) { field.asciiWidth = -5; });
    EXPECT_EQ(table().at(4), "1   R1        10k     0.50    ");
    changeField(u"Stock Code"_s, [](BOMField &field) { field.asciiWidth = 2000000000; });
    EXPECT_EQ(table().at(4).size(), 4 + 10 + 8 + 1000 + 8);
    changeTemplate([](BOMTemplate &settings) {
        settings.setExcludeValueField(true);
        settings.setAsciiQuantityWidth(-1);
    });
    EXPECT_TRUE(table().first().startsWith("PART-REFS Stock Code"));
    changeTemplate([](BOMTemplate &settings) { settings.setAsciiRefWidth(0); });
    EXPECT_TRUE(table().at(4).startsWith("S-1 "));
}

} // namespace
