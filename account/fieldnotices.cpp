// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/fieldnotices.h"

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
    return u'"' + use.name + QStringLiteral("\" (") +
           counted(use.parts, QStringLiteral("part"), QStringLiteral("parts")) + u')';
}

QString useTexts(const QList<FieldUse> &uses)
{
    constexpr qsizetype mostNames = 5;
    QStringList texts;
    for (const FieldUse &use : uses.first(std::min(mostNames, uses.size()))) {
        texts << useText(use);
    }
    if (uses.size() > mostNames) {
        texts << QString::number(uses.size() - mostNames) + QStringLiteral(" more names");
    }
    return texts.join(QStringLiteral(" and "));
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
            read << reading.asked + QStringLiteral(" from ") + useTexts(reading.others);
        }
        if (!reading.proposed.isEmpty()) {
            proposed << reading.asked + QStringLiteral(" may be ") + useTexts(reading.proposed);
        }
    }
    QStringList notices;
    if (!read.isEmpty()) {
        notices << QStringLiteral("read under other names: ") + read.join(QStringLiteral(", "));
    }
    if (!proposed.isEmpty()) {
        notices << QStringLiteral("not read, as the names do not say it for certain: ") +
                       proposed.join(QStringLiteral(", ")) + QStringLiteral(" (bom fields tells more)");
    }
    return notices;
}

QStringList disagreementNotices(const QList<FieldReading> &readings)
{
    QStringList notices;
    for (const FieldReading &reading : readings) {
        if (!reading.disagreements.isEmpty()) {
            notices << reading.asked + QStringLiteral(": ") +
                           counted(reading.disagreements.size(), QStringLiteral("part has"),
                                   QStringLiteral("parts have")) +
                           QStringLiteral(" different texts under names of this meaning: ") +
                           disagreementText(reading.disagreements);
        }
    }
    return notices;
}

QStringList unheededNotFittedNotices(const LoadedDesign &design)
{
    QStringList notices;
    for (const FieldUse &use : unheededNotFitted(design)) {
        notices << counted(use.parts, QStringLiteral("part says"), QStringLiteral("parts say")) +
                       QStringLiteral(" \"do not fit\" under the name ") + use.name +
                       QStringLiteral(", which leaves no part out as DNP and BOMSKIP do: ") +
                       use.exampleReference + QStringLiteral(" (\"") + use.exampleText +
                       QStringLiteral("\")") + (use.parts > 1 ? QStringLiteral(", ...") : QString());
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
    return {counted(lines.size(), QStringLiteral("line joins"), QStringLiteral("lines join")) +
            QStringLiteral(" parts that differ in what no column shows (bom check lists them): ") +
            joinedLineText(joined.constFirst(), mostTexts)};
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
            remarks << QStringLiteral("the design has ") + useTexts(names);
        }
        texts << column.field + (remarks.isEmpty()
                                     ? QString()
                                     : QStringLiteral(" (") + remarks.join(QStringLiteral("; ")) + u')');
    }
    return texts.isEmpty() ? QStringList()
                           : QStringList(QStringLiteral("no part has anything in ") +
                                         (texts.size() == 1 ? QStringLiteral("the column ")
                                                            : QStringLiteral("the columns ")) +
                                         texts.join(QStringLiteral(", ")));
}

QString disagreementText(const QList<FieldDisagreement> &disagreements)
{
    constexpr qsizetype mostParts = 3;
    constexpr qsizetype mostTexts = 4;
    QStringList parts;
    for (const FieldDisagreement &part : disagreements.first(std::min(mostParts, disagreements.size()))) {
        QStringList texts;
        for (const FieldDisagreement::Text &text : part.texts.first(std::min(mostTexts, part.texts.size()))) {
            texts << u'"' + text.text + QStringLiteral("\" under ") + text.name +
                         (texts.isEmpty() ? QStringLiteral(" is read") : QStringLiteral(" is not"));
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
