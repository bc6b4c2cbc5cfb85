// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "report/reportfixture.h"
#include "views/report/asciireport.h"
#include "views/report/csvreport.h"

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
    for (const auto &[locale, cell] : {std::pair("de_DE", ";\"1,2;3\";a;"), {"C", ",\"1,2;3\",a,"}}) {
        const CsvDialect dialect = spreadsheetDialect(QLocale(QString::fromLatin1(locale)));
        const QByteArray csv = csvReport(dataReport(), CsvRows::Lines, dialect);
        EXPECT_TRUE(csv.startsWith("\xEF\xBB\xBF"
                                   "Category"))
            << csv.data();
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
