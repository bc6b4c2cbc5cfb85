// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <optional>

class QTableWidget;

/// Where the user is in a table, by the references of the rows and the headings of the columns: current cell,
/// selection and what stands at the top left. It can be restored in a table with other rows.
class TablePlace final
{
public:
    explicit TablePlace(const QTableWidget &table);

    /// `rowOf` gives the row of a reference, -1 where there is none.
    void restore(QTableWidget *table, const std::function<int(const QString &)> &rowOf) const;

private:
    struct Cell
    {
        QString reference;
        QString heading;
    };
    struct Block
    {
        QList<QString> references;
        QList<QString> headings;
    };

    std::optional<Cell> m_current;
    QList<Block> m_selection;
    QString m_topReference;
    int m_horizontal = 0;
};
