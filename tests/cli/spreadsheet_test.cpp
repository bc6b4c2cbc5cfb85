// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// Tables of edits that spreadsheet programs and KiCad write.
#include "tests/cli/writetest.h"
#include "tests/support/spreadsheetbytes.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

const QString sheetFile = QStringLiteral("edits.xlsx");

/// The sheet of R1 with one property, whose cell is B2.
QByteArray sheetOf(const QByteArray &property, const QByteArray &cell, const QByteArray &behind = {})
{
    return "<worksheet><sheetData><row r=\"1\"><c t=\"str\"><v>Reference</v></c><c t=\"str\"><v>" + property +
           "</v></c></row><row r=\"2\"><c t=\"str\"><v>R1</v></c>" + cell + "</row></sheetData>" + behind +
           "</worksheet>";
}

class SpreadsheetEdits : public WriteTest
{
protected:
    SpreadsheetEdits() { write(list, "Reference,Value,MPN,PN,COST\nR1,1k,0603,12,3.9\nR2,1k,$5,,0.004\n"); }

    [[nodiscard]] ProgramRun applied(const QByteArray &file, const char *options = "") const
    {
        write(sheetFile, file);
        return run((std::string("apply list.csv edits.xlsx --dry-run") + options).c_str());
    }
};

TEST_F(SpreadsheetEdits, ASpreadsheetAppliedAsItIsChangesNothing)
{
    (void)done("report amp.kicad_sch --allow-duplicates --xlsx amp.xlsx");
    const ProgramRun parts = run("apply amp.kicad_sch amp.xlsx");
    EXPECT_EQ(parts.out, "nothing to change\n") << parts.err;
    EXPECT_THAT(parts.err, HasSubstr("\"Parts\" is read (--sheet takes another)"));
    const ProgramRun bill = runInShell("$BOM apply amp.kicad_sch amp.xlsx --sheet 'bill of materials'");
    EXPECT_EQ(bill.out, "nothing to change\n") << bill.err;
    EXPECT_EQ(read(schematic), m_before);
}

TEST_F(SpreadsheetEdits, ChangesOfTheBillAreNotLostWhereTheSheetOfPartsIsRead)
{
    const auto mpn = [](const char *text) {
        return sheetOf("MPN", QByteArray("<c t=\"str\"><v>") + text + "</v></c>");
    };
    const auto both = [&](const char *parts, const char *bill) {
        return xlsxBytes(mpn(parts), "<sst/>", "<styleSheet/>", mpn(bill));
    };
    EXPECT_EQ(applied(both("0603", "0603")).status, 0);
    EXPECT_THAT(applied(both("A", "0603")).out, HasSubstr("R1 MPN: \"0603\" -> \"A\""));
    EXPECT_EQ(applied(both("A", "A")).status, 0);
    const ProgramRun refused = applied(both("0603", "B"));
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.err,
                HasSubstr("edits.xlsx: the sheet \"Bill\" has changes that \"Parts\" does not have, "
                          "such as R1, MPN (--sheet says which of the sheets counts)"));
    EXPECT_EQ(applied(both("0603", "B"), " --sheet Parts").status, 0);
    EXPECT_THAT(applied(both("0603", "B"), " --sheet Bill").out, HasSubstr("-> \"B\""));
    write(list, "Reference,Value,Footprint,Price\nR1,1k,A:0603,3.5\n");
    EXPECT_THAT(applied(xlsxBytes(sheetOf("Price", "<c t=\"str\"><v>abc</v></c>"))).err,
                HasSubstr("cell B2: R1, Price: \"abc\" is no number, and the column has totals"));
    EXPECT_EQ(applied(xlsxBytes(sheetOf("Price", "<c><v>3.50</v></c>"))).out, "nothing to change\n");
}

