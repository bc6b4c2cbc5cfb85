// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/changelist.h"

#include "account/sentences.h"
#include "cli/console.h"
#include "cli/texts.h"
#include "core/reference.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {

/// Of equal changes, only the number of the places that follow is told.
constexpr qsizetype mostPlaces = 5;

/// Changes that differ in nothing but the part.
struct EqualChanges
{
    CDBCHANGE first;
    QStringList references;
    QStringList alsoChanges;
    /// File and line, each once.
    QList<std::pair<QString, int>> places;
};

/// What they say, with lengths where texts could run into each other.
QString sameness(const CDBCHANGE &change)
{
    const auto framed = [](const std::optional<QString> &text) {
        return text ? QString::number(text->size()) + u':' + *text : QStringLiteral("-");
    };
    return framed(change.name) + framed(change.before) + framed(change.after) + framed(change.variant);
}

/// In the order of the first of each.
QList<EqualChanges> grouped(const QList<CDBCHANGE> &changes)
{
    QList<EqualChanges> groups;
    QHash<QString, qsizetype> found;
    for (const CDBCHANGE &change : changes) {
        const QString key = sameness(change);
        if (!found.contains(key)) {
            found.insert(key, groups.size());
            groups.append({change, {}, {}, {}});
        }
        EqualChanges &group = groups[found.value(key)];
        group.references << change.reference;
        group.alsoChanges << change.alsoChanges;
        if (const std::pair place{change.file, change.line}; !group.places.contains(place)) {
            group.places << place;
        }
    }
    return groups;
}

/// "amp.kicad_sch:12, 40, power.kicad_sch:7 and 3 more places".
QString placesText(const EqualChanges &group)
{
    QString text;
    QString file;
    for (const auto &[name, line] : group.places.first(std::min(group.places.size(), mostPlaces))) {
        text += text.isEmpty() ? QString() : QStringLiteral(", ");
        text += (name == file ? QString() : printable(console::withShownPaths(name)) + u':') +
                QString::number(line);
        file = name;
    }
    const qsizetype more = group.places.size() - mostPlaces;
    if (more > 0) {
        text =
            oneOrMany(more, CommandLine::tr("%1 and %2 more place"), CommandLine::tr("%1 and %2 more places"))
                .arg(text, QString::number(more));
    }
    return text;
}

/// The references that change beside those that are asked for.
QStringList othersOf(const EqualChanges &group)
{
    const QSet<QString> own(group.references.begin(), group.references.end());
    QStringList others = group.alsoChanges;
    others.removeDuplicates();
    others.removeIf([&own](const QString &reference) { return own.contains(reference); });
    return others;
}

QString changeLine(const EqualChanges &group)
{
    const CDBCHANGE &change = group.first;
    QString line =
        printable(referenceText(group.references)) + u' ' + printable(change.name) + QStringLiteral(": ") +
        quotedText(change.before, CommandLine::tr("none")) + QStringLiteral(" -> ") +
        quotedText(change.after, CommandLine::tr("removed")) + QStringLiteral(" (") + placesText(group) +
        (change.variant.isEmpty() ? QString()
                                  : CommandLine::tr(", variant %1").arg(printable(change.variant))) +
        u')';
    if (const QStringList others = othersOf(group); !others.isEmpty()) {
        line = CommandLine::tr("%1 also changes %2").arg(line, printable(others.join(QStringLiteral(", "))));
    }
    return line + u'\n';
}

} // namespace

QString changeLines(QList<CDBCHANGE> changes)
{
    std::stable_sort(changes.begin(), changes.end(), [](const CDBCHANGE &a, const CDBCHANGE &b) {
        return compareReferences(a.reference, b.reference) < 0;
    });
    QString text;
    for (const EqualChanges &group : grouped(changes)) {
        text += changeLine(group);
    }
    return text;
}

QString changeLines(const QList<BomPartChange> &changes)
{
    QStringList texts;
    QHash<QString, QStringList> references;
    for (const BomPartChange &change : changes) {
        if (!references.contains(change.text)) {
            texts << change.text;
        }
        references[change.text] << change.reference;
    }
    QString lines;
    for (const QString &text : std::as_const(texts)) {
        lines += printable(referenceText(references.value(text)) + u' ' + text) + u'\n';
    }
    return lines;
}

QString changeSummary(const QList<CDBCHANGE> &changes, qsizetype files, bool isDryRun)
{
    QSet<QString> parts;
    for (const CDBCHANGE &change : changes) {
        parts.insert(change.reference);
        for (const QString &reference : change.alsoChanges) {
            parts.insert(reference);
        }
    }
    const QString text = isDryRun ? CommandLine::tr("would change %1 of %2 in %3; nothing was written")
                                  : CommandLine::tr("changed %1 of %2 in %3");
    return text.arg(counted(changes.size(), CommandLine::tr("property"), CommandLine::tr("properties")),
                    counted(parts.size(), CommandLine::tr("part", "property of"),
                            CommandLine::tr("parts", "properties of")),
                    counted(files, CommandLine::tr("file"), CommandLine::tr("files"))) +
           u'\n';
}

QString quotedText(const std::optional<QString> &text, const QString &otherwise)
{
    return text ? u'"' + printable(*text) + u'"' : otherwise;
}
