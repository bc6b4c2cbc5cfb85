// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/propertynames.h"

#include <optional>
#include <span>
#include <string_view>

namespace designs {

/// A property as stored in the design, texts already freed of the file format's escapes.
struct Property
{
    NameId name = 0;
    std::string_view value;
};

/// Why a component is left out of the bill of materials, or not fitted.
enum class MarkedBy : quint8
{
    Nothing,
    Symbol,
    Sheet,
    RuleArea,
    Property
};

/// One part of the design after hierarchy and units are resolved. Texts are UTF-8 and belong to the design.
struct Component
{
    std::string_view reference;
    std::string_view value;
    /// The symbol's name, empty where a format has none.
    std::string_view name;
    /// All properties but the reference and the value, in file order; names occur once.
    std::span<const Property> properties;
    /// The file it stands in: index into Design::files().
    quint32 file = 0;
    /// The line of its row, where the reader counts lines; Design::lineOf() tells it for every format.
    quint32 line = 0;
    /// The sheet instance that holds it: index into Design::sheets(); 0 is the root.
    quint32 sheet = 0;
    /// What marks it "not in the bill of materials" (never Property), and "do not populate".
    MarkedBy notInBom = MarkedBy::Nothing;
    MarkedBy notFitted = MarkedBy::Nothing;
    /// The sheet instance whose flag counts where a mark says Sheet.
    quint32 notInBomSheet = 0;
    quint32 notFittedSheet = 0;
    /// How many symbols of the drawing make up this part: 1, more for a part drawn in several units.
    quint32 units = 1;
    /// The reader's own number for finding the place in the file again.
    quint32 origin = 0;

    /// The value stored under exactly that name.
    [[nodiscard]] std::optional<std::string_view> stored(NameId id) const
    {
        for (const Property &property : properties) {
            if (property.name == id) {
                return property.value;
            }
        }
        return std::nullopt;
    }
};

} // namespace designs
