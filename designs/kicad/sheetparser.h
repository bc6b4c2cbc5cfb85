// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/instancereader.h"
#include "designs/kicad/listreader.h"

#include <stop_token>
#include <vector>

namespace designs::kicad {

/// Reads one schematic file's bytes into a SheetFile. What it does not know it passes over.
class SheetParser
{
public:
    /// A file whose rule areas with flags have more corners is refused.
    static constexpr std::size_t maximumCorners = 10'000;

    /// `arena` and `names` take the texts and must outlive the sheet.
    SheetParser(std::string_view bytes, SheetFile *sheet, TextArena *arena, PropertyNames *names);

    /// False when the text is no schematic or broken, or a stop was requested; problem() tells where.
    bool parse(const std::stop_token &stop = {});

    [[nodiscard]] Problem problem() const { return m_lists.problem(); }
    /// Texts that are not UTF-8, as offsets into the bytes.
    [[nodiscard]] const std::vector<std::size_t> &badTexts() const { return m_lists.badTexts(); }

private:
    struct PropertyText
    {
        std::string_view name;
        std::string_view value;
        int id = -1;
    };

    bool readTopLevel(std::string_view keyword);
    bool readTitleBlock();
    bool readLibrary();
    bool readLibrarySymbol();
    bool readSymbol();
    bool readSheet();
    bool readRuleArea();
    bool readOutline(std::vector<Point> *outline);
    PropertyText readProperty();
    void addSymbolProperty(PlacedSymbol *symbol, std::vector<Property> *properties);
    void nameSheet(SheetSymbol *sheet, const std::vector<PropertyText> &texts);

    ListReader m_lists;
    SexprScanner &m_scanner;
    InstanceReader m_instances;
    SheetFile *m_sheet;
    TextArena *m_arena;
    PropertyNames *m_names;
    std::vector<Property> m_properties;
    std::size_t m_corners = 0;
};

} // namespace designs::kicad
