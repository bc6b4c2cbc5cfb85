// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/listreader.h"

#include "designs/kicad/braceescapes.h"
#include "designs/texts.h"
#include "designs/utf8.h"

#include <algorithm>
#include <charconv>

namespace designs::kicad {

ListReader::ListReader(std::string_view bytes, const SheetFile &sheet, TextArena *arena)
    : m_bytes(bytes)
    , m_scanner(bytes)
    , m_sheet(sheet)
    , m_arena(arena)
{
}

Problem ListReader::problem() const
{
    if (!m_refusal.isEmpty()) {
        const auto before = m_bytes.substr(0, m_refusalOffset);
        return {m_sheet.path, 1 + int(std::count(before.begin(), before.end(), '\n')), m_refusal};
    }
    return {m_sheet.path, m_scanner.errorLine(), m_scanner.error()};
}

bool ListReader::refuse(const QString &text)
{
    m_refusal = text;
    m_refusalOffset = m_scanner.tokenOffset();
    return false;
}

bool ListReader::limitProperties(std::size_t count)
{
    return count <= maximumProperties ||
           refuse(KicadTexts::tr("a symbol has more than %1 properties").arg(maximumProperties));
}

int leadingInt(std::string_view text, int otherwise)
{
    int number = otherwise;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::string_view ListReader::takeKept()
{
    return m_scanner.takeText() ? keep(m_scanner.text()) : std::string_view();
}

std::string_view ListReader::takeValue()
{
    if (!m_scanner.takeText()) {
        return {};
    }
    const std::string_view text = m_scanner.text();
    const bool tilde = text == "~" && m_sheet.formatVersion < version::tildeIsText;
    return tilde ? std::string_view() : keep(text);
}

/// Keeps the scanner's text.
std::string_view ListReader::keep(std::string_view text)
{
    if (!m_scanner.isAscii() && !isUtf8(text)) {
        m_badTexts.push_back(m_scanner.tokenOffset());
    }
    if (m_scanner.mayHoldBrace() && mayHaveBraceEscape(text)) {
        return m_arena->copy(std::string_view(resolveBraceEscapes(text)));
    }
    return m_arena->copy(text);
}

int ListReader::takeInt(int otherwise)
{
    return m_scanner.takeText() ? leadingInt(m_scanner.raw(), otherwise) : otherwise;
}

/// A flag without a word counts as set.
bool ListReader::takeFlag()
{
    return !m_scanner.takeText() || m_scanner.raw() == "yes" || m_scanner.raw() == "true";
}

/// Only rule areas, which came late, need positions.
Point ListReader::takePoint()
{
    Point point;
    if (m_sheet.formatVersion < version::ruleAreaFlags) {
        return point;
    }
    for (double *coordinate : {&point.x, &point.y}) {
        if (m_scanner.takeText()) {
            const std::string_view text = m_scanner.raw();
            std::from_chars(text.data(), text.data() + text.size(), *coordinate);
        }
    }
    return point;
}

} // namespace designs::kicad
