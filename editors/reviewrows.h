// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/propertyassignments.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class BOMPartsDatabase;

enum class ReviewState
{
    Fits,
    /// The design has the value already.
    IsThere,
    /// In conflict, see PendingEdit.
    TextChanged,
    PartLeftOut,
    PartGone,
    /// The host does not write it, which keeps all others from being written, too.
    Refused
};

/// A pending edit as people review it before it is written.
struct ReviewRow
{
    PendingEdit edit;
    ReviewState state = ReviewState::Fits;
    /// As people see it, like the new value in the edit.
    QString before;
    /// The properties of the placed part in which a change of a BOM-only part is written, "BOMPART1 of U1";
    /// empty for placed parts.
    QString definition;
    /// Absolute, the line counted from 1; empty where nothing is written or the host cannot tell.
    QString file;
    int line = 0;
    /// Other references that change with it.
    QStringList alsoChanges;
    /// Why it is refused.
    QStringList reasons;

    /// Whether the user can have the edit written although it is in conflict.
    [[nodiscard]] bool canBeConfirmed() const { return edit.conflict == EditConflict::ValueChanged; }
    /// "amp.kicad_sch:120", with the definition before it.
    [[nodiscard]] QString place() const;
    /// In words.
    [[nodiscard]] QString stateText(const BOMPartsDatabase *database) const;
};

/// What the pending edits would do to the design.
class PendingChanges final
{
    Q_DECLARE_TR_FUNCTIONS(PendingChanges)

public:
    PendingChanges() = default;
    /// Without a preview the host cannot tell.
    PendingChanges(const QList<PendingEdit> &edits, const std::optional<ApplyPreview> &preview,
                   const BOMPartsDatabase *database);

    /// In the order of the edits.
    [[nodiscard]] const QList<ReviewRow> &rows() const { return m_rows; }
    /// Why nothing can be written, where that is about no row; one sentence each.
    [[nodiscard]] const QStringList &generalProblems() const { return m_generalProblems; }
    [[nodiscard]] bool canBeApplied() const;
    /// "14 edits of 12 parts in 3 files; 2 in conflict; 1 refused".
    [[nodiscard]] QString summary() const;

private:
    class Builder;

    QList<ReviewRow> m_rows;
    QStringList m_files;
    QStringList m_generalProblems;
};

/// Why the edit is in conflict, in words; empty when it is not.
[[nodiscard]] QString conflictText(const PendingEdit &edit, const BOMPartsDatabase *database);
