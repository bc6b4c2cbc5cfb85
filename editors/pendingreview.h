// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "editors/reviewmodel.h"
#include "host/widgets/applndialog.h"

#include <QTimer>

#include <memory>

class QPushButton;

namespace Ui {
class PendingReview;
}

/// Shows what the pending edits would do to the design before they are written, and lets people drop some or
/// decide on those in conflict. "Apply Changes" closes with Accepted and leaves the writing to the caller.
class PendingReview final : public APPLNDIALOG
{
    Q_OBJECT

public:
    /// Both must outlive the dialog.
    PendingReview(PropertyAssignments *assignments, const BOMPartsDatabase *database,
                  QWidget *parent = nullptr);
    ~PendingReview() override;

    /// Ends the edits that are selected, unwritten, as one action.
    void dropSelected();

private:
    void setUpTable();
    void fitColumns();
    void connectWidgets();
    /// Works out again what is shown.
    void refresh();
    void showProblems();
    void updateButtons();

    std::unique_ptr<Ui::PendingReview> m_ui;
    PropertyAssignments *m_assignments;
    const BOMPartsDatabase *m_database;
    ReviewModel *m_model;
    ReviewSorter *m_sorter;
    QPushButton *m_apply;
    QPushButton *m_drop;
    /// The host is asked once, however many changes come together.
    QTimer m_refreshing;
};
