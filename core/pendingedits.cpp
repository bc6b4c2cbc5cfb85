// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/pendingedits.h"

#include "core/bompartsdatabase.h"
#include "core/reference.h"
#include "core/storedconversion.h"

#include <algorithm>
#include <tuple>

namespace {

bool isReachable(const PendingEdit &edit)
{
    return edit.conflict != EditConflict::PartLeftOut && edit.conflict != EditConflict::PartGone;
}

} // namespace

PendingEdits::PendingEdits(const BOMPartsDatabase *database)
    : m_database(database)
    , m_identities(database)
{
}

const PropertyQuery &PendingEdits::query(const QString &property)
{
    // Stored texts are compared, which need no types.
    return m_queries.try_emplace(property, property, nullptr).first->second;
}

PendingEdit PendingEdits::made(const QString &reference, const QString &property, const QString &value)
{
    const Part *part = m_database->part(reference);
    PendingEdit edit{part ? m_identities.of(*part) : PartIdentities::ofReference(reference),
                     reference,
                     property,
                     value,
                     {}};
    if (part) {
        edit.before = part->storedProperty(query(property));
        edit.present = edit.before;
    } else {
        edit.conflict = EditConflict::PartGone;
    }
    return edit;
}

PendingEdit PendingEdits::followed(PendingEdit edit)
{
    const PartIdentities::Place place = m_identities.find(edit.part, edit.reference);
    edit.conflict = place.state;
    if (!place.part) {
        return edit;
    }
    edit.reference = place.part->reference();
    const QString present = place.part->storedProperty(query(edit.property));
    if (present != edit.present) {
        // What the user agreed to overwrite is no longer there.
        edit.isConfirmed = false;
        edit.present = present;
    }
    if (present != edit.before && !isDone(edit)) {
        edit.conflict = EditConflict::ValueChanged;
    }
    return edit;
}

bool PendingEdits::isDone(const PendingEdit &edit) const
{
    // Definitions of BOM-only parts hold texts as people enter them.
    const bool isDefined = !edit.part.definition.isEmpty();
    const QString stored =
        isDefined ? edit.value : storedAssignment(m_database->propertyTypes(), edit.property, edit.value);
    return (stored == removalText() ? QString() : stored) == edit.present;
}

void PendingEdits::insert(const PendingEdit &edit)
{
    remove(EditKey::of(edit));
    const PendingEdit &held = m_edits.emplace(EditKey::of(edit), edit).first->second;
    if (isReachable(held)) {
        m_byReference[held.reference].insert(held.property, &held);
    }
}

void PendingEdits::remove(const EditKey &key)
{
    const auto found = m_edits.find(key);
    if (found == m_edits.end()) {
        return;
    }
    if (isReachable(found->second)) {
        const auto ofPart = m_byReference.find(found->second.reference);
        ofPart->remove(key.property);
        if (ofPart->isEmpty()) {
            m_byReference.erase(ofPart);
        }
    }
    m_edits.erase(found);
}

void PendingEdits::clear()
{
    m_byReference.clear();
    m_edits.clear();
}

const PendingEdit *PendingEdits::find(const EditKey &key) const
{
    const auto found = m_edits.find(key);
    return found == m_edits.end() ? nullptr : &found->second;
}

const PendingEdit *PendingEdits::find(const QString &reference, const QString &property) const
{
    const auto ofPart = m_byReference.constFind(reference);
    return ofPart == m_byReference.cend() ? nullptr : ofPart->value(property, nullptr);
}

QList<PendingEdit> PendingEdits::list() const
{
    QList<PendingEdit> edits;
    edits.reserve(size());
    for (const auto &[key, edit] : m_edits) {
        edits.append(edit);
    }
    std::stable_sort(edits.begin(), edits.end(), [](const PendingEdit &left, const PendingEdit &right) {
        const int order = compareReferences(left.reference, right.reference);
        return order != 0 ? order < 0 : left.property < right.property;
    });
    return edits;
}

bool PendingEdits::follow()
{
    m_identities.reset();
    bool isChanged = false;
    for (auto &[key, edit] : m_edits) {
        PendingEdit now = followed(edit);
        isChanged = isChanged || now != edit;
        edit = std::move(now);
    }
    index();
    return isChanged;
}

void PendingEdits::index()
{
    m_byReference.clear();
    for (const auto &[key, edit] : m_edits) {
        if (isReachable(edit)) {
            m_byReference[edit.reference].insert(edit.property, &edit);
        }
    }
}

std::vector<EditedPart> PendingEdits::definedParts(const QList<PendingEdit> &edits) const
{
    std::vector<EditedPart> parts;
    for (const PendingEdit &edit : edits) {
        if (!edit.part.definition.isEmpty()) {
            parts.push_back({EditKey::of(edit), m_identities.find(edit.part, edit.reference).part});
        }
    }
    return parts;
}

QList<EditMove> PendingEdits::movesOf(const std::vector<EditedPart> &parts)
{
    m_identities.reset();
    QList<EditMove> moves;
    for (const EditedPart &edited : parts) {
        if (edited.part) {
            moves.append({edited.key, m_identities.of(*edited.part)});
        }
    }
    return moves;
}

QList<EditMove> PendingEdits::movesBehind(const PartIdentity &removed) const
{
    const auto isSibling = [&removed](const PartIdentity &part) {
        return part.component == removed.component && part.definition == removed.definition;
    };
    // Edits of the removed part itself stay. No part has their identity any more, nor has one that was
    // removed before.
    int gone = -1;
    for (const auto &[key, edit] : m_edits) {
        gone = isSibling(key.part) ? std::min(gone, key.part.place - 1) : gone;
    }
    QList<EditMove> moves;
    for (const auto &[key, edit] : m_edits) {
        if (isSibling(key.part) && key.part.place >= removed.place) {
            PartIdentity moved = key.part;
            moved.place = moved.place == removed.place ? gone : moved.place - 1;
            moves.append({key, moved});
        }
    }
    return moves;
}
