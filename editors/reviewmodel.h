// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "editors/reviewrows.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

/// The pending edits as a table. Edits whose text changed in the design have a check box, which confirms
/// them.
class ReviewModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        ReferenceColumn,
        PropertyColumn,
        OldColumn,
        NewColumn,
        PlaceColumn,
        AlsoChangesColumn,
        ConfirmColumn,
        StateColumn,
        ColumnCount
    };

    /// The store is changed by the check boxes; it and the database must outlive the model.
    ReviewModel(PropertyAssignments *assignments, const BOMPartsDatabase *database,
                QObject *parent = nullptr);

    /// Rows stay the same ones, with what is selected, where the edits are about the same.
    void setChanges(const PendingChanges &changes);
    [[nodiscard]] const PendingChanges &changes() const { return m_changes; }
    [[nodiscard]] const ReviewRow &row(int row) const { return m_changes.rows()[row]; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    [[nodiscard]] QString text(const ReviewRow &row, int column) const;
    [[nodiscard]] QString toolTip(const ReviewRow &row, int column) const;

    PropertyAssignments *m_assignments;
    const BOMPartsDatabase *m_database;
    PendingChanges m_changes;
};

/// Sorts references by their numbers and places by their lines.
class ReviewSorter final : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit ReviewSorter(ReviewModel *model);

protected:
    [[nodiscard]] bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    ReviewModel *m_model;
};
