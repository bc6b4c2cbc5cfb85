// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartsdatabase.h"

#include "core/bomlinks.h"
#include "core/bompart.h"
#include "core/bulkchange.h"
#include "core/propertyquery.h"
#include "host/framework/hosttext.h"
#include "host/netlist/component.h"
#include "host/netlist/proplist.h"

#include <algorithm>
#include <limits>

// BOM-only parts.

namespace {

PROPPREFIX definitionPrefix()
{
    return PROPPREFIX(toHostText(bomPartPropertyStart()));
}

} // namespace

BOMPartsDatabase::ComponentReader::ComponentReader(BOMPartsDatabase *database)
    : m_database(database)
    , m_definitions(definitionPrefix())
    , m_links(toHostText(bomLinksProperty()))
{
}

void BOMPartsDatabase::ComponentReader::read(const COMPONENT &component)
{
    if (!component.properties) {
        return;
    }
    const std::vector<PROPERTY> definitions = component.properties->startingwith(m_definitions);
    const auto links = component.properties->find(m_links);
    if (definitions.empty() && !links) {
        return;
    }
    const QString reference = fromHostText(component.reference);
    if (links) {
        m_database->setLinks(reference, fromHostText(*links));
    }
    if (definitions.empty()) {
        return;
    }
    const auto known = m_indices.constFind(reference);
    if (known == m_indices.cend()) {
        m_indices.insert(reference, m_collected.size());
        m_collected.append({reference, {}});
    }
    QList<DefinitionProperty> &collected = m_collected[m_indices.value(reference)].definitions;
    for (const PROPERTY &property : definitions) {
        collected.append({fromHostText(property.name), fromHostText(property.value)});
    }
}

void BOMPartsDatabase::ComponentReader::makeBOMParts() const
{
    for (const Collected &parent : m_collected) {
        m_database->makeDefinedParts(parent.reference, parent.definitions);
    }
}

QStringList BOMPartsDatabase::bomPartDefinitions(const COMPONENT &component)
{
    QStringList texts;
    if (component.properties) {
        for (const PROPERTY &property : component.properties->startingwith(definitionPrefix())) {
            texts.append(fromHostText(property.value));
        }
    }
    return texts;
}

void BOMPartsDatabase::createBOMParts(const QString &parentReference, const QStringList &definitions)
{
    const BulkChange change(this);
    QList<DefinitionProperty> properties;
    for (const QString &text : definitions) {
        properties.append({QString(), text});
    }
    makeDefinedParts(parentReference, properties);
}

std::optional<DefinitionProperty> BOMPartsDatabase::addBOMParts(const QString &parentReference, int count,
                                                                const QString &escapedPrefix,
                                                                const QString &escapedValue)
{
    const Part *parent = part(parentReference);
    const auto text = newBOMPartDefinition(count, escapedPrefix, escapedValue);
    if (!parent || parent->isBOMPart() || !text) {
        return std::nullopt;
    }
    const BulkChange change(this);
    const ReadDefinition read = readBOMPartDefinition(*text);
    LastNumbers lastNumbers;
    if (!read.makesParts() || makeBOMParts(parentReference, read.definition, &lastNumbers)) {
        return std::nullopt;
    }
    DefinedParts &defined = m_definedParts[parentReference];
    const DefinitionProperty added{defined.freeName(), *text};
    defined.addName(added.name);
    updateFieldGrouping();
    return added;
}

bool BOMPartsDatabase::setBOMPartProperty(const QString &reference, const QString &name, const QString &text)
{
    Part *found = part(reference);
    if (!found || !found->isBOMPart() || name.isEmpty() || name.contains(u'=') || name.startsWith(u'.')) {
        return false;
    }
    auto *changed = static_cast<BOMPart *>(found);
    BOMPartDefinition wanted{1, changed->prefix(), changed->value(), changed->properties()};
    const QString key = name.toUpper();
    if (key == valueProperty()) {
        wanted.value = text;
    } else if (text.isEmpty()) {
        wanted.properties.remove(key);
    } else {
        wanted.properties.insert(key, text);
    }
    if (!changedBOMPartDefinition(wanted)) {
        return false;
    }
    const BulkChange change(this);
    m_parts.change(changed, wanted.value, wanted.properties);
    if (key == bomLinksProperty()) {
        m_links.remove(reference);
        setLinks(reference, text);
    }
    updateFieldGrouping();
    return true;
}

