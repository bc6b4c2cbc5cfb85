// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

class QHeaderView;

/// The role of a heading that has the name of its column: the same in every language.
constexpr int ColumnNameRole = Qt::UserRole + 100;

/// How the columns of the property editor stand, by their names.
struct ColumnLayout
{
    QStringList order;
    QStringList hidden;
    QHash<QString, int> widths;

    bool operator==(const ColumnLayout &) const = default;
};

[[nodiscard]] ColumnLayout columnLayout(const QHeaderView &header);
/// Columns that the layout does not name keep their width, and stand behind the others.
void setColumnLayout(QHeaderView *header, const ColumnLayout &layout);

/// Remembers in the user's settings how columns stand, each by its name, and which properties are required.
class ColumnMemory final
{
public:
    /// What is known of the columns of a table. Earlier versions knew them by their headings.
    [[nodiscard]] static ColumnLayout layout(const QHeaderView &header);
    /// What is known of columns that the table has not stays.
    static void setLayout(const QHeaderView &header, const ColumnLayout &layout);

    /// Whether a property is required, by its upper-case name: at first the value and the footprint are.
    [[nodiscard]] static bool isRequired(const QString &key);
    static void setRequired(const QString &key, bool isRequired);
};
