// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace designs {

[[nodiscard]] constexpr bool isHigh(char c)
{
    return static_cast<unsigned char>(c) >= 0x80;
}

[[nodiscard]] constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Every part of a character beyond ASCII counts as one.
[[nodiscard]] constexpr bool isLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || isHigh(c);
}

/// Digits only.
[[nodiscard]] bool isNumber(std::string_view text);

/// Whether the text can be the name of a part.
[[nodiscard]] bool isNameText(std::string_view text);

/// Whether a text next to another, without a comma between them, can be nothing but a reference or a number.
[[nodiscard]] bool isClear(std::string_view text);

/// "n/a", "none" and their like, in any letter case: what people write into a cell that names no part.
[[nodiscard]] bool saysNoPart(std::string_view text);

/// "x2", "×2" or "X2": behind a reference and a blank this may be a count.
[[nodiscard]] bool isLikeCount(std::string_view text);

/// Whether a cell of references, or a text behind a comma in it, begins with a reference such as X1.
[[nodiscard]] bool beginsWithX(std::string_view cell);

/// True when each text between the hyphens is like a reference: "R1A-R3B", "R1-R3-R5".
[[nodiscard]] bool joinsReferences(std::string_view text);

/// Whether two of the texts between hyphens and slashes name parts of one kind: "R1-R3-5", "U1/A-U2/A".
[[nodiscard]] bool namesOneKindTwice(std::string_view text);

/// Whether digits beyond 0 to 9 leave open what the text counts: "Ｒ１-Ｒ３" and "２", but not "Ｒ１".
[[nodiscard]] bool hasUnclearDigits(std::string_view text);

/// Whether the text next to a blank is a reference with the word of a range on it: "R1to", or "toR3" and
/// "to3" behind a reference with that prefix.
[[nodiscard]] bool hasRangeWord(std::string_view text, std::string_view prefix);

/// "to" and "thru" in any letter case.
[[nodiscard]] bool isRangeWord(std::string_view word);

/// The ends of a range whose sign is a word within the text, as in "R1toR3".
struct GluedRange
{
    std::string_view left;
    std::string_view right;
};

[[nodiscard]] std::optional<GluedRange> gluedRange(std::string_view text);

} // namespace designs
