// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/propertyassignments.h"

#include "core/bomlinks.h"
#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "core/bulkchange.h"
#include "core/hostbatch.h"
#include "core/reportstream.h"
#include "core/storedconversion.h"
#include "host/framework/hosttext.h"
#include "host/framework/hostui.h"
#include "host/propdefs/propdefsfile.h"

#include <QStringList>

#include <algorithm>
#include <sstream>
#include <utility>

namespace {

constexpr qsizetype longestResult = 80;
/// What parts name and value in a line of a script.
constexpr char separator[] = "\"   :   \"";

QString line(const QString &property, const QString &value)
{
    return u'"' + property + QLatin1String(separator) + value + QStringLiteral("\"\n");
}

bool breaksLine(const QString &text)
{
    return text.contains(u'\n') || text.contains(u'\r') || text.contains(QChar(u'\0'));
}

/// The text of a report may be long, but no more of the result is shown.
void append(const QString &text, QString *result)
{
    if (result->size() <= longestResult) {
        result->append(text);
    }
}

} // namespace

PropertyAssignments::PropertyAssignments(BOMPartsDatabase *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

void PropertyAssignments::assign(const QString &reference, const QString &property, const QString &value)
{
    m_pending[reference].insert(property, value);
}

void PropertyAssignments::assignNow(const QString &reference, const QString &property, const QString &value)
{
    if (!getcdb()) {
        append(tr("There is no component database"), &m_result);
        return;
    }
    HostBatch batch;
    const QString problem = scriptProblem(reference, property, value);
    if (!problem.isEmpty()) {
        append(CDBPROBLEM{reference, property, {}, 0, problem}.message(), &m_result);
        return;
    }
    ReportStream report;
    std::istringstream text(toHostText(script(reference, {{property, value}})).toStdString());
    getcdb()->adi(text, report, 0);
    const bool isWritten = batch.commit();
    if (!report.saysNoErrors()) {
        append(report.text(), &m_result);
    } else if (!isWritten) {
        append(getcdb()->problems().value(0).message(), &m_result);
    }
}

QString PropertyAssignments::apply()
{
    m_result.clear();
    m_problems.clear();
    if (m_pending.isEmpty()) {
        return m_result;
    }
    if (!m_isDryRun) {
        defineLinksProperty();
    }
    const QMap<QString, Values> wanted = std::exchange(m_pending, {});
    QMap<QString, Values> batch;
    QMap<QString, Values> bomParts;
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        const Part *part = m_database->part(it.key());
        if (part && part->isBOMPart()) {
            bomParts.insert(it.key(), it.value());
        } else if (part) {
            collectPlaced(it.key(), it.value(), &batch);
        }
    }
    QMap<QString, QStringList> formerDefinitions;
    if (m_problems.isEmpty()) {
        collectBOMParts(bomParts, &batch, &formerDefinitions);
    }
    if (!getcdb()) {
        refuse({}, {}, tr("There is no component database"));
    }
    if (m_problems.isEmpty()) {
        run(batch, formerDefinitions);
    }
    if (!bomParts.isEmpty() && (m_isDryRun || !m_problems.isEmpty())) {
        // They were changed already, to see whether that can be written.
        m_database->reload();
    }
    if (!m_problems.isEmpty()) {
        m_pending = wanted;
        if (m_result.isEmpty()) {
            for (const CDBPROBLEM &problem : std::as_const(m_problems)) {
                append((m_result.isEmpty() ? QString() : QStringLiteral("\n")) + problem.message(),
                       &m_result);
            }
        }
    }
    if (m_result.isEmpty()) {
        m_result = tr("Applied successfully");
    }
    if (m_result.size() > longestResult) {
        m_result = m_result.left(longestResult) + QStringLiteral("...");
    }
    return m_result;
}

void PropertyAssignments::defineLinksProperty() const
{
    DIDX defined;
    PROPTEXT text;
    bool isKnown = load_defaultdefs(&defined, &text);
    if (isKnown && !defined.find(bomLinksProperty())) {
        text.add(QStringLiteral("PROPDEFS"),
                 format_propdefs({bomLinksProperty(), PropType::String,
                                  QStringLiteral("External links set in the BOM")}));
        isKnown = save_defaultdefs(text);
    }
    if (!isKnown) {
        HostUi::current().warning(
            nullptr, tr("Property Definitions"),
            tr("The property BOMLINKS could not be defined.  Please ensure 'PROPDEFS.INI' is writeable."));
    }
}

void PropertyAssignments::refuse(const QString &reference, const QString &property, const QString &reason)
{
    m_problems.append({reference, property, {}, 0, reason});
}

