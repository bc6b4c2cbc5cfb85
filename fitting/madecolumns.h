// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fitting/listedparts.h"
#include "templates/bomfields.h"

struct MadeColumns
{
    BOMFields fields;
    /// Properties for which there was no room.
    QStringList leftOut;
};

/// The columns that suit a design whose names of properties are known: value, footprint, and each meaning
/// that matters to a buyer and is filled on a listed part. No line joins parts that differ in the footprint,
/// in a number or in a rating.
[[nodiscard]] MadeColumns madeColumns(const ListedParts &parts);

/// The columns with a footprint, numbers and ratings behind that tell parts of one line apart, and with the
/// maker's part number.
[[nodiscard]] MadeColumns withTellingColumns(const ListedParts &parts, const BOMFields &columns);

/// A heading that no column has yet.
[[nodiscard]] QString freeTitle(const BOMFields &columns, const QString &wanted);

/// The places after the point that the texts of a property have, from 2 to 6.
[[nodiscard]] int decimalsOf(const LoadedDesign &design, const QString &property);

/// A column of a property as wide as its texts, with totals for a price.
[[nodiscard]] BOMField columnOf(const ListedParts &parts, const QString &property, const QString &title);
