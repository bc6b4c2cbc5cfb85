// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/edit/referencestyle.h"

#include <algorithm>
#include <charconv>

namespace designs {

namespace {

constexpr std::string_view separators = " ,;\t\r\n";

/// What stands between the cell's first two references; a comma where nothing does.
std::string separatorOf(std::string_view cell)
{
    std::size_t end = cell.find_first_not_of(separators);
    while (end != std::string_view::npos) {
        const std::size_t begin = cell.find_first_of(separators, end);
        end = begin == std::string_view::npos ? begin : cell.find_first_not_of(separators, begin);
        // Blanks around the dash of a range separate nothing.
        if (end != std::string_view::npos && cell[begin - 1] != '-' && cell[end] != '-') {
            return std::string(cell.substr(begin, end - begin));
        }
    }
    return ",";
}

/// Whether the cell names more references than it has texts for.
bool hasRanges(std::string_view cell, std::size_t references)
{
    std::size_t texts = 0;
    bool inText = false;
    for (const char c : cell) {
        const bool part = separators.find(c) == std::string_view::npos && c != '/';
        texts += part && !inText ? 1 : 0;
        inText = part;
    }
    return references > texts;
}

/// The reference that follows in a range.
std::string successor(std::string_view reference)
{
    const std::size_t begin = reference.find_last_not_of("0123456789") + 1;
    const std::string_view digits = reference.substr(begin);
    quint64 number = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (begin == 0 || digits.empty() || read.ec != std::errc() || number + 1 == 0) {
        return {};
    }
    const std::string next = std::to_string(number + 1);
    const std::size_t zeros =
        digits.front() == '0' && next.size() < digits.size() ? digits.size() - next.size() : 0;
    return std::string(reference.substr(0, begin)).append(zeros, '0') + next;
}

std::string joined(const std::vector<std::string_view> &references, const std::string &separator, bool ranges)
{
    std::string text;
    for (std::size_t first = 0; first < references.size();) {
        std::size_t last = first;
        while (ranges && last + 1 < references.size() &&
               successor(references[last]) == references[last + 1]) {
            ++last;
        }
        last = last - first < 2 ? first : last;
        text += text.empty() ? std::string() : separator;
        text += references[first];
        if (last > first) {
            text += '-';
            text += references[last];
        }
        first = last + 1;
    }
    return text;
}

} // namespace

ReferenceStyle::ReferenceStyle(std::string_view cell, std::size_t references, ReferenceCell::IsName isName)
    : m_separator(separatorOf(cell))
    , m_hasRanges(hasRanges(cell, references))
    , m_isName(std::move(isName))
{
}

std::optional<std::string> ReferenceStyle::text(const std::vector<std::string_view> &references) const
{
    for (const bool withRanges : {m_hasRanges, false}) {
        for (const std::string &separator : {m_separator, std::string(",")}) {
            std::string text = joined(references, separator, withRanges);
            if (names(text, references)) {
                return text;
            }
        }
    }
    return std::nullopt;
}

bool ReferenceStyle::names(const std::string &text, const std::vector<std::string_view> &references) const
{
    TextArena arena;
    ReferenceCell cell(arena, m_isName);
    return cell.read(text) && cell.references() == references;
}

} // namespace designs
