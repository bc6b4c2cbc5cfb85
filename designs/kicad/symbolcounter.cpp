// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/symbolcounter.h"

#include <cstring>

namespace designs::kicad {

namespace {

/// How many bytes are passed over at once.
constexpr std::size_t stretch = 32;

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

/// Where a kind of list stands.
struct SymbolCounter::Place
{
    Kind parent;
    /// What the list begins with, empty for anything.
    std::string_view keyword;
    Kind kind;

    static const std::array<Place, 13> all;
};

constexpr std::array<SymbolCounter::Place, 13> SymbolCounter::Place::all{{
    {Kind::File, "symbol", Kind::Symbol},
    {Kind::File, "sheet", Kind::Sheet},
    {Kind::File, "lib_symbols", Kind::Library},
    {Kind::Symbol, "property", Kind::Property},
    {Kind::Symbol, "lib_id", Kind::LibraryId},
    {Kind::Symbol, "lib_name", Kind::LibraryName},
    {Kind::Symbol, "instances", Kind::Instances},
    {Kind::Instances, {}, Kind::Project},
    {Kind::Project, {}, Kind::Path},
    {Kind::Path, "reference", Kind::Reference},
    {Kind::Sheet, "property", Kind::SheetProperty},
    {Kind::SheetProperty, "id", Kind::PropertyNumber},
    {Kind::Library, {}, Kind::LibrarySymbol},
}};

SymbolCounter::SymbolCounter(std::string_view text)
    : m_begin(text.data())
    , m_at(text.data())
    , m_end(text.data() + text.size())
{
}

FileCount SymbolCounter::count()
{
    for (skipBlanks(); m_at < m_end; skipBlanks()) {
        switch (*m_at) {
        case '(':
            ++m_at;
            open();
            break;
        case ')':
            ++m_at;
            if (!m_open.empty()) {
                close();
            }
            break;
        case '"':
            addWord(quoted());
            break;
        default:
            addWord(bare());
        }
    }
    return m_count;
}

/// Goes on inside a list that says something, behind one that does not.
void SymbolCounter::open()
{
    skipBlanks();
    const bool hasKeyword = m_at < m_end && *m_at != '(' && *m_at != ')';
    const std::string_view keyword = !hasKeyword ? std::string_view() : *m_at == '"' ? quoted() : bare();
    if (m_open.empty()) {
        m_open.emplace_back();
        return;
    }
    const Kind parent = m_open.back().kind;
    if (parent == Kind::LibrarySymbol && keyword == "power") {
        m_powerSymbols.insert(m_open.back().words[0]);
    }
    for (const Place &place : Place::all) {
        if (place.parent == parent && (place.keyword.empty() || place.keyword == keyword)) {
            m_open.push_back({place.kind, {}, 0});
            return;
        }
    }
    skipList();
}

void SymbolCounter::addWord(std::string_view word)
{
    if (!m_open.empty() && m_open.back().count < 2) {
        m_open.back().words[m_open.back().count++] = word;
    }
}

void SymbolCounter::close()
{
    const List list = m_open.back();
    m_open.pop_back();
    switch (list.kind) {
    case Kind::Symbol:
        closeSymbol();
        break;
    case Kind::LibraryId:
        m_libraryId = list.words[0];
        break;
    case Kind::LibraryName:
        m_libraryName = list.words[0];
        break;
    case Kind::Property:
        m_isPower |= list.words[0] == "Reference" && list.words[1].starts_with('#');
        break;
    case Kind::Reference:
        m_isPower |= list.words[0].starts_with('#');
        break;
    case Kind::PropertyNumber:
        m_propertyNumber = list.words[0];
        break;
    case Kind::SheetProperty:
        closeSheetProperty(list);
        break;
    default:
        break;
    }
}

void SymbolCounter::closeSymbol()
{
    ++m_count.symbols;
    m_count.power +=
        m_isPower || m_powerSymbols.contains(m_libraryName.empty() ? m_libraryId : m_libraryName);
    m_isPower = false;
    m_libraryId = {};
    m_libraryName = {};
}

void SymbolCounter::closeSheetProperty(const List &list)
{
    const bool isNamed = list.words[0] == "Sheetfile" || list.words[0] == "Sheet file";
    if (m_propertyNumber == "1" || (m_propertyNumber.empty() && isNamed)) {
        m_count.sheetFiles << QString::fromUtf8(list.words[1].data(), qsizetype(list.words[1].size()));
    }
    m_propertyNumber = {};
}

/// Behind the opening quote to behind the closing one.
std::string_view SymbolCounter::quoted()
{
    const char *start = ++m_at;
    bool isEscaped = false;
    for (;;) {
        const auto *quote = static_cast<const char *>(std::memchr(m_at, '"', std::size_t(m_end - m_at)));
        const char *stop = quote ? quote : m_end;
        const auto *escape = static_cast<const char *>(std::memchr(m_at, '\\', std::size_t(stop - m_at)));
        if (!escape) {
            m_at = quote ? quote + 1 : m_end;
            const std::string_view raw(start, std::size_t(stop - start));
            return isEscaped ? freedOfEscapes(raw) : raw;
        }
        isEscaped = true;
        m_at = m_end - escape > 2 ? escape + 2 : m_end;
    }
}

std::string_view SymbolCounter::freedOfEscapes(std::string_view raw)
{
    std::string &text = m_freed.emplace_back();
    for (std::size_t i = 0; i < raw.size(); ++i) {
        i += raw[i] == '\\' && i + 1 < raw.size() ? 1 : 0;
        text += raw[i];
    }
    return text;
}

std::string_view SymbolCounter::bare()
{
    const char *start = m_at;
    while (m_at < m_end && !isBlank(*m_at) && *m_at != '(' && *m_at != ')' && *m_at != '"') {
        ++m_at;
    }
    return {start, std::size_t(m_at - start)};
}

void SymbolCounter::skipBlanks()
{
    for (; m_at < m_end; ++m_at) {
        if (*m_at == '#' && startsLine()) {
            skipComment();
        }
        if (m_at == m_end || !isBlank(*m_at)) {
            return;
        }
    }
}

bool SymbolCounter::startsLine() const
{
    const char *at = m_at;
    while (at > m_begin && isBlank(at[-1]) && at[-1] != '\n') {
        --at;
    }
    return at == m_begin || at[-1] == '\n';
}

void SymbolCounter::skipComment()
{
    const auto *end = static_cast<const char *>(std::memchr(m_at, '\n', std::size_t(m_end - m_at)));
    m_at = end ? end : m_end;
}

/// Most of a file is drawing. Stretches without quotes and comments only change the depth.
void SymbolCounter::skipList()
{
    std::size_t depth = 1;
    while (depth > 0 && m_at < m_end) {
        if (!skipStretch(&depth)) {
            skipToQuote(&depth);
        }
    }
}

/// False, and nowhere, when the next bytes hold a quote, what may begin a comment, or the list's end.
bool SymbolCounter::skipStretch(std::size_t *depth)
{
    if (std::size_t(m_end - m_at) < stretch) {
        return false;
    }
    unsigned char opening = 0;
    unsigned char closing = 0;
    unsigned char others = 0;
    for (std::size_t i = 0; i < stretch; ++i) {
        const char c = m_at[i];
        opening += c == '(';
        closing += c == ')';
        others |= (c == '"') | (c == '#');
    }
    if (others || closing >= *depth) {
        return false;
    }
    *depth += opening;
    *depth -= closing;
    m_at += stretch;
    return true;
}

/// Goes behind the next text, or behind one stretch.
void SymbolCounter::skipToQuote(std::size_t *depth)
{
    const char *stop = std::size_t(m_end - m_at) < stretch ? m_end : m_at + stretch;
    while (m_at<stop && * depth> 0) {
        const char c = *m_at;
        if (c == '"') {
            (void)quoted();
            return;
        }
        if (c == '#' && startsLine()) {
            skipComment();
            return;
        }
        *depth += c == '(' ? 1 : 0;
        *depth -= c == ')' ? 1 : 0;
        ++m_at;
    }
}

} // namespace designs::kicad
