// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

class QHeaderView;

/// How the columns of the property editor stand, by their headings.
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

/// Remembers in the user's settings how columns stand, each by its heading, and which properties are
/// required.
class ColumnMemory final
{
public:
    [[nodiscard]] static ColumnLayout layout();
    /// `headings` are the columns that there are, in the order of the template; what is known of others
    /// stays.
    static void setLayout(const QStringList &headings, const ColumnLayout &layout);

    /// Whether a property is required, by its upper-case name: at first the value and the footprint are.
    [[nodiscard]] static bool isRequired(const QString &key);
    static void setRequired(const QString &key, bool isRequired);
};
