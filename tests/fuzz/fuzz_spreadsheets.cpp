// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include "sheets/spreadsheetreader.h"
#include "support/spreadsheetbytes.h"

namespace {

const SheetLimits limits{1 << 20, 1 << 20, 20, 5000, 100'000};

void checkSheet(const Sheet &sheet)
{
    qsizetype cells = 0;
    int last = 0;
    for (const SheetRow &row : sheet.rows) {
        promise(row.number > last && row.number <= SheetBuilder::MostRows, "rows follow each other");
        promise(row.cells.size() <= SheetBuilder::MostColumns, "a row is within the sheet");
        last = row.number;
        cells += row.cells.size();
    }
    promise(cells <= limits.cells, "a sheet has no more cells than allowed");
}

/// The archive, or one of which the input is what matters.
QByteArray fileOf(const QByteArray &input)
{
    const QByteArray content = input.mid(1);
    const QList<QByteArray> parts = content.split('\f');
    switch (input.front()) {
    case 'x':
        return xlsxBytes(parts.value(0), parts.value(1), parts.value(2));
    case 'o':
        return odsBytes(content);
    case 'c':
        return archiveBytes({{"content.xml", content}});
    default:
        return content;
    }
}

} // namespace

/// The first byte says what the rest is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    QString problem;
    const auto file = openSpreadsheet(
        fileOf(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size))), &problem, limits);
    promise(file || !problem.isEmpty(), "a refusal says why");
    for (qsizetype i = 0; file && i < std::min<qsizetype>(file->sheetNames().size(), 3); ++i) {
        const auto sheet = file->sheet(i, &problem);
        promise(sheet || !problem.isEmpty(), "a refusal of a sheet says why");
        if (sheet) {
            checkSheet(*sheet);
        }
    }
    return 0;
}

std::vector<std::string> fuzzSeeds()
{
    const std::string sheet = "<worksheet><sheetData><row r=\"1\"><c r=\"A1\" t=\"s\"><v>0</v></c><c "
                              "t=\"inlineStr\"><is><r><t>a</t></r><rPh>"
                              "<t>b</t></rPh></is></c></row><row r=\"3\" hidden=\"1\"><c r=\"B3\" "
                              "s=\"1\"><v>45000.5</v></c><c r=\"C3\"><f>1+1</f>"
                              "<v>2</v></c><c r=\"AB3\" t=\"b\"><v>1</v></c><c "
                              "t=\"e\"><v>#N/A</v></c></row></sheetData><mergeCells><mergeCell "
                              "ref=\"A1:B3\"/></mergeCells></worksheet>";
    const std::string texts = "<sst><si><t>R_x0041_1</t></si></sst>";
    const std::string styles =
        "<styleSheet><numFmts><numFmt numFmtId=\"200\" formatCode=\"yyyy\\-mm&quot;x&quot;\"/></numFmts>"
        "<cellXfs><xf numFmtId=\"0\"/><xf numFmtId=\"200\"/></cellXfs></styleSheet>";
    const std::string rows = "<t:table-row t:number-rows-repeated=\"2\"><t:table-cell "
                             "o:value-type=\"string\"><x:p>a<x:s x:c=\"3\"/>b <x:tab/>"
                             "</x:p><x:p>c</x:p></t:table-cell><t:covered-table-cell "
                             "t:number-columns-repeated=\"2\"/><t:table-cell "
                             "o:value-type=\"float\" o:value=\"1.50\" "
                             "t:formula=\"of:=1\"/></t:table-row><t:table-row-group><t:table-row "
                             "t:visibility=\"filter\"><t:table-cell o:value-type=\"date\" "
                             "o:date-value=\"2024-01-02\"/></t:table-row>"
                             "</t:table-row-group>";
    const QByteArray whole = xlsxBytes(QByteArray::fromStdString(sheet));
    const QByteArray ods = odsBytes(QByteArray::fromStdString(rows));
    return {"x" + sheet + '\f' + texts + '\f' + styles, "o" + rows, "a" + whole.toStdString(),
            "a" + ods.toStdString()};
}

std::vector<std::string> fuzzWords()
{
    return {"<t>",
            "</t>",
            "<c ",
            "<row ",
            "r=\"A1\"",
            "r=\"XFD1048576\"",
            "t=\"s\"",
            "<v>",
            "<f/>",
            "\f",
            "\"",
            "&amp;",
            "&a;",
            "<!DOCTYPE a [<!ENTITY a \"b\">]>",
            "<![CDATA[",
            "]]>",
            "<!--",
            "_x000D_",
            "99999999999",
            "-1",
            "1e308",
            "nan",
            "t:number-columns-repeated=\"16384\"",
            "t:number-rows-repeated=\"1048576\"",
            "<x:s x:c=\"1000000\"/>",
            "PK\1\2",
            "PK\3\4",
            "PK\5\6",
            std::string(4, '\xFF'),
            std::string(4, '\0')};
}
