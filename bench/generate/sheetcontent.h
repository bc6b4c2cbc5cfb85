// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/generate/partplan.h"
#include "bench/support/random.h"
#include "bench/support/uuid.h"

#include <cstdint>
#include <span>
#include <vector>

namespace bench {

struct Placement
{
    Uuid uuid;
    Point at;
    Kind kind = Kind::Resistor;
    int unit = 1;
    std::uint32_t number = 0;
    std::uint32_t line = 0; ///< without meaning for power symbols
};

struct DrawnItem
{
    Uuid uuid;
    Point from;
    Point to;
    std::uint32_t number = 0; ///< of a label's net or a text
};

/// Everything drawn on one sub-sheet, each kind of item in the order of its identifiers.
struct SheetContent
{
    std::vector<Placement> symbols;
    std::vector<DrawnItem> junctions;
    std::vector<DrawnItem> wires;
    std::vector<DrawnItem> texts;
    std::vector<DrawnItem> labels;
    std::uint32_t powerSymbols = 0;
};

/// Draws a sheet of `parts`. Op-amps of `before`, the sheet before it, have their supply unit here. Power
/// symbols are numbered from `firstPower`.
[[nodiscard]] SheetContent drawSheet(std::span<const Part> parts, std::span<const Part> before,
                                     std::uint32_t firstPower, Random &random);

} // namespace bench
