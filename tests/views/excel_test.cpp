// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/views/xlsxfile.h"
#include "views/bomexcelview.h"
#include "views/report/numberformat.h"
#include "views/report/spreadsheet.h"
#include "views/viewfixture.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// In sheets with the default fields: A category, B quantity, C references, D value, E code, F cost.
class Excel : public ViewFixture
{
protected:
    Excel()
    {
        changeTemplate([](BOMTemplate &settings) { settings.setSuppressEmptyCategories(true); });
        view.setPartsDatabase(&database);
    }

    [[nodiscard]] XlsxFile sheet()
    {
        const QByteArray bytes = view.xlsx();
        EXPECT_EQ(view.problem(), QString());
        return XlsxFile(bytes);
    }

    BOMExcelView view;
    const QString cost = u"Unit Cost"_s;
};

TEST_F(Excel, isLaidOutLikeTheReport)
{
    process.design.info = {{"TITLE", u"amp"_s}, {"REV", u"2"_s}};
    netlist.add("R1", "10k", {{"COST", "0.125"}, {"CODE", "S-1"}});
    netlist.add("R2", "10k", {{"COST", "0.125"}, {"CODE", "S-1"}});
    netlist.add("R3", "1k", {{"COST", "2"}});
    netlist.add("C1", "1\xc2\xb5", {{"COST", "1.5"}});
    database.load();
    const XlsxFile file = sheet();
    EXPECT_EQ(file.row(1).first(), u"Bill Of Materials for amp"_s);
    EXPECT_EQ(file.cells.value(u"B4"_s).value, u"2"_s);
    EXPECT_EQ(file.cells.value(u"B4"_s).type, u"s"_s);
    const QList<QStringList> rows{
        {u"Category"_s, u"Quantity"_s, u"References"_s, u"Value"_s, u"Stock Code"_s, cost},
        {u"1 Capacitors"_s, {}, {}, {}, {}, {}},
        {u"Capacitors"_s, u"1"_s, u"C1"_s, u"1\u00b5"_s, {}, u"1.5"_s},
        {u"Sub-totals:"_s, {}, {}, {}, {}, u"1.5"_s},
        {u"3 Resistors"_s, {}, {}, {}, {}, {}},
        {u"Resistors"_s, u"2"_s, u"R1-R2"_s, u"10k"_s, u"S-1"_s, u"0.125"_s},
        {u"Resistors"_s, u"1"_s, u"R3"_s, u"1k"_s, {}, u"2"_s},
        {u"Sub-totals:"_s, {}, {}, {}, {}, u"2.25"_s},
        {u"Totals:"_s, {}, {}, {}, {}, u"3.75"_s},
    };
    for (int i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(file.row(i + 6), rows.at(i)) << i;
    }
    EXPECT_EQ(file.cells.value(u"B11"_s).type, QString());
    EXPECT_EQ(file.cells.value(u"F11"_s).format, u"0.00"_s);
    EXPECT_EQ(file.cells.value(u"F13"_s).formula, u"SUMPRODUCT(B11:B12,F11:F12)"_s);
    EXPECT_EQ(file.cells.value(u"F14"_s).formula, u"SUMPRODUCT(B7:B13,F7:F13)"_s);
    EXPECT_EQ(file.attributes.value(u"pane.ySplit"_s), u"6"_s);
    EXPECT_EQ(file.attributes.value(u"pane.state"_s), u"frozen"_s);
    EXPECT_EQ(file.attributes.value(u"autoFilter.ref"_s), u"A6:F13"_s);
    EXPECT_EQ(BOMExcelView().xlsx(), QByteArray());
}

