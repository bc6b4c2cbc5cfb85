// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/bomjsonview.h"

#include "cli/designjson.h"
#include "core/bompartsdatabase.h"
#include "views/report/jsonwriter.h"

namespace {

void writeTexts(JsonWriter &json, QStringView name, const QStringList &texts)
{
    json.key(name);
    json.beginArray();
    for (const QString &text : texts) {
        json.text(text);
    }
    json.endArray();
}

} // namespace

BOMJsonView::BOMJsonView(QWidget *parent)
    : BOMView(parent)
{
}

QByteArray BOMJsonView::json()
{
    if (!isValid()) {
        return {};
    }
    updateFields();
    removeValueField();
    JsonWriter json;
    json.beginObject();
    writeDesign(json, *database());
    json.newLine();
    json.entry(u"template", database()->currentTemplate().name());
    json.newLine();
    writeTexts(json, u"columns", fields().names());
    json.newLine();
    json.key(u"categories");
    json.beginArray();
    for (const QString &category : database()->categoryNames()) {
        writeCategory(json, category);
    }
    json.endArray();
    json.newLine();
    writeTexts(json, u"totals", grandTotals());
    json.newLine();
    json.endObject();
    return json.bytes() + '\n';
}

void BOMJsonView::handleBOMDataUpdate() {}

void BOMJsonView::writeCategory(JsonWriter &json, const QString &category) const
{
    json.newLine();
    json.beginObject();
    json.entry(u"name", category);
    json.key(u"parts");
    json.number(database()->partCount(category));
    json.key(u"lines");
    json.beginArray();
    const ReportLines report = database()->categories().reportLines(category, true);
    for (const BomLine line : report.lines) {
        writeLine(json, line);
    }
    json.endArray();
    json.newLine();
    writeTexts(json, u"subTotals", categorySubTotals(category));
    json.endObject();
}

void BOMJsonView::writeLine(JsonWriter &json, BomLine line) const
{
    json.newLine();
    json.beginObject();
    json.key(u"quantity");
    json.number(qint64(line.size()));
    json.key(u"references");
    json.beginArray();
    for (const Part *part : line) {
        json.text(part->reference());
    }
    json.endArray();
    json.entry(u"text", database()->categories().formatReferences(line, UnlimitedWidth, 1));
    json.key(u"values");
    json.beginArray();
    for (const ReportColumn &column : columns()) {
        json.text(cellText(*line.front(), column, true));
    }
    json.endArray();
    json.endObject();
}
