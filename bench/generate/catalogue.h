// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/generate/librarysymbol.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace bench {

/// What the components of one BOM line have in common. Texts carry the escapes of the file.
struct LineText
{
    Kind kind = Kind::Resistor;
    std::string value;
    std::string footprint;
    std::string datasheet;
    std::string description;
    std::string manufacturer;
    std::string partNumber;
    std::string code;
    std::string cost;
    bool inBom = true;
    bool fitted = true;
};

/// Invents the BOM lines of a design. A line depends on the seed and its number only.
class Catalogue final
{
public:
    /// `emptyText` is what stands in the data sheet of a line that has none; it must outlive the catalogue.
    Catalogue(std::uint64_t seed, std::string_view emptyText)
        : m_seed(seed)
        , m_emptyText(emptyText)
    {
    }

    [[nodiscard]] Kind kind(std::uint32_t line) const;
    [[nodiscard]] LineText text(std::uint32_t line) const;

private:
    std::uint64_t m_seed = 0;
    std::string_view m_emptyText;
};

} // namespace bench
