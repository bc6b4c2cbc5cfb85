// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/changelist.h"
#include "cli/console.h"
#include "cli/newproperties.h"
#include "core/propertyassignments.h"
#include "standalone/designwriter.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

class BOMPart;
class OpenDesign;

/// Edits of the open design that a command collects, and then writes all of them or none.
class DesignEdits final
{
public:
    /// The design must outlive the edits.
    explicit DesignEdits(OpenDesign &design);

    /// Whether a component or a BOM-only part has that reference.
    [[nodiscard]] bool isKnown(const QString &reference) const;
    /// The names under which an edit of the property is stored in the parts of that reference, one each.
    [[nodiscard]] QStringList writtenNames(const QString &reference, const QString &property) const;

    /// Gives a property a value as people see it; an empty one takes the property away. A value that the
    /// property cannot have is refused; `origin`, "FILE:LINE" or empty, stands in front of the message then.
    void add(const QString &reference, const QString &property, const QString &value,
             const QString &origin = {});
    /// Something else that keeps the edits from being written.
    void refuse(const QString &message) { m_refusals.append(message); }
    /// A reference that the design does not have. Only the first ones are named, the others are counted.
    void refuseUnknown(const QString &reference, const QString &origin);

    /// Reference and property of each edit that was given with its origin.
    [[nodiscard]] QList<std::pair<QString, QString>> edited() const { return m_origins.keys(); }

    /// Writes the edits, and reports what was changed or why nothing was.
    [[nodiscard]] ExitStatus write(const WriteOptions &options);

private:
    /// Why the reference or the property cannot be changed, whatever the value; empty when it can.
    [[nodiscard]] QString fixedReason(const QString &reference, const QString &property) const;
    [[nodiscard]] bool isContradicted(const QString &reference, const QString &property,
                                      const QString &value) const;
    void addDirect(const QString &reference, const QString &property, const QString &value,
                   const QString &front);
    void addToBOMPart(const BOMPart &part, const QString &property, const QString &value,
                      const QString &front);
    [[nodiscard]] QString messageOf(const CDBPROBLEM &problem) const;
    [[nodiscard]] WriteResult writeBatch(const WriteOptions &options);
    [[nodiscard]] ExitStatus reportProblems(const QStringList &messages, ExitStatus status,
                                            bool isUndecided = false) const;
    /// Of the properties that are taken away those that another name answers for from now on.
    [[nodiscard]] QStringList newlyReadNotices(const QList<CDBCHANGE> &changes) const;
    /// The name and the text that a property is read from after the changes, if these leave it as it was.
    [[nodiscard]] std::optional<std::pair<QString, QString>>
    readAfter(const QString &reference, const QString &property, const QList<CDBCHANGE> &changes) const;
    [[nodiscard]] ExitStatus reportChanges(const WriteResult &result, bool isDryRun);

    OpenDesign &m_design;
    PropertyAssignments m_assignments;
    /// Stored values of components that the parts database does not hold.
    QMap<QString, PropertyAssignments::Values> m_direct;
    QStringList m_refusals;
    qsizetype m_unknownReferences = 0;
    /// Where edits come from, by reference and property.
    QHash<std::pair<QString, QString>, QString> m_origins;
    /// What is changed in BOM-only parts, for the report: the changes of the design only name the definitions
    /// of their parents.
    QList<BomPartChange> m_bomPartChanges;
    /// What BOM-only parts will have, by reference and upper-case name.
    QHash<QString, QMap<QString, QString>> m_bomPartProperties;
    struct BomPartEdit
    {
        /// The name that was asked for first.
        QString askedName;
        QString text;
    };
    /// The edits of BOM-only parts, by reference and the upper-case name that they change.
    QHash<std::pair<QString, QString>, BomPartEdit> m_bomPartEdits;
    /// Reference and name of what is taken from BOM-only parts.
    QList<std::pair<QString, QString>> m_bomPartRemovals;
    NewProperties m_newProperties;
    /// The first parent whose BOM-only parts may be numbered anew, and whether there are others.
    QString m_renumbered;
    bool m_isMoreRenumbered = false;
};
