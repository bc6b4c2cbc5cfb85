// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/referencecell.h"

#include "designs/csv/referencetext.h"
#include "designs/texts.h"
#include "designs/utf8.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace designs {

namespace {

std::string_view withoutBlanks(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

bool isSign(char c)
{
    return c == '+' || c == '-';
}

/// What stands for a number that is too large to count with.
constexpr quint64 unreadable = ~quint64(0);

quint64 numberOf(std::string_view digits)
{
    quint64 value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return result.ec == std::errc() ? value : unreadable;
}

std::string padded(std::string_view prefix, quint64 number, std::size_t width)
{
    const std::string digits = std::to_string(number);
    return std::string(prefix).append(width > digits.size() ? width - digits.size() : 0, '0') + digits;
}

/// Whether zeros in front of the number behind a hyphen speak against a range from the first: 1 to 02, but
/// not 01 to 02.
bool hasOddZeros(std::string_view first, std::string_view last)
{
    return last.front() == '0' && last.size() != first.size();
}

/// Whether the number behind a hyphen goes on from the first.
bool isHigher(std::string_view last, std::string_view first)
{
    return numberOf(last) > numberOf(first) && !hasOddZeros(first, last);
}

/// Whether the ends of a range do not have the same zeros in front: 08 to 9, 1 to 04.
bool differsInZeros(std::string_view first, std::string_view last)
{
    const bool firstHas = first.size() > 1 && first.front() == '0';
    return hasOddZeros(first, last) || (firstHas && last.size() < first.size());
}

} // namespace

bool ReferenceCell::read(std::string_view cell)
{
    m_items.clear();
    m_cell = cell;
    m_error.clear();
    m_prefix = {};
    m_count = 0;
    m_isNumeric = true;
    if (!readCell(cell)) {
        m_items.clear();
        m_count = 0;
        return false;
    }
    return true;
}

bool ReferenceCell::readCell(std::string_view cell)
{
    if (isName(cell)) {
        return addItem({cell});
    }
    const auto isPlain = [](char c) {
        return (isLetter(c) && !isHigh(c)) || isDigit(c) || c == ',' || c == '-';
    };
    const std::string_view text =
        std::ranges::all_of(cell, isPlain) ? cell : m_arena.copy(std::string_view(withPlainSigns(cell)));
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(',', begin), text.size());
        const std::string_view part = withoutBlanks(text.substr(begin, end - begin));
        if (!part.empty() && !readPart(part)) {
            return false;
        }
        begin = end + 1;
    }
    return true;
}

bool ReferenceCell::readPart(std::string_view part)
{
    if (isName(part)) {
        m_prefix = {};
        return addItem({part});
    }
    using Kind = ReferenceToken::Kind;
    const std::vector<ReferenceToken> &tokens = m_tokens.cut(part);
    const auto kindAt = [&tokens](std::size_t at) {
        return at < tokens.size() ? std::optional(tokens[at].kind) : std::nullopt;
    };
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        const std::string_view text = tokens[at].text;
        if (kindAt(at) != Kind::Piece) {
            return fail(part, PartListTexts::tr("%1 does not name what its first sign joins"));
        }
        if (kindAt(at + 1) == Kind::Range) {
            const std::string_view upToSign(text.data(),
                                            std::size_t(tokens[at + 1].text.data() - text.data()) + 1);
            if (kindAt(at + 2) != Kind::Piece) {
                return fail(upToSign, PartListTexts::tr("%1 is a range without an end"));
            }
            const std::string_view last = tokens[at + 2].text;
            const std::string_view whole(text.data(), std::size_t(last.data() + last.size() - text.data()));
            if (kindAt(at + 3) == Kind::Range) {
                return fail(whole, PartListTexts::tr(
                                       "%1 is followed by another dash: write its references one by one"));
            }
            if (!addMarked(text, last, whole)) {
                return false;
            }
            at += 2;
        } else if (at > 0 && kindAt(at - 1) == Kind::Piece && isCount(text)) {
            return fail(text, PartListTexts::tr(
                                  "%1 may be a count: delete it, or put a comma in front of it if it is "
                                  "the name of a part"));
        } else if (tokens.size() > 1 &&
                   (!isClear(text) || hasRangeWord(text, at > 0 ? m_prefix : std::string_view()))) {
            return fail(
                text, PartListTexts::tr("%1 is no reference: write its references one by one, with commas"));
        } else if (!addPiece(text)) {
            return false;
        }
        if (kindAt(at + 1) == Kind::And && kindAt(++at + 1) != Kind::Piece) {
            return fail(part, PartListTexts::tr("%1 ends with a sign that joins nothing"));
        }
    }
    return true;
}

