// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/propertyassignments.h"

#include "core/bomlinks.h"
#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "core/designwrite.h"
#include "core/resultstream.h"
#include "core/storedconversion.h"
#include "host/framework/hosttext.h"
#include "host/framework/hostui.h"
#include "host/propdefs/propdefsfile.h"

#include <QScopedValueRollback>
#include <QStringList>

#include <sstream>
#include <utility>

namespace {

constexpr qsizetype longestResult = 80;
/// What stands between name and value in a line of a script.
constexpr char separator[] = "\"   :   \"";

QString line(const QString &property, const QString &value)
{
    return u'"' + property + QLatin1String(separator) + value + QStringLiteral("\"\n");
}

bool breaksLine(const QString &text)
{
    return text.contains(u'\n') || text.contains(u'\r') || text.contains(QChar(u'\0'));
}

/// What the host tells may be long, but no more of the result is shown.
void append(const QString &text, QString *result)
{
    if (result->size() <= longestResult) {
        result->append(text);
    }
}

QString joinedMessages(const QList<CDBPROBLEM> &problems)
{
    QString text;
    for (const CDBPROBLEM &problem : problems) {
        append((text.isEmpty() ? QString() : QStringLiteral("\n")) + problem.message(), &text);
    }
    return text;
}

/// Whether a value gives links to a placed part or, in a definition, to BOM-only parts.
bool holdsLinks(const QString &property, const QString &value)
{
    return property.compare(bomLinksProperty(), Qt::CaseInsensitive) == 0 ||
           (property.startsWith(bomPartPropertyStart(), Qt::CaseInsensitive) &&
            value.contains(bomLinksProperty(), Qt::CaseInsensitive));
}

/// A file that somebody marked read-only is left as it is; that matters only when links are written.
void defineLinksProperty(bool writesLinks)
{
    if (!writesLinks && isreadonly_defaultdefs()) {
        return;
    }
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
            nullptr, PropertyAssignments::tr("Property Definitions"),
            PropertyAssignments::tr(
                "The property BOMLINKS could not be defined.  Please ensure 'PROPDEFS.INI' is writeable."));
    }
}

} // namespace

/// What pending assignments come to: the stored values that are to be written, or why they cannot be.
/// BOM-only parts are changed in the database right away, which tells what their definitions must say.
class PropertyAssignments::Batch
{
public:
    Batch(const PropertyAssignments &assignments, const QMap<QString, Values> &wanted)
        : m_assignments(assignments)
        , m_database(assignments.m_database)
    {
        QMap<QString, Values> ofBOMParts;
        for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
            const Part *part = m_database->part(it.key());
            if (part && part->isBOMPart()) {
                ofBOMParts.insert(it.key(), it.value());
            } else if (part) {
                addPlaced(it.key(), it.value());
            }
        }
        hasBOMParts = !ofBOMParts.isEmpty();
        if (problems.isEmpty()) {
            changeBOMParts(ofBOMParts);
        }
    }

    void refuse(const QString &reference, const QString &property, const QString &reason)
    {
        problems.append({reference, property, {}, 0, reason});
    }

    /// By reference, what is written.
    QMap<QString, Values> stored;
    /// By parent, the properties that defined its BOM-only parts until now.
    QMap<QString, QStringList> formerDefinitions;
    QList<CDBPROBLEM> problems;
    bool hasBOMParts = false;
    bool writesLinks = false;

private:
    void addPlaced(const QString &reference, const Values &values);
    void changeBOMParts(const QMap<QString, Values> &wanted);
    void changeBOMPart(const QString &reference, const Values &values);
    void rewriteDefinitions(const QString &parent, const QStringList &former);
    void add(const QString &reference, const QString &property, const QString &value);
    /// Whether a script can carry the texts; otherwise they are refused.
    bool canCarry(const QString &reference, const QString &property, const QString &value);

    const PropertyAssignments &m_assignments;
    BOMPartsDatabase *m_database;
};

void PropertyAssignments::Batch::addPlaced(const QString &reference, const Values &values)
{
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const QString text = m_assignments.storedValue(it.key(), it.value());
        add(reference, it.key(), text.isEmpty() ? removal() : text);
    }
}

void PropertyAssignments::Batch::add(const QString &reference, const QString &property, const QString &value)
{
    if (canCarry(reference, property, value)) {
        stored[reference].insert(property, value);
        writesLinks = writesLinks || (value != removal() && holdsLinks(property, value));
    }
}

bool PropertyAssignments::Batch::canCarry(const QString &reference, const QString &property,
                                          const QString &value)
{
    const QString problem = scriptProblem(reference, property, value);
    if (!problem.isEmpty()) {
        refuse(reference, property, problem);
    }
    return problem.isEmpty();
}

