// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/propertyassignments.h"
#include "editors/passingmessage.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class BOMPartsDatabase;
class CellBlocks;
class CellMenu;
class ColumnMenu;
class PartMenu;
class PropValEditDelegate;
class PropsFindAndReplace;
class PropertyItem;
class PropertyRecorder;
class PartsTable;
class QDialog;
class QTableWidgetItem;

namespace Ui {
class BOMDataView;
}

/// The property editor: a table of the parts, or of the lines of the bill, with a column for each field of
/// the template. What is entered becomes a pending edit, which is shown in another colour until it is
/// written.
class BOMDataView final : public QWidget
{
    Q_OBJECT

public:
    explicit BOMDataView(QWidget *parent = nullptr);
    ~BOMDataView() override;

    /// Neither is owned; null for none. Both must be set before handleBOMDataUpdate() shows something.
    void setPartsDatabase(BOMPartsDatabase *database);
    void setAssignments(PropertyAssignments *assignments);

    [[nodiscard]] bool hasPendingAssignments() const;
    /// Whether an editor, a menu, a drag or a dialog is open that a reload would pull away.
    [[nodiscard]] bool isBusy() const;
    /// Takes what is typed into an open cell. False when the cell cannot take it; the editor then stays open.
    [[nodiscard]] bool endEditing();

Q_SIGNALS:
    void pendingPropertyAssignments(bool arePending);
    /// What the user should know and needs no box for.
    void statusMessage(const QString &text);

public Q_SLOTS:
    /// Shows the parts as they are now; while the user is at something that it would pull away, later.
    void handleBOMDataUpdate();
    /// The same for other ways to show them.
    void updateBOMFieldValues();
    /// Records the text of a cell as an edit of its parts. A text that is refused goes.
    void addPendingAssignment(QTableWidgetItem *editedItem);
    /// Show the dialog that looks for values in the table.
    void showFindDialogue();
    void showReplaceDialogue();
    /// Writes what is pending.
    void applyPropertyValues();
    /// Forgets what is pending, if the user says so.
    void clearPendingChanges();
    /// Open the dialogs that make BOM-only parts and take them away, for the current part.
    void newBOMPart();
    void removeBOMPart();
    void cellLeftClicked(int row, int column);
    void cellRightClicked(int row, int column);
    /// Shows with the pointer what a click does.
    void updateCursor(int row, int col);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// Says which cell has refused a text, and why.
    void tellRefusal(const PropertyItem *item, const QString &reason);
    void setIcons();
    [[nodiscard]] PropsFindAndReplace *findAndReplace();
    void connectForm();
    void connectEditing();
    void fillCategories();
    void updateButtons();
    void updateCount();
    void updateFilter();
    void refreshEdited(const QList<PendingEdit> &before, const QList<PendingEdit> &after);
    void updateAssignments();
    void fillIfDue();
    [[nodiscard]] QString currentReference() const;
    /// Runs a dialog that changes parts.
    void run(QDialog *dialog);
    /// Ends the edits of the selected cells.
    [[nodiscard]] PropertyRecorder recorder() const;

    std::unique_ptr<Ui::BOMDataView> m_ui;
    QPointer<BOMPartsDatabase> m_database;
    QPointer<PropertyAssignments> m_assignments;
    PropValEditDelegate *m_delegate;
    std::unique_ptr<PartsTable> m_table;
    std::unique_ptr<CellBlocks> m_blocks;
    std::unique_ptr<ColumnMenu> m_columnMenu;
    std::unique_ptr<PartMenu> m_partMenu;
    std::unique_ptr<CellMenu> m_cellMenu;
    /// Made when it is asked for.
    PropsFindAndReplace *m_findAndReplace = nullptr;
    /// While one drag, paste or other command changes several cells.
    std::unique_ptr<PropertyAssignments::Action> m_action;
    /// When the drag began that fills cells.
    QList<PendingEdit> m_beforeFill;
    bool m_isFilling = false;
    bool m_isApplying = false;
    bool m_isRecording = false;
    /// A box or a dialog of the view is open.
    bool m_isAsking = false;
    /// The parts changed while the view was busy.
    bool m_isFillDue = false;
    PassingMessage m_message;
    /// edited() told what the next changed() is about.
    bool m_isEditedShown = false;
};
