// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/listlayout.h"

namespace designs::kicad {

namespace {

/// The last line end of the blanks and what follows it, empty without a line end.
std::string_view lastLine(std::string_view gap)
{
    std::size_t at = gap.rfind('\n');
    if (at == std::string_view::npos) {
        return {};
    }
    at -= at > 0 && gap[at - 1] == '\r' ? 1 : 0;
    return gap.substr(at);
}

} // namespace

std::string quotedText(std::string_view text)
{
    std::string result = "\"";
    result.reserve(text.size() + 2);
    for (const char c : text) {
        switch (c) {
        case '\n':
            result += "\\n";
            break;
        case '\r':
            result += "\\r";
            break;
        case '"':
        case '\\':
            result += '\\';
            [[fallthrough]];
        default:
            result += c;
        }
    }
    result += '"';
    return result;
}

ListLayout::ListLayout(std::string_view bytes, const SexprNode &parent, const SexprNode &child)
    : m_gap(lastLine(gapOf(bytes, child)))
{
    m_onLines = !m_gap.empty();
    if (!m_onLines) {
        m_gap = " ";
        return;
    }
    const std::string_view outer = lastLine(gapOf(bytes, parent));
    if (m_gap.starts_with(outer) && m_gap.size() > outer.size()) {
        m_step = m_gap.substr(outer.size());
    }
    // A parent at the start of the file has no line before it.
    m_step = m_step.find('\n') == std::string::npos ? m_step : m_gap.substr(m_gap.rfind('\n') + 1);
}

std::string ListLayout::gap(int level) const
{
    std::string text = m_gap;
    for (; m_onLines && level > 0; --level) {
        text += m_step;
    }
    return text;
}

} // namespace designs::kicad
