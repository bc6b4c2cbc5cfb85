// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/sexprscanner.h"
#include "designs/kicad/sheetfile.h"
#include "designs/problem.h"
#include "designs/textarena.h"

#include <vector>

namespace designs::kicad {

/// Reads one schematic file's bytes into a SheetFile. What it does not know it passes over.
class SheetParser
{
public:
    /// A symbol, or a variant of it, with more properties is refused.
    static constexpr std::size_t maximumProperties = 1000;
    /// A file whose rule areas with flags have more corners is refused.
    static constexpr std::size_t maximumCorners = 10'000;

    /// `arena` and `names` take the texts and must outlive the sheet.
    SheetParser(std::string_view bytes, SheetFile *sheet, TextArena *arena, PropertyNames *names);

    /// False when the text is no schematic or broken; problem() tells where.
    bool parse();

    [[nodiscard]] Problem problem() const;
    /// Texts that are not UTF-8, as offsets into the bytes.
    [[nodiscard]] const std::vector<std::size_t> &badTexts() const { return m_badTexts; }

private:
    struct PropertyText
    {
        std::string_view name;
        std::string_view value;
        int id = -1;
    };

    template<class OnList>
    bool readChildren(OnList &&onList);
    bool refuse(const QString &text);
    bool limitProperties(std::size_t count);

    bool readTopLevel(std::string_view keyword);
    bool readTitleBlock();
    bool readLibrary();
    bool readLibrarySymbol();
    bool readSymbol();
    bool readSheet();
    bool readRuleArea();
    bool readOutline(std::vector<Point> *outline);
    bool readInstanceTable();
    bool readInstances(std::span<const InstanceRecord> *records);
    bool readProject(std::vector<InstanceRecord> *records);
    bool readInstance(InstanceRecord *record);
    bool readVariant(std::vector<VariantRecord> *variants);
    bool readVariantField(std::vector<Property> *fields);
    PropertyText readProperty();
    void addSymbolProperty(PlacedSymbol *symbol, std::vector<Property> *properties);
    void nameSheet(SheetSymbol *sheet, const std::vector<PropertyText> &texts);

    std::string_view takeKept();
    std::string_view takeValue();
    std::string_view keep(std::string_view text);
    int takeInt(int otherwise);
    bool takeFlag();
    Point takePoint();
    quint32 pathNumber(std::string_view path);

    SexprScanner m_scanner;
    SheetFile *m_sheet;
    TextArena *m_arena;
    PropertyNames *m_names;
    QString m_refusal;
    std::size_t m_refusalOffset = 0;
    std::string_view m_bytes;
    std::vector<std::size_t> m_badTexts;
    std::vector<Property> m_properties;
    std::vector<InstanceRecord> m_instances;
    std::string_view m_lastPath;
    quint32 m_lastPathNumber = 0;
    bool m_variantHasVariables = false;
    std::size_t m_corners = 0;
};

/// Calls `onList` for each list inside the current one, to its end. `onList` returns true when it has read
/// its list to the end; otherwise the rest of that list is skipped.
template<class OnList>
bool SheetParser::readChildren(OnList &&onList)
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
            return refuse(QStringLiteral("the file ends inside a list: it is cut off or a \")\" is missing"));
        case SexprScanner::Token::Error:
            return false;
        }
    }
}

} // namespace designs::kicad
