// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <array>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace designs::kicad {

/// What one file holds: symbols, how many of them are power symbols, and the files of its sheet symbols.
struct FileCount
{
    qsizetype symbols = 0;
    qsizetype power = 0;
    QStringList sheetFiles;
};

/// Counts the symbols in the text of one sheet file, for SymbolRecount. It goes through the text once, keeps
/// the first words of the lists that say something about the count, as views, and passes over all others.
class SymbolCounter
{
public:
    /// The text must outlive the counter.
    explicit SymbolCounter(std::string_view text);

    /// Once.
    [[nodiscard]] FileCount count();

private:
    enum class Kind
    {
        File,
        Symbol,
        LibraryId,
        LibraryName,
        Property,
        Instances,
        Project,
        Path,
        Reference,
        Sheet,
        SheetProperty,
        PropertyNumber,
        Library,
        LibrarySymbol
    };
    struct Place;
    struct List
    {
        Kind kind = Kind::File;
        /// Behind the keyword.
        std::array<std::string_view, 2> words;
        std::size_t count = 0;
    };

    void open();
    void close();
    void closeSymbol();
    void closeSheetProperty(const List &list);
    void addWord(std::string_view word);
    [[nodiscard]] std::string_view quoted();
    [[nodiscard]] std::string_view bare();
    [[nodiscard]] std::string_view freedOfEscapes(std::string_view raw);
    void skipBlanks();
    void skipComment();
    void skipList();
    [[nodiscard]] bool skipStretch(std::size_t *depth);
    void skipToQuote(std::size_t *depth);
    [[nodiscard]] bool startsLine() const;

    const char *m_begin;
    const char *m_at;
    const char *m_end;
    std::vector<List> m_open;
    std::string_view m_libraryId;
    std::string_view m_libraryName;
    std::string_view m_propertyNumber;
    bool m_isPower = false;
    std::unordered_set<std::string_view> m_powerSymbols;
    std::deque<std::string> m_freed;
    FileCount m_count;
};

} // namespace designs::kicad
