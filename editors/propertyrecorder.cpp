// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/propertyrecorder.h"

#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "editors/cleanedvalue.h"
#include "editors/propertyrows.h"

#include <algorithm>

PropertyRecorder::PropertyRecorder(const BOMPartsDatabase *database, PropertyAssignments *assignments)
    : m_database(database)
    , m_assignments(assignments)
{
}

QString PropertyRecorder::value(const PropertyColumn &column, const QString &text) const
{
    QString value = cleanedValue(text);
    // The value and the footprint are names: with blanks around them they would be other ones.
    if (column.key == valueProperty() || column.isFootprint()) {
        value = value.trimmed();
    }
    if (value == PropertyAssignments::removal()) {
        return {};
    }
    // A property of two states may be entered as it is stored.
    const auto type = m_database->propertyTypes().type(column.property);
    if (type && hasTwoStates(*type) && m_assignments->accepts(column.property, value)) {
        return DisplayConversion(type)(m_assignments->storedValue(column.property, value));
    }
    return value;
}

QString PropertyRecorder::problem(const PropertyRow &row, const PropertyColumn &column,
                                  const QString &text) const
{
    if (!column.isEditable) {
        return tr("it cannot be edited");
    }
    const QString wanted = value(column, text);
    if (!m_assignments->accepts(column.property, wanted)) {
        return notTaken();
    }
    const auto isPlaced = [this](const QString &reference) {
        const Part *part = m_database->part(reference);
        return part && !part->isBOMPart();
    };
    if (column.key == valueProperty() && wanted.isEmpty() &&
        std::any_of(row.references.cbegin(), row.references.cend(), isPlaced)) {
        return tr("the value of a part on the schematic cannot be empty");
    }
    return {};
}

QString PropertyRecorder::record(const PropertyRow &row, const PropertyColumn &column, const QString &text)
{
    const QString refusal = problem(row, column, text);
    if (!refusal.isEmpty()) {
        return refusal;
    }
    const QString wanted = value(column, text);
    const PropertyAssignments::Action action(m_assignments);
    for (const QString &reference : row.references) {
        recordPart(reference, column, wanted);
    }
    return {};
}

void PropertyRecorder::recordPart(const QString &reference, const PropertyColumn &column,
                                  const QString &value)
{
    const PendingEdit *edit = m_assignments->edit(reference, column.key);
    const QString present = m_database->property(reference, column.property);
    if (m_assignments->storedValue(column.property, value) !=
        m_assignments->storedValue(column.property, present)) {
        // Typing a text again says that it is meant, whatever the design holds by now.
        if (!edit || edit->value != value || edit->conflict != EditConflict::None) {
            m_assignments->assign(reference, column.key, value);
        }
    } else if (edit) {
        m_assignments->retract(reference, column.key);
    }
}
