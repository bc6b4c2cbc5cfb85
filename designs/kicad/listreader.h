// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/sexprscanner.h"
#include "designs/kicad/sheetfile.h"
#include "designs/problem.h"
#include "designs/textarena.h"
#include "designs/texts.h"

#include <QString>

#include <string_view>
#include <vector>

namespace designs::kicad {

/// The number that a text begins with, `otherwise` when it begins with none.
[[nodiscard]] int leadingInt(std::string_view text, int otherwise);

/// Reads the lists of one schematic file: walks the children of a list, keeps their texts in the arena free
/// of escapes, and remembers the first thing for which the file is refused.
class ListReader
{
public:
    /// A symbol, or a variant of it, with more properties is refused.
    static constexpr std::size_t maximumProperties = 1000;

    /// `sheet` tells the path and, as soon as it is read, the format version; it must outlive the reader.
    ListReader(std::string_view bytes, const SheetFile &sheet, TextArena *arena);

    [[nodiscard]] SexprScanner &scanner() { return m_scanner; }

    /// Calls `onList` for each list inside the current one, to its end. `onList` returns true when it has
    /// read its list to the end; otherwise the rest of that list is skipped.
    template<class OnList>
    bool readChildren(OnList &&onList);

    /// Gives false, for the caller to return.
    bool refuse(const QString &text);
    bool limitProperties(std::size_t count);
    /// Why reading failed.
    [[nodiscard]] Problem problem() const;
    /// Texts that are not UTF-8, as offsets into the bytes.
    [[nodiscard]] const std::vector<std::size_t> &badTexts() const { return m_badTexts; }

    /// The list's next item if it is a text, kept; empty otherwise.
    std::string_view takeKept();
    /// The same, empty for the "~" that older versions write for no text.
    std::string_view takeValue();
    std::string_view keep(std::string_view text);
    int takeInt(int otherwise);
    bool takeFlag();
    Point takePoint();

private:
    std::string_view m_bytes;
    SexprScanner m_scanner;
    const SheetFile &m_sheet;
    TextArena *m_arena;
    QString m_refusal;
    std::size_t m_refusalOffset = 0;
    std::vector<std::size_t> m_badTexts;
};

template<class OnList>
bool ListReader::readChildren(OnList &&onList)
{
    for (;;) {
        switch (m_scanner.next()) {
        case SexprScanner::Token::Open:
            if (!onList(m_scanner.keyword()) && !m_scanner.skipList()) {
                return false;
            }
            if (m_scanner.failed() || !m_refusal.isEmpty()) {
                return false;
            }
            break;
        case SexprScanner::Token::Text:
            break;
        case SexprScanner::Token::Close:
            return true;
        case SexprScanner::Token::End:
            return refuse(KicadTexts::tr("the file ends inside a list: it is cut off or a \")\" is missing"));
        case SexprScanner::Token::Error:
            return false;
        }
    }
}

} // namespace designs::kicad
