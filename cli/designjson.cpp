// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/designjson.h"

#include "core/bompartsdatabase.h"
#include "views/report/jsonwriter.h"

void writeDesign(JsonWriter &json, const BOMPartsDatabase &database)
{
    json.key(u"design");
    json.beginObject();
    json.entry(u"title", database.designTitle());
    json.entry(u"author", database.designAuthor());
    json.entry(u"docno", database.designDocumentNumber());
    json.entry(u"rev", database.designRevision());
    json.entry(u"created", database.designCreated());
    json.entry(u"modified", database.designModified());
    json.entry(u"variant", database.designVariant());
    json.entry(u"file", database.designInfo("FILENAME"));
    json.endObject();
}