TEST_F(Excel, onlyNumericPropertiesAreNumbers)
{
    const char *const texts[] = {"0603", "=1+1", "1E3",     "+1",         "-5",   "@SUM(A1)", "'x",
                                 "TRUE", "1/2",  "_x0041_", "  blanks  ", "a\nb", "<&\">"};
    int number = 0;
    for (const char *text : texts) {
        netlist.add("R" + QByteArray::number(++number), text, {{"CODE", text}, {"COST", "1E3"}});
    }
    netlist.add("C1", "\x01\xef\xbf\xbf", {{"COST", "n/a"}});
    netlist.add("C2", "x", {{"COST", "\"0805\""}});
    netlist.add("C3", "y", {{"COST", "nan"}});
    database.load();
    const XlsxFile file = sheet();
    for (const char *text : texts) {
        const QString expected = QString::fromLatin1(text).replace(u"_x0041_"_s, u"_x005F_x0041_"_s);
        for (const QChar column : {u'D', u'E'}) {
            const XlsxCell cell = file.cells.value(file.find(column, expected));
            EXPECT_EQ(cell.value, expected);
            EXPECT_EQ(cell.type, u"s"_s) << text;
            EXPECT_EQ(cell.format, u"@"_s) << text;
        }
    }
    EXPECT_EQ(file.cells.value(file.find(u'F', u"1000"_s)).type, QString());
    for (const QString &text : {u"n/a"_s, u"0805"_s, u"nan"_s}) {
        EXPECT_EQ(file.cells.value(file.find(u'F', text)).type, u"s"_s) << text.toStdString();
    }
    EXPECT_FALSE(file.find(u'D', u"\ufffd\ufffd"_s).isEmpty());
}

TEST_F(Excel, showsNumbersAsTheFieldSays)
{
    BOMField field;
    EXPECT_EQ(numberFormat(field), u"General"_s);
    field.precision = 3;
    field.suffix = u" \"each\""_s;
    EXPECT_EQ(numberFormat(field), uR"(0.000" "\""each"\")"_s);
    field.prefix = u"$"_s;
    EXPECT_EQ(numberFormat(field), uR"("$"0.000" "\""each"\")"_s);
    field.prefix = u";"_s;
    EXPECT_EQ(numberFormat(field), QString());
    field.precision = 100;
    field.suffix.clear();
    field.prefix = u"$;"_s;
    EXPECT_EQ(numberFormat(field), u"\"$;\"0.000000000000000;\"$;\"-0.000000000000000"_s);

    ui.numberFormat = QLocale(QLocale::German, QLocale::Germany);
    netlist.add("R1", "1k", {{"COST", "1,25"}});
    database.load();
    changeField(cost, [](BOMField &changed) { changed.prefix = u"€"_s; });
    EXPECT_EQ(sheet().cells.value(u"F8"_s).value, u"1.25"_s);
    EXPECT_EQ(sheet().cells.value(u"F8"_s).format, u"\"€\"0.00;\"€\"-0.00"_s);
    changeField(cost, [](BOMField &changed) { changed.prefix = QString(200, u'x'); });
    EXPECT_EQ(sheet().cells.value(u"F8"_s).value, QString(200, u'x') + u"1,25"_s);
    EXPECT_EQ(sheet().cells.value(u"F9"_s).value, QString(200, u'x') + u"1,25"_s);
}

TEST_F(Excel, totalsThatNoFormulaGivesAreNumbers)
{
    netlist.add("R1", "1k", {{"COST", "1"}, {"CODE", "2"}});
    netlist.add("R01", "2k", {{"COST", "4"}, {"CODE", "3"}});
    netlist.add("C1", "1u", {{"COST", "8"}, {"CODE", "5"}});
    database.load();
    changeField(u"Stock Code"_s, [](BOMField &field) { field.generateTotals = true; });
    changeTemplate([](BOMTemplate &settings) { settings.setExcludeValueField(true); });
    const XlsxFile file = sheet();
    EXPECT_EQ(file.row(6).mid(2), (QStringList{u"References"_s, u"Stock Code"_s, cost}));
    EXPECT_EQ(file.row(9).mid(3), (QStringList{u"5"_s, u"8"_s}));
    EXPECT_EQ(file.cells.value(u"D9"_s).formula, QString()) << "codes are texts, which formulas pass over";
    EXPECT_EQ(file.cells.value(u"E9"_s).formula, u"SUMPRODUCT(B8,E8)"_s);
    EXPECT_EQ(file.row(12).mid(3), (QStringList{u"5"_s, u"5"_s}));
    EXPECT_EQ(file.cells.value(u"E12"_s).formula, QString()) << "a line that counts is not shown";
    EXPECT_EQ(file.row(13).mid(3), (QStringList{u"10"_s, u"13"_s}));
    EXPECT_EQ(file.cells.value(u"E13"_s).formula, QString());
}

