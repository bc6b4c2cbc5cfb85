// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/reportlines.h"

#include <QList>
#include <QStringList>

class BOMPartsDatabase;

/// What the lines of the bill hold under the current template, and what they lack.
struct BillAccount
{
    qsizetype lines = 0;
    /// Components in these lines.
    qsizetype parts = 0;
    /// BOM-only parts in these lines.
    qsizetype bomParts = 0;
    /// Further components of a reference that the database holds already.
    qsizetype repeated = 0;
    /// Lines that give way to another one whose first reference compares equal, as R01 and R1 do.
    QList<ReplacedLine> replacedLines;
    /// The components in them.
    QStringList replaced;
    /// Parts that give way in the report of single parts, and stand in no replaced line.
    QList<ReplacedLine> replacedParts;

    bool operator==(const BillAccount &) const = default;
};

[[nodiscard]] BillAccount billAccountOf(const BOMPartsDatabase &database);

/// The references that a BOM-only part and another part have, once each.
[[nodiscard]] QStringList repeatedBomParts(const BOMPartsDatabase &database);

/// The references of parts on which a property is empty or missing; a part that stands nowhere on the board
/// lacks a place.
[[nodiscard]] QStringList partsWithout(const BOMPartsDatabase &database, const QString &property);
