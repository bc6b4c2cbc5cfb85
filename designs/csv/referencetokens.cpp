// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/referencetokens.h"

#include "designs/csv/referencetext.h"

#include <algorithm>
#include <array>
#include <utility>

namespace designs {

namespace {

constexpr std::array<std::pair<std::string_view, char>, 32> plainSigns = {{
    {"\t", ' '},
    {"\xC2\xA0", ' '},     // no-break space
    {"\xE2\x80\xAF", ' '}, // narrow no-break space
    {"\xE3\x80\x80", ' '}, // ideographic space
    {"\xE2\x80\x8B", ' '}, // zero-width space
    {"\xEF\xBB\xBF", ' '}, // byte-order mark
    {";", ','},
    {"\n", ','},
    {"\r", ','},
    {"\xEF\xBC\x8C", ','}, // full-width comma
    {"\xE3\x80\x81", ','}, // ideographic comma
    {"\xEF\xBC\x9B", ','}, // full-width semicolon
    {"\xEF\xBC\x86", '&'}, // full-width ampersand
    {"\xEF\xBC\x8B", '+'}, // full-width plus
    {"\xE2\x80\x90", '-'}, // hyphen
    {"\xE2\x80\x91", '-'}, // non-breaking hyphen
    {"\xEF\xBC\x8D", '-'}, // full-width hyphen
    {"..", '~'},
    {":", '~'},
    {"\xEF\xBC\x9A", '~'},             // full-width colon
    {"\xEF\xBC\x8E\xEF\xBC\x8E", '~'}, // two full-width stops
    {"\xEF\xBD\x9E", '~'},             // full-width tilde
    {"\xE3\x80\x9C", '~'},             // wave dash
    {"\xE2\x80\x92", '~'},             // figure dash
    {"\xE2\x80\x93", '~'},             // en dash
    {"\xE2\x80\x94", '~'},             // em dash
    {"\xE2\x80\x95", '~'},             // horizontal bar
    {"\xE2\x88\x92", '~'},             // minus
    {"\xEF\xBC\x8F", '/'},             // full-width slash
    {"\xE2\x80\xA8", ','},             // line separator
    {"\xE2\x80\xA9", ','},             // paragraph separator
    {"\xC2\x85", ','},                 // next line
}};

constexpr std::string_view blanksAndSigns = " &+~";

} // namespace

std::string withPlainSigns(std::string_view cell)
{
    std::string result;
    result.reserve(cell.size());
    while (!cell.empty()) {
        const auto sign = std::ranges::find_if(
            plainSigns, [cell](const auto &known) { return cell.starts_with(known.first); });
        result += sign == plainSigns.end() ? cell.front() : sign->second;
        cell.remove_prefix(sign == plainSigns.end() ? 1 : sign->first.size());
    }
    return result;
}

const std::vector<ReferenceToken> &ReferenceTokens::cut(std::string_view text)
{
    m_tokens.clear();
    for (std::size_t at = 0; at < text.size();) {
        const char c = text[at];
        const bool isSign = c == '~' || c == '&' || (c == '+' && !m_tokens.empty());
        if (c == ' ') {
            ++at;
        } else if (isSign) {
            add(c == '~' ? ReferenceToken::Kind::Range : ReferenceToken::Kind::And, text.substr(at, 1));
            ++at;
        } else {
            const std::size_t end = std::min(text.find_first_of(blanksAndSigns, at + 1), text.size());
            const bool isLast = text.find_first_not_of(' ', end) == std::string_view::npos;
            addWord(text.substr(at, end - at), isLast);
            at = end;
        }
    }
    return m_tokens;
}

void ReferenceTokens::addWord(std::string_view word, bool isLast)
{
    if (isBehindPiece() && !isLast && isRangeWord(word)) {
        add(ReferenceToken::Kind::Range, word);
        return;
    }
    if (isBehindPiece() && word.starts_with('-')) {
        add(ReferenceToken::Kind::Range, word.substr(0, 1));
        word.remove_prefix(1);
    }
    const bool hyphenEnds = word.size() > 1 && word.ends_with('-');
    if (hyphenEnds) {
        word.remove_suffix(1);
    }
    if (!word.empty()) {
        add(ReferenceToken::Kind::Piece, word);
    }
    if (hyphenEnds) {
        add(ReferenceToken::Kind::Range, {word.data() + word.size(), 1});
    }
}

} // namespace designs