/// Whether the text behind a reference and a blank says how many there are: "R1 x2". In "X1 X2" it does not,
/// and nowhere if X2 is known to be a part.
bool ReferenceCell::isCount(std::string_view text) const
{
    const std::string_view sign = text.substr(0, text.find_first_of("0123456789"));
    return isLikeCount(text) && sign != m_prefix && !isName(text) && (sign != "X" || m_takesXForCount);
}

/// A range with a sign or a word that cannot belong to a name, or with blanks beside its hyphen.
bool ReferenceCell::addMarked(std::string_view left, std::string_view right, std::string_view text)
{
    const bool isBare = isNumber(left) && !m_prefix.empty();
    const auto first = isBare ? std::optional(Numbered{m_prefix, left}) : numbered(left);
    if (first && isNumber(right) && !namesSeveral(left) && (isBare || isHigher(right, first->digits))) {
        return addBareRange(*first, right, text);
    }
    const auto last = numbered(right);
    const bool hasHyphen =
        (left.find('-') != std::string_view::npos || right.find('-') != std::string_view::npos);
    constexpr std::size_t longestUnit = 2;
    if (first && right.size() <= longestUnit && std::ranges::all_of(right, isLetter)) {
        return fail(text,
                    PartListTexts::tr("%1 is no range: write its references one by one, a part of several "
                                      "units once, without their letters"));
    }
    if (!first || !last || namesSeveral(left) || (hasHyphen && first->prefix != last->prefix)) {
        return fail(text, PartListTexts::tr("%1 is no range: write its references one by one"));
    }
    return addRange(*first, *last, text);
}

/// Whether the end of a range is a list or a range itself: "R1/R3 to 5".
bool ReferenceCell::namesSeveral(std::string_view text) const
{
    return text.find_first_of("-/") != std::string_view::npos &&
           (namesOneKindTwice(text) || (text.find('/') != std::string_view::npos && isSlashList(text)));
}

bool ReferenceCell::addPiece(std::string_view text)
{
    if (isName(text)) {
        m_prefix = {};
        return addItem({text});
    }
    if (isNumber(text)) {
        return addNumber(text);
    }
    if (text.find('/') != std::string_view::npos && isSlashList(text)) {
        return addSlashList(text);
    }
    return addHyphened(text);
}

bool ReferenceCell::addNumber(std::string_view digits)
{
    if (!m_prefix.empty()) {
        m_isNumeric = false;
        return addItem({m_arena.copy(std::string_view(std::string(m_prefix).append(digits)))});
    }
    return m_isNumeric ? addItem({digits})
                       : fail(digits, PartListTexts::tr("%1 is no reference: write it with its letters"));
}

/// Each piece is a number, or numbered with the prefix of the first, or a range of such.
bool ReferenceCell::isSlashList(std::string_view text) const
{
    std::string_view prefix;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find('/', begin), text.size());
        const std::string_view piece = text.substr(begin, end - begin);
        const std::size_t hyphen = piece.find('-');
        const std::string_view left = piece.substr(0, hyphen);
        for (const std::string_view side :
             {left, hyphen == std::string_view::npos ? left : piece.substr(hyphen + 1)}) {
            const std::optional<Numbered> found = plainOrBare(side);
            if (!found && !(isNumber(side) && !prefix.empty())) {
                return false;
            }
            if (found && !prefix.empty() && !isNumber(side) && found->prefix != prefix) {
                return false;
            }
            prefix = prefix.empty() ? found->prefix : prefix;
        }
        begin = end + 1;
    }
    return true;
}

