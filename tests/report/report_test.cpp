// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/report.h"

#include "report/reportfixture.h"
#include "report/xlsxtext.h"
#include "support/datatable.h"
#include "support/scopeddefinitions.h"
#include "views/report/csvreport.h"
#include "views/report/htmlreport.h"
#include "views/report/jsonreport.h"
#include "views/report/spreadsheetreport.h"
#include "views/report/terminalreport.h"

using namespace Qt::StringLiterals;

namespace {

class ReportValue : public ReportFixture
{
protected:
    /// What the column "Unit Cost" shows of a value.
    [[nodiscard]] QString shown(const QString &value) const
    {
        const Report report = this->report();
        return report.text(value, *report.column(cost));
    }

    const QString resistors = u"Resistors"_s;
    const QString cost = u"Unit Cost"_s;
};

/// The files stand in tests/data/report.
void expectSamples(const std::vector<std::pair<const char *, QByteArray>> &samples)
{
    for (const auto &[name, text] : samples) {
        const QString sample = QStringLiteral(BOM_SOURCE_DIR "/tests/data/report/") + QLatin1String(name);
        EXPECT_EQ(text.toStdString(), readFile(sample).toStdString()) << name;
    }
}

TEST_F(ReportValue, EveryFormIsWrittenAsItsSample)
{
    process.design.info = {
        {"TITLE", u"Amp <1> 5%1"_s},   {"AUTHOR", u"R&D Åsa"_s}, {"REV", u"B"_s},
        {"WL_CDATE", u"2026-01-01"_s}, {"WL_MDATE", u"today"_s}, {"FILENAME", u"/amp.sch"_s}};
    process.design.properties["VARIANT"] = "Lite";
    process.design.attachments["BOMNOTES.TXT"] = u"a  b\none\r\n\r\n\ttwo <b>R&D</b> \u0001\n"_s;
    for (const char *reference : {"R1", "R3", "R5", "R7"}) {
        netlist.add(reference, "10k", {{"COST", "0.5"}});
    }
    netlist.add("R10", "1k", {{"CODE", "S\"1,\\"}});
    netlist.add("R<3", "\u05e9\u05dc \x01\xff, 5%1 %L2 ]]>", {{"CODE", "&&&&&&&&"}});
    netlist.add("C1", "1\u00b5\U0001f600, 50V", {{"COST", "1e400"}});
    // The first link is shown, that of a script and that of an empty cell are not.
    netlist.add("U1", "LM<358>",
                {{"CODE", "S-1"}, {"BOMLINKS", "VALUE=docs%2Flm%26358.pdf,CODE=javascript:alert(1)"}});
    netlist.add("U2", "", {{"BOMLINKS", "VALUE=https://x"}});
    database.load();
    changeTemplate([](BOMTemplate &settings) {
        settings.setCss(u"p { margin: 0pt; }\n"_s);
        settings.setDocumentHeader(u"<p class='DocHeader'>head</p>"_s);
        settings.setDocumentFooter(u"<p class='DocFooter'>foot</p>"_s);
        settings.setAsciiQuantityWidth(4);
        settings.setAsciiRefWidth(10);
    });
    changeField(u"Value"_s, [](BOMField &field) { field.enableLinks = true; });
    changeField(u"Stock Code"_s, [](BOMField &field) {
        field.enableLinks = true;
        field.asciiWidth = 8;
        field.fieldWidth = 6;
    });
    const auto xlsx = [this] { return xlsxText(spreadsheetReport(dataReport()).file); };
    expectSamples({
        {"amp.csv", csvReport(dataReport(), CsvRows::Lines)},
        {"amp-parts.csv", csvReport(dataReport(), CsvRows::Parts)},
        {"amp.txt", textReport(dataReport())},
        {"amp.json", jsonReport(dataReport())},
        {"amp.xlsx.txt", xlsx()},
        {"amp.html", htmlReport(report()).toUtf8() + '\n'},
    });
    changeTemplate([](BOMTemplate &settings) { settings.setLayoutForReading(true); });
    changeField(u"Maker"_s, [](BOMField &field) { field.propertyName = u"MPN"_s; });
    expectSamples({
        {"reading.csv", csvReport(dataReport(), CsvRows::Lines)},
        {"reading.txt", textReport(dataReport())},
        {"reading.xlsx.txt", xlsx()},
        {"reading.html", htmlReport(report()).toUtf8() + '\n'},
    });
}

TEST_F(ReportValue, OfRowsWithEqualReferencesTheLastStays)
{
    netlist.add("J", "b");
    netlist.add("J0", "a");
    netlist.add("R01", "1k");
    netlist.add("R1", "2k");
    database.load();
    EXPECT_EQ(csvReport(report(), CsvRows::Lines), "Category,Quantity,References,Value,Stock Code,Unit Cost\n"
                                                   "Resistors,1,R1,2k,,\n"
                                                   "Miscellaneous,1,J,b,,\n");
    EXPECT_EQ(report().lines(resistors, false).lines.size(), 1U);
    EXPECT_TRUE(report().lines(u"unknown"_s, true).lines.empty());
}

TEST_F(ReportValue, ReferencesAreNeverCut)
{
    QByteArray references;
    for (int i = 1; i < 30000; i += 2) {
        references += ",R" + QByteArray::number(i);
        netlist.add("R" + QByteArray::number(i), "1k");
    }
    references.remove(0, 1);
    database.load();
    for (const bool ranges : {true, false}) {
        changeTemplate([ranges](BOMTemplate &settings) { settings.setGroupReferences(ranges); });
        EXPECT_TRUE(csvReport(report(), CsvRows::Lines).contains(",15000,\"" + references + "\",1k,"));
        EXPECT_TRUE(jsonReport(report()).contains(references));
    }
    EXPECT_TRUE(htmlReport(report()).toUtf8().contains('>' + references.replace(",", ",&shy;&#8203;") + '<'));
}

TEST_F(ReportValue, ShowsNumbersOfNumericFieldsWithTheirDecimals)
{
    const ScopedDefinitions definitions("\"COST\",FLOAT\n\"COUNT\",INT");
    database.load();
    for (const auto &[precision, value, text] : dataTable<3>("report/numbers.txt")) {
        changeField(cost, [decimals = std::stoi(precision)](BOMField &field) { field.precision = decimals; });
        EXPECT_EQ(shown(QString::fromStdString(value)).toStdString(), text) << value;
    }
    const Report report = this->report();
    EXPECT_EQ(report.text(u"007"_s, *report.column(u"Stock Code"_s)), u"007"_s);
    EXPECT_EQ(report.column(u"no such field"_s), nullptr);
}

TEST_F(ReportValue, ShowsAndReadsNumbersInTheUsersFormat)
{
    ui.numberFormat = QLocale(QLocale::German, QLocale::Germany);
    netlist.add("R1", "1k", {{"COST", "1.25"}});
    netlist.add("R2", "1k", {{"COST", "1.25"}});
    database.load();
    EXPECT_TRUE(csvReport(report(), CsvRows::Lines).endsWith("1k,,\"1,25\"\n"));
    EXPECT_EQ(report().texts(report().subTotals(resistors)).last(), u"2,50"_s);
    EXPECT_EQ(shown(u"0.5"_s), u"0,50"_s) << "what the locale does not read is read as C";
    EXPECT_EQ(shown(u"1.234"_s), u"1,23"_s) << "a point is no mark between thousands";
    EXPECT_EQ(shown(u"1.234,5"_s), u"1.234,5"_s);
}

TEST_F(ReportValue, PutsPrefixAndSuffixAround)
{
    database.load();
    changeField(cost, [](BOMField &field) {
        field.prefix = u"$"_s;
        field.suffix = u" each%1"_s;
    });
    EXPECT_EQ(shown(u"1.5"_s), u"$1.50 each%1"_s);
    EXPECT_EQ(shown(u"5%1"_s), u"$5%1 each%1"_s);
    EXPECT_EQ(shown(QString()), QString());
    changeField(cost, [](BOMField &field) { field.applyToEmpty = true; });
    EXPECT_EQ(shown(QString()), u"$ each%1"_s);
}

TEST_F(ReportValue, TotalsMultiplyByQuantity)
{
    netlist.add("R1", "1k", {{"COST", "0,25"}});
    netlist.add("R2", "1k", {{"COST", "0.25"}});
    netlist.add("R3", "2k", {{"COST", "unknown"}});
    netlist.add("C1", "1u", {{"COST", "1.5"}});
    netlist.add("C2", "1u", {{"COST", "inf"}});
    database.load();
    const auto texts = [this](const Report::Totals &totals) { return report().texts(totals); };
    EXPECT_EQ(texts(report().subTotals(resistors)), (QStringList{QString(), QString(), u"0.50"_s}));
    EXPECT_EQ(texts(report().subTotals(u"Diodes"_s)), (QStringList{QString(), QString(), u"0.00"_s}));
    EXPECT_EQ(texts(report().grandTotals()), (QStringList{QString(), QString(), u"2.00"_s}));
    changeField(cost, [](BOMField &field) {
        field.precision = 0;
        field.prefix = u"$"_s;
    });
    EXPECT_EQ(texts(report().grandTotals()).last(), u"$2"_s);
}

TEST_F(ReportValue, PartsThatAreNotFittedStandInLinesOfTheirOwnAndDoNotCount)
{
    netlist.add("R1", "1k", {{"COST", "2"}});
    netlist.add("R2", "1k", {{"COST", "2"}, {"DNP", "1"}, {"BOMPART0", "1,R,1k,COST=2"}});
    netlist.add("R3", "1k", {{"COST", "2"}, {"DNP", "no"}});
    netlist.cache()->fitting = [](QByteArrayView dnp) { return FITTING{dnp != "1", true}; };
    database.load();
    EXPECT_EQ(csvReport(dataReport(), CsvRows::Lines).split('\n').at(1), "Resistors,4,R1-R4,1k,,2.00")
        << "for a host that does not want them marked";
    netlist.cache()->marksnotfitted = true;
    database.reload();
    EXPECT_EQ(csvReport(dataReport(), CsvRows::Lines),
              "Category,Quantity,References,Value,Stock Code,Unit Cost,DNP\n"
              "Resistors,2,\"R1,R3\",1k,,2.00,\n"
              "Resistors,0,\"R2,R4\",1k,,2.00,Yes\n");
    EXPECT_FALSE(database.currentTemplate().fields().contains(u"DNP"_s));
    const QByteArray json = jsonReport(report());
    EXPECT_TRUE(json.contains("\"parts\":2,\"notFitted\":2,")) << json.data();
    EXPECT_TRUE(json.contains("{\"quantity\":0,\"notFitted\":2,\"references\":[\"R2\",\"R4\"]"))
        << json.data();
    EXPECT_TRUE(json.contains("\"totals\":[\"\",\"\",\"4.00\",\"\"]")) << json.data();
    const QByteArray sheet = xlsxText(spreadsheetReport(dataReport()).file);
    EXPECT_TRUE(sheet.contains("\nB9 0 [0\" + 2 DNP\"]\n")) << sheet.data();
    EXPECT_TRUE(sheet.contains("\nF10 4 [0.00] =SUMPRODUCT(B8:B9,F8:F9)\n")) << sheet.data();
    EXPECT_TRUE(htmlReport(report()).contains(u"2 + 2 DNP Resistors"));
    EXPECT_TRUE(textReport(dataReport()).contains("\n0 + 2 DNP R2,R4 ")) << textReport(dataReport()).data();
}

TEST_F(ReportValue, CutsValuesToTheFieldWidth)
{
    const std::pair<int, QString> cases[] = {
        {0, u"12345678"_s}, {3, u"12345678"_s}, {4, u"1..."_s}, {7, u"1234..."_s}, {8, u"12345678"_s}};
    BOMField field;
    for (const auto &[width, text] : cases) {
        field.fieldWidth = width;
        EXPECT_EQ(truncatedToWidth(u"12345678"_s, field), text);
    }
    field.fieldWidth = 5;
    EXPECT_EQ(truncatedToWidth(u"1\U0001f6004567"_s, field), u"1..."_s) << "not half a character";
}

} // namespace
