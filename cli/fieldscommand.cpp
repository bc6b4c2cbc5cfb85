// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/fieldscommand.h"

#include "account/fieldnotices.h"
#include "account/sentences.h"
#include "cli/opendesign.h"
#include "cli/texts.h"
#include "host/framework/userlanguage.h"
#include "standalone/fieldtables.h"
#include "standalone/fieldtitles.h"
#include "standalone/loadeddesign.h"
#include "views/report/jsonreport.h"
#include "views/report/jsonwriter.h"
#include "views/report/report.h"

#include <algorithm>
#include <memory>

namespace {

QString partsText(qsizetype count)
{
    return counted(count, CommandLine::tr("part"), CommandLine::tr("parts"));
}

QString shortened(const QString &text)
{
    constexpr qsizetype longest = 50;
    return printable(text.size() > longest ? text.first(longest - 1) + QChar(u'…') : text);
}

/// The names in columns: name, parts, example, and what else there is to say of each.
QString nameLines(const QList<FieldUse> &uses, const QStringList &remarks = {})
{
    qsizetype width = 0;
    qsizetype partsWidth = 0;
    for (const FieldUse &use : uses) {
        width = std::max(width, printable(use.name).size());
        partsWidth = std::max(partsWidth, partsText(use.parts).size());
    }
    QString text;
    for (qsizetype i = 0; i < uses.size(); ++i) {
        const FieldUse &use = uses.at(i);
        const QString parts = partsText(use.parts);
        text +=
            QStringLiteral("  ") + printable(use.name).leftJustified(width) + QStringLiteral("  ") +
            parts.rightJustified(partsWidth) + QStringLiteral("  ") +
            CommandLine::tr("\"%1\" on %2").arg(shortened(use.exampleText), printable(use.exampleReference)) +
            remarks.value(i) + u'\n';
    }
    return text;
}

QString meaningText(const FieldOverview::Meaning &meaning)
{
    const QString title =
        QStringLiteral("%1 [%2], %3")
            .arg(shownTitle(meaning.meaning), meaning.meaning.key, partsText(meaning.parts));
    QString text = (meaning.meaning.use == FieldMeaning::Use::Listed
                        ? CommandLine::tr("%1; each name is read by itself only").arg(title)
                        : title) +
                   u'\n' + nameLines(meaning.names);
    if (!meaning.disagreements.isEmpty()) {
        const qsizetype count = meaning.disagreements.size();
        text += QStringLiteral("  ") +
                oneOrMany(count, CommandLine::tr("different texts on %1 part: %2"),
                          CommandLine::tr("different texts on %1 parts: %2"))
                    .arg(QString::number(count), printable(disagreementText(meaning.disagreements))) +
                u'\n';
    }
    return text;
}

/// The names that may mean something, and how to have them read.
QString proposalsText(const QList<FieldOverview::Proposal> &proposals, const QString &table)
{
    QList<FieldUse> uses;
    QStringList remarks;
    for (const FieldOverview::Proposal &proposal : proposals) {
        QStringList meanings;
        for (const FieldMeaning &meaning : proposal.meanings) {
            meanings << shownTitle(meaning) + QStringLiteral(" [") + meaning.key + u']';
        }
        uses << proposal.name;
        remarks << CommandLine::tr(": may be %1").arg(meanings.join(QStringLiteral(", ")));
    }
    if (uses.isEmpty()) {
        return {};
    }
    const FieldOverview::Proposal &first = proposals.first();
    return CommandLine::tr("Not read, as the name does not say it for certain") + u'\n' +
           nameLines(uses, remarks) + QStringLiteral("  ") +
           CommandLine::tr("To have one read, write it below its meaning into %1:")
               .arg(printable(console::withShownPaths(table))) +
           QStringLiteral("\n    [") + first.meanings.first().key + QStringLiteral("]\n    ") +
           printable(first.name.name) + u'\n';
}

QString readableText(const FieldOverview &overview, const QString &table)
{
    QStringList blocks;
    for (const FieldOverview::Meaning &meaning : overview.meanings) {
        if (meaning.meaning.use != FieldMeaning::Use::Ignored) {
            blocks << meaningText(meaning);
        }
    }
    blocks << proposalsText(overview.proposals, table);
    if (!overview.others.isEmpty()) {
        blocks << CommandLine::tr("Without a known meaning") + u'\n' + nameLines(overview.others);
    }
    blocks.removeAll(QString());
    return blocks.isEmpty() ? CommandLine::tr("no part has a property besides value and footprint") + u'\n'
                            : blocks.join(u'\n');
}

void writeUse(JsonWriter &json, const FieldUse &use)
{
    json.entry(u"name", use.name);
    json.key(u"parts");
    json.number(use.parts);
    json.entry(u"reference", use.exampleReference);
    json.entry(u"text", use.exampleText);
}

void writeDisagreement(JsonWriter &json, const FieldDisagreement &part)
{
    json.entry(u"reference", part.reference);
    json.key(u"texts");
    json.beginArray();
    for (const FieldDisagreement::Text &text : part.texts) {
        json.beginObject();
        json.entry(u"name", text.name);
        json.entry(u"text", text.text);
        json.endObject();
    }
    json.endArray();
}

void writeUses(JsonWriter &json, QStringView name, const QList<FieldUse> &uses)
{
    json.objects(name, uses, [&json](const FieldUse &use) { writeUse(json, use); });
}

void writeMeaning(JsonWriter &json, const FieldOverview::Meaning &meaning)
{
    json.entry(u"meaning", meaning.meaning.key);
    json.entry(u"title", meaning.meaning.title);
    json.entry(u"use", meaning.meaning.use == FieldMeaning::Use::Read     ? u"read"
                       : meaning.meaning.use == FieldMeaning::Use::Listed ? u"listed"
                                                                          : u"ignored");
    json.key(u"parts");
    json.number(meaning.parts);
    writeUses(json, u"names", meaning.names);
    json.objects(u"disagreements", meaning.disagreements,
                 [&json](const FieldDisagreement &part) { writeDisagreement(json, part); });
}

void writeProposal(JsonWriter &json, const FieldOverview::Proposal &proposal)
{
    writeUse(json, proposal.name);
    json.key(u"meanings");
    json.beginArray();
    for (const FieldMeaning &meaning : proposal.meanings) {
        json.text(meaning.key);
    }
    json.endArray();
}

QByteArray jsonText(OpenDesign &design, const FieldOverview &overview)
{
    JsonWriter json;
    json.beginObject();
    writeDesign(json, designOf(design.database()));
    json.newLine();
    json.objects(u"meanings", overview.meanings,
                 [&json](const FieldOverview::Meaning &meaning) { writeMeaning(json, meaning); });
    json.newLine();
    json.objects(u"proposed", overview.proposals,
                 [&json](const FieldOverview::Proposal &proposal) { writeProposal(json, proposal); });
    json.newLine();
    writeUses(json, u"unknown", overview.others);
    json.newLine();
    json.endObject();
    return json.bytes() + '\n';
}

} // namespace

void FieldsCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand(
        "fields", QT_TRANSLATE_NOOP("Help", "List the names of properties by what they mean: how many parts "
                                            "have them, where they disagree, which names are not read"));
    m_design.addDesign(*m_app);
    m_design.addReading(*m_app);
    m_design.addAsIs(*m_app);
    m_app->add_flag("--json", m_json,
                    QT_TRANSLATE_NOOP("Help", "Write JSON for programs instead of text for people"));
}

ExitStatus FieldsCommand::run()
{
    const auto plain = m_json ? std::make_unique<PlainLanguage>() : nullptr;
    OpenDesign design;
    if (const ExitStatus status = design.open(m_design, true); status != ExitStatus::Done) {
        return status;
    }
    const FieldOverview overview = fieldOverview(design.design());
    const QByteArray text =
        m_json ? jsonText(design, overview)
               : readableText(overview, fieldTableBeside(design.design().design().info().file)).toUtf8();
    return console::write(text) ? ExitStatus::Done : ExitStatus::UnwritableOutput;
}
