// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bomonlyparts.h"

#include "core/bomcategories.h"
#include "core/bomlinks.h"
#include "core/bompart.h"
#include "core/partstore.h"
#include "core/propertyquery.h"
#include "host/framework/hosttext.h"

#include <algorithm>
#include <limits>
#include <utility>

BOMOnlyParts::BOMOnlyParts(const PartDatabase *database, PartStore *store, BOMCategories *categories,
                           LinkTable *links)
    : m_database(database)
    , m_store(store)
    , m_categories(categories)
    , m_links(links)
{
}

void BOMOnlyParts::load(const QList<ParentDefinitions> &parents, const Fitting &fitting, bool marksNotFitted)
{
    m_fitting = fitting;
    m_marksNotFitted = marksNotFitted;
    m_referenceNumbers.reset();
    for (const ParentDefinitions &parent : parents) {
        make(parent);
    }
}

void BOMOnlyParts::make(const ParentDefinitions &parent)
{
    QList<DefinitionProperty> definitions = parent.definitions;
    std::stable_sort(
        definitions.begin(), definitions.end(),
        [](const DefinitionProperty &a, const DefinitionProperty &b) { return a.text < b.text; });
    LastNumbers lastNumbers;
    for (const DefinitionProperty &property : std::as_const(definitions)) {
        ReadDefinition read = readBOMPartDefinition(property.text);
        auto leftOut =
            read.makesParts() ? this->leftOut(parent.parentReference, read.definition) : std::nullopt;
        if (leftOut) {
            leftOut->property = property.name;
            m_leftOut.append(*leftOut);
        } else if (read.makesParts()) {
            if (const auto fault = make(parent.parentReference, read.definition, &lastNumbers)) {
                read.fault = fault;
            }
        }
        DefinedParts &defined = m_defined[parent.parentReference];
        if (!property.name.isEmpty()) {
            defined.addName(property.name);
        }
        if (leftOut || !read.makesParts()) {
            defined.addUnmade(property.text);
        }
        if (read.fault) {
            m_problems.append({parent.parentReference, property.name, *read.fault});
        }
    }
}

std::optional<DefinitionFault> BOMOnlyParts::make(const QString &parentReference,
                                                  const BOMPartDefinition &definition,
                                                  LastNumbers *lastNumbers)
{
    if (m_count + definition.count > mostBOMParts) {
        return DefinitionFault::DesignIsFull;
    }
    const auto known = lastNumbers->constFind(definition.prefix);
    const qint64 last =
        known == lastNumbers->cend() ? referenceNumbers().highest(definition.prefix) : qint64(*known);
    if (last + definition.count > std::numeric_limits<int>::max()) {
        return DefinitionFault::NumbersEnd;
    }
    lastNumbers->insert(definition.prefix, int(last) + definition.count);
    m_count += definition.count;
    const QMap<QString, QString> links = readBOMLinks(definition.properties.value(bomLinksProperty()));
    const bool isMarked = m_marksNotFitted && !fittingOf(parentReference, definition).isFitted;
    DefinedParts &defined = m_defined[parentReference];
    int repeated = 0;
    for (int number = int(last) + 1; number <= last + definition.count; ++number) {
        const QString reference = definition.prefix + QString::number(number);
        if (BOMPart *made =
                hold(std::make_unique<BOMPart>(m_database, reference, parentReference, definition))) {
            defined.add(made);
            if (isMarked) {
                markNotFitted(made, definition);
            }
            m_links->insert(reference, links);
        } else {
            ++repeated;
        }
    }
    if (repeated > 0) {
        defined.addRepeated(definition, repeated);
    }
    return std::nullopt;
}

std::optional<LeftOutBOMParts> BOMOnlyParts::leftOut(const QString &parentReference,
                                                     const BOMPartDefinition &definition) const
{
    const bool isSkipped = definition.properties.contains(QStringLiteral("BOMSKIP"));
    const FITTING fitting = fittingOf(parentReference, definition);
    if (!isSkipped && fitting.isListed) {
        return std::nullopt;
    }
    return LeftOutBOMParts{parentReference, {}, definition.count, isSkipped, fitting.isFitted};
}

FITTING BOMOnlyParts::fittingOf(const QString &parentReference, const BOMPartDefinition &definition) const
{
    if (!m_fitting) {
        return {};
    }
    const FITTING own = ownFittingOf(definition);
    const Part *parent = m_store->find(parentReference);
    const bool asksParent = own.isFitted && parent && !parent->isBOMPart();
    return asksParent ? m_fitting(PropertyQuery(notFittedProperty(), nullptr).hostText(parent->component()))
                      : own;
}

