// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fitting/listedparts.h"
#include "host/netlist/proplist.h"

#include <QStringList>

#include <vector>

/// Which parts a bill puts into one line, by the texts of its columns.
class LineKeys final
{
public:
    /// Without columns: the parts with references of one prefix.
    explicit LineKeys(const ListedParts &parts);

    void addColumn(const QString &property) { m_pending << property; }

    enum class Empty
    {
        /// Differs from any text.
        IsText,
        /// Goes with any text.
        IsAny
    };
    /// Whether a line holds parts with different texts of a property.
    [[nodiscard]] bool joinDifferent(const QString &property, Empty empty);

private:
    void mixPending();
    [[nodiscard]] std::string_view text(std::size_t part, const PROPNAME &name) const;

    const ListedParts &m_parts;
    /// By the part. Two lines with one key are told apart wrongly once in 2^64: a column too many.
    std::vector<std::size_t> m_keys;
    /// Columns that are not in the keys yet: they go in at the next question, which mostly never comes.
    QStringList m_pending;
};
