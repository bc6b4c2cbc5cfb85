// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/reviewmodel.h"

#include "core/reference.h"

#include <QFont>

#include <algorithm>
#include <tuple>

namespace {

bool isSameEdit(const ReviewRow &one, const ReviewRow &other)
{
    return one.edit.part == other.edit.part && one.edit.property == other.edit.property;
}

bool isRemoval(const PendingEdit &edit)
{
    return edit.value.isEmpty() || edit.value == PropertyAssignments::removal();
}

} // namespace

ReviewModel::ReviewModel(PropertyAssignments *assignments, const BOMPartsDatabase *database, QObject *parent)
    : QAbstractTableModel(parent)
    , m_assignments(assignments)
    , m_database(database)
{
}

void ReviewModel::setChanges(const PendingChanges &changes)
{
    if (std::ranges::equal(m_changes.rows(), changes.rows(), isSameEdit)) {
        m_changes = changes;
        if (!m_changes.rows().isEmpty()) {
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
        }
        return;
    }
    beginResetModel();
    m_changes = changes;
    endResetModel();
}

int ReviewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_changes.rows().size());
}

int ReviewModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant ReviewModel::data(const QModelIndex &index, int role) const
{
    const ReviewRow &shown = row(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(shown, index.column());
    case Qt::ToolTipRole:
        return toolTip(shown, index.column());
    case Qt::CheckStateRole:
        if (index.column() == ConfirmColumn && shown.canBeConfirmed()) {
            return shown.edit.isConfirmed ? Qt::Checked : Qt::Unchecked;
        }
        break;
    case Qt::AccessibleTextRole:
        if (index.column() == ConfirmColumn && shown.canBeConfirmed()) {
            return tr("Write it although the design changed");
        }
        return text(shown, index.column());
    case Qt::FontRole:
        if (index.column() == NewColumn && isRemoval(shown.edit)) {
            QFont font;
            font.setItalic(true);
            return font;
        }
        break;
    default:
        break;
    }
    return {};
}

QString ReviewModel::text(const ReviewRow &row, int column) const
{
    switch (column) {
    case ReferenceColumn:
        return row.edit.reference;
    case PropertyColumn:
        return row.edit.property;
    case OldColumn:
        return row.before;
    case NewColumn:
        return isRemoval(row.edit) ? tr("(taken away)") : row.edit.value;
    case PlaceColumn:
        return row.place();
    case AlsoChangesColumn:
        return row.alsoChanges.join(QStringLiteral(", "));
    case StateColumn:
        return row.stateText(m_database);
    default:
        return {};
    }
}

QString ReviewModel::toolTip(const ReviewRow &row, int column) const
{
    if (column == ConfirmColumn) {
        return row.canBeConfirmed() ? tr("Write it although the design changed") : QString();
    }
    return column == PlaceColumn && !row.file.isEmpty() ? row.file : text(row, column);
}

bool ReviewModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != ConfirmColumn || !row(index.row()).canBeConfirmed()) {
        return false;
    }
    // The store answers with another list of edits.
    const PendingEdit edit = row(index.row()).edit;
    m_assignments->confirm(edit, value.toInt() == Qt::Checked);
    return true;
}

QVariant ReviewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= ColumnCount) {
        return {};
    }
    const QString titles[] = {tr("Reference"),  tr("Property"),     tr("Old"),          tr("New"),
                              tr("Written In"), tr("Also Changes"), tr("Write Anyway"), tr("State")};
    return titles[section];
}

Qt::ItemFlags ReviewModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (index.column() == ConfirmColumn && row(index.row()).canBeConfirmed()) {
        flags |= Qt::ItemIsUserCheckable;
    }
    return flags;
}

ReviewSorter::ReviewSorter(ReviewModel *model)
    : QSortFilterProxyModel(model)
    , m_model(model)
{
    setSourceModel(model);
}

bool ReviewSorter::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const ReviewRow &one = m_model->row(left.row());
    const ReviewRow &other = m_model->row(right.row());
    switch (left.column()) {
    case ReviewModel::ReferenceColumn:
        return compareReferences(one.edit.reference, other.edit.reference) < 0;
    case ReviewModel::PlaceColumn:
        return std::tie(one.file, one.line) < std::tie(other.file, other.line);
    case ReviewModel::ConfirmColumn:
        return one.canBeConfirmed() && !other.canBeConfirmed();
    default:
        return left.data().toString().localeAwareCompare(right.data().toString()) < 0;
    }
}
