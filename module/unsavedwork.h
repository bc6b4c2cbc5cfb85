// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>

class BOMDataView;
class PendingUndo;
class PropertyAssignments;
class TemplateStore;

/// What the module keeps of the user's work, whatever becomes of its window.
struct EditStores
{
    QPointer<PropertyAssignments> assignments;
    QPointer<PendingUndo> undo;
    QPointer<TemplateStore> templates;

    /// The template has changes that are not saved, or edits are pending.
    [[nodiscard]] bool hasUnsaved() const;
};

/// Asks what is to become of unsaved changes of the template and of pending edits, and does it; pending edits
/// are written by their view. False when the user wants to go on with them, or when something could not be
/// saved or written. Edits that the user discards stay in their journal.
[[nodiscard]] bool settleUnsavedWork(const EditStores &stores, BOMDataView *view);