TEST_F(SpreadsheetEdits, CellsAreTextsOrAreRefusedWithTheirAddress)
{
    const QByteArray styles = "<styleSheet><numFmts><numFmt numFmtId=\"200\" formatCode=\"dd/mm\"/></numFmts>"
                              "<cellXfs><xf/><xf numFmtId=\"14\"/><xf numFmtId=\"200\"/><xf numFmtId=\"9\"/>"
                              "</cellXfs></styleSheet>";
    const std::tuple<const char *, const char *, const char *> cases[] = {
        {"MPN", "<c t=\"inlineStr\"><is><r><t>ab</t></r><r><t>c</t></r></is></c>",
         "R1 MPN: \"0603\" -> \"abc\""},
        {"MPN", "<c t=\"s\"><v>0</v></c>", "-> \"shared A\""},
        {"MPN", "<c t=\"str\"><v>0603</v></c>", "nothing to change"},
        {"MPN", "<c/>", "R1 MPN: \"0603\" -> removed"},
        {"MPN", "<c><v>4.50</v></c>", "-> \"4.5\""},
        {"MPN", "<c><v>603</v></c>", "\"0603\" became \"603\": zeros in front are gone"},
        {"MPN", "<c t=\"e\"><v>#N/A</v></c>", "cell B2: R1, MPN: the cell holds an error"},
        {"PN", "<c s=\"1\"><v>45293.5</v></c>",
         "a date or time and no text, shown as \"2024-01-02 12:00:00\""},
        {"PN", "<c s=\"2\"><v>45293</v></c>", "shown as \"2024-01-02\""},
        {"PN", "<c s=\"3\"><v>0.05</v></c>", "cell B2: R1, PN: the cell holds a percentage"},
        {"PN", "<c><f>6+6</f><v>13</v></c>", "a formula and no text, shown as \"13\" (--accept"},
        {"PN", "<c><f>6+6</f><v>12</v></c>", "nothing to change"},
        {"PN", "<c t=\"b\"><v>1</v></c>", "true or false and no text, shown as \"TRUE\""},
        {"COST", "<c><v>3.90</v></c>", "nothing to change"},
        {"COST", "<c><v>3.9000000000000001</v></c>", "nothing to change"},
        {"COST", "<c><v>3.95</v></c>", "R1 COST: \"3.9\" -> \"3.95\""},
    };
    for (const auto &[property, cell, told] : cases) {
        const ProgramRun result = applied(xlsxBytes(
            sheetOf(property, cell), "<sst><si><t>shared_x0020_A</t><rPh><t>x</t></rPh></si></sst>", styles));
        EXPECT_THAT(result.out + result.err, HasSubstr(told)) << cell;
        EXPECT_EQ(result.status, result.out.empty() ? 1 : 0) << cell;
    }
    EXPECT_THAT(
        applied(xlsxBytes(sheetOf("PN", "<c><f>1</f><v>13</v></c>")), " --accept-spreadsheet-changes").out,
        HasSubstr("\"12\" -> \"13\""));
    EXPECT_THAT(applied(xlsxBytes(sheetOf("COST", "<c><v>4.125</v></c>")), " --locale de_DE").out,
                HasSubstr("\"3.9\" -> \"4.125\""));
    EXPECT_THAT(
        applied(xlsxBytes(sheetOf("PN", "", "<mergeCells><mergeCell ref=\"A2:B2\"/></mergeCells>"))).err,
        HasSubstr("cell B2: R1, PN: the cell is hidden under a merged one"));
}

