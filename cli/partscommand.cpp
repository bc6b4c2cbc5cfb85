// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/partscommand.h"

#include "cli/console.h"
#include "cli/opendesign.h"
#include "cli/partslisting.h"
#include "views/report/jsonreport.h"
#include "views/report/jsonwriter.h"
#include "views/report/report.h"

#include <algorithm>
#include <utility>

namespace {

void writePart(JsonWriter &json, const ListedPart &part)
{
    json.entry(u"reference", part.reference);
    json.entry(u"value", part.value);
    json.entry(u"name", part.name);
    json.entry(u"placed", part.placed);
    json.entry(u"category", part.category);
    json.entry(u"bomPartOf", part.bomPartOf);
    json.key(u"properties");
    json.beginObject();
    for (const ListedPart::Property &property : part.properties) {
        json.entry(property.name, property.value);
    }
    json.endObject();
    if (!part.reason.isEmpty()) {
        json.entry(u"reason", part.reason);
    }
}

void writeParts(JsonWriter &json, QStringView name, const QList<ListedPart> &parts)
{
    json.newLine();
    json.objects(name, parts, [&json](const ListedPart &part) { writePart(json, part); });
}

QByteArray jsonText(OpenDesign &design, const PartsListing &listing)
{
    JsonWriter json;
    json.beginObject();
    writeDesign(json, designOf(design.database()));
    writeParts(json, u"parts", listing.parts);
    writeParts(json, u"skipped", listing.skipped);
    writeParts(json, u"duplicates", listing.duplicates);
    json.newLine();
    json.endObject();
    return json.bytes() + '\n';
}

/// One part as a block: its reference and note, then a line for each property, names in one column.
QString block(const ListedPart &part, const QString &note)
{
    QList<ListedPart::Property> rows{{QStringLiteral("Value"), part.value},
                                     {QStringLiteral("Name"), part.name},
                                     {QStringLiteral("Placed"), part.placed},
                                     {QStringLiteral("Category"), part.category},
                                     {QStringLiteral("BOM part of"), part.bomPartOf}};
    rows.append(part.properties);
    rows.removeIf([](const ListedPart::Property &row) { return row.value.isEmpty(); });
    qsizetype width = 0;
    for (const ListedPart::Property &row : std::as_const(rows)) {
        width = std::max(width, printable(row.name).size());
    }
    QString text = printable(part.reference);
    if (!note.isEmpty()) {
        text += QStringLiteral(" (") + printable(note) + u')';
    }
    text += u'\n';
    for (const ListedPart::Property &row : std::as_const(rows)) {
        text += QStringLiteral("  ") + printable(row.name).leftJustified(width) + QStringLiteral("  ") +
                printable(row.value) + u'\n';
    }
    return text;
}

QString readableText(const PartsListing &listing)
{
    QString text;
    for (const ListedPart &part : listing.parts) {
        text += block(part, {});
    }
    for (const ListedPart &part : listing.skipped) {
        text += block(part, QStringLiteral("skipped: ") + part.reason);
    }
    for (const ListedPart &part : listing.duplicates) {
        text += block(part, QStringLiteral("repeated reference"));
    }
    return text;
}

} // namespace

void PartsCommand::addTo(CLI::App &program)
{
    m_app =
        program.add_subcommand("parts", QT_TRANSLATE_NOOP("Help", "List every part with all its properties"));
    m_design.addTo(*m_app);
    m_app->add_flag("--json", m_json,
                    QT_TRANSLATE_NOOP("Help", "Write JSON for programs instead of text for people"));
}

ExitStatus PartsCommand::run()
{
    OpenDesign design;
    if (const ExitStatus status = design.open(m_design, false); status != ExitStatus::Done) {
        return status;
    }
    const PartsListing listing = listParts(design);
    // Only now: the board file is read when the first part is placed.
    console::notices(design.session().warnings());
    const QByteArray text = m_json ? jsonText(design, listing) : readableText(listing).toUtf8();
    return console::write(text) ? ExitStatus::Done : ExitStatus::UnwritableOutput;
}
