// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/generate/librarysymbol.h"

#include <cstdint>
#include <span>
#include <vector>

namespace bench {

class Catalogue;

struct Part
{
    std::uint32_t line = 0;   ///< number of its BOM line
    std::uint32_t number = 0; ///< of its reference
    Kind kind = Kind::Resistor;
};

/// Which component stands on which sheet. Five components share a BOM line and stand far from each other;
/// references are numbered sheet after sheet, as annotation by sheet does.
class PartPlan final
{
public:
    PartPlan(std::uint32_t parts, const Catalogue &catalogue);

    [[nodiscard]] std::uint32_t sheetCount() const;
    [[nodiscard]] std::span<const Part> sheet(std::uint32_t number) const;

private:
    std::vector<Part> m_parts;
};

} // namespace bench
