// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/partslisting.h"

#include "account/design/designaccount.h"
#include "cli/opendesign.h"
#include "core/bompart.h"
#include "core/propertyquery.h"
#include "core/reference.h"
#include "host/framework/hosttext.h"
#include "host/framework/userlanguage.h"
#include "host/netlist/cdbcore.h"
#include "host/netlist/proplist.h"
#include "standalone/loadeddesign.h"

#include <QSet>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

QString placement(const COMPONENT &component)
{
    const CDBPART *part = getcdb()->getpart(component.identifier);
    return part && part->layout() ? fromHostText(part->layout()->name()) : QStringLiteral("Not placed");
}

ListedPart listed(const COMPONENT &component, const BOMPartsDatabase &database)
{
    ListedPart part;
    part.reference = fromHostText(component.reference);
    part.value = fromHostText(component.value);
    part.name = fromHostText(component.name);
    part.placed = placement(component);
    part.category = database.categoryOf(part.reference);
    for (const PROPERTY &property : component.properties->all()) {
        part.properties.append({fromHostText(property.name), fromHostText(property.value)});
    }
    return part;
}

ListedPart listed(const BOMPart &bomPart, const QString &category)
{
    ListedPart part;
    part.reference = bomPart.reference();
    part.value = bomPart.value();
    part.placed = bomPart.property(placedProperty());
    part.category = category;
    part.bomPartOf = bomPart.parentReference();
    for (auto it = bomPart.properties().cbegin(); it != bomPart.properties().cend(); ++it) {
        part.properties.append({it.key(), it.value()});
    }
    return part;
}

void addBomParts(const BOMPartsDatabase &database, QList<ListedPart> *parts)
{
    for (const Part *part : database.parts()) {
        if (part->isBOMPart()) {
            parts->append(
                listed(*static_cast<const BOMPart *>(part), database.categoryOf(part->reference())));
        }
    }
}

void sortByReference(QList<ListedPart> *parts)
{
    struct Entry
    {
        SplitReference key;
        qsizetype index = 0;
    };
    std::vector<Entry> order;
    order.reserve(std::size_t(parts->size()));
    for (const ListedPart &part : std::as_const(*parts)) {
        order.push_back({splitReference(part.reference), qsizetype(order.size())});
    }
    std::stable_sort(order.begin(), order.end(),
                     [](const Entry &a, const Entry &b) { return compareReferences(a.key, b.key) < 0; });
    QList<ListedPart> sorted;
    sorted.reserve(parts->size());
    for (const Entry &entry : order) {
        sorted.append(std::move((*parts)[entry.index]));
    }
    *parts = std::move(sorted);
}

} // namespace

PartsListing listParts(OpenDesign &design)
{
    // The reasons stand in JSON, too.
    const PlainLanguage plain;
    PartsListing listing;
    QSet<QString> held;
    for (const COMPONENT *component : design.design().components()) {
        ListedPart part = listed(*component, design.database());
        part.reason = skipReason(design.design(), *design.design().component(component->identifier));
        if (!part.reason.isEmpty()) {
            listing.skipped.append(std::move(part));
        } else if (held.contains(part.reference)) {
            listing.duplicates.append(std::move(part));
        } else {
            held.insert(part.reference);
            listing.parts.append(std::move(part));
        }
    }
    addBomParts(design.database(), &listing.parts);
    for (QList<ListedPart> *parts : {&listing.parts, &listing.skipped, &listing.duplicates}) {
        sortByReference(parts);
    }
    return listing;
}
