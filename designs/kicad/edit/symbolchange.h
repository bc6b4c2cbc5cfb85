// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/component.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace designs::kicad {

/// One text that becomes another. Texts are free of the file's escapes.
struct TextChange
{
    /// As the reader calls it.
    std::string name;
    /// Nothing takes it away.
    std::optional<std::string> text;
};

/// What becomes of one use of a symbol in the chosen variant.
struct VariantChange
{
    std::vector<TextChange> fields;
    std::optional<bool> dnp;
    std::optional<bool> inBom;
};

/// What becomes of one symbol as drawn.
struct SymbolChange
{
    std::vector<TextChange> properties;
    std::optional<bool> dnp;
    std::optional<bool> inBom;
    /// By the instance path.
    std::map<std::string, VariantChange, std::less<>> variants;
    /// The plan's changes that stand in this symbol, as indices into EditPlan::changes.
    std::vector<std::size_t> planned;
};

/// What becomes of an entry in version 6's table of instances.
struct RowChange
{
    std::optional<std::string> value;
    std::optional<std::string> footprint;
};

/// What becomes of one file: symbols and rows by their number.
struct SheetChange
{
    std::map<quint32, SymbolChange> symbols;
    std::map<quint32, RowChange> rows;
};

/// Sets a text that may be among the changes already.
inline void setChange(std::vector<TextChange> *changes, std::string_view name,
                      const std::optional<std::string> &text)
{
    for (TextChange &change : *changes) {
        if (change.name == name) {
            change.text = text;
            return;
        }
    }
    changes->push_back({std::string(name), text});
}

} // namespace designs::kicad
