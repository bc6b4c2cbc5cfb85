// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartsdatabase.h"

#include "core/componentreader.h"
#include "core/designinfo.h"
#include "core/propertyquery.h"
#include "core/templatesettings.h"
#include "host/framework/applndocument.h"
#include "host/framework/applnprocess.h"
#include "host/framework/hosttext.h"
#include "host/netlist/component.h"
#include "host/netlist/netcache.h"
#include "host/netlist/proplist.h"

#include <QSet>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

std::unique_ptr<BOMPartsDatabase> &theDatabase()
{
    static std::unique_ptr<BOMPartsDatabase> database;
    return database;
}

} // namespace

BOMPartsDatabase::BulkChange::BulkChange(BOMPartsDatabase *database)
    : m_database(database)
{
    ++m_database->m_bulkChanges;
}

BOMPartsDatabase::BulkChange::~BulkChange()
{
    if (--m_database->m_bulkChanges == 0 && std::exchange(m_database->m_isNoticeDue, false)) {
        m_database->notify();
    }
}

BOMPartsDatabase::BOMPartsDatabase()
    : m_parts(this)
    , m_categories(&m_template, &m_parts, &m_propertyTypes)
    , m_bomOnlyParts(this, &m_parts, &m_categories, &m_links)
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
    ++m_generation;
    m_categories.clear();
    m_bomOnlyParts.clear();
    m_links.clear();
    m_parts.clear();
    if (m_netlist) {
        m_netlist->releaseformer();
    }
    notify();
}

const NETLIST *BOMPartsDatabase::netlist() const
{
    return m_netlist && m_netlist->isValid() ? m_netlist : nullptr;
}

void BOMPartsDatabase::load()
{
    if (!m_netlist) {
        return;
    }
    ++m_generation;
    const BulkChange change(this);
    m_notes = designNotes();
    m_propertyTypes.load();
    if (m_netlist->isValid()) {
        readNetlist();
    }
    updateFieldGrouping();
}

void BOMPartsDatabase::readNetlist()
{
    const PROPNAME skipMark("BOMSKIP");
    ComponentReader reader(&m_links);
    m_parts.reserve(m_netlist->components.size());
    for (const COMPONENT *component : m_netlist->components) {
        if (!component || (component->properties && component->properties->find(skipMark))) {
            continue;
        }
        if (Part *added = m_parts.add(*component, fromHostText(component->reference))) {
            m_categories.add(*added);
        }
        reader.read(*component);
    }
    m_parts.endLoading();
    const bool marksNotFitted = m_netlist->marksnotfitted && m_netlist->fitting;
    if (marksNotFitted) {
        markNotFitted();
    }
    m_otherNames.setRank(m_netlist->samemeaning);
    m_bomOnlyParts.load(reader.parents(), m_netlist->fitting, marksNotFitted);
}

void BOMPartsDatabase::markNotFitted()
{
    const PropertyQuery notFitted(notFittedProperty(), nullptr);
    for (Part *part : m_parts.parts()) {
        if (!m_netlist->fitting(notFitted.hostText(part->component())).isFitted) {
            m_parts.markNotFitted(part);
        }
    }
}

void BOMPartsDatabase::reload()
{
    const BulkChange change(this);
    m_isSuspended = false;
    clear();
    load();
}

void BOMPartsDatabase::reloadFromFiles()
{
    if (!m_netlist || !m_netlist->rereaddesign()) {
        reload();
    }
}

void BOMPartsDatabase::clearAndSuspend()
{
    m_isSuspended = true;
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
    if (m_bulkChanges > 0) {
        m_isNoticeDue = true;
    } else if (!m_isSuspended) {
        Q_EMIT dataChanged();
    }
}

