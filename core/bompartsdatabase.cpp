// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartsdatabase.h"

#include "core/bulkchange.h"
#include "core/designinfo.h"
#include "core/reference.h"
#include "core/referenceformat.h"
#include "core/templatelayout.h"
#include "core/templaterepair.h"
#include "host/framework/applndocument.h"
#include "host/framework/applnprocess.h"
#include "host/framework/hosttext.h"
#include "host/netlist/netcache.h"

#include <QSet>

#include <memory>
#include <utility>

namespace {

std::unique_ptr<BOMPartsDatabase> &theDatabase()
{
    static std::unique_ptr<BOMPartsDatabase> database;
    return database;
}

} // namespace

BOMPartsDatabase::BOMPartsDatabase()
    : m_parts(this)
    , m_miscCategoryName(tr("Miscellaneous"))
{
}

BOMPartsDatabase::~BOMPartsDatabase() = default;

BOMPartsDatabase *BOMPartsDatabase::instance()
{
    if (!theDatabase()) {
        theDatabase() = std::make_unique<BOMPartsDatabase>();
    }
    return theDatabase().get();
}

void BOMPartsDatabase::destroyInstance()
{
    theDatabase().reset();
}

void BOMPartsDatabase::clear()
{
    for (auto &[heading, groups] : m_categories) {
        groups.clear();
    }
    m_storeOfPrefix.clear();
    m_parts.clear();
    m_duplicateReferences.clear();
    clearBOMParts();
    notify();
}

void BOMPartsDatabase::load()
{
    if (!m_netlist) {
        return;
    }
    const BulkChange change(this);
    m_notes = designNotes();
    m_propertyTypes.load();
    if (m_netlist->isValid()) {
        const PROPNAME skipMark("BOMSKIP");
        ComponentReader reader(this);
        m_referenceNumbers.reset();
        m_parts.reserve(m_netlist->components.size());
        for (const COMPONENT *component : m_netlist->components) {
            if (component && !(component->properties && component->properties->find(skipMark))) {
                addPart(*component);
                reader.read(*component);
            }
        }
        m_parts.endLoading();
        reader.makeBOMParts();
    }
    updateFieldGrouping();
}

void BOMPartsDatabase::reload()
{
    m_isUpdating = true;
    clear();
    if (m_netlist) {
        load();
        updateFieldGrouping();
    }
    m_isUpdating = false;
    notify();
}

void BOMPartsDatabase::clearAndSuspend()
{
    m_isUpdating = true;
    clear();
}

void BOMPartsDatabase::setWriting(bool isWriting)
{
    if (!std::exchange(m_isWriting, isWriting) || isWriting) {
        return;
    }
    APPLNPROCESS *process = getapplnprocess();
    IMODULE *client = process ? process->getmoduleinterface("BOM", INTERFACE_BOMVIEWER) : nullptr;
    if (client) {
        static_cast<INETCLIENT *>(client)->designChanged(true);
    }
}

void BOMPartsDatabase::notify()
{
    if (!m_isUpdating) {
        Q_EMIT dataChanged();
    }
}

QString BOMPartsDatabase::property(const QString &reference, const QString &name) const
{
    const Part *found = part(reference);
    return found ? found->property(name) : QString();
}

QString BOMPartsDatabase::displayValue(const QString &name, const QString &stored) const
{
    return DisplayConversion(m_propertyTypes.type(name))(stored);
}

PropertyQuery BOMPartsDatabase::propertyQuery(const QString &name) const
{
    return PropertyQuery(name, &m_propertyTypes);
}

QMap<QString, QString> BOMPartsDatabase::pseudoPropertyNames()
{
    return {{placedProperty(), tr("Placed")}, {nameProperty(), tr("Name")}};
}

QStringList BOMPartsDatabase::standardPropertyNames()
{
    return pseudoPropertyNames().keys() << valueProperty() << QStringLiteral("PACKAGE");
}

QString BOMPartsDatabase::designInfo(const char *key) const
{
    return ::designInfo(key);
}

QString BOMPartsDatabase::designTitle() const
{
    return ::designTitle();
}

QString BOMPartsDatabase::designAuthor() const
{
    return designInfo("AUTHOR");
}

QString BOMPartsDatabase::designDocumentNumber() const
{
    return designInfo("DOCNO");
}

QString BOMPartsDatabase::designRevision() const
{
    return designInfo("REV");
}

QString BOMPartsDatabase::designCreated() const
{
    return designInfo("WL_CDATE");
}

QString BOMPartsDatabase::designModified() const
{
    return designInfo("WL_MDATE");
}

QString BOMPartsDatabase::designVariant() const
{
    return ::designVariant();
}

QString BOMPartsDatabase::defaultOutputPath(const QString &extension) const
{
    return designOutputPath(extension);
}

void BOMPartsDatabase::setCurrentTemplate(const BOMTemplate &settings)
{
    const BulkChange change(this);
    m_template = settings;
    m_templateRepairs = repairTemplate(m_template);
    applyFields(m_template.fields());
    applyCategories(m_template.categories());
}

void BOMPartsDatabase::setTemplateLook(const BOMTemplate &settings)
{
    m_template.setCss(settings.css());
    m_template.setDocumentHeader(settings.documentHeader());
    m_template.setDocumentFooter(settings.documentFooter());
    m_template.setHtmlTemplateFileName(settings.htmlTemplateFileName());
}

