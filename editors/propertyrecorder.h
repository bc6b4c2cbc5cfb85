// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

class BOMPartsDatabase;
class PropertyAssignments;
struct PropertyColumn;
struct PropertyRow;

/// Makes pending edits of texts that people enter.
class PropertyRecorder final
{
    Q_DECLARE_TR_FUNCTIONS(PropertyRecorder)

public:
    /// Neither is owned.
    PropertyRecorder(const BOMPartsDatabase *database, PropertyAssignments *assignments);

    /// Why a text is refused that the property's type does not have.
    [[nodiscard]] static QString notTaken() { return tr("the property does not take this text"); }
    /// Why the parts of a row cannot have that text; empty when they can.
    [[nodiscard]] QString problem(const PropertyRow &row, const PropertyColumn &column,
                                  const QString &text) const;
    /// Records the text, cleaned, for every part of the row: one that is what the design says ends the
    /// part's edit. Gives why it was refused, in which case nothing changed; empty when it is recorded.
    [[nodiscard]] QString record(const PropertyRow &row, const PropertyColumn &column, const QString &text);

private:
    /// The text as it is recorded.
    [[nodiscard]] QString value(const PropertyColumn &column, const QString &text) const;
    void recordPart(const QString &reference, const PropertyColumn &column, const QString &value);

    const BOMPartsDatabase *m_database;
    PropertyAssignments *m_assignments;
};
