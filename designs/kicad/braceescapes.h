// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace designs::kicad {

/// Whether a text may hold an escape such as {slash}.
[[nodiscard]] inline bool mayHaveBraceEscape(std::string_view text)
{
    return text.find('{') != std::string_view::npos;
}

/// Whether a text holds the start of a variable, "${", or of an expression, "@{".
[[nodiscard]] bool holdsVariable(std::string_view text);

/// The text with KiCad's escapes in braces ({slash}, {dblquote}, ...) resolved. Braces that follow "$", "@",
/// "~", "^" or "_" mark variables and typography and stay, as do unknown names.
[[nodiscard]] std::string resolveBraceEscapes(std::string_view text);

} // namespace designs::kicad
