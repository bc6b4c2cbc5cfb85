// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/sexprscanner.h"

#include "designs/kicad/blockmasks.h"
#include "designs/texts.h"

#include <algorithm>
#include <bit>

namespace designs::kicad {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool endsAtom(char c)
{
    return isBlank(c) || c == '(' || c == ')' || c == '"';
}

} // namespace

SexprScanner::SexprScanner(std::string_view text)
    : m_begin(text.data())
    , m_end(text.data() + text.size())
    , m_at(text.data())
    , m_token(text.data())
{
    if (text.starts_with("\xEF\xBB\xBF")) {
        m_at += 3;
    }
}

SexprScanner::Token SexprScanner::fail(const QString &text, const char *at)
{
    if (m_error.isEmpty()) {
        m_error = text;
        m_errorAt = at;
    }
    m_at = m_end;
    return Token::Error;
}

int SexprScanner::errorLine() const
{
    return m_errorAt ? 1 + int(std::count(m_begin, m_errorAt, '\n')) : 0;
}

bool SexprScanner::atLineStart(const char *at) const
{
    while (at > m_begin && (at[-1] == ' ' || at[-1] == '\t')) {
        --at;
    }
    return at == m_begin || at[-1] == '\n' || at[-1] == '\r';
}

void SexprScanner::skipComment()
{
    m_at = std::find(m_at, m_end, '\n');
}

/// False at the end of the file.
bool SexprScanner::skipBlanks()
{
    for (;;) {
        while (m_at < m_end && isBlank(*m_at)) {
            ++m_at;
        }
        if (m_at == m_end) {
            return false;
        }
        if (*m_at != '#' || !atLineStart(m_at)) {
            return true;
        }
        skipComment();
    }
}

SexprScanner::Token SexprScanner::next()
{
    if (failed()) {
        return Token::Error;
    }
    if (!skipBlanks()) {
        m_token = m_at;
        return Token::End;
    }
    m_token = m_at;
    switch (*m_at) {
    case '(':
        ++m_at;
        m_text = {};
        if (skipBlanks() && !endsAtom(*m_at)) {
            readAtom();
        }
        return Token::Open;
    case ')':
        ++m_at;
        return Token::Close;
    case '"':
        return readQuoted();
    default:
        return readAtom();
    }
}

SexprScanner::Token SexprScanner::readAtom()
{
    const char *start = m_at;
    while (m_at < m_end && !endsAtom(*m_at)) {
        ++m_at;
    }
    m_text = {start, std::size_t(m_at - start)};
    m_quoted = false;
    m_escaped = false;
    m_brace = true;
    m_ascii = false;
    return Token::Text;
}

/// Goes to the next quote, backslash or line feed, or to the end.
void SexprScanner::findTextStop()
{
    while (m_end - m_at >= 16) {
        const TextMasks masks = textMasks(m_at);
        const unsigned before = masks.stop ? (masks.stop & -masks.stop) - 1 : ~0U;
        m_brace |= (masks.brace & before) != 0;
        m_ascii &= (masks.notAscii & before) == 0;
        if (masks.stop) {
            m_at += std::countr_zero(masks.stop);
            return;
        }
        m_at += 16;
    }
    for (; m_at < m_end && *m_at != '"' && *m_at != '\\' && *m_at != '\n'; ++m_at) {
        m_brace |= *m_at == '{';
        m_ascii &= (*m_at & 0x80) == 0;
    }
}

SexprScanner::Token SexprScanner::readQuoted()
{
    const char *start = m_at++;
    m_escaped = false;
    m_brace = false;
    m_ascii = true;
    for (findTextStop(); m_at < m_end && *m_at == '\\'; findTextStop()) {
        m_escaped = true;
        m_ascii = false;
        m_brace = true;
        m_at += 2;
    }
    if (m_at >= m_end || *m_at != '"') {
        return fail(KicadTexts::tr("the text that begins here is not closed on its line"), start);
    }
    m_text = {start + 1, std::size_t(m_at - start - 1)};
    m_quoted = true;
    ++m_at;
    return Token::Text;
}

std::string_view SexprScanner::text()
{
    if (!m_escaped) {
        return m_text;
    }
    m_unescaped = unescapeQuoted(m_text);
    return m_unescaped;
}

bool SexprScanner::takeText()
{
    if (failed() || !skipBlanks() || *m_at == '(' || *m_at == ')') {
        return false;
    }
    return next() == Token::Text;
}

bool SexprScanner::failUnclosed()
{
    fail(KicadTexts::tr("the file ends inside a list: it is cut off or a \")\" is missing"), m_end);
    return false;
}

