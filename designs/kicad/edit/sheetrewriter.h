// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "designs/kicad/edit/editcheck.h"
#include "designs/kicad/edit/symbolrewrite.h"
#include "designs/kicad/edit/symbolwriter.h"

#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace designs::kicad {

/// What came of the edits of one sheet.
struct RewrittenSheet
{
    /// Nothing when the text stays as it is, or there is a problem.
    std::optional<FileReplacement> file;
    /// Of the edit that cannot be made, or of the file as a whole.
    std::optional<EditProblem> problem;
};

/// Makes the new text of one sheet out of what becomes of its symbols and rows, and checks that it says that
/// and nothing else. Rewriters of several sheets may run at the same time.
class SheetRewriter
{
public:
    /// `bytes` is what `sheet` was read from; all of it must outlive the rewriter. `changes` are those of the
    /// whole plan; only those that are located in this sheet are looked at, and get their lines. `after`
    /// takes the new text.
    SheetRewriter(std::string_view bytes, const SheetFile &sheet, const PropertyNames &names,
                  std::string_view variant, std::span<Change> changes, std::string *after);

    [[nodiscard]] RewrittenSheet run(const SheetRewrite &rewrite);

private:
    bool fail(std::size_t offset, const QString &text);
    bool write(const SheetRewrite &rewrite);
    bool writeSymbol(const PlacedSymbol &placed, const SymbolRewrite &rewrite);
    [[nodiscard]] std::size_t siteOf(const SexprNode &symbol, std::string_view name) const;
    int lineOf(std::size_t offset);
    bool finish(const SheetRewrite &rewrite);

    std::string_view m_bytes;
    const SheetFile &m_sheet;
    const PropertyNames &m_names;
    std::string_view m_variant;
    std::span<Change> m_changes;
    std::string &m_after;
    std::vector<Splice> m_splices;
    SymbolWriter m_writer;
    std::vector<ChangedList> m_lists;
    /// Where the plan's changes stand: the offset, and the index into EditPlan::changes.
    std::vector<std::pair<std::size_t, std::size_t>> m_sites;
    std::size_t m_lineOffset = 0;
    int m_line = 1;
    EditProblem m_problem;
    std::optional<FileReplacement> m_file;
};

} // namespace designs::kicad