bool ReferenceCell::addSlashList(std::string_view text)
{
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find('/', begin), text.size());
        const std::string_view piece = text.substr(begin, end - begin);
        if (!addPiece(piece)) {
            return false;
        }
        if (m_prefix.empty()) {
            return fail(text,
                        PartListTexts::tr("%1 can be read in several ways: write its references one by one"));
        }
        begin = end + 1;
    }
    return true;
}

std::optional<ReferenceCell::Numbered> ReferenceCell::numbered(std::string_view text)
{
    const std::size_t lastOther = text.find_last_not_of("0123456789");
    if (lastOther == std::string_view::npos || lastOther + 1 == text.size()) {
        return std::nullopt;
    }
    const Numbered found{text.substr(0, lastOther + 1), text.substr(lastOther + 1)};
    return isNameText(text) ? std::optional(found) : std::nullopt;
}

/// Without hyphen, point and slash in front of the number.
std::optional<ReferenceCell::Numbered> ReferenceCell::plainNumbered(std::string_view text)
{
    const auto found = numbered(text);
    return found && found->prefix.find_first_of(".-/") == std::string_view::npos ? found : std::nullopt;
}

std::optional<ReferenceCell::Numbered> ReferenceCell::plainOrBare(std::string_view text) const
{
    if (isNumber(text) && !m_prefix.empty()) {
        return Numbered{m_prefix, text};
    }
    return plainNumbered(text);
}

/// A reference that may have hyphens in its name, or a range with one.
bool ReferenceCell::addHyphened(std::string_view text)
{
    if (const auto glued = gluedRange(text)) {
        const auto first = numbered(glued->left);
        const auto last = numbered(glued->right);
        if (first && last && first->prefix == last->prefix) {
            return addRange(*first, *last, text);
        }
        if (first && isNumber(glued->right)) {
            return fail(text,
                        PartListTexts::tr("%1 is no range that can be read: put blanks around its word"));
        }
    }
    const std::size_t hyphen = text.find('-');
    if (hyphen == std::string_view::npos) {
        const bool hasSlash = text.find('/') != std::string_view::npos;
        return hasSlash && namesOneKindTwice(text) ? failAsRange(text) : addName(text);
    }
    if (const auto added = addFullRange(text)) {
        return *added;
    }
    const std::string_view right = text.substr(hyphen + 1);
    const std::optional<Numbered> first = plainOrBare(text.substr(0, hyphen));
    if (first && isNumber(right)) {
        const bool isRange = isNumber(text.substr(0, hyphen)) || isHigher(right, first->digits);
        return isRange ? addBareRange(*first, right, text) : addName(text);
    }
    if (const auto last = plainNumbered(right); first && last) {
        return addRange(*first, *last, text);
    }
    return joinsReferences(text) || namesOneKindTwice(text) ? failAsRange(text) : addName(text);
}

/// With the prefix at both ends, which then may have hyphens itself: "X1-1-X1-3".
std::optional<bool> ReferenceCell::addFullRange(std::string_view text)
{
    for (std::size_t hyphen = text.find('-', 1); hyphen != std::string_view::npos;
         hyphen = text.find('-', hyphen + 1)) {
        const auto first = numbered(text.substr(0, hyphen));
        const auto last = numbered(text.substr(hyphen + 1));
        if (first && last && first->prefix == last->prefix) {
            return addRange(*first, *last, text);
        }
    }
    return std::nullopt;
}

bool ReferenceCell::addBareRange(const Numbered &first, std::string_view digits, std::string_view text)
{
    const bool isWithHyphen = text.find_first_of(" ~") == std::string_view::npos;
    const bool couldBeName = isWithHyphen && !isDigit(text.front());
    const quint64 from = numberOf(first.digits);
    const quint64 to = numberOf(digits);
    if (to < from) {
        return fail(text, PartListTexts::tr("%1 is a range that runs backwards: put its lower end first"));
    }
    if (hasOddZeros(first.digits, digits)) {
        return fail(text,
                    PartListTexts::tr(
                        "%1 is a range whose ends differ in their zeros: write both with as many digits"));
    }
    m_prefix = first.prefix;
    const std::size_t width = first.digits.front() == '0' ? first.digits.size() : 0;
    return addItem({text, first.prefix, from, to, width, couldBeName});
}

