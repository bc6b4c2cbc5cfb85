// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/sexprnode.h"

#include "designs/kicad/sexprscanner.h"

#include <algorithm>

namespace designs::kicad {

namespace {

/// Adds to what mostly has a few entries, without growing for each of them.
template<typename Entry>
Entry &appended(std::vector<Entry> *entries)
{
    constexpr std::size_t usual = 6;
    if (entries->empty()) {
        entries->reserve(usual);
    }
    return entries->emplace_back();
}

/// Reads one list behind its opening.
class NodeReader
{
public:
    NodeReader(std::string_view bytes, std::size_t offset)
        : m_bytes(bytes)
        , m_offset(offset)
        , m_scanner(bytes.substr(offset))
    {
    }

    std::optional<SexprNode> read()
    {
        SexprNode node;
        if (m_scanner.next() != SexprScanner::Token::Open || m_scanner.tokenOffset() != 0 ||
            !fill(&node, 0)) {
            return std::nullopt;
        }
        return node;
    }

private:
    bool fill(SexprNode *node, int depth)
    {
        node->keyword = m_scanner.keyword();
        node->begin = m_offset + m_scanner.tokenOffset();
        node->gap = node->begin;
        while (node->gap > 0 && std::string_view(" \t\r\n").find(m_bytes[node->gap - 1]) != npos) {
            --node->gap;
        }
        keepComment(node);
        const bool complete = node->keyword == "pin" || depth > SexprScanner::maximumDepth
                                  ? m_scanner.skipList()
                                  : walk(node, depth);
        node->end = m_offset + m_scanner.offset();
        return complete;
    }

    /// A comment goes to the end of its line, which therefore is not the list's own.
    void keepComment(SexprNode *node) const
    {
        const std::size_t lineEnd = m_bytes.substr(0, node->begin).find('\n', node->gap);
        if (lineEnd == npos || node->gap == 0) {
            return;
        }
        const std::size_t before = m_bytes.rfind('\n', node->gap - 1);
        const std::size_t line = before == npos ? 0 : before + 1;
        const std::size_t first = m_bytes.find_first_not_of(" \t", line);
        if (m_bytes[first] == '#') {
            node->gap = lineEnd + 1;
        }
    }

    bool walk(SexprNode *node, int depth)
    {
        for (;;) {
            switch (m_scanner.next()) {
            case SexprScanner::Token::Open:
                if (!fill(&appended(&node->lists), depth + 1)) {
                    return false;
                }
                break;
            case SexprScanner::Token::Text:
                appended(&node->atoms) = {m_offset + m_scanner.tokenOffset(), m_offset + m_scanner.offset(),
                                          m_scanner.isQuoted()};
                break;
            case SexprScanner::Token::Close:
                return true;
            default:
                return false;
            }
        }
    }

    static constexpr std::size_t npos = std::string_view::npos;
    std::string_view m_bytes;
    std::size_t m_offset;
    SexprScanner m_scanner;
};

} // namespace

const SexprNode *SexprNode::first(std::string_view name) const
{
    const auto found = std::find_if(lists.begin(), lists.end(),
                                    [name](const SexprNode &list) { return list.keyword == name; });
    return found == lists.end() ? nullptr : &*found;
}

const SexprNode *SexprNode::last(std::string_view name) const
{
    const auto found = std::find_if(lists.rbegin(), lists.rend(),
                                    [name](const SexprNode &list) { return list.keyword == name; });
    return found == lists.rend() ? nullptr : &*found;
}

std::optional<SexprNode> nodeAt(std::string_view bytes, std::size_t offset)
{
    return offset < bytes.size() ? NodeReader(bytes, offset).read() : std::nullopt;
}

std::string textOf(std::string_view bytes, const SexprAtom &atom)
{
    const std::string_view raw = bytes.substr(atom.begin, atom.end - atom.begin);
    return atom.quoted ? unescapeQuoted(raw.substr(1, raw.size() - 2)) : std::string(raw);
}

std::string firstText(std::string_view bytes, const SexprNode &node)
{
    return node.atoms.empty() ? std::string() : textOf(bytes, node.atoms.front());
}

} // namespace designs::kicad
