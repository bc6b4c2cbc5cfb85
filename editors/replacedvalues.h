// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QString>

class PropertyAssignments;
struct PendingEdit;

/// Counts what an action of the user changes while it lives.
class ReplacedValues final
{
public:
    /// The assignments may be null.
    explicit ReplacedValues(PropertyAssignments *assignments);

    /// How many values in how many parts, in words; empty for none.
    [[nodiscard]] QString text() const;

private:
    void count(const QList<PendingEdit> &before, const QList<PendingEdit> &after);

    /// Ends the connection.
    QObject m_context;
    qsizetype m_values = 0;
    qsizetype m_parts = 0;
};
