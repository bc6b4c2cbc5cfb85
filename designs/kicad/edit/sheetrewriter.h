// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "designs/kicad/edit/editcheck.h"
#include "designs/kicad/edit/symbolrewrite.h"
#include "designs/kicad/edit/symbolwriter.h"

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace designs::kicad {

/// Makes the new text of one sheet out of what becomes of its symbols and rows, and checks that it says that
/// and nothing else.
class SheetRewriter
{
public:
    /// `bytes` is what `sheet` was read from; all of it must outlive the rewriter.
    SheetRewriter(std::string_view bytes, const SheetFile &sheet, const PropertyNames &names,
                  std::string_view variant);

    /// Adds the replacement of the file to the plan and tells its changes their lines. Otherwise the problem,
    /// of the edit that cannot be made or of the file as a whole.
    [[nodiscard]] std::optional<EditProblem> run(const SheetRewrite &rewrite, EditPlan *plan);

private:
    bool fail(std::size_t offset, const QString &text);
    bool write(const SheetRewrite &rewrite, EditPlan *plan);
    bool writeSymbol(const PlacedSymbol &placed, const SymbolRewrite &rewrite, EditPlan *plan);
    [[nodiscard]] std::size_t siteOf(const SexprNode &symbol, std::string_view name) const;
    int lineOf(std::size_t offset);
    bool finish(const SheetRewrite &rewrite, EditPlan *plan);

    std::string_view m_bytes;
    const SheetFile &m_sheet;
    const PropertyNames &m_names;
    std::string_view m_variant;
    std::vector<Splice> m_splices;
    SymbolWriter m_writer;
    std::vector<ChangedList> m_lists;
    /// Where the plan's changes stand: the offset, and the index into EditPlan::changes.
    std::vector<std::pair<std::size_t, std::size_t>> m_sites;
    std::size_t m_lineOffset = 0;
    int m_line = 1;
    EditProblem m_problem;
};

} // namespace designs::kicad
