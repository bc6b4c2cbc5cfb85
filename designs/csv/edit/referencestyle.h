// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/referencecell.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace designs {

/// How a cell names references, for cells that take some of them over.
class ReferenceStyle final
{
public:
    /// Of a cell that names that many references and is read with `isName`.
    ReferenceStyle(std::string_view cell, std::size_t references, ReferenceCell::IsName isName);

    /// A text that names exactly these references in this order, with the cell's separator, and with ranges
    /// of three or more where it had ranges. Nothing when they cannot stand in one cell, as a bare number
    /// behind a numbered reference cannot.
    [[nodiscard]] std::optional<std::string> text(const std::vector<std::string_view> &references) const;

private:
    [[nodiscard]] bool names(const std::string &text, const std::vector<std::string_view> &references) const;

    std::string m_separator;
    bool m_hasRanges;
    ReferenceCell::IsName m_isName;
};

} // namespace designs
