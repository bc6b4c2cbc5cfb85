// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/partidentities.h"

#include "core/bompartsdatabase.h"
#include "host/framework/hosttext.h"
#include "host/netlist/component.h"
#include "host/netlist/netlist.h"

#include <algorithm>

namespace {

/// What a reference stands for where there is no other identity; no host's identity begins like that.
QByteArray identityOfReference(const QString &reference)
{
    return "reference:" + toHostText(reference);
}

} // namespace

void PartIdentities::reset()
{
    m_defined.clear();
    m_components.clear();
}

PartIdentity PartIdentities::of(const Part &part) const
{
    if (part.isBOMPart()) {
        return definedBy(static_cast<const BOMPart &>(part).parentReference()).identities.value(&part);
    }
    return part.component() ? PartIdentity{ofComponent(*part.component())} : ofReference(part.reference());
}

PartIdentity PartIdentities::ofReference(const QString &reference)
{
    return {identityOfReference(reference)};
}

QByteArray PartIdentities::ofComponent(const COMPONENT &component) const
{
    const NETLIST *netlist = m_database->netlist();
    const QByteArray told =
        netlist && netlist->identityof ? netlist->identityof(component.identifier) : QByteArray();
    return told.isEmpty() ? identityOfReference(fromHostText(component.reference)) : told;
}

PartIdentities::Place PartIdentities::find(const PartIdentity &identity, const QString &reference) const
{
    if (identity.definition.isEmpty()) {
        return findComponent(identity.component, reference);
    }
    const Part *last = m_database->part(reference);
    const QString parentReference =
        last && last->isBOMPart() ? static_cast<const BOMPart *>(last)->parentReference() : QString();
    const Place parent = findComponent(identity.component, parentReference);
    return parent.part ? findDefined(identity, *parent.part) : parent;
}

PartIdentities::Place PartIdentities::findDefined(const PartIdentity &identity, const Part &parent) const
{
    const BOMPart *found =
        definedBy(parent.reference()).parts.value({identity.definition, identity.place}, nullptr);
    if (found) {
        return {found, EditConflict::None};
    }
    const QList<LeftOutBOMParts> &leftOut = m_database->bomOnlyParts().leftOut();
    const bool isLeftOut = std::any_of(leftOut.begin(), leftOut.end(), [&](const LeftOutBOMParts &parts) {
        return parts.parentReference == parent.reference();
    });
    return {nullptr, isLeftOut ? EditConflict::PartLeftOut : EditConflict::PartGone};
}

PartIdentities::Place PartIdentities::findComponent(const QByteArray &component,
                                                    const QString &reference) const
{
    const Part *last = m_database->part(reference);
    if (last && !last->isBOMPart() && of(*last).component == component) {
        return {last, EditConflict::None};
    }
    const NETLIST *netlist = m_database->netlist();
    if (m_components.isEmpty() && netlist) {
        for (const COMPONENT *known : netlist->components) {
            if (known) {
                QByteArray identity = ofComponent(*known);
                if (!m_components.contains(identity)) {
                    m_components.insert(identity, known);
                }
            }
        }
    }
    const COMPONENT *found = m_components.value(component);
    if (!found) {
        return {};
    }
    const Part *part = m_database->part(fromHostText(found->reference));
    if (part && part->component() == found) {
        return {part, EditConflict::None};
    }
    return {nullptr, EditConflict::PartLeftOut};
}

const PartIdentities::Defined &PartIdentities::definedBy(const QString &parentReference) const
{
    const auto known = m_defined.constFind(parentReference);
    if (known != m_defined.cend()) {
        return *known;
    }
    Defined &defined = m_defined[parentReference];
    const Part *parent = m_database->part(parentReference);
    const QByteArray component =
        parent && !parent->isBOMPart() ? of(*parent).component : identityOfReference(parentReference);
    QHash<QString, int> counts;
    for (const BOMPart *part : m_database->bomParts(parentReference)) {
        const auto text = changedBOMPartDefinition({1, part->prefix(), part->value(), part->properties()});
        const QString definition = text.value_or(part->prefix() + u'\n' + part->value());
        const int place = counts[definition]++;
        defined.identities.insert(part, {component, definition, place});
        defined.parts.insert({definition, place}, part);
    }
    return defined;
}
