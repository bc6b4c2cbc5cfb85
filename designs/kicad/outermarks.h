// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/component.h"
#include "designs/kicad/hierarchy.h"

#include <string_view>
#include <vector>

namespace designs::kicad {

/// The record of one variant in an instance, null when there is none; the empty name is no variant.
[[nodiscard]] const VariantRecord *findVariant(const InstanceRecord *record, std::string_view variant);

/// What marks a symbol from outside: the sheets above it, or a rule area around it.
class OuterMarks
{
public:
    struct Mark
    {
        MarkedBy by = MarkedBy::Nothing;
        /// The use whose sheet symbol says it, where a sheet does.
        quint32 sheet = 0;
    };

    /// The hierarchy must outlive the marks.
    OuterMarks(const Hierarchy &hierarchy, std::string_view variant);

    [[nodiscard]] Mark notInBom(quint32 use, const PlacedSymbol &symbol) const;
    [[nodiscard]] Mark notFitted(quint32 use, const PlacedSymbol &symbol) const;

private:
    /// Of the symbols on one use of a sheet.
    struct SheetMarks
    {
        Mark notInBom;
        Mark notFitted;
    };

    const Hierarchy &m_hierarchy;
    std::vector<SheetMarks> m_sheets;
};

} // namespace designs::kicad
