// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/jsonreport.h"

#include "core/part.h"
#include "templates/bomtemplate.h"
#include "views/report/jsonwriter.h"
#include "views/report/report.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace {

/// The joined lines by category and first reference.
using JoinedLines = QMultiHash<std::pair<QString, QString>, JoinedLine>;

void writeDifference(JsonWriter &json, const JoinedLine &joined)
{
    json.entry(u"property", joined.property);
    json.objects(u"texts", joined.texts, [&json](const JoinedLine::Text &text) {
        json.entry(u"text", text.text);
        writeTexts(json, u"references", text.references);
    });
}

void writeQuantity(JsonWriter &json, QStringView name, const Report::Quantity &quantity)
{
    json.key(name);
    json.number(quantity.counted);
    if (quantity.notFitted > 0) {
        json.key(u"notFitted");
        json.number(quantity.notFitted);
    }
}

void writeLine(JsonWriter &json, const Report &report, BomLine line, const QList<JoinedLine> &differences)
{
    writeQuantity(json, u"quantity", Report::quantity(line));
    json.key(u"references");
    json.beginArray();
    for (const Part *part : line) {
        json.text(part->reference());
    }
    json.endArray();
    json.entry(u"text", report.references(line));
    QStringList shown;
    QStringList stored;
    for (const ReportColumn &column : report.columns()) {
        shown << report.text(*line.front(), column);
        stored << line.front()->storedProperty(column.property);
    }
    writeTexts(json, u"values", shown);
    if (stored != shown) {
        writeTexts(json, u"stored", stored);
    }
    if (!differences.isEmpty()) {
        json.objects(u"differences", differences,
                     [&json](const JoinedLine &joined) { writeDifference(json, joined); });
    }
}

void writeCategory(JsonWriter &json, const Report &report, const QString &category, const JoinedLines &joined)
{
    json.entry(u"name", category);
    writeQuantity(json, u"parts", report.partCount(category));
    const ReportLines listed = report.lines(category, true);
    json.objects(u"lines", listed.lines, [&](BomLine line) {
        QList<JoinedLine> differences = joined.values({category, line.front()->reference()});
        std::reverse(differences.begin(), differences.end());
        writeLine(json, report, line, differences);
    });
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

QByteArray jsonReport(const Report &report, const QList<JoinedLine> &joined)
{
    JoinedLines byLine;
    for (const JoinedLine &line : joined) {
        byLine.insert({line.category, line.reference()}, line);
    }
    JsonWriter json;
    json.beginObject();
    writeDesign(json, report.design());
    json.newLine();
    json.entry(u"template", report.settings().name());
    json.newLine();
    writeTexts(json, u"columns", report.columnNames());
    json.newLine();
    json.objects(u"categories", report.categories(),
                 [&](const QString &category) { writeCategory(json, report, category, byLine); });
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
