// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/assignmentbatch.h"

#include "core/bomlinks.h"
#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "core/pendingedit.h"
#include "core/storedconversion.h"

namespace {

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

/// Whether a value gives links to a placed part or, in a definition, to BOM-only parts.
bool holdsLinks(const QString &property, const QString &value)
{
    return property.compare(bomLinksProperty(), Qt::CaseInsensitive) == 0 ||
           (property.startsWith(bomPartPropertyStart(), Qt::CaseInsensitive) &&
            value.contains(bomLinksProperty(), Qt::CaseInsensitive));
}

} // namespace

AssignmentBatch::AssignmentBatch(BOMPartsDatabase *database, const QMap<QString, AssignedValues> &wanted)
    : m_database(database)
{
    QMap<QString, AssignedValues> ofBOMParts;
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

void AssignmentBatch::addPlaced(const QString &reference, const AssignedValues &values)
{
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const QString text = storedAssignment(m_database->propertyTypes(), it.key(), it.value());
        add(reference, it.key(), text.isEmpty() ? removalText() : text);
    }
}

void AssignmentBatch::add(const QString &reference, const QString &property, const QString &value)
{
    if (canCarry(reference, property, value)) {
        stored[reference].insert(property, value);
        writesLinks = writesLinks || (value != removalText() && holdsLinks(property, value));
    }
}

bool AssignmentBatch::canCarry(const QString &reference, const QString &property, const QString &value)
{
    const QString problem = assignmentProblem(reference, property, value);
    if (!problem.isEmpty()) {
        refuse(reference, property, problem);
    }
    return problem.isEmpty();
}

/// The definitions of a parent that has changed parts are written anew, all of them.
void AssignmentBatch::changeBOMParts(const QMap<QString, AssignedValues> &wanted)
{
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        changeBOMPart(it.key(), it.value());
    }
    for (auto it = formerDefinitions.cbegin(); it != formerDefinitions.cend(); ++it) {
        rewriteDefinitions(it.key(), it.value());
    }
}

void AssignmentBatch::changeBOMPart(const QString &reference, const AssignedValues &values)
{
    const QString parent = static_cast<const BOMPart *>(m_database->part(reference))->parentReference();
    formerDefinitions.insert(parent, m_database->bomOnlyParts().propertyNames(parent));
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const QString text = it.value() == removalText() ? QString() : it.value();
        if (breaksLine(text) || !m_database->setBOMPartProperty(reference, it.key(), text)) {
            refuse(reference, it.key(), tr("A definition of BOM-only parts cannot hold this text"));
        }
    }
}

void AssignmentBatch::rewriteDefinitions(const QString &parent, const QStringList &former)
{
    for (const QString &name : former) {
        (void)canCarry(parent, name, removalText());
    }
    const AssignedValues placed = stored.value(parent);
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

QString assignmentScript(const QString &reference, const AssignedValues &values)
{
    QString text = QStringLiteral("DATA NAME : ") + reference + QStringLiteral("-\n");
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        text += line(it.key(), *it);
    }
    return text + QStringLiteral("END\n\n");
}

QString assignmentProblem(const QString &reference, const QString &property, const QString &value)
{
    if (breaksLine(reference) || breaksLine(property) || breaksLine(value)) {
        return AssignmentBatch::tr("A line break cannot be written");
    }
    // The name ends at the first separator.
    if (line(property, value).indexOf(QLatin1String(separator)) != property.size() + 1) {
        return AssignmentBatch::tr("This name cannot be written");
    }
    return {};
}
