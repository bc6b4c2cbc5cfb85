// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/referencetext.h"

#include "designs/utf8.h"

#include <QList>

#include <algorithm>
#include <array>
#include <unordered_set>

namespace designs {

namespace {

bool isNameSign(char32_t c)
{
    constexpr std::u32string_view signs = U"./?*$@%'-_#";
    return signs.find(c) != std::u32string_view::npos || QChar::isLetterOrNumber(c) || QChar::isMark(c);
}

constexpr std::array<std::string_view, 2> rangeWords = {"to", "thru"};

/// Of "R1", "U3A" and "R3*"; empty for a text that does not begin so.
std::string_view lettersBeforeNumber(std::string_view text)
{
    const auto digit = std::ranges::find_if(text, isDigit);
    const bool isNumbered = digit != text.end() && std::all_of(text.begin(), digit, isLetter);
    return isNumbered ? text.substr(0, std::size_t(digit - text.begin())) : std::string_view();
}

/// "R1" and "U3A": letters, digits, then perhaps more of both.
bool isLikeReference(std::string_view text)
{
    return !lettersBeforeNumber(text).empty() &&
           std::ranges::all_of(text, [](char c) { return isLetter(c) || isDigit(c); });
}

} // namespace

bool isNumber(std::string_view text)
{
    return !text.empty() && std::ranges::all_of(text, isDigit);
}

bool isNameText(std::string_view text)
{
    constexpr std::string_view firstSigns = "#_+-";
    const bool beginsWell =
        !text.empty() && (isLetter(text.front()) || firstSigns.find(text.front()) != std::string_view::npos);
    if (!beginsWell || std::ranges::none_of(text, isLetter)) {
        return false;
    }
    if (std::ranges::none_of(text, isHigh)) {
        return std::all_of(text.begin() + 1, text.end(), [](char c) { return isNameSign(char32_t(c)); });
    }
    const QList<uint> codes = fromUtf8(text).toUcs4();
    return std::all_of(codes.begin() + (isHigh(text.front()) ? 0 : 1), codes.end(),
                       [](uint code) { return isNameSign(code); });
}

bool isClear(std::string_view text)
{
    constexpr std::string_view firstSigns = "#_";
    if (text.find_first_not_of("0123456789-/") == std::string_view::npos) {
        return true;
    }
    return (isLetter(text.front()) || firstSigns.find(text.front()) != std::string_view::npos) &&
           text.find_first_of("0123456789?") != std::string_view::npos;
}

bool saysNoPart(std::string_view text)
{
    constexpr std::array<std::string_view, 4> words = {"n/a", "n.a.", "na", "none"};
    return std::ranges::any_of(words,
                               [text](std::string_view word) { return equalIgnoringCase(text, word); });
}

bool isLikeCount(std::string_view text)
{
    constexpr std::array<std::string_view, 3> signs = {"x", "X", "\xC3\x97"};
    return std::ranges::any_of(signs, [text](std::string_view sign) {
        return text.starts_with(sign) && isNumber(text.substr(sign.size()));
    });
}

bool beginsWithX(std::string_view cell)
{
    for (std::size_t at = cell.find('X'); at != std::string_view::npos; at = cell.find('X', at + 1)) {
        const std::size_t last = cell.substr(0, at).find_last_not_of(' ');
        const bool isFirst = last == std::string_view::npos ||
                             std::string_view(",;\n\r&+").find(cell[last]) != std::string_view::npos;
        if (isFirst && at + 1 < cell.size() && isDigit(cell[at + 1])) {
            return true;
        }
    }
    return false;
}

bool joinsReferences(std::string_view text)
{
    while (true) {
        const std::size_t hyphen = text.find('-');
        if (!isLikeReference(text.substr(0, hyphen))) {
            return false;
        }
        if (hyphen == std::string_view::npos) {
            return true;
        }
        text.remove_prefix(hyphen + 1);
    }
}

bool namesOneKindTwice(std::string_view text)
{
    std::unordered_set<std::string_view> kinds;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find_first_of("-/", begin), text.size());
        const std::string_view letters = lettersBeforeNumber(text.substr(begin, end - begin));
        if (!letters.empty() && !kinds.insert(letters).second) {
            return true;
        }
        begin = end + 1;
    }
    return false;
}

bool hasUnclearDigits(std::string_view text)
{
    if (std::ranges::none_of(text, isHigh)) {
        return false;
    }
    int numbers = 0;
    bool isForeign = false;
    bool isInNumber = false;
    const QList<uint> codes = fromUtf8(text).toUcs4();
    for (const uint code : codes) {
        const bool isDecimal = QChar::isDigit(code);
        numbers += isDecimal && !isInNumber ? 1 : 0;
        isForeign = isForeign || (isDecimal && code > '9');
        isInNumber = isDecimal;
    }
    return isForeign && (numbers > 1 || QChar::isDigit(codes.front()));
}

bool hasRangeWord(std::string_view text, std::string_view prefix)
{
    return std::ranges::any_of(rangeWords, [text, prefix](std::string_view word) {
        if (text.size() <= word.size()) {
            return false;
        }
        const std::size_t front = text.size() - word.size();
        if (equalIgnoringCase(text.substr(front), word) && isDigit(text[front - 1])) {
            return true;
        }
        const std::string_view rest = text.substr(word.size());
        const std::string_view start = text.substr(0, word.size());
        return equalIgnoringCase(start, word) && !prefix.empty() &&
               (isNumber(rest) ? start != prefix : lettersBeforeNumber(rest) == prefix);
    });
}

bool isRangeWord(std::string_view word)
{
    return std::ranges::any_of(rangeWords,
                               [word](std::string_view known) { return equalIgnoringCase(word, known); });
}

std::optional<GluedRange> gluedRange(std::string_view text)
{
    for (const std::string_view word : rangeWords) {
        for (std::size_t at = 1; at + word.size() < text.size(); ++at) {
            if (isDigit(text[at - 1]) && equalIgnoringCase(text.substr(at, word.size()), word)) {
                return GluedRange{text.substr(0, at), text.substr(at + word.size())};
            }
        }
    }
    return std::nullopt;
}

} // namespace designs
