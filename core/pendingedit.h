// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <tuple>

/// The value that takes a property away.
[[nodiscard]] inline QString removalText()
{
    return QStringLiteral("[REMOVE]");
}

/// What tells a part from any other of its design, also when references were changed and the design was read
/// again.
struct PartIdentity
{
    /// Of the component, see NETLIST::identityof; of a BOM-only part its parent's.
    QByteArray component;
    /// What a BOM-only part's definition says of it; empty for a placed part.
    QString definition = {};
    /// Its place among the parts of its parent of which the same is said.
    int place = 0;

    bool operator==(const PartIdentity &) const = default;
    /// Some order, for maps.
    bool operator<(const PartIdentity &other) const
    {
        return std::tie(component, definition, place) <
               std::tie(other.component, other.definition, other.place);
    }
};

/// Why a pending edit is not written, unless the user says so.
enum class EditConflict
{
    None,
    /// The design holds another text than the one that the edit was made against.
    ValueChanged,
    /// The part is in the design and not in the bill: skipped, or left out by the choice for parts that are
    /// not fitted. It cannot be written at present, whatever the user says.
    PartLeftOut,
    /// The design has no such part any more. It cannot be written at present, whatever the user says.
    PartGone
};

/// A property value that the user has set and that is not in the design yet.
struct PendingEdit
{
    PartIdentity part;
    /// That the part has at present, or had last.
    QString reference;
    QString property;
    /// As people see it; empty takes the property away.
    QString value;
    /// The text that the design held when the edit was made, as stored; empty where it had none.
    QString before;

    EditConflict conflict = EditConflict::None;
    /// What the design holds at present, as stored.
    QString present = {};
    /// The user wants it written although the text changed.
    bool isConfirmed = false;

    [[nodiscard]] bool canBeWritten() const
    {
        return conflict == EditConflict::None || (conflict == EditConflict::ValueChanged && isConfirmed);
    }

    bool operator==(const PendingEdit &) const = default;
};

/// What the pending edits of one design are kept under.
struct EditedDesign
{
    /// Absolute.
    QString file;
    QString variant;

    bool operator==(const EditedDesign &) const = default;
    /// Some order, for maps.
    bool operator<(const EditedDesign &other) const
    {
        return std::tie(file, variant) < std::tie(other.file, other.variant);
    }
};

/// A design with edits that were never written.
struct UnwrittenDesign
{
    EditedDesign design;
    qsizetype edits = 0;

    bool operator==(const UnwrittenDesign &) const = default;
};
