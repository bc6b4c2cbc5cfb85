// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/jsonreport.h"

#include "core/part.h"
#include "templates/bomtemplate.h"
#include "views/report/jsonwriter.h"
#include "views/report/report.h"

namespace {

void writeLine(JsonWriter &json, const Report &report, BomLine line)
{
    json.key(u"quantity");
    json.number(qint64(line.size()));
    json.key(u"references");
    json.beginArray();
    for (const Part *part : line) {
        json.text(part->reference());
    }
    json.endArray();
    json.entry(u"text", report.references(line));
    json.key(u"values");
    json.beginArray();
    for (const ReportColumn &column : report.columns()) {
        json.text(report.text(*line.front(), column));
    }
    json.endArray();
}

void writeCategory(JsonWriter &json, const Report &report, const QString &category)
{
    json.entry(u"name", category);
    json.key(u"parts");
    json.number(report.partCount(category));
    const ReportLines listed = report.lines(category, true);
    json.objects(u"lines", listed.lines, [&](BomLine line) { writeLine(json, report, line); });
    json.newLine();
    writeTexts(json, u"subTotals", report.texts(report.subTotals(category)));
}

} // namespace

void writeTexts(JsonWriter &json, QStringView name, const QStringList &texts)
{
    json.key(name);
    json.beginArray();
    for (const QString &text : texts) {
        json.text(text);
    }
    json.endArray();
}

QByteArray jsonReport(const Report &report)
{
    JsonWriter json;
    json.beginObject();
    writeDesign(json, report.design());
    json.newLine();
    json.entry(u"template", report.settings().name());
    json.newLine();
    writeTexts(json, u"columns", report.columnNames());
    json.newLine();
    json.objects(u"categories", report.categories(),
                 [&](const QString &category) { writeCategory(json, report, category); });
    json.newLine();
    writeTexts(json, u"totals", report.texts(report.grandTotals()));
    json.newLine();
    json.endObject();
    return json.bytes() + '\n';
}

void writeDesign(JsonWriter &json, const ReportDesign &design)
{
    json.key(u"design");
    json.beginObject();
    json.entry(u"title", design.title);
    json.entry(u"author", design.author);
    json.entry(u"docno", design.documentNumber);
    json.entry(u"rev", design.revision);
    json.entry(u"created", design.created);
    json.entry(u"modified", design.modified);
    json.entry(u"variant", design.variant);
    json.entry(u"file", design.file);
    json.endObject();
}
