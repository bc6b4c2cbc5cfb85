// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/tablewidgetrefitem.h"

#include "core/reference.h"

namespace {

QString key(const QTableWidgetItem &item)
{
    const QString reference = item.data(Qt::UserRole).toString();
    return reference.isEmpty() ? item.text() : reference;
}

} // namespace

bool TableWidgetRefItem::operator<(const QTableWidgetItem &other) const
{
    return compareReferences(key(*this), key(other)) < 0;
}