TEST_F(Excel, linksOpenFilesAndAddresses)
{
    process.design.info["FILENAME"] = u"/designs/amp/amp.kicad_sch"_s;
    netlist.add("U1", "a",
                {{"BOMLINKS", "VALUE=docs%2Fa%20%231.pdf,CODE=javascript:alert(1),COST=https://x"},
                 {"CODE", "c"},
                 {"COST", "7"}});
    netlist.add("U2", "b", {{"BOMLINKS", "VALUE=https://x/internal:y?q=%22%26"}});
    netlist.add("U3", "c", {{"BOMLINKS", "VALUE=https://x/" + QByteArray(3000, 'x')}});
    database.load();
    for (const QString &field : {u"Value"_s, u"Stock Code"_s, cost}) {
        changeField(field, [](BOMField &changed) { changed.enableLinks = true; });
    }
    const XlsxFile file = sheet();
    EXPECT_EQ(file.links, (QMap<QString, QString>{{u"D8"_s, u"file:///designs/amp/docs/a%20%231.pdf"_s},
                                                  {u"F8"_s, u"https://x"_s},
                                                  {u"D9"_s, u"https://x/internal%3Ay?q=%22&"_s}}));
    EXPECT_EQ(file.row(8).mid(3), (QStringList{u"a"_s, u"c"_s, u"7"_s}));
    EXPECT_EQ(file.cells.value(u"F8"_s).type, QString());
    EXPECT_EQ(view.notices(),
              QStringList{u"A link of a spreadsheet has at most 2079 characters; 1 longer ones are text."_s});
}

TEST_F(Excel, neverCutsTexts)
{
    QByteArray references;
    for (int i = 1; i < 20000; i += 2) {
        references += ",R" + QByteArray::number(i);
        netlist.add("R" + QByteArray::number(i), "1k", {{"COST", "0.5"}});
    }
    database.load();
    const XlsxFile file = sheet();
    EXPECT_EQ(file.cells.value(u"C8"_s).value + file.cells.value(u"C9"_s).value,
              QString::fromLatin1(references.mid(1)));
    EXPECT_FALSE(file.cells.contains(u"B9"_s));
    EXPECT_GT(file.attributes.value(u"row.ht"_s).toDouble(), 100) << "wrapped texts need high rows";
    EXPECT_EQ(file.cells.value(u"F10"_s).formula, u"SUMPRODUCT(B8:B9,F8:F9)"_s);

    netlist.add("C1", QByteArray(32768, 'x'));
    database.reload();
    EXPECT_EQ(view.xlsx(), QByteArray());
    EXPECT_TRUE(view.problem().startsWith(u"A cell of a spreadsheet holds 32767 characters; this text has "
                                          "32768: xxxx"_s));
    view.writeOutput();
    EXPECT_EQ(ui.warnings, (QList<ScriptedUi::Message>{{u"Output Failed"_s, view.problem()}}));
    EXPECT_TRUE(ui.fileRequests.isEmpty());
}

TEST_F(Excel, endsWhereTheFormatEnds)
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
        linked += links.link(0, QUrl(u"https://x"_s)) ? 1 : 0;
        links.text(0, u"x"_s, CellLook::Link);
        links.nextRow();
    }
    EXPECT_EQ(linked, 65530);
    EXPECT_EQ(links.notices(), QStringList{u"A spreadsheet has at most 65530 links; 3 more are text."_s});
    EXPECT_FALSE(links.bytes().isEmpty());
}

TEST_F(Excel, equalReportsAreEqualBytes)
{
    netlist.add("R1", "1k");
    process.design.attachments["BOMNOTES.TXT"] = u"first\nsecond"_s;
    database.load();
    const QByteArray first = view.xlsx();
    EXPECT_TRUE(view.xlsx() == first);
    EXPECT_EQ(first.mid(10, 4), QByteArray("\0\0\x21\0", 4)) << "the archive's time is the start of 1980";
    EXPECT_TRUE(XlsxFile(first).properties.contains(">2026-01-02T03:04:05Z</dcterms:created>"));
}

TEST_F(Excel, asksForAFileAndWritesIt)
{
    const QTemporaryDir folder;
    netlist.add("R1", "1k");
    database.load();
    ui.fileName = folder.filePath(u"out.xlsx"_s);
    view.writeOutput();
    ASSERT_EQ(ui.fileRequests.size(), 1);
    EXPECT_EQ(ui.fileRequests.first().filter, u"Spreadsheets (*.xlsx)"_s);
    EXPECT_TRUE(ui.fileRequests.first().path.endsWith(u".xlsx"_s));
    QFile file(ui.fileName);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), view.xlsx());
    EXPECT_EQ(ui.openedUrls, QList<QUrl>{QUrl::fromLocalFile(ui.fileName)});
}

} // namespace