/// The definitions of a parent that has changed parts are written anew, all of them.
void PropertyAssignments::Batch::changeBOMParts(const QMap<QString, Values> &wanted)
{
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        changeBOMPart(it.key(), it.value());
    }
    for (auto it = formerDefinitions.cbegin(); it != formerDefinitions.cend(); ++it) {
        rewriteDefinitions(it.key(), it.value());
    }
}

void PropertyAssignments::Batch::changeBOMPart(const QString &reference, const Values &values)
{
    const QString parent = static_cast<const BOMPart *>(m_database->part(reference))->parentReference();
    formerDefinitions.insert(parent, m_database->bomOnlyParts().propertyNames(parent));
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const QString text = it.value() == removal() ? QString() : it.value();
        if (breaksLine(text) || !m_database->setBOMPartProperty(reference, it.key(), text)) {
            refuse(reference, it.key(), tr("A definition of BOM-only parts cannot hold this text"));
        }
    }
}

void PropertyAssignments::Batch::rewriteDefinitions(const QString &parent, const QStringList &former)
{
    for (const QString &name : former) {
        (void)canCarry(parent, name, removal());
    }
    const Values placed = stored.value(parent);
    for (auto it = placed.cbegin(); it != placed.cend(); ++it) {
        if (it.key().startsWith(bomPartPropertyStart(), Qt::CaseInsensitive)) {
            refuse(parent, it.key(), tr("A part that this defines is changed as well"));
        }
    }
    const auto definitions = m_database->bomOnlyParts().rewritten(parent);
    for (const DefinitionProperty &definition : definitions.value_or(QList<DefinitionProperty>())) {
        add(parent, definition.name, definition.text);
    }
    if (!definitions) {
        refuse(parent, bomPartPropertyStart(), tr("A definition of BOM-only parts cannot hold this text"));
    }
}

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
    DesignWrite write(m_database);
    const QString problem = scriptProblem(reference, property, value);
    if (!problem.isEmpty()) {
        append(CDBPROBLEM{reference, property, {}, 0, problem}.message(), &m_result);
        return;
    }
    ResultStream output;
    std::istringstream text(toHostText(script(reference, {{property, value}})).toStdString());
    getcdb()->adi(text, output, 0);
    const bool isWritten = write.commit();
    if (!output.saysNoErrors()) {
        append(output.text(), &m_result);
    } else if (!isWritten) {
        append(getcdb()->problems().value(0).message(), &m_result);
    }
}

QString PropertyAssignments::apply()
{
    return apply(ApplyOptions()).text;
}

ApplyResult PropertyAssignments::apply(const ApplyOptions &options)
{
    if (m_isApplying) {
        // A dialog of the host that is open meanwhile may lead back here.
        const QString reason = tr("The design is being written already");
        return {reason, {{{}, {}, {}, 0, reason}}};
    }
    m_result.clear();
    if (m_pending.isEmpty()) {
        return {};
    }
    const QScopedValueRollback applying(m_isApplying, true);
    // What changes is told when all is done: parts that the batch changes, and the reload after it.
    const BOMPartsDatabase::BulkChange change(m_database);
    const QMap<QString, Values> wanted = std::exchange(m_pending, {});
    Batch batch(*this, wanted);
    if (!getcdb()) {
        batch.refuse({}, {}, tr("There is no component database"));
    }
    if (batch.problems.isEmpty()) {
        run(&batch, options);
    }
    if (batch.hasBOMParts && (options.isDryRun || !batch.problems.isEmpty())) {
        // The batch changed them to see what their definitions must say.
        m_database->reload();
    }
    if (!batch.problems.isEmpty()) {
        m_pending = wanted;
        if (m_result.isEmpty()) {
            m_result = joinedMessages(batch.problems);
        }
    }
    if (m_result.isEmpty()) {
        m_result = tr("Applied successfully");
    }
    if (m_result.size() > longestResult) {
        m_result = m_result.left(longestResult) + QStringLiteral("...");
    }
    return {m_result, batch.problems};
}

void PropertyAssignments::run(Batch *batch, const ApplyOptions &options)
{
    DesignWrite write(m_database);
    for (auto it = batch->formerDefinitions.cbegin(); it != batch->formerDefinitions.cend(); ++it) {
        for (const QString &name : *it) {
            assignNow(it.key(), name, removal());
        }
    }
    ResultStream output;
    for (auto it = batch->stored.cbegin(); it != batch->stored.cend(); ++it) {
        std::istringstream text(toHostText(script(it.key(), *it)).toStdString());
        getcdb()->adi(text, output, 0);
        if (!output.saysNoErrors() && m_result.size() <= longestResult) {
            append(output.text(), &m_result);
        }
        // Clears the state flags only: what was written stays and is looked at again.
        output.clear();
    }
    if (!options.isDryRun) {
        write.whenWritten([writesLinks = batch->writesLinks] { defineLinksProperty(writesLinks); });
    }
    if (!write.commit()) {
        batch->problems = getcdb()->problems();
        if (batch->problems.isEmpty()) {
            batch->refuse({}, {}, tr("The component database did not say why nothing was written"));
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
