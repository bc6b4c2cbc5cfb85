// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/cdbcore.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

class BOMPartsDatabase;

/// Property values that people have set and that are not in the design yet. They are written in one batch
/// through the host's component database; what the design is then, the host tells as with any other change.
class PropertyAssignments final : public QObject
{
    Q_OBJECT

public:
    /// New values by property name.
    using Values = QMap<QString, QString>;

    /// The value that takes a property away.
    [[nodiscard]] static QString removal() { return QStringLiteral("[REMOVE]"); }

    /// The database must outlive the store.
    explicit PropertyAssignments(BOMPartsDatabase *database, QObject *parent = nullptr);

    /// `value` is what people see, see storedValue(); an empty one takes the property away.
    void assign(const QString &reference, const QString &property, const QString &value);
    /// Writes one stored value at once, or into the batch that is open.
    void assignNow(const QString &reference, const QString &property, const QString &value);

    [[nodiscard]] bool isEmpty() const { return m_pending.isEmpty(); }
    /// By reference.
    [[nodiscard]] const QMap<QString, Values> &pending() const { return m_pending; }
    void clear() { m_pending.clear(); }

    /// The host is only asked what would be written; nothing else is written either.
    void setDryRun(bool isDryRun) { m_isDryRun = isDryRun; }

    /// Writes all pending assignments, placed parts by script, BOM-only parts into the definitions of their
    /// parents; references that the database does not hold are passed over. All or nothing is written; what
    /// is refused stays pending. Gives the text to be shown, at most 80 characters and "..."; empty when
    /// nothing was pending.
    QString apply();
    /// What the last apply() gave, and what assignNow() reported since.
    [[nodiscard]] const QString &result() const { return m_result; }
    /// All that kept the last apply() from writing, uncut.
    [[nodiscard]] const QList<CDBPROBLEM> &problems() const { return m_problems; }

    /// Whether people may enter that text for a property: a property of two states takes them as shown or as
    /// stored (Yes or 1), a number must be one. Empty and removal() are always accepted.
    [[nodiscard]] bool accepts(const QString &property, const QString &displayText) const;
    /// The way back from what is shown to what the design holds; removal() stays as it is.
    [[nodiscard]] QString storedValue(const QString &property, const QString &displayText) const;

    /// The script that writes stored values of one reference.
    [[nodiscard]] static QString script(const QString &reference, const Values &values);
    /// Why a script cannot carry these texts; empty when it can.
    [[nodiscard]] static QString scriptProblem(const QString &reference, const QString &property,
                                               const QString &value);

private:
    void defineLinksProperty() const;
    void refuse(const QString &reference, const QString &property, const QString &reason);
    /// Whether a script can; refuses the text otherwise.
    bool canCarry(const QString &reference, const QString &property, const QString &value);
    void collectPlaced(const QString &reference, const Values &values, QMap<QString, Values> *batch);
    void collectBOMParts(const QMap<QString, Values> &assignments, QMap<QString, Values> *batch,
                         QMap<QString, QStringList> *formerDefinitions);
    void refuseBlockedDefinitions(const QString &parent, const QStringList &former, const Values &placed);
    void run(const QMap<QString, Values> &batch, const QMap<QString, QStringList> &formerDefinitions);

    BOMPartsDatabase *m_database;
    bool m_isDryRun = false;
    QMap<QString, Values> m_pending;
    QString m_result;
    QList<CDBPROBLEM> m_problems;
};
