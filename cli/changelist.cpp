// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/changelist.h"

#include "account/sentences.h"
#include "cli/console.h"
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
        text += QStringLiteral(" and ") +
                counted(more, QStringLiteral("more place"), QStringLiteral("more places"));
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
        quotedText(change.before, QStringLiteral("none")) + QStringLiteral(" -> ") +
        quotedText(change.after, QStringLiteral("removed")) + QStringLiteral(" (") + placesText(group) +
        (change.variant.isEmpty() ? QString() : QStringLiteral(", variant ") + printable(change.variant)) +
        u')';
    if (const QStringList others = othersOf(group); !others.isEmpty()) {
        line += QStringLiteral(" also changes ") + printable(others.join(QStringLiteral(", ")));
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
    const QString what =
        counted(changes.size(), QStringLiteral("property"), QStringLiteral("properties")) +
        QStringLiteral(" of ") + counted(parts.size(), QStringLiteral("part"), QStringLiteral("parts")) +
        QStringLiteral(" in ") + counted(files, QStringLiteral("file"), QStringLiteral("files"));
    return (isDryRun ? QStringLiteral("would change ") + what + QStringLiteral("; nothing was written")
                     : QStringLiteral("changed ") + what) +
           u'\n';
}

QString quotedText(const std::optional<QString> &text, const QString &otherwise)
{
    return text ? u'"' + printable(*text) + u'"' : otherwise;
}