TEST_F(SpreadsheetEdits, OpenDocumentIsReadAsWell)
{
    const auto row = [](const char *cell, const char *attributes = "") {
        return QByteArray("<t:table-row ") + attributes + "><t:table-cell><x:p>R2</x:p></t:table-cell>" +
               cell + "<t:table-cell t:number-columns-repeated=\"16382\"/></t:table-row>";
    };
    const std::pair<QByteArray, const char *> cases[] = {
        {row("<t:table-cell><x:p>a<x:s x:c=\"2\"/> b</x:p><x:p>c</x:p></t:table-cell>"),
         "A line break cannot be written"},
        {row("<t:table-cell><x:p>a <x:s/><x:span>b</x:span></x:p></t:table-cell>", "t:visibility=\"filter\""),
         "-> \"a  b\""},
        {row("<t:table-cell o:value-type=\"currency\" o:value=\"5\"/>"), "\"$5\" became the number 5"},
        {row("<t:table-cell o:value-type=\"date\" o:date-value=\"2024-01-02\"/>"), "shown as \"2024-01-02\""},
        {row("<t:table-cell o:value-type=\"boolean\"><x:p>WAHR</x:p></t:table-cell>"), "cell B2: R2, MPN: "},
        {row("<t:covered-table-cell/>"), "under a merged one"},
        {row("<t:table-cell t:formula=\"of:=1\"><x:p>1</x:p></t:table-cell>"), "a formula"},
    };
    const QByteArray headings =
        "<t:table-header-rows><t:table-row><t:table-cell><x:p>Reference</x:p></t:table-cell>"
        "<t:table-cell><x:p>MPN</x:p></t:table-cell></t:table-row></t:table-header-rows>";
    for (const auto &[cells, told] : cases) {
        const ProgramRun result =
            applied(odsBytes(headings + cells + "<t:table-row t:number-rows-repeated=\"1048574\"/>"));
        EXPECT_THAT(result.out + result.err, HasSubstr(told)) << cells.toStdString();
        EXPECT_EQ(result.err.find("1 row is hidden") != std::string::npos, cells.contains("filter"));
    }
}

TEST_F(SpreadsheetEdits, WhatIsNoSpreadsheetIsRefused)
{
    const QByteArray good = xlsxBytes(sheetOf("MPN", "<c><v>1</v></c>"));
    QByteArray damaged = good;
    damaged.replace("<v>1</v>", "<v>2</v>");
    QByteArray large = good;
    // The size of the first part, as the directory has it.
    large.replace(large.indexOf("PK\1\2") + 24, 4, "\xFF\xFF\xFF\x7F");
    QByteArray encrypted = good;
    encrypted[encrypted.indexOf("PK\1\2") + 8] = 1;
    const std::pair<QByteArray, const char *> cases[] = {
        {"Reference,MPN\nR1,1\n", "this is no spreadsheet"},
        {"\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1....", "encrypted or of an older form"},
        {good.first(good.size() / 2), "damaged or cut off"},
        {damaged, "damaged or cut off"},
        {large, "more than 512 MiB"},
        {encrypted, "encrypted"},
        {archiveBytes({{"a", ""}}), "it has no part _rels/.rels"},
        {xlsxBytes("<!DOCTYPE w [<!ENTITY a \"b\">]><w>&a;</w>"), "declares entities"},
        {xlsxBytes(QByteArray("<a>").repeated(1000)), "built in a way"},
        {xlsxBytes("<a>" + QByteArray(300'000, 'x') + "</a>"), "more than 262144 bytes"},
        {odsBytes("<t:table-row t:number-rows-repeated=\"1048576\"><t:table-cell "
                  "t:number-columns-repeated=\"16384\">"
                  "<x:p>x</x:p></t:table-cell></t:table-row>"),
         "the sheet is too large"},
        {xlsxBytes(sheetOf("MPN", "<c r=\"A2\"/>")), "a cell of row 2 has the address \"A2\""},
        {xlsxBytes("<worksheet/>"), "no sheet has a heading for references"},
    };
    for (const auto &[bytes, told] : cases) {
        const ProgramRun result = applied(bytes);
        EXPECT_EQ(result.status, 3) << told;
        EXPECT_THAT(result.err, AllOf(HasSubstr("bom: edits.xlsx: "), HasSubstr(told)));
    }
    EXPECT_THAT(applied(good, " --sheet Teile").err,
                HasSubstr("there is no sheet \"Teile\"; the file has \"Parts\""));
    write(edits, "Reference,MPN\nR1,1\n");
    expectRefused("apply list.csv edits.csv --sheet Parts", "--sheet needs a spreadsheet", 2);
}

TEST_F(SpreadsheetEdits, TablesOfKicadAreReadByTheLabelsOfTheProject)
{
    write(QStringLiteral("amp.kicad_pro"),
          R"({"schematic":{"bom_settings":{"fields_ordered":[
          {"name":"Reference","label":"Bauteil","show":true},{"name":"Value","label":"MPN","show":true},
          {"name":"Footprint","label":"Footprint","show":false},{"name":"${QUANTITY}","label":"Menge","show":true},
          {"name":"MPN","label":"Nummer","show":true},{"name":"${DNP}","label":"DNP","show":true}]}}})");
    const QByteArray parts = kicadSchematic({{"R1", "10k", "(property \"MPN\" \"b\" (at 0 0 0))"},
                                             {"R2", "10k", "(property \"MPN\" \"a\" (at 0 0 0))"},
                                             {"R3", "A/B"}});
    write(schematic, parts);
    write(edits, "\"Bauteil\";\"MPN\";\"Menge\";\"Nummer\";\"DNP\"\n\"R1-R2\";\"10k\";\"2\";\"a,b\";\"DNP\"\n"
                 "\"R3\";\"A{slash}B\";\"1\";\"\";\"\"\n");
    const ProgramRun same = run("apply amp.kicad_sch edits.csv");
    EXPECT_EQ(same.out, "nothing to change\n") << same.err;
    EXPECT_THAT(same.err, HasSubstr("edits.csv: columns that hold no properties are left out: Menge, DNP\n"));
    write(edits, "Bauteil\tNummer\t#\tExclude from BOM\tQty\nR3\tc\t1\t\t1\n");
    const ProgramRun edited = run("apply amp.kicad_sch edits.csv");
    EXPECT_THAT(edited.out, HasSubstr("R3 MPN: none -> \"c\"")) << edited.err;
    EXPECT_THAT(edited.err, HasSubstr("left out: #, Exclude from BOM, Qty\n"));
    write(edits, "Reference,DNP\nR1,\nR3,1\n");
    EXPECT_THAT(done("apply amp.kicad_sch edits.csv --dry-run"), HasSubstr("R3 DNP: none -> \"1\""));
}

