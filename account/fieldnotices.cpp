// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/fieldnotices.h"

#include "account/design/texts.h"
#include "account/sentences.h"
#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "standalone/buyerfields.h"

#include <QSet>

#include <algorithm>

namespace {

/// MPN from "manf#" (12 parts): the name with its parts.
QString useText(const FieldUse &use)
{
    return oneOrMany(use.parts, AccountTexts::tr("\"%1\" (%2 part)"), AccountTexts::tr("\"%1\" (%2 parts)"))
        .arg(use.name, QString::number(use.parts));
}

QString useTexts(const QList<FieldUse> &uses)
{
    constexpr qsizetype mostNames = 5;
    QStringList texts;
    for (const FieldUse &use : uses.first(std::min(mostNames, uses.size()))) {
        texts << useText(use);
    }
    if (uses.size() > mostNames) {
        texts << AccountTexts::tr("%1 more names").arg(uses.size() - mostNames);
    }
    return texts.join(AccountTexts::tr(" and "));
}

void addBomOnlyParts(FieldReading *reading, const BOMPartsDatabase &database)
{
    const QString own = reading->asked.toUpper();
    const auto parts = database.parts();
    const auto isPlaced = [](const Part *part) { return !part->isBOMPart(); };
    for (auto it = std::partition_point(parts.begin(), parts.end(), isPlaced); it != parts.end(); ++it) {
        const Part *part = *it;
        const QString name = static_cast<const BOMPart *>(part)->storedName(reading->asked);
        if (name == own) {
            continue;
        }
        const auto isSame = [&name](const FieldUse &use) {
            return use.name.compare(name, Qt::CaseInsensitive) == 0;
        };
        auto use = std::find_if(reading->others.begin(), reading->others.end(), isSame);
        if (use == reading->others.end()) {
            use = reading->others.insert(use, {name, 0, part->reference(), part->property(reading->asked)});
        }
        ++use->parts;
    }
}

/// The names by which a design may have what a property means.
QList<FieldUse> namesFor(const QString &property, const LoadedDesign &design, const FieldOverview &overview)
{
    const FieldNames &names = *design.properties().fields().names();
    const FieldSense sense = names.senseOf(property);
    QStringList keys;
    if (sense.meaning) {
        keys << names.meanings()[*sense.meaning].key;
    }
    for (const std::size_t meaning : sense.proposed) {
        keys << names.meanings()[meaning].key;
    }
    QList<FieldUse> found;
    for (const FieldOverview::Meaning &meaning : overview.meanings) {
        if (keys.contains(meaning.meaning.key)) {
            found += meaning.names;
        }
    }
    for (const FieldOverview::Proposal &proposal : overview.proposals) {
        const auto &meanings = proposal.meanings;
        if (std::any_of(meanings.begin(), meanings.end(),
                        [&keys](const FieldMeaning &meaning) { return keys.contains(meaning.key); })) {
            found << proposal.name;
        }
    }
    return found;
}

} // namespace

QList<FieldReading> billReadings(const LoadedDesign &design, const BOMPartsDatabase &database,
                                 const QStringList &further)
{
    QStringList asked;
    for (const BOMField &field : database.currentTemplate().fields().fields()) {
        asked << field.propertyName;
    }
    QList<FieldReading> readings = fieldReadings(design, asked + further);
    for (FieldReading &reading : readings) {
        addBomOnlyParts(&reading, database);
    }
    readings.removeIf([](const FieldReading &reading) {
        return reading.others.isEmpty() && reading.disagreements.isEmpty() && reading.proposed.isEmpty();
    });
    return readings;
}

QStringList otherNameNotices(const QList<FieldReading> &readings)
{
    QStringList read;
    QStringList proposed;
    for (const FieldReading &reading : readings) {
        if (!reading.others.isEmpty()) {
            read << AccountTexts::tr("%1 from %2").arg(reading.asked, useTexts(reading.others));
        }
        if (!reading.proposed.isEmpty()) {
            proposed << AccountTexts::tr("%1 may be %2").arg(reading.asked, useTexts(reading.proposed));
        }
    }
    QStringList notices;
    if (!read.isEmpty()) {
        notices << AccountTexts::tr("read under other names: %1").arg(read.join(QStringLiteral(", ")));
    }
    if (!proposed.isEmpty()) {
        notices << AccountTexts::tr("not read, as the names do not say it for certain: %1 (bom fields tells "
                                    "more)")
                       .arg(proposed.join(QStringLiteral(", ")));
    }
    return notices;
}

