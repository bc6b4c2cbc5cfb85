// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/braceescapes.h"

#include <array>
#include <utility>

namespace designs::kicad {

namespace {

constexpr std::array<std::pair<std::string_view, char>, 14> escapes{{
    {"slash", '/'},
    {"backslash", '\\'},
    {"lt", '<'},
    {"gt", '>'},
    {"colon", ':'},
    {"dblquote", '"'},
    {"quote", '\''},
    {"bar", '|'},
    {"comma", ','},
    {"space", ' '},
    {"dollar", '$'},
    {"tab", '\t'},
    {"return", '\n'},
    {"brace", '{'},
}};

/// The character that a name in braces stands for, 0 for an unknown name.
char escapedCharacter(std::string_view name)
{
    for (const auto &[known, character] : escapes) {
        if (known == name) {
            return character;
        }
    }
    return 0;
}

/// Longer than any name above with its braces, so that a text of many "{" is not searched to its end for
/// each.
constexpr std::size_t longestEscape = 12;

bool startsMarkup(char before)
{
    return std::string_view("$@~^_").find(before) != std::string_view::npos;
}

} // namespace

bool holdsVariable(std::string_view text)
{
    for (std::size_t at = text.find('{'); at != std::string_view::npos; at = text.find('{', at + 1)) {
        if (at > 0 && (text[at - 1] == '$' || text[at - 1] == '@')) {
            return true;
        }
    }
    return false;
}

std::string resolveBraceEscapes(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t length =
            text[i] == '{' ? text.substr(i, longestEscape).find('}') : std::string_view::npos;
        const bool markup = i > 0 && startsMarkup(text[i - 1]);
        const char character = length == std::string_view::npos || markup
                                   ? '\0'
                                   : escapedCharacter(text.substr(i + 1, length - 1));
        if (character != '\0') {
            result += character;
            i += length;
        } else {
            result += text[i];
        }
    }
    return result;
}

} // namespace designs::kicad
