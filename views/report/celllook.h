// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

struct lxw_format;

/// How a cell looks.
enum class CellLook
{
    Text,
    Title,
    Label,
    Heading,
    Section,
    Cell,
    Quantity,
    Link,
    SubTotal,
    Total
};

/// Whether long texts go on in further lines of the cell.
[[nodiscard]] constexpr bool isWrapped(CellLook look)
{
    return look == CellLook::Heading || look == CellLook::Cell || look == CellLook::Link;
}

void applyLook(lxw_format *format, CellLook look);
