// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/referencetext.h"

#include "designs/utf8.h"

#include <QByteArrayView>
#include <QList>

#include <algorithm>
#include <array>

namespace designs {

namespace {

bool isNameSign(char32_t c)
{
    constexpr std::u32string_view signs = U"./?*$@%'-_#";
    return signs.find(c) != std::u32string_view::npos || QChar::isLetterOrNumber(c) || QChar::isMark(c);
}

/// "R1" and "U3A": letters, digits, then perhaps more of both.
bool isLikeReference(std::string_view text)
{
    const auto digit = std::ranges::find_if(text, isDigit);
    return digit != text.begin() && digit != text.end() && std::all_of(text.begin(), digit, isLetter) &&
           std::all_of(digit, text.end(), [](char c) { return isLetter(c) || isDigit(c); });
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

bool hasRangeWithin(std::string_view text)
{
    const auto prefix = [](std::string_view piece) {
        return isLikeReference(piece) ? piece.substr(0, piece.find_first_of("0123456789"))
                                      : std::string_view();
    };
    for (std::size_t hyphen = text.find('-'); hyphen != std::string_view::npos; hyphen = text.find('-')) {
        const std::string_view left = prefix(text.substr(0, hyphen));
        text.remove_prefix(hyphen + 1);
        if (!left.empty() && left == prefix(text.substr(0, text.find('-')))) {
            return true;
        }
    }
    return false;
}

std::optional<GluedRange> gluedRange(std::string_view text)
{
    static constexpr std::array<std::string_view, 2> words = {"to", "thru"};
    for (const std::string_view word : words) {
        const QByteArrayView sought(word.data(), qsizetype(word.size()));
        for (std::size_t at = 1; at + word.size() < text.size(); ++at) {
            const QByteArrayView there(text.data() + at, qsizetype(word.size()));
            if (isDigit(text[at - 1]) && there.compare(sought, Qt::CaseInsensitive) == 0) {
                return GluedRange{text.substr(0, at), text.substr(at + word.size())};
            }
        }
    }
    return std::nullopt;
}

} // namespace designs
