// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/referencecell.h"

#include "designs/utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <utility>

namespace designs {

namespace {

bool isHigh(char c)
{
    return static_cast<unsigned char>(c) >= 0x80;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || isHigh(c);
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool isSeparator(char c)
{
    return isBlank(c) || c == ',' || c == ';';
}

bool isNumber(std::string_view text)
{
    return !text.empty() && std::ranges::all_of(text, isDigit);
}

bool endsInDigit(std::string_view text)
{
    return !text.empty() && isDigit(text.back());
}

/// The plain form of the dashes, blanks and commas that word processors and other alphabets put into such
/// lists.
std::string withPlainMarks(std::string_view cell)
{
    static constexpr std::array<std::pair<std::string_view, char>, 12> marks = {{
        {"\xC2\xA0", ' '},     // no-break space
        {"\xE2\x80\xAF", ' '}, // narrow no-break space
        {"\xE3\x80\x80", ' '}, // ideographic space
        {"\xE2\x80\x8B", ' '}, // zero-width space
        {"\xEF\xBB\xBF", ' '}, // byte-order mark
        {"\xE2\x80\x90", '-'}, // hyphen
        {"\xE2\x80\x91", '-'}, // non-breaking hyphen
        {"\xE2\x80\x93", '-'}, // en dash
        {"\xE2\x80\x94", '-'}, // em dash
        {"\xE2\x88\x92", '-'}, // minus
        {"\xEF\xBC\x8C", ','}, // full-width comma
        {"\xE3\x80\x81", ','}, // ideographic comma
    }};
    std::string result;
    result.reserve(cell.size());
    while (!cell.empty()) {
        const auto mark =
            std::ranges::find_if(marks, [cell](const auto &m) { return cell.starts_with(m.first); });
        result += mark == marks.end() ? cell.front() : mark->second;
        cell.remove_prefix(mark == marks.end() ? 1 : mark->first.size());
    }
    return result;
}

/// What stands for a number that is too large to count with.
constexpr quint64 unreadable = ~quint64(0);

quint64 numberOf(std::string_view digits)
{
    quint64 value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return result.ec == std::errc() ? value : unreadable;
}

/// A letter, then digits, then perhaps more letters and digits: "R1", "U3A".
bool isLikeReference(std::string_view text)
{
    const auto digit = std::ranges::find_if(text, isDigit);
    return digit != text.begin() && digit != text.end() && std::all_of(text.begin(), digit, isLetter) &&
           std::all_of(digit, text.end(), [](char c) { return isLetter(c) || isDigit(c); });
}

/// True when all that the dashes of the text part are like references: "R1A-R3B", "R1-R3-R5".
bool joinsReferences(std::string_view text)
{
    if (text.find('-') == std::string_view::npos) {
        return false;
    }
    while (true) {
        const std::size_t dash = text.find('-');
        if (!isLikeReference(text.substr(0, dash))) {
            return false;
        }
        if (dash == std::string_view::npos) {
            return true;
        }
        text.remove_prefix(dash + 1);
    }
}

/// True when zeros in front of the last number speak against a range from the first: 1 to 02, but not 01 to
/// 02.
bool hasOddZeros(std::string_view first, std::string_view last)
{
    return last.front() == '0' && last.size() != first.size();
}

} // namespace

bool ReferenceCell::read(std::string_view cell)
{
    m_references.clear();
    m_error.clear();
    m_prefix = {};
    m_at = 0;
    m_cell = std::ranges::any_of(cell, isHigh) ? m_arena.copy(std::string_view(withPlainMarks(cell))) : cell;
    for (std::string_view token = takeToken(); !token.empty(); token = takeToken()) {
        const bool dashEnds = token.ends_with('-') && endsInDigit(token.substr(0, token.size() - 1));
        const bool spaced = dashEnds || (endsInDigit(token) && isDashNext());
        if (!(spaced ? takeSpacedRange(token) : addToken(token))) {
            m_references.clear();
            return false;
        }
    }
    return true;
}

void ReferenceCell::skipBlanks()
{
    while (m_at < m_cell.size() && isBlank(m_cell[m_at])) {
        ++m_at;
    }
}

bool ReferenceCell::isDashNext() const
{
    const std::size_t next = m_cell.find_first_not_of(" \t\r\n", m_at);
    return next != std::string_view::npos && m_cell[next] == '-';
}

std::string_view ReferenceCell::takeToken()
{
    while (m_at < m_cell.size() && isSeparator(m_cell[m_at])) {
        ++m_at;
    }
    const std::size_t begin = m_at;
    while (m_at < m_cell.size() && !isSeparator(m_cell[m_at])) {
        ++m_at;
    }
    return m_cell.substr(begin, m_at - begin);
}

/// A range with blanks beside its dash: glued together, it must be one.
bool ReferenceCell::takeSpacedRange(std::string_view first)
{
    std::string glued(first);
    skipBlanks();
    if (!first.ends_with('-')) {
        glued += '-';
        ++m_at;
        skipBlanks();
    }
    if (m_at < m_cell.size() && !isSeparator(m_cell[m_at])) {
        glued += takeToken();
    }
    const std::size_t before = m_references.size();
    const std::string_view token = m_arena.copy(std::string_view(glued));
    if (token.ends_with('-')) {
        return fail(token, QStringLiteral("is a range without an end"));
    }
    if (endsInDigit(token) && isDashNext()) {
        return fail(token, QStringLiteral("is followed by another dash: write its references one by one"));
    }
    if (!addToken(token)) {
        return false;
    }
    return m_references.size() > before + 1 || m_references.back() != token ||
           fail(token, QStringLiteral("is no range: write its references one by one"));
}

bool ReferenceCell::addToken(std::string_view token)
{
    if (token.find('/') == std::string_view::npos || !isSlashList(token)) {
        return addPiece(token);
    }
    std::size_t begin = 0;
    while (begin <= token.size()) {
        const std::size_t end = std::min(token.find('/', begin), token.size());
        if (!addPiece(token.substr(begin, end - begin))) {
            return false;
        }
        if (m_prefix.empty()) {
            return fail(token,
                        QStringLiteral("can be read in several ways: write its references one by one"));
        }
        begin = end + 1;
    }
    return true;
}

/// Each piece is a number, or numbered with the prefix of the first, or a range of such.
bool ReferenceCell::isSlashList(std::string_view token) const
{
    std::string_view prefix;
    std::size_t begin = 0;
    while (begin <= token.size()) {
        const std::size_t end = std::min(token.find('/', begin), token.size());
        const Piece piece = pieceOf(token.substr(begin, end - begin));
        for (const std::string_view side : {piece.left, piece.right.value_or(piece.left)}) {
            const std::optional<Numbered> found = numberedOrBare(side);
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

ReferenceCell::Piece ReferenceCell::pieceOf(std::string_view text)
{
    const std::size_t dash = text.find('-');
    if (dash == std::string_view::npos || text.find('-', dash + 1) != std::string_view::npos) {
        return {text, text, std::nullopt};
    }
    return {text, text.substr(0, dash), text.substr(dash + 1)};
}

std::optional<ReferenceCell::Numbered> ReferenceCell::numbered(std::string_view text)
{
    const std::size_t lastOther = text.find_last_not_of("0123456789");
    if (lastOther == std::string_view::npos || lastOther + 1 == text.size()) {
        return std::nullopt;
    }
    const Numbered found{text.substr(0, lastOther + 1), text.substr(lastOther + 1)};
    const bool plain = found.prefix.find_first_of(".-/") == std::string_view::npos;
    return plain && std::ranges::any_of(found.prefix, isLetter) ? std::optional(found) : std::nullopt;
}

std::optional<ReferenceCell::Numbered> ReferenceCell::numberedOrBare(std::string_view text) const
{
    if (isNumber(text) && !m_prefix.empty()) {
        return Numbered{m_prefix, text};
    }
    return numbered(text);
}

bool ReferenceCell::addPiece(std::string_view text)
{
    const Piece piece = pieceOf(text);
    if (piece.right) {
        return addWithDash(piece);
    }
    const std::optional<Numbered> found = numberedOrBare(text);
    m_prefix = found ? found->prefix : std::string_view();
    if (found && isNumber(text)) {
        return addSingle(m_arena.copy(std::string_view(std::string(found->prefix).append(text))));
    }
    return addSingle(text);
}

bool ReferenceCell::addWithDash(const Piece &piece)
{
    const std::optional<Numbered> first = numberedOrBare(piece.left);
    if (!first) {
        m_prefix = {};
        return addSingle(piece.text);
    }
    const bool bareEnd = isNumber(*piece.right);
    if (bareEnd) {
        const bool rises = numberOf(*piece.right) > numberOf(first->digits);
        if (!isNumber(piece.left) && (!rises || hasOddZeros(first->digits, *piece.right))) {
            m_prefix = {};
            return addSingle(piece.text);
        }
        return addRange(*first, *piece.right, piece.text);
    }
    const std::optional<Numbered> last = numbered(*piece.right);
    if (!last) {
        m_prefix = {};
        return addSingle(piece.text);
    }
    if (last->prefix != first->prefix) {
        return fail(piece.text,
                    QStringLiteral("joins different kinds of parts: write its references one by one"));
    }
    return addRange(*first, last->digits, piece.text);
}

bool ReferenceCell::addRange(const Numbered &first, std::string_view lastDigits, std::string_view text)
{
    const quint64 from = numberOf(first.digits);
    const quint64 to = numberOf(lastDigits);
    if (to < from) {
        return fail(text, QStringLiteral("is a range that runs backwards: put its lower end first"));
    }
    if (hasOddZeros(first.digits, lastDigits)) {
        return fail(text, QStringLiteral(
                              "is a range whose ends differ in their zeros: write both with as many digits"));
    }
    if (to == unreadable || to - from >= m_limit || m_references.size() + (to - from) >= m_limit) {
        return fail(
            text, QStringLiteral("makes more than %1 references in one cell: correct its end").arg(m_limit));
    }
    const std::size_t width = first.digits.front() == '0' ? first.digits.size() : 0;
    std::string reference;
    for (quint64 number = from; number <= to; ++number) {
        const std::string digits = std::to_string(number);
        reference.assign(first.prefix);
        reference.append(width > digits.size() ? width - digits.size() : 0, '0');
        reference += digits;
        m_references.push_back(m_arena.copy(std::string_view(reference)));
    }
    m_prefix = first.prefix;
    return true;
}

bool ReferenceCell::addSingle(std::string_view text)
{
    const auto names = [](char c) { return isLetter(c) || isDigit(c); };
    if (std::ranges::none_of(text, names)) {
        return fail(text, QStringLiteral("is no reference: name the part, or delete the row if it is none"));
    }
    if (text.ends_with('-')) {
        return fail(text, QStringLiteral("is a range without an end"));
    }
    if (joinsReferences(text)) {
        return fail(text, QStringLiteral("is no range that can be read: write its references one by one"));
    }
    if (m_references.size() >= m_limit) {
        return fail(text, QStringLiteral("is one reference too many: a cell may name %1").arg(m_limit));
    }
    m_references.push_back(text);
    return true;
}

bool ReferenceCell::fail(std::string_view text, const QString &why)
{
    m_error = quotedForMessage(text) + u' ' + why;
    return false;
}

} // namespace designs
