// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/pendingdesigns.h"

#include "core/bompartsdatabase.h"
#include "core/storedconversion.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

/// As a journal keeps it: values as they are stored, because the next program may show numbers in another
/// form.
PendingEdit stored(PendingEdit edit, const BOMPartsDatabase &database)
{
    if (edit.part.definition.isEmpty()) {
        edit.value = storedAssignment(database.propertyTypes(), edit.property, edit.value);
    }
    return edit;
}

/// The way back.
PendingEdit shown(PendingEdit edit, const BOMPartsDatabase &database)
{
    if (edit.part.definition.isEmpty() && edit.value != removalText()) {
        edit.value = DisplayConversion(database.propertyTypes().type(edit.property))(edit.value);
    }
    return edit;
}

} // namespace

PendingDesigns::OfDesign::OfDesign(const BOMPartsDatabase *database, const QString &folder,
                                   const EditedDesign &design)
    : edits(database)
    , journal(folder, design)
{
    for (const PendingEdit &edit : journal.read()) {
        earlier.append(shown(edit, *database));
    }
}

PendingDesigns::Followed PendingDesigns::follow()
{
    if (m_current && m_generation == m_database->generation()) {
        return Followed::Nothing;
    }
    m_generation = m_database->generation();
    const QString file = m_database->designInfo("FILENAME");
    // A link to the design is the design.
    const QString target = QFileInfo(file).canonicalFilePath();
    const EditedDesign design{target.isEmpty() ? file : target, m_database->designVariant()};
    const bool isOther = !m_current || design != m_design;
    if (isOther) {
        open(design);
    }
    const bool isChanged = m_current->edits.follow();
    if (isOther) {
        return Followed::Design;
    }
    return isChanged ? Followed::Edits : Followed::Nothing;
}

void PendingDesigns::open(const EditedDesign &design)
{
    if (m_current && m_current->edits.isEmpty() && m_current->earlier.isEmpty()) {
        // Another program that opens the design has its journal then.
        m_designs.erase(m_design);
    }
    std::unique_ptr<OfDesign> &held = m_designs[design];
    if (!held) {
        held = std::make_unique<OfDesign>(m_database, m_journalFolder, design);
    }
    m_current = held.get();
    m_design = design;
    m_touched.clear();
}

QList<PendingEdit> PendingDesigns::earlier() const
{
    return m_current ? m_current->earlier : QList<PendingEdit>();
}

QList<UnwrittenDesign> PendingDesigns::unwritten() const
{
    QList<UnwrittenDesign> all = PendingJournal::unwrittenIn(m_journalFolder);
    for (const auto &[design, held] : m_designs) {
        const qsizetype edits = held->edits.size() + held->earlier.size();
        if (!design.file.isEmpty() && edits > 0) {
            all.append({design, edits});
        }
    }
    std::sort(all.begin(), all.end(), [](const UnwrittenDesign &left, const UnwrittenDesign &right) {
        return left.design < right.design;
    });
    return all;
}

void PendingDesigns::clearEarlier()
{
    if (m_current) {
        m_current->earlier.clear();
    }
}

void PendingDesigns::touch(const EditKey &key)
{
    const PendingEdit *edit = m_current->edits.find(key);
    m_touched.try_emplace(key, edit ? std::optional(*edit) : std::nullopt);
}

EditChanges PendingDesigns::endChanges()
{
    EditChanges changes;
    for (const auto &[key, before] : std::exchange(m_touched, {})) {
        const PendingEdit *after = m_current->edits.find(key);
        if (before && after && *before == *after) {
            continue;
        }
        if (before) {
            changes.before.append(*before);
        }
        if (after) {
            changes.after.append(*after);
        }
    }
    if (!changes.isEmpty()) {
        record(changes);
    }
    return changes;
}

void PendingDesigns::record(const EditChanges &changes)
{
    QList<EditKey> gone;
    QList<PendingEdit> come;
    for (const PendingEdit &edit : changes.after) {
        come.append(stored(edit, *m_database));
    }
    for (const PendingEdit &edit : changes.before) {
        const EditKey key = EditKey::of(edit);
        if (m_current->edits.find(key)) {
            continue;
        }
        const auto left =
            std::find_if(m_current->earlier.cbegin(), m_current->earlier.cend(),
                         [&key](const PendingEdit &other) { return EditKey::of(other) == key; });
        if (left == m_current->earlier.cend()) {
            gone.append(key);
        } else {
            // The one of an earlier run, which the edit stood in front of, waits again.
            come.append(stored(*left, *m_database));
        }
    }
    const qsizetype count = m_current->edits.size() + m_current->earlier.size();
    m_journalError.clear();
    if (!m_current->journal.record(gone, come, count, [this] { return all(); })) {
        m_journalError = m_current->journal.error();
    }
}

QList<PendingEdit> PendingDesigns::all() const
{
    QList<PendingEdit> edits;
    for (const PendingEdit &edit : m_current->edits.list()) {
        edits.append(stored(edit, *m_database));
    }
    for (const PendingEdit &edit : m_current->earlier) {
        if (!m_current->edits.find(EditKey::of(edit))) {
            edits.append(stored(edit, *m_database));
        }
    }
    return edits;
}
