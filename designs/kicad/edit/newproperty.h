// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/edit/sexprnode.h"

#include <optional>
#include <string>
#include <string_view>

namespace designs::kicad {

/// What a property that is added holds.
struct NewProperty
{
    std::string_view name;
    std::string_view value;
    /// Where a property has a number.
    int id = 0;
};

/// The text of a further, hidden property of a symbol with the blanks before it, set like a sibling in the
/// symbol and placed where the symbol stands. Nothing when the symbol has no property to go by.
[[nodiscard]] std::optional<std::string> newPropertyText(std::string_view bytes, const SexprNode &symbol,
                                                         const NewProperty &property, int formatVersion);

/// The property lists behind which a further one is put: the last before pins and instances.
[[nodiscard]] const SexprNode *lastProperty(const SexprNode &symbol);

/// Whether the property's first text is the bare word that makes it private.
[[nodiscard]] bool isPrivate(std::string_view bytes, const SexprNode &property);

} // namespace designs::kicad
