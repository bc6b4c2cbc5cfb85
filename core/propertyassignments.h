// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/cdbcore.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

class BOMPartsDatabase;

/// How assignments are written.
struct ApplyOptions
{
    /// The host is only asked what would be written; nothing else is written either.
    bool isDryRun = false;
};

/// What came of writing assignments.
struct ApplyResult
{
    /// To be shown, at most 80 characters and "..."; empty when nothing was pending.
    QString text;
    /// All that kept the assignments from being written, uncut. They are written when there is none.
    QList<CDBPROBLEM> problems;

    bool operator==(const ApplyResult &) const = default;
};

/// Property values that people have set and that are not in the design yet. They are written in one batch
/// through the host's component database, which then reports the changed design as after any other change.
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
    /// Writes one stored value at once, or within the DesignWrite that is open.
    void assignNow(const QString &reference, const QString &property, const QString &value);

    [[nodiscard]] bool isEmpty() const { return m_pending.isEmpty(); }
    /// By reference.
    [[nodiscard]] const QMap<QString, Values> &pending() const { return m_pending; }
    void clear() { m_pending.clear(); }

    /// Writes all pending assignments, placed parts by script, BOM-only parts into the definitions of their
    /// parents; references that the database does not hold are passed over. All or nothing is written; what
    /// is refused stays pending. While it writes, another call is refused. Once the files are written, the
    /// property of the links is defined in the property definitions, see bomLinksProperty().
    ApplyResult apply(const ApplyOptions &options);
    /// The same without options; gives the text to be shown.
    QString apply();
    /// The text of the last apply(), with what assignNow() reported since.
    [[nodiscard]] const QString &result() const { return m_result; }

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
    class Batch;

    void run(Batch *batch, const ApplyOptions &options);

    BOMPartsDatabase *m_database;
    QMap<QString, Values> m_pending;
    QString m_result;
    bool m_isApplying = false;
};
