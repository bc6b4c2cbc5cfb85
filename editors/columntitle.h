// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A heading for the column of a property that nothing describes, made from its name: "UNIT_COST" gives "Unit
/// cost". A name that has small letters already keeps its spelling, and so do abbreviations such as MPN.
[[nodiscard]] QString columnTitle(const QString &propertyName);
