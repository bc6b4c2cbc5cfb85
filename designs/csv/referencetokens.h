// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace designs {

/// The cell with one form for each sign: the blanks, commas, hyphens and range marks of word processors and
/// other alphabets become ' ', ',', '-' and '~'; so do "..", ":" and the other dashes. A line break becomes a
/// comma.
[[nodiscard]] std::string withPlainSigns(std::string_view cell);

/// A piece of the text between two separators of references, or a sign in it.
struct ReferenceToken
{
    enum class Kind
    {
        Piece,
        /// Joins the ends of a range.
        Range,
        /// "&" or "+".
        And
    };

    Kind kind = Kind::Piece;
    std::string_view text;
};

/// Cuts a text without commas into tokens. A hyphen is a sign of its own only beside a blank and behind a
/// piece; the words "to" and "thru" are the sign of a range between two pieces.
class ReferenceTokens final
{
public:
    [[nodiscard]] const std::vector<ReferenceToken> &cut(std::string_view text);

private:
    void addWord(std::string_view word, bool isLast);
    void add(ReferenceToken::Kind kind, std::string_view text) { m_tokens.push_back({kind, text}); }
    [[nodiscard]] bool isBehindPiece() const
    {
        return !m_tokens.empty() && m_tokens.back().kind == ReferenceToken::Kind::Piece;
    }

    std::vector<ReferenceToken> m_tokens;
};

} // namespace designs
