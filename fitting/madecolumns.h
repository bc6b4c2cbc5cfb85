// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fitting/listedparts.h"
#include "templates/bomfields.h"

/// The columns that suit a design whose names of properties are known: value, footprint, and each meaning
/// that matters to a buyer and is filled on a listed part. No line joins parts that differ in the footprint,
/// in a number or in a rating.
[[nodiscard]] BOMFields madeColumns(const ListedParts &parts);

/// Adds the footprint and the numbers that tell parts of one line apart.
void addTellingColumns(const ListedParts &parts, BOMFields *columns);

/// The places after the point that the texts of a property have, from 2 to 6.
[[nodiscard]] int decimalsOf(const LoadedDesign &design, const QString &property);

/// A column of a property as wide as its texts.
[[nodiscard]] BOMField columnOf(const ListedParts &parts, const QString &property, const QString &title);
