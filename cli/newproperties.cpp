// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/newproperties.h"

#include "account/sentences.h"
#include "cli/console.h"
#include "cli/opendesign.h"
#include "cli/texts.h"
#include "core/bompart.h"
#include "core/propertyquery.h"
#include "host/framework/hosttext.h"
#include "standalone/loadeddesign.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

/// What the program itself reads, and writes into designs that lack it.
bool hasOwnMeaning(const QString &name)
{
    const QStringList names = standardPropertyNames() << QStringLiteral("DNP") << QStringLiteral("BOMSKIP")
                                                      << QStringLiteral("BOMLINKS");
    return names.contains(name, Qt::CaseInsensitive) ||
           name.startsWith(QLatin1String("BOMPART"), Qt::CaseInsensitive);
}

/// The letters and digits of a name, in one letter case.
QString plainName(const QString &name)
{
    QString plain;
    const QString folded = name.toCaseFolded();
    std::copy_if(folded.begin(), folded.end(), std::back_inserter(plain),
                 [](QChar c) { return c.isLetterOrNumber(); });
    return plain;
}

/// Whether one letter more, less, other, or changed with its neighbour, makes one text the other.
bool differsByOneLetter(const QString &a, const QString &b)
{
    constexpr qsizetype shortest = 3;
    const QString &longer = a.size() < b.size() ? b : a;
    const QString &shorter = a.size() < b.size() ? a : b;
    if (shorter.size() < shortest || longer.size() - shorter.size() > 1) {
        return false;
    }
    const auto [at, other] = std::mismatch(shorter.begin(), shorter.end(), longer.begin(), longer.end());
    if (other == longer.end() || other->isDigit() || (at != shorter.end() && at->isDigit())) {
        return false;
    }
    const QStringView rest = QStringView(longer).mid(other - longer.begin());
    const QStringView otherRest = QStringView(shorter).mid(at - shorter.begin());
    if (longer.size() != shorter.size()) {
        return rest.mid(1) == otherRest;
    }
    const bool isSwapped = rest.size() > 1 && rest[0] == otherRest[1] && rest[1] == otherRest[0] &&
                           rest.mid(2) == otherRest.mid(2);
    return isSwapped || rest.mid(1) == otherRest.mid(1);
}

} // namespace

bool hasProperty(OpenDesign &design, const QString &name)
{
    if (!design.design().design().names().candidates(name.toStdString()).empty() ||
        !design.design().properties().otherNames(toHostText(name)).empty()) {
        return true;
    }
    const auto parts = design.database().parts();
    return std::any_of(parts.begin(), parts.end(), [&name](const Part *part) {
        return part->isBOMPart() && static_cast<const BOMPart *>(part)->properties().contains(name.toUpper());
    });
}

QStringList propertyNames(OpenDesign &open)
{
    const designs::Design &design = open.design().design();
    std::vector<bool> isUsed(design.names().size(), false);
    for (const designs::Component &component : design.components()) {
        for (const designs::Property &property : component.properties) {
            isUsed[property.name] = true;
        }
    }
    isUsed[design.valueName()] = !design.components().empty();
    QStringList names;
    for (designs::NameId id = 0; id < isUsed.size(); ++id) {
        if (isUsed[id]) {
            names << fromHostText(design.names().name(id));
        }
    }
    for (const Part *part : open.database().parts()) {
        if (part->isBOMPart()) {
            names << static_cast<const BOMPart *>(part)->properties().keys();
        }
    }
    names.removeDuplicates();
    return names;
}

bool isNewProperty(OpenDesign &design, const QString &name)
{
    return !hasOwnMeaning(name) && !hasProperty(design, name);
}

QStringList similarProperties(OpenDesign &design, const QString &name)
{
    const QString plain = plainName(name);
    QStringList similar;
    for (const QString &used : propertyNames(design)) {
        const QString other = plainName(used);
        const bool isSimilar = !other.isEmpty() && (other == plain || differsByOneLetter(other, plain));
        if (isSimilar && used.compare(name, Qt::CaseInsensitive) != 0) {
            similar << used;
        }
    }
    return similar;
}

void NewProperties::add(const QString &reference, const QString &property)
{
    const QString key = property.toCaseFolded();
    auto found = m_properties.find(key);
    if (found == m_properties.end()) {
        found = m_properties.insert(key, {property, isNewProperty(m_design, property), {}});
    }
    if (found->isNew) {
        found->references.insert(reference);
    }
}

QString NewProperties::lines() const
{
    QString text;
    for (const Property &property : m_properties) {
        if (property.isNew) {
            const qsizetype count = property.references.size();
            text += oneOrMany(count, CommandLine::tr("new property %1 on %2 part"),
                              CommandLine::tr("new property %1 on %2 parts"))
                        .arg(printable(property.name), QString::number(count)) +
                    u'\n';
        }
    }
    return text;
}

QStringList NewProperties::notices() const
{
    QStringList texts;
    for (const Property &property : m_properties) {
        const QStringList similar =
            property.isNew ? similarProperties(m_design, property.name) : QStringList();
        if (!similar.isEmpty()) {
            texts << CommandLine::tr(
                         "%1 is a new property of the design, which has one of nearly the same name: %2")
                         .arg(property.name, similar.join(QStringLiteral(", ")));
        }
    }
    return texts;
}
