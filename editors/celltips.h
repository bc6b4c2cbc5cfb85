// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct CellContext;
struct PropertyRow;

/// What a cell of the property editor says when the pointer rests on it; plain texts of limited length, empty
/// for a cell that speaks for itself.
[[nodiscard]] QString propertyTip(const CellContext &context, const PropertyRow &row, size_t column);
[[nodiscard]] QString referenceTip(const CellContext &context, const PropertyRow &row);
[[nodiscard]] QString linksTip(const CellContext &context, const PropertyRow &row);