QStringList BOMPartsDatabase::propertyNames() const
{
    QSet<QString> names;
    if (m_netlist && m_netlist->isValid()) {
        for (const QByteArray &name : m_netlist->propertyNames) {
            names.insert(fromHostText(name));
        }
    }
    for (const Part *part : parts()) {
        if (part->isBOMPart()) {
            const QStringList own = static_cast<const BOMPart *>(part)->properties().keys();
            names.unite(QSet<QString>(own.begin(), own.end()));
        }
    }
    QStringList sorted = names.values();
    sorted.removeIf([](const QString &name) {
        return name.startsWith(bomPartPropertyStart()) || name == bomLinksProperty();
    });
    std::sort(sorted.begin(), sorted.end(), [](const QString &left, const QString &right) {
        const int order = left.compare(right, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : left < right;
    });
    return sorted;
}

QString BOMPartsDatabase::property(const QString &reference, const QString &name) const
{
    const Part *found = part(reference);
    return found ? found->property(name) : QString();
}

void BOMPartsDatabase::updatePropertyTypes()
{
    m_propertyTypes.load();
    updateFieldGrouping();
}

QStringList BOMPartsDatabase::bomPartDefinitions(const COMPONENT &component)
{
    return ComponentReader::definitionTexts(component);
}

void BOMPartsDatabase::createBOMParts(const QString &parentReference, const QStringList &definitions)
{
    ParentDefinitions parent{parentReference, {}};
    for (const QString &text : definitions) {
        parent.definitions.append({QString(), text});
    }
    m_bomOnlyParts.make(parent);
    notify();
}

std::optional<DefinitionProperty> BOMPartsDatabase::addBOMParts(const QString &parentReference, int count,
                                                                const QString &escapedPrefix,
                                                                const QString &escapedValue)
{
    auto added = m_bomOnlyParts.add(parentReference, count, escapedPrefix, escapedValue);
    if (added) {
        updateFieldGrouping();
    }
    return added;
}

bool BOMPartsDatabase::setBOMPartProperty(const QString &reference, const QString &name, const QString &text)
{
    const bool isChanged = m_bomOnlyParts.setProperty(reference, name, text);
    if (isChanged) {
        updateFieldGrouping();
    }
    return isChanged;
}

bool BOMPartsDatabase::removeBOMPart(const QString &parentReference, const QString &reference)
{
    const bool isRemoved = m_bomOnlyParts.remove(parentReference, reference);
    if (isRemoved) {
        updateFieldGrouping();
    }
    return isRemoved;
}

QList<BOMPart *> BOMPartsDatabase::bomParts(const QString &parentReference) const
{
    return m_bomOnlyParts.parts(parentReference);
}

void BOMPartsDatabase::setLinks(const QString &reference, const QString &text)
{
    m_links.insert(reference, readBOMLinks(text));
}

QMap<QString, QString> BOMPartsDatabase::links(const QString &reference) const
{
    return m_links.links(reference);
}

QString BOMPartsDatabase::link(const QString &reference, const QString &propertyName) const
{
    return m_links.link(reference, propertyName);
}

QString BOMPartsDatabase::designInfo(const char *key) const
{
    return ::designInfo(key);
}

QString BOMPartsDatabase::designTitle() const
{
    return ::designTitle();
}

QString BOMPartsDatabase::designVariant() const
{
    return ::designVariant();
}

QString BOMPartsDatabase::defaultOutputPath(const QString &extension) const
{
    return designOutputPath(extension);
}

NotesResult BOMPartsDatabase::setNotes(const QString &text, const NotesQuestion &ask)
{
    if (text == m_notes) {
        return {NotesResult::State::Written, m_notes, {}};
    }
    NotesResult result = setDesignNotes(m_notes, text, ask);
    if (m_notes != result.text && result.problem.isEmpty()) {
        m_notes = result.text;
        notify();
    }
    return result;
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
    takeLook(settings, &m_template);
}

BOMFields BOMPartsDatabase::columns() const
{
    return columnsOf(m_template, hasNotFitted());
}

bool BOMPartsDatabase::setTemplateLayout(const BOMTemplate &settings)
{
    const bool isChanged = applyLayout(settings);
    if (isChanged) {
        Q_EMIT currentTemplateModified(true);
    }
    return isChanged;
}

void BOMPartsDatabase::restoreTemplateLayout(const BOMTemplate &settings, bool wasModified)
{
    (void)applyLayout(settings);
    Q_EMIT currentTemplateModified(wasModified);
}

bool BOMPartsDatabase::applyLayout(const BOMTemplate &settings)
{
    const bool wasCaseSensitive = m_template.caseSensitiveGrouping();
    const bool isChanged = takeLayout(settings, &m_template);
    if (m_template.caseSensitiveGrouping() != wasCaseSensitive) {
        updateFieldGrouping();
    }
    return isChanged;
}

bool BOMPartsDatabase::setTemplateOptions(const BOMTemplate &settings)
{
    const bool isChanged = takeOptions(settings, &m_template);
    if (isChanged) {
        notify();
        Q_EMIT currentTemplateModified(true);
    }
    return isChanged;
}

void BOMPartsDatabase::applyFields(const BOMFields &fields)
{
    BOMFields columns;
    for (const BOMField &field : fields.fields()) {
        columns.add(field);
    }
    m_template.setFields(columns);
}

void BOMPartsDatabase::applyCategories(const QList<BOMCategory> &categories)
{
    m_template.setCategories(categories);
    m_categories.rebuild();
    updateFieldGrouping();
}

QStringList BOMPartsDatabase::categoryValues(const QString &category) const
{
    return m_categories.values(category);
}

QStringList BOMPartsDatabase::categoryReferences(const QString &category) const
{
    return m_categories.references(category);
}

QStringList BOMPartsDatabase::valueReferences(const QString &category, const QString &value) const
{
    return m_categories.references(category, value);
}

QList<QStringList> BOMPartsDatabase::groupLines(const QString &category, const QString &value) const
{
    return m_categories.lines(category, value);
}

QStringList BOMPartsDatabase::formattedLines(const QString &category, const QString &value, int width,
                                             int lines) const
{
    QStringList texts;
    for (const QStringList &line : groupLines(category, value)) {
        texts.append(m_categories.formatReferences(line, width, lines));
    }
    return texts;
}

QList<QPair<QString, int>> BOMPartsDatabase::lineSummaries(const QString &category) const
{
    return m_categories.lineSummaries(category);
}

QString BOMPartsDatabase::groupingKey(const QString &reference) const
{
    return m_categories.groupingKey(reference);
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
    m_categories.regroup();
    notify();
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
