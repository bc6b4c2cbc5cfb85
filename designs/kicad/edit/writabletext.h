// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/edit/editmodel.h"

#include <QString>

#include <string>
#include <string_view>

namespace designs::kicad {

/// What must stand in the file so that a text reads back as it is, or why there is no such thing.
struct WritableText
{
    std::string text;
    /// Empty when the text can be written.
    QString refusal;
};

/// For a property of a component, in all files that draw it and for all components that share the symbols.
[[nodiscard]] WritableText writableText(const EditModel &model, std::size_t component, std::string_view text);

/// Whether the text can be a property's name; otherwise why not.
[[nodiscard]] QString nameRefusal(std::string_view name);

} // namespace designs::kicad
