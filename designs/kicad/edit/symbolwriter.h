// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/edit/sexprnode.h"
#include "designs/kicad/edit/symbolrewrite.h"
#include "designs/kicad/sheetfile.h"
#include "designs/splices.h"

#include <QString>

#include <string_view>
#include <vector>

namespace designs::kicad {

/// Works out the bytes that change in one symbol, or in one row of version 6's table of instances.
class SymbolWriter
{
public:
    /// `splices` takes what changes.
    SymbolWriter(std::string_view bytes, const SheetFile &file, std::string_view variant,
                 std::vector<Splice> *splices);

    /// Nothing, or why the change cannot be made. `names` resolves the symbol's property numbers.
    [[nodiscard]] QString write(const SexprNode &symbol, const PlacedSymbol &placed,
                                const SymbolRewrite &change, const PropertyNames &names);
    void write(const SexprNode &row, const RowRewrite &change);

private:
    [[nodiscard]] bool writeProperty(const SexprNode &symbol, const WantedText &change);
    void replaceValue(const SexprNode &property, std::string_view text);
    [[nodiscard]] bool addProperty(const SexprNode &symbol, const WantedText &change);
    void writeFlag(const SexprNode &symbol, std::string_view word, bool wanted);
    void insertFlag(const SexprNode &symbol, std::string_view word, std::string_view text);
    [[nodiscard]] bool writeVariants(const SexprNode &symbol, const PlacedSymbol &placed,
                                     const SymbolRewrite &change, const PropertyNames &names);

    std::string_view m_bytes;
    const SheetFile &m_file;
    std::string_view m_variant;
    std::vector<Splice> *m_splices;
    int m_nextId = 0;
};

/// The symbol's property of that name, the last of several; null when it has none.
[[nodiscard]] const SexprNode *findProperty(std::string_view bytes, const SexprNode &symbol,
                                            std::string_view name);

/// The first list of an instance path inside a symbol, null when there is none.
[[nodiscard]] const SexprNode *findPath(std::string_view bytes, const SexprNode &symbol,
                                        std::string_view path);

} // namespace designs::kicad