bool BOMPartsDatabase::setTemplateLayout(const BOMTemplate &settings)
{
    const Qt::CaseSensitivity oldRule = caseRule();
    if (!takeLayout(settings, &m_template)) {
        return false;
    }
    m_fields = m_template.fields();
    if (caseRule() != oldRule) {
        updateFieldGrouping();
    }
    Q_EMIT currentTemplateModified(true);
    return true;
}

void BOMPartsDatabase::restoreTemplateLayout(const BOMTemplate &settings, bool wasModified)
{
    setTemplateLayout(settings);
    Q_EMIT currentTemplateModified(wasModified);
}

void BOMPartsDatabase::updatePropertyTypes()
{
    m_propertyTypes.load();
    updateFieldGrouping();
}

void BOMPartsDatabase::updateBOMFields(const BOMFields &fields)
{
    applyFields(fields);
    updateFieldGrouping();
    Q_EMIT currentTemplateModified(true);
}

void BOMPartsDatabase::updateBOMCategories(const QList<BOMCategory> &categories)
{
    applyCategories(categories);
    Q_EMIT currentTemplateModified(true);
}

void BOMPartsDatabase::updateFieldGrouping()
{
    const BulkChange change(this);
    for (auto &[heading, groups] : m_categories) {
        groups.regroup();
    }
}

void BOMPartsDatabase::nimProjectChanged(APPLNDOCUMENT *document)
{
    if (!document || !document->isdoctype("LYT")) {
        return;
    }
    if (m_isWindowVisible && m_isWindowVisible()) {
        updateFieldGrouping();
    } else if (m_netlist) {
        m_netlist->invalidate();
    }
}

void BOMPartsDatabase::addPart(const COMPONENT &component)
{
    const QString reference = fromHostText(component.reference);
    Part *added = m_parts.add(component, reference);
    if (!added) {
        m_duplicateReferences.append(reference);
        return;
    }
    putIntoCategory(*added);
    notify();
}

void BOMPartsDatabase::putIntoCategory(Part &part)
{
    storeOfPart(part).add(part);
}

void BOMPartsDatabase::putPartsIntoCategories()
{
    for (Part *held : m_parts.parts()) {
        putIntoCategory(*held);
    }
}

void BOMPartsDatabase::applyFields(const BOMFields &fields)
{
    const QList<BOMField> columns = fields.fields();
    m_fields.clear();
    m_groupingFieldNames.clear();
    for (const BOMField &field : columns) {
        if (m_fields.add(field)) {
            m_groupingFieldNames.append(field.propertyName);
        }
    }
    m_template.setFields(m_fields);
}

void BOMPartsDatabase::applyCategories(const QList<BOMCategory> &categories)
{
    const BulkChange change(this);
    m_template.setCategories(categories);
    for (auto &[heading, groups] : m_categories) {
        groups.clear();
    }
    m_categories.clear();
    m_headingOfPrefix.clear();
    m_storeOfPrefix.clear();
    m_categoryOrder.clear();
    for (const BOMCategory &category : categories) {
        if (category.isMiscCategory) {
            m_miscCategoryName = category.heading;
        }
    }
    miscCategory();
    QSet<QString> headings;
    for (const BOMCategory &category : categories) {
        if (!headings.contains(category.heading)) {
            headings.insert(category.heading);
            m_categoryOrder.append(category.heading);
        }
        addCategory(category);
    }
    putPartsIntoCategories();
    updateFieldGrouping();
}

void BOMPartsDatabase::addCategory(const BOMCategory &category)
{
    if (category.isMiscCategory || m_categories.contains(category.heading)) {
        return;
    }
    for (const QString &prefix : category.references) {
        if (m_headingOfPrefix.contains(prefix)) {
            return;
        }
    }
    m_categories.try_emplace(category.heading, this);
    for (const QString &prefix : category.references) {
        m_headingOfPrefix.insert(prefix, category.heading);
    }
}

CategoryGroups &BOMPartsDatabase::miscCategory()
{
    return m_categories.try_emplace(m_miscCategoryName, this).first->second;
}

const CategoryGroups *BOMPartsDatabase::category(const QString &heading) const
{
    const auto found = m_categories.find(heading);
    return found == m_categories.end() ? nullptr : &found->second;
}

QString BOMPartsDatabase::headingOfPrefix(QStringView prefix) const
{
    return m_headingOfPrefix.value(prefix.toString(), m_miscCategoryName);
}

CategoryGroups &BOMPartsDatabase::storeOfPart(const Part &part)
{
    const auto number = part.key().prefix;
    if (number < m_storeOfPrefix.size() && m_storeOfPrefix[number]) {
        return *m_storeOfPrefix[number];
    }
    const QStringView prefix = categoryPrefix(part.reference());
    const auto found = m_categories.find(headingOfPrefix(prefix));
    CategoryGroups &groups = found == m_categories.end() ? miscCategory() : found->second;
    // Not so for references with a digit in the middle such as U1A2.
    if (prefix == m_parts.prefixes().text(number)) {
        m_storeOfPrefix.resize(m_parts.prefixes().size());
        m_storeOfPrefix[number] = &groups;
    }
    return groups;
}

Qt::CaseSensitivity BOMPartsDatabase::caseRule() const
{
    return m_template.caseSensitiveGrouping() ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

GroupingRule BOMPartsDatabase::groupingRule() const
{
    GroupingRule rule{caseRule(), {}};
    for (const QString &name : m_groupingFieldNames) {
        if (name != valueProperty()) {
            rule.properties.push_back(propertyQuery(name));
        }
    }
    return rule;
}

GroupedLines BOMPartsDatabase::groupParts(std::span<Part *const> parts) const
{
    return makeLines(parts, m_parts, groupingRule());
}
