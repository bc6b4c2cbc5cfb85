// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/styleditemdelegate.h"

#include <QPointer>

class BOMPartsDatabase;

/// Makes the editor that suits the property of a column, which its header names: a list of keywords, a
/// number, or a line of text.
class PropValEditDelegate final : public StyledItemDelegate
{
    Q_OBJECT

public:
    /// What a header item of the table says of its column.
    enum HeaderRole
    {
        /// The name of the property; empty for a column that shows none.
        PropertyRole = Qt::UserRole,
        /// Whether its cells can be edited.
        IsEditableRole,
    };

    using StyledItemDelegate::StyledItemDelegate;

    /// Knows the types of the properties; null for none, all texts are then lines.
    void setPartsDatabase(const BOMPartsDatabase *database);

protected:
    [[nodiscard]] QWidget *makeEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const override;

private:
    QPointer<const BOMPartsDatabase> m_database;
};
