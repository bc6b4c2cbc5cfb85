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

/// The text that a property is to have. Texts are free of the file's escapes.
struct WantedText
{
    /// As the reader calls it.
    std::string name;
    /// Nothing takes it away.
    std::optional<std::string> text;
};

/// What becomes of one use of a symbol in the chosen variant.
struct VariantRewrite
{
    std::vector<WantedText> fields;
    std::optional<bool> dnp;
    std::optional<bool> inBom;
};

/// What becomes of one symbol as drawn.
struct SymbolRewrite
{
    std::vector<WantedText> properties;
    std::optional<bool> dnp;
    std::optional<bool> inBom;
    /// By the instance path.
    std::map<std::string, VariantRewrite, std::less<>> variants;
    /// The changes of the plan that are located at this symbol, as indices into EditPlan::changes.
    std::vector<std::size_t> changes;
};

/// What becomes of an entry in version 6's table of instances.
struct RowRewrite
{
    std::optional<std::string> value;
    std::optional<std::string> footprint;
};

/// What becomes of one file: symbols and rows by their number.
struct SheetRewrite
{
    std::map<quint32, SymbolRewrite> symbols;
    std::map<quint32, RowRewrite> rows;
};

/// Sets a text that may be among the wanted ones already.
inline void setText(std::vector<WantedText> *texts, std::string_view name,
                    const std::optional<std::string> &text)
{
    for (WantedText &wanted : *texts) {
        if (wanted.name == name) {
            wanted.text = text;
            return;
        }
    }
    texts->push_back({std::string(name), text});
}

} // namespace designs::kicad