bool PropertyAssignments::canCarry(const QString &reference, const QString &property, const QString &value)
{
    const QString problem = scriptProblem(reference, property, value);
    if (!problem.isEmpty()) {
        refuse(reference, property, problem);
    }
    return problem.isEmpty();
}

void PropertyAssignments::collectPlaced(const QString &reference, const Values &values,
                                        QMap<QString, Values> *batch)
{
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const QString stored = storedValue(it.key(), it.value());
        if (canCarry(reference, it.key(), stored)) {
            (*batch)[reference].insert(it.key(), stored.isEmpty() ? removal() : stored);
        }
    }
}

/// The definitions of a parent that has changed parts are written anew, all of them.
void PropertyAssignments::collectBOMParts(const QMap<QString, Values> &assignments,
                                          QMap<QString, Values> *batch,
                                          QMap<QString, QStringList> *formerDefinitions)
{
    const BOMPartsDatabase::BulkChange change(m_database);
    for (auto it = assignments.cbegin(); it != assignments.cend(); ++it) {
        const auto *part = static_cast<const BOMPart *>(m_database->part(it.key()));
        const QString parent = part->parentReference();
        formerDefinitions->insert(parent, m_database->bomPartPropertyNames(parent));
        for (auto value = it->cbegin(); value != it->cend(); ++value) {
            const QString text = *value == removal() ? QString() : *value;
            if (breaksLine(text) || !m_database->setBOMPartProperty(it.key(), value.key(), text)) {
                refuse(it.key(), value.key(), tr("A definition of BOM-only parts cannot hold this text"));
            }
        }
    }
    for (auto it = formerDefinitions->cbegin(); it != formerDefinitions->cend(); ++it) {
        refuseBlockedDefinitions(it.key(), *it, batch->value(it.key()));
        const auto definitions = m_database->rewrittenDefinitions(it.key());
        for (const DefinitionProperty &definition : definitions.value_or(QList<DefinitionProperty>())) {
            if (canCarry(it.key(), definition.name, definition.text)) {
                (*batch)[it.key()].insert(definition.name, definition.text);
            }
        }
        if (!definitions) {
            refuse(it.key(), bomPartPropertyStart(),
                   tr("A definition of BOM-only parts cannot hold this text"));
        }
    }
}

/// What keeps the definitions of a parent from being written anew.
void PropertyAssignments::refuseBlockedDefinitions(const QString &parent, const QStringList &former,
                                                   const Values &placed)
{
    for (const QString &name : former) {
        (void)canCarry(parent, name, removal());
    }
    for (auto it = placed.cbegin(); it != placed.cend(); ++it) {
        if (it.key().startsWith(bomPartPropertyStart(), Qt::CaseInsensitive)) {
            refuse(parent, it.key(), tr("A part that this defines is changed as well"));
        }
    }
}

void PropertyAssignments::run(const QMap<QString, Values> &batch,
                              const QMap<QString, QStringList> &formerDefinitions)
{
    HostBatch hostBatch;
    for (auto it = formerDefinitions.cbegin(); it != formerDefinitions.cend(); ++it) {
        for (const QString &name : *it) {
            assignNow(it.key(), name, removal());
        }
    }
    ReportStream report;
    for (auto it = batch.cbegin(); it != batch.cend(); ++it) {
        std::istringstream text(toHostText(script(it.key(), *it)).toStdString());
        getcdb()->adi(text, report, 0);
        if (!report.saysNoErrors() && m_result.size() <= longestResult) {
            append(report.text(), &m_result);
        }
        report.clear();
    }
    if (!hostBatch.commit()) {
        m_problems = getcdb()->problems();
        if (m_problems.isEmpty()) {
            refuse({}, {}, tr("The component database did not say why nothing was written"));
        }
    }
}

bool PropertyAssignments::accepts(const QString &property, const QString &displayText) const
{
    return displayText == removal() ||
           StoredConversion(m_database->propertyTypes().type(property)).accepts(displayText);
}

QString PropertyAssignments::storedValue(const QString &property, const QString &displayText) const
{
    return displayText == removal()
               ? displayText
               : StoredConversion(m_database->propertyTypes().type(property))(displayText);
}

QString PropertyAssignments::script(const QString &reference, const Values &values)
{
    QString text = QStringLiteral("DATA NAME : ") + reference + QStringLiteral("-\n");
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        text += line(it.key(), *it);
    }
    return text + QStringLiteral("END\n\n");
}

QString PropertyAssignments::scriptProblem(const QString &reference, const QString &property,
                                           const QString &value)
{
    if (breaksLine(reference) || breaksLine(property) || breaksLine(value)) {
        return tr("A line break cannot be written");
    }
    // The name ends at the first separator.
    if (line(property, value).indexOf(QLatin1String(separator)) != property.size() + 1) {
        return tr("This name cannot be written");
    }
    return {};
}