TEST_F(SpreadsheetEdits, HeadingsOfTheSheetOfPartsAreNamesOfProperties)
{
    const char *const options = "--fields VALUE,MPN,PN --labels Value,PN,MPN";
    QByteArray sheet = sheetOf("MPN", "<c t=\"str\"><v>a</v></c><c t=\"str\"><v>12</v></c>");
    sheet.replace("<v>MPN</v></c>", "<v>MPN</v></c><c t=\"str\"><v>PN</v></c>");
    write(sheetFile, xlsxBytes(sheet));
    write(edits, "Reference,VALUE,MPN,PN\nR1,1k,a,12\n");
    write(QStringLiteral("titles.csv"), "Reference,Value,PN,MPN\nR1,1k,a,12\n");
    for (const char *file : {"edits.xlsx ", "edits.csv ", "titles.csv "}) {
        EXPECT_THAT(done((std::string("apply list.csv --dry-run ") + file + options).c_str()),
                    AllOf(HasSubstr("R1 MPN: \"0603\" -> \"a\""), HasSubstr("would change 1 property")))
            << file;
    }
}

TEST_F(SpreadsheetEdits, ColumnsOfNewPropertiesAreAddedWhenAskedFor)
{
    write(edits, "Reference,Qty,Shelf,Bin\nR1,1,A,\nR2,1,A,\n");
    EXPECT_THAT(run("apply list.csv edits.csv").err, HasSubstr("column 3 \"Shelf\" is neither"));
    EXPECT_THAT(done("apply list.csv edits.csv --add"),
                AllOf(HasSubstr("R1-R2 Shelf: none -> \"A\""), HasSubstr("new property Shelf on 2 parts\n"),
                      Not(HasSubstr("Qty")), Not(HasSubstr("Bin"))));
}

TEST_F(SpreadsheetEdits, LettersThatAnEncodingLacksAreNoEdits)
{
    write(list, "Reference,Value\nR1,47\u03A9\n");
    write(edits, "Reference,Value\nR1,47?\n");
    expectRefused("apply list.csv edits.csv",
                  "\"47\u03A9\" became \"47?\": characters are gone that its encoding lacks");
}

} // namespace
