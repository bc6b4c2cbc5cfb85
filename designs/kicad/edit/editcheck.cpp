// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/editcheck.h"

#include "designs/kicad/sexprscanner.h"

namespace designs::kicad {

namespace {

/// Where a splice stands in one of the two texts.
struct Range
{
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// The tokens of a list outside of given ranges.
class OutsideTokens
{
public:
    using Token = SexprScanner::Token;

    OutsideTokens(std::string_view text, Range list, std::vector<Range> skipped)
        : m_text(text.substr(list.begin, list.end - list.begin))
        , m_start(list.begin)
        , m_skipped(std::move(skipped))
        , m_scanner(m_text)
    {
    }

    Token next()
    {
        for (;;) {
            const Token token = m_scanner.next();
            m_depth += token == Token::Open ? 1 : token == Token::Close ? -1 : 0;
            const bool isEnd = token == Token::End || token == Token::Error;
            if (isEnd || !isSkipped(m_start + m_scanner.tokenOffset())) {
                return token;
            }
        }
    }

    [[nodiscard]] int depth() const { return m_depth; }
    [[nodiscard]] std::string_view bytes() const
    {
        return m_text.substr(m_scanner.tokenOffset(), m_scanner.offset() - m_scanner.tokenOffset());
    }

private:
    bool isSkipped(std::size_t offset)
    {
        while (m_at < m_skipped.size() && m_skipped[m_at].end <= offset) {
            ++m_at;
        }
        return m_at < m_skipped.size() && m_skipped[m_at].begin <= offset;
    }

    std::string_view m_text;
    std::size_t m_start;
    std::vector<Range> m_skipped;
    std::size_t m_at = 0;
    SexprScanner m_scanner;
    int m_depth = 0;
};

bool sameTokens(OutsideTokens *before, OutsideTokens *after)
{
    for (;;) {
        const auto token = before->next();
        if (after->next() != token || token == SexprScanner::Token::Error ||
            before->depth() != after->depth()) {
            return false;
        }
        if (token == SexprScanner::Token::End) {
            return before->depth() == 0;
        }
        // The scanner takes an opening and its keyword as one, the closing has one byte.
        if (before->bytes() != after->bytes()) {
            return false;
        }
    }
}

} // namespace

QString compareTexts(std::string_view before, std::string_view after, const std::vector<Splice> &splices,
                     const std::vector<ChangedList> &lists)
{
    const QString differs = QStringLiteral("more than what was asked for would change");
    std::size_t splice = 0;
    std::size_t atBefore = 0;
    std::size_t atAfter = 0;
    for (const ChangedList &list : lists) {
        const std::size_t between = list.begin - atBefore;
        if (before.substr(atBefore, between) != after.substr(atAfter, between)) {
            return differs;
        }
        const std::size_t start = atAfter + between;
        std::size_t shifted = start - list.begin;
        std::vector<Range> old;
        std::vector<Range> fresh;
        for (; splice < splices.size() && splices[splice].begin < list.end; ++splice) {
            const Splice &each = splices[splice];
            old.push_back({each.begin, each.end});
            fresh.push_back({each.begin + shifted, each.begin + shifted + each.text.size()});
            shifted += each.text.size() - (each.end - each.begin);
        }
        OutsideTokens left(before, {list.begin, list.end}, std::move(old));
        OutsideTokens right(after, {start, list.end + shifted}, std::move(fresh));
        if (!sameTokens(&left, &right)) {
            return differs;
        }
        atBefore = list.end;
        atAfter = list.end + shifted;
    }
    return splice == splices.size() && before.substr(atBefore) == after.substr(atAfter) ? QString() : differs;
}

} // namespace designs::kicad