/// Goes behind the closing quote of the text that m_at stands in; `start` is what a message points at.
bool SexprScanner::skipQuotedRest(const char *start)
{
    while (m_at < m_end && *m_at != '"' && *m_at != '\n') {
        m_at += *m_at == '\\' ? 2 : 1;
    }
    if (m_at >= m_end || *m_at != '"') {
        fail(KicadTexts::tr("the text that begins here is not closed on its line"), start);
        return false;
    }
    ++m_at;
    return true;
}

/// Skips up to `stop`, or to the end of the text or comment that reaches over it; false when the list is done
/// (depth 0) or on an error.
bool SexprScanner::skipByteWise(const char *stop, int *depth)
{
    while (m_at < stop) {
        const char *token = m_at++;
        switch (*token) {
        case '(':
            ++*depth;
            break;
        case ')':
            if (--*depth == 0) {
                return false;
            }
            break;
        case '"':
            if (!skipQuotedRest(token)) {
                return false;
            }
            break;
        case '#':
            if (atLineStart(token)) {
                skipComment();
            }
            break;
        default:
            break;
        }
    }
    return true;
}

/// Most of a schematic is drawing: nine tenths of the bytes lie in lists that are skipped. So instead of
/// looking at each byte, 64 are taken at once. Masks tell where parentheses and quotes stand; the parity of
/// the quotes tells which parentheses are text; the counts of the remaining ones change the depth. Only a
/// block that could close the list is looked at bit by bit. What the parity cannot see goes to
/// skipByteWise(): a backslash, which may escape a quote, a line feed inside a text, which is an error to
/// report, and a "#", which may begin a comment with any quotes in it. Taking such a block here would lose
/// the end of a text and with it parts.
///
/// `quoted` tells whether m_at stands inside a text, before and after; true when the list's end was found.
bool SexprScanner::skipBlocks(int *depth, bool *quoted)
{
    while (m_end - m_at >= 64 && *depth <= maximumDepth) {
        const BlockMasks masks = blockMasks(m_at);
        const std::uint64_t inside = insideQuotes(masks.quote) ^ (*quoted ? ~std::uint64_t(0) : 0);
        if (masks.backslash | (masks.newline & inside) | (masks.hash & ~inside)) {
            return false;
        }
        const std::uint64_t open = masks.open & ~inside;
        const std::uint64_t close = masks.close & ~inside;
        const int closing = bitCount(close);
        if (closing < *depth) {
            *depth += bitCount(open) - closing;
        } else if (const int end = findListEnd(open, close, depth); end >= 0) {
            m_at += end + 1;
            return true;
        }
        *quoted = (inside >> 63) != 0;
        m_at += 64;
    }
    return false;
}

bool SexprScanner::skipList()
{
    int depth = 1;
    bool quoted = false;
    while (!failed()) {
        if (skipBlocks(&depth, &quoted)) {
            return true;
        }
        if (depth > maximumDepth) {
            fail(KicadTexts::tr("lists are nested deeper than %1").arg(maximumDepth), m_at);
            return false;
        }
        if (m_at >= m_end) {
            return failUnclosed();
        }
        const char *stop = m_at + std::min<std::ptrdiff_t>(64, m_end - m_at);
        if (quoted && !skipQuotedRest(m_at)) {
            return false;
        }
        quoted = false;
        if (!skipByteWise(stop, &depth)) {
            return !failed();
        }
    }
    return false;
}

std::string unescapeQuoted(std::string_view raw)
{
    static constexpr std::string_view letters = "abfnrtv";
    static constexpr std::string_view meanings = "\a\b\f\n\r\t\v";
    const auto digit = [](char c) {
        return c >= '0' && c <= '9'   ? c - '0'
               : c >= 'a' && c <= 'f' ? c - 'a' + 10
               : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                      : 99;
    };
    std::string text;
    text.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] != '\\' || i + 1 == raw.size()) {
            text += raw[i];
            continue;
        }
        const char c = raw[++i];
        const bool hex = c == 'x';
        const int base = hex ? 16 : 8;
        if (c == '"' || c == '\\') {
            text += c;
        } else if (const auto at = letters.find(c); at != std::string_view::npos) {
            text += meanings[at];
        } else if (hex || digit(c) < 8) {
            std::size_t stop = i + (hex ? 1 : 0);
            const std::size_t first = stop;
            int value = 0;
            while (stop < raw.size() && stop < first + (hex ? 2 : 3) && digit(raw[stop]) < base) {
                value = value * base + digit(raw[stop++]);
            }
            text += first == stop ? std::string("\\x") : std::string(1, char(value));
            i = std::max(stop, i + 1) - 1;
        } else {
            text += '\\';
            text += c;
        }
    }
    return text;
}

} // namespace designs::kicad