QStringList disagreementNotices(const QList<FieldReading> &readings)
{
    QStringList notices;
    for (const FieldReading &reading : readings) {
        if (!reading.disagreements.isEmpty()) {
            const qsizetype count = reading.disagreements.size();
            notices
                << oneOrMany(
                       count,
                       AccountTexts::tr("%1: %2 part has different texts under names of this meaning: %3"),
                       AccountTexts::tr("%1: %2 parts have different texts under names of this meaning: %3"))
                       .arg(reading.asked, QString::number(count), disagreementText(reading.disagreements));
        }
    }
    return notices;
}

QStringList unheededNotFittedNotices(const LoadedDesign &design)
{
    QStringList notices;
    for (const FieldUse &use : unheededNotFitted(design)) {
        notices << oneOrMany(
                       use.parts,
                       AccountTexts::tr("%1 part says \"do not fit\" under the name %2, which leaves no "
                                        "part out as DNP and BOMSKIP do: %3 (\"%4\")"),
                       AccountTexts::tr("%1 parts say \"do not fit\" under the name %2, which leaves no "
                                        "part out as DNP and BOMSKIP do: %3 (\"%4\"), ..."))
                       .arg(QString::number(use.parts), use.name, use.exampleReference, use.exampleText);
    }
    return notices;
}

QList<JoinedLine> billJoinedLines(const LoadedDesign &design, const BOMPartsDatabase &database)
{
    const TellingProperties telling = tellingProperties(design);
    return joinedLines(database, telling.always, telling.whereFilled);
}

QStringList joinedLineNotices(const QList<JoinedLine> &joined)
{
    constexpr qsizetype mostTexts = 5;
    QSet<QString> lines;
    for (const JoinedLine &line : joined) {
        lines.insert(line.category + QChar::Null + line.reference());
    }
    if (lines.isEmpty()) {
        return {};
    }
    return {oneOrMany(lines.size(),
                      AccountTexts::tr("%1 line joins parts that differ in what no column shows (bom check "
                                       "lists them): %2"),
                      AccountTexts::tr("%1 lines join parts that differ in what no column shows (bom check "
                                       "lists them): %2"))
                .arg(QString::number(lines.size()), joinedLineText(joined.constFirst(), mostTexts))};
}

QStringList emptyColumnNotices(const LoadedDesign &design, const BOMPartsDatabase &database)
{
    const QList<EmptyColumn> columns = emptyColumns(database);
    const bool hasMeanings = design.properties().fields().names() != nullptr;
    const FieldOverview overview =
        !columns.isEmpty() && hasMeanings ? fieldOverview(design) : FieldOverview();
    QStringList texts;
    for (const EmptyColumn &column : columns) {
        if (FieldNames::isOwn(column.property)) {
            continue; // such as DNP, which a choice leaves out
        }
        const QList<FieldUse> names =
            hasMeanings ? namesFor(column.property, design, overview) : QList<FieldUse>();
        QStringList remarks;
        if (column.field.compare(column.property, Qt::CaseInsensitive) != 0) {
            remarks << column.property;
        }
        if (!names.isEmpty()) {
            remarks << AccountTexts::tr("the design has %1").arg(useTexts(names));
        }
        texts << column.field + (remarks.isEmpty()
                                     ? QString()
                                     : QStringLiteral(" (") + remarks.join(QStringLiteral("; ")) + u')');
    }
    if (texts.isEmpty()) {
        return {};
    }
    return {oneOrMany(texts.size(), AccountTexts::tr("no part has anything in the column %1"),
                      AccountTexts::tr("no part has anything in the columns %1"))
                .arg(texts.join(QStringLiteral(", ")))};
}

QString disagreementText(const QList<FieldDisagreement> &disagreements)
{
    constexpr qsizetype mostParts = 3;
    constexpr qsizetype mostTexts = 4;
    QStringList parts;
    for (const FieldDisagreement &part : disagreements.first(std::min(mostParts, disagreements.size()))) {
        QStringList texts;
        for (const FieldDisagreement::Text &text : part.texts.first(std::min(mostTexts, part.texts.size()))) {
            texts << (texts.isEmpty() ? AccountTexts::tr("\"%1\" under %2 is read")
                                      : AccountTexts::tr("\"%1\" under %2 is not"))
                         .arg(text.text, text.name);
        }
        if (part.texts.size() > mostTexts) {
            texts << QStringLiteral("...");
        }
        parts << part.reference + QStringLiteral(" (") + texts.join(QStringLiteral(", ")) + u')';
    }
    if (disagreements.size() > mostParts) {
        parts << QStringLiteral("...");
    }
    return parts.join(QStringLiteral(", "));
}