FITTING BOMOnlyParts::ownFittingOf(const BOMPartDefinition &definition) const
{
    return m_fitting(toHostText(definition.properties.value(notFittedProperty())));
}

void BOMOnlyParts::markNotFitted(BOMPart *part, const BOMPartDefinition &definition)
{
    if (ownFittingOf(definition).isFitted) {
        m_store->markNotFittedWithParent(part);
    } else {
        m_store->markNotFitted(part);
    }
}

BOMPart *BOMOnlyParts::hold(std::unique_ptr<BOMPart> part)
{
    const QString reference = part->reference();
    BOMPart *added = m_store->add(std::move(part));
    if (!added) {
        m_duplicates.append(reference);
        return nullptr;
    }
    referenceNumbers().note(reference);
    m_categories->add(*added);
    return added;
}

void BOMOnlyParts::clear()
{
    m_defined.clear();
    m_problems.clear();
    m_duplicates.clear();
    m_leftOut.clear();
    m_referenceNumbers.reset();
    m_count = 0;
}

std::optional<DefinitionProperty> BOMOnlyParts::add(const QString &parentReference, int count,
                                                    const QString &escapedPrefix, const QString &escapedValue)
{
    const Part *parent = m_store->find(parentReference);
    const auto text = newBOMPartDefinition(count, escapedPrefix, escapedValue);
    if (!parent || parent->isBOMPart() || !text) {
        return std::nullopt;
    }
    const ReadDefinition read = readBOMPartDefinition(*text);
    LastNumbers lastNumbers;
    if (!read.makesParts() || make(parentReference, read.definition, &lastNumbers)) {
        return std::nullopt;
    }
    DefinedParts &defined = m_defined[parentReference];
    const DefinitionProperty added{defined.freeName(), *text};
    defined.addName(added.name);
    return added;
}

bool BOMOnlyParts::setProperty(const QString &reference, const QString &name, const QString &text)
{
    BOMPart *changed = find(reference);
    if (!changed || name.isEmpty() || name.contains(u'=') || name.startsWith(u'.')) {
        return false;
    }
    BOMPartDefinition wanted{1, changed->prefix(), changed->value(), changed->properties()};
    const QString key = changed->storedName(name);
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
    m_store->change(changed, wanted.value, wanted.properties);
    if (key == bomLinksProperty()) {
        m_links->remove(reference);
        m_links->insert(reference, readBOMLinks(text));
    }
    return true;
}

bool BOMOnlyParts::remove(const QString &parentReference, const QString &reference)
{
    const auto defined = m_defined.find(parentReference);
    BOMPart *removed = find(reference);
    if (defined == m_defined.end() || !removed || removed->parentReference() != parentReference ||
        !defined->rewritten()) {
        return false;
    }
    defined->remove(removed);
    for (const DefinitionProperty &property : defined->rewritten().value_or(QList<DefinitionProperty>())) {
        defined->addName(property.name);
    }
    m_links->remove(reference);
    m_categories->remove(*removed);
    m_store->remove(removed);
    m_referenceNumbers.reset();
    --m_count;
    return true;
}

QList<BOMPart *> BOMOnlyParts::parts(const QString &parentReference) const
{
    const auto found = m_defined.constFind(parentReference);
    return found == m_defined.cend() ? QList<BOMPart *>() : found->parts();
}

QStringList BOMOnlyParts::propertyNames(const QString &parentReference) const
{
    const auto found = m_defined.constFind(parentReference);
    return found == m_defined.cend() ? QStringList() : found->names();
}

std::optional<QList<DefinitionProperty>> BOMOnlyParts::rewritten(const QString &parentReference) const
{
    const auto found = m_defined.constFind(parentReference);
    return found == m_defined.cend() ? QList<DefinitionProperty>() : found->rewritten();
}

BOMPart *BOMOnlyParts::find(const QString &reference) const
{
    Part *found = m_store->find(reference);
    return found && found->isBOMPart() ? static_cast<BOMPart *>(found) : nullptr;
}

ReferenceNumbers &BOMOnlyParts::referenceNumbers()
{
    if (!m_referenceNumbers) {
        m_referenceNumbers.emplace();
        for (const Part *held : m_store->parts()) {
            m_referenceNumbers->note(held->reference());
        }
    }
    return *m_referenceNumbers;
}
