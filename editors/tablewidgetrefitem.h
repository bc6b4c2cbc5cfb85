// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTableWidgetItem>

/// A cell that shows references. It is sorted by the reference in its Qt::UserRole, else by its text, so that
/// R2 comes before R10.
class TableWidgetRefItem : public QTableWidgetItem
{
public:
    using QTableWidgetItem::QTableWidgetItem;

    bool operator<(const QTableWidgetItem &other) const override;
};