bool BOMPartsDatabase::removeBOMPart(const QString &parentReference, const QString &reference)
{
    const auto defined = m_definedParts.find(parentReference);
    Part *found = part(reference);
    if (defined == m_definedParts.end() || !found || !found->isBOMPart()) {
        return false;
    }
    auto *removed = static_cast<BOMPart *>(found);
    if (removed->parentReference() != parentReference || !defined->rewritten()) {
        return false;
    }
    const BulkChange change(this);
    defined->remove(removed);
    for (const DefinitionProperty &property : defined->rewritten().value_or(QList<DefinitionProperty>())) {
        defined->addName(property.name);
    }
    m_links.remove(reference);
    storeOfPart(*removed).remove(*removed);
    m_parts.remove(removed);
    m_referenceNumbers.reset();
    --m_bomPartCount;
    updateFieldGrouping();
    return true;
}

QList<BOMPart *> BOMPartsDatabase::bomParts(const QString &parentReference) const
{
    const auto found = m_definedParts.constFind(parentReference);
    return found == m_definedParts.cend() ? QList<BOMPart *>() : found->parts();
}

QStringList BOMPartsDatabase::bomPartPropertyNames(const QString &parentReference) const
{
    const auto found = m_definedParts.constFind(parentReference);
    return found == m_definedParts.cend() ? QStringList() : found->names();
}

std::optional<QList<DefinitionProperty>>
BOMPartsDatabase::rewrittenDefinitions(const QString &parentReference) const
{
    const auto found = m_definedParts.constFind(parentReference);
    return found == m_definedParts.cend() ? QList<DefinitionProperty>() : found->rewritten();
}

void BOMPartsDatabase::makeDefinedParts(const QString &parentReference, QList<DefinitionProperty> definitions)
{
    std::stable_sort(
        definitions.begin(), definitions.end(),
        [](const DefinitionProperty &a, const DefinitionProperty &b) { return a.text < b.text; });
    LastNumbers lastNumbers;
    for (const DefinitionProperty &property : std::as_const(definitions)) {
        ReadDefinition read = readBOMPartDefinition(property.text);
        if (read.makesParts()) {
            if (const auto fault = makeBOMParts(parentReference, read.definition, &lastNumbers)) {
                read.fault = fault;
            }
        }
        DefinedParts &defined = m_definedParts[parentReference];
        if (!property.name.isEmpty()) {
            defined.addName(property.name);
        }
        if (!read.makesParts()) {
            defined.addUnread(property.text);
        }
        if (read.fault) {
            m_definitionProblems.append({parentReference, property.name, *read.fault});
        }
    }
}

std::optional<DefinitionFault> BOMPartsDatabase::makeBOMParts(const QString &parentReference,
                                                              const BOMPartDefinition &definition,
                                                              LastNumbers *lastNumbers)
{
    if (m_bomPartCount + definition.count > mostBOMParts) {
        return DefinitionFault::DesignIsFull;
    }
    const auto known = lastNumbers->constFind(definition.prefix);
    const qint64 last =
        known == lastNumbers->cend() ? referenceNumbers().highest(definition.prefix) : qint64(*known);
    if (last + definition.count > std::numeric_limits<int>::max()) {
        return DefinitionFault::NumbersEnd;
    }
    lastNumbers->insert(definition.prefix, int(last) + definition.count);
    m_bomPartCount += definition.count;
    const QMap<QString, QString> links = readBOMLinks(definition.properties.value(bomLinksProperty()));
    DefinedParts &defined = m_definedParts[parentReference];
    int repeated = 0;
    for (int number = int(last) + 1; number <= last + definition.count; ++number) {
        const QString reference = definition.prefix + QString::number(number);
        if (BOMPart *made =
                addBOMPart(std::make_unique<BOMPart>(this, reference, parentReference, definition))) {
            defined.add(made);
            takeLinks(reference, links);
        } else {
            ++repeated;
        }
    }
    if (repeated > 0) {
        defined.addRepeated(definition, repeated);
    }
    return std::nullopt;
}

BOMPart *BOMPartsDatabase::addBOMPart(std::unique_ptr<BOMPart> part)
{
    const QString reference = part->reference();
    BOMPart *added = m_parts.add(std::move(part));
    if (!added) {
        m_duplicateReferences.append(reference);
        m_duplicateBOMParts.append(reference);
        return nullptr;
    }
    referenceNumbers().note(reference);
    putIntoCategory(*added);
    notify();
    return added;
}

ReferenceNumbers &BOMPartsDatabase::referenceNumbers()
{
    if (!m_referenceNumbers) {
        m_referenceNumbers.emplace();
        for (const Part *held : m_parts.parts()) {
            m_referenceNumbers->note(held->reference());
        }
    }
    return *m_referenceNumbers;
}

void BOMPartsDatabase::clearBOMParts()
{
    m_definedParts.clear();
    m_definitionProblems.clear();
    m_duplicateBOMParts.clear();
    m_referenceNumbers.reset();
    m_links.clear();
    m_bomPartCount = 0;
}
