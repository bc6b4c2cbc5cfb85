// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/cdbcore.h"

#include <QCoreApplication>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class BOMPartsDatabase;

/// New values by property name.
using AssignedValues = QMap<QString, QString>;

/// The script that writes stored values of one reference.
[[nodiscard]] QString assignmentScript(const QString &reference, const AssignedValues &values);
/// Why a script cannot carry these texts; empty when it can.
[[nodiscard]] QString assignmentProblem(const QString &reference, const QString &property,
                                        const QString &value);

/// What assignments come to: the stored values that are to be written, or why they cannot be. BOM-only parts
/// are changed in the database right away, which tells what their definitions must say.
class AssignmentBatch final
{
    Q_DECLARE_TR_FUNCTIONS(AssignmentBatch)

public:
    /// `wanted` by reference, as people see the values; references that the database does not hold are passed
    /// over.
    AssignmentBatch(BOMPartsDatabase *database, const QMap<QString, AssignedValues> &wanted);

    void refuse(const QString &reference, const QString &property, const QString &reason)
    {
        problems.append({reference, property, {}, 0, reason});
    }

    /// By reference, what is written.
    QMap<QString, AssignedValues> stored;
    /// By parent, the properties that defined its BOM-only parts until now.
    QMap<QString, QStringList> formerDefinitions;
    QList<CDBPROBLEM> problems;
    bool hasBOMParts = false;
    bool writesLinks = false;

private:
    void addPlaced(const QString &reference, const AssignedValues &values);
    void changeBOMParts(const QMap<QString, AssignedValues> &wanted);
    void changeBOMPart(const QString &reference, const AssignedValues &values);
    void rewriteDefinitions(const QString &parent, const QStringList &former);
    void add(const QString &reference, const QString &property, const QString &value);
    /// Whether a script can carry the texts; otherwise they are refused.
    bool canCarry(const QString &reference, const QString &property, const QString &value);

    BOMPartsDatabase *m_database;
};