bool ReferenceCell::addRange(const Numbered &first, const Numbered &last, std::string_view text)
{
    const quint64 from = numberOf(first.digits);
    const quint64 to = numberOf(last.digits);
    if (first.prefix != last.prefix) {
        return fail(text,
                    PartListTexts::tr("%1 joins different kinds of parts: write its references one by one"));
    }
    if (to < from) {
        return fail(text, PartListTexts::tr("%1 is a range that runs backwards: put its lower end first"));
    }
    m_prefix = first.prefix;
    if (differsInZeros(first.digits, last.digits)) {
        return addKnownRange(first, last) ||
               fail(text,
                    PartListTexts::tr(
                        "%1 is a range whose ends differ in their zeros: write both with as many digits"));
    }
    const std::size_t width = first.digits.front() == '0' ? first.digits.size() : 0;
    return addItem({text, first.prefix, from, to, width});
}

/// A report joins R08 and R9, whose numbers follow, to "R08-R9": where both ends are known, those between
/// are taken with as many digits as the first if that is a name, too.
bool ReferenceCell::addKnownRange(const Numbered &first, const Numbered &last)
{
    const std::string from = std::string(first.prefix).append(first.digits);
    const std::string to = std::string(last.prefix).append(last.digits);
    const quint64 end = numberOf(last.digits);
    if (!isName(from) || !isName(to) || end == unreadable || end - numberOf(first.digits) >= m_limit) {
        return false;
    }
    bool isAdded = addItem({m_arena.copy(std::string_view(from))});
    for (quint64 number = numberOf(first.digits) + 1; number < end && isAdded; ++number) {
        const std::string wide = padded(first.prefix, number, first.digits.size());
        const std::string text = isName(wide) ? wide : padded(first.prefix, number, 0);
        isAdded = addItem({m_arena.copy(std::string_view(text))});
    }
    return isAdded && (end == numberOf(first.digits) || addItem({m_arena.copy(std::string_view(to))}));
}

bool ReferenceCell::addName(std::string_view text)
{
    if (!isNameText(text) || saysNoPart(text)) {
        return fail(text,
                    PartListTexts::tr("%1 is no reference: name the part, or delete the row if it is none"));
    }
    if (hasUnclearDigits(text)) {
        return fail(text, PartListTexts::tr("%1 has digits other than 0 to 9: write it with these"));
    }
    if (text.front() == '-' && !m_prefix.empty() && !isSign(m_prefix.front()) && numbered(text.substr(1))) {
        return fail(text, PartListTexts::tr("%1 is a range without a beginning"));
    }
    const auto found = plainNumbered(text);
    m_prefix = found ? found->prefix : std::string_view();
    return addItem({text});
}

bool ReferenceCell::addItem(const ReferenceItem &item)
{
    m_isNumeric = m_isNumeric && isNumber(item.text);
    if (item.last == unreadable || item.last - item.first >= m_limit || m_count + item.count() > m_limit) {
        return fail(
            item.text,
            PartListTexts::tr("%2 makes more than %1 references in one cell: correct its end").arg(m_limit));
    }
    m_items.push_back(item);
    m_count += item.count();
    return true;
}

std::vector<std::string_view> ReferenceCell::references()
{
    std::vector<std::string_view> found;
    found.reserve(m_count);
    for (const ReferenceItem &item : m_items) {
        if (item.prefix.empty()) {
            found.push_back(item.text);
            continue;
        }
        for (quint64 number = item.first; number <= item.last; ++number) {
            found.push_back(m_arena.copy(std::string_view(padded(item.prefix, number, item.width))));
        }
    }
    return found;
}

bool ReferenceCell::failAsRange(std::string_view text)
{
    return fail(text, PartListTexts::tr("%1 is no range that can be read: write its references one by one"));
}

bool ReferenceCell::fail(std::string_view text, const QString &why)
{
    if (m_error.isEmpty()) {
        // With other signs people would look for it in vain.
        const bool isAsWritten = m_cell.find(text) != std::string_view::npos;
        m_error = why.arg(quotedForMessage(isAsWritten ? text : m_cell));
    }
    return false;
}

} // namespace designs
