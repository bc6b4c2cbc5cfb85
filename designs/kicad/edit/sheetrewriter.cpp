// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/sheetrewriter.h"
#include "designs/texts.h"

#include <algorithm>

namespace designs::kicad {

SheetRewriter::SheetRewriter(std::string_view bytes, const SheetFile &sheet, const PropertyNames &names,
                             std::string_view variant, std::span<Change> changes, std::string *after)
    : m_bytes(bytes)
    , m_sheet(sheet)
    , m_names(names)
    , m_variant(variant)
    , m_changes(changes)
    , m_after(*after)
    , m_writer(bytes, sheet, variant, &m_splices)
{
}

RewrittenSheet SheetRewriter::run(const SheetRewrite &rewrite)
{
    if (!write(rewrite)) {
        return {std::nullopt, std::move(m_problem)};
    }
    return {std::move(m_file), std::nullopt};
}

bool SheetRewriter::fail(std::size_t offset, const QString &text)
{
    m_problem.problem = {m_sheet.path, lineOf(offset), text};
    return false;
}

bool SheetRewriter::write(const SheetRewrite &rewrite)
{
    for (const auto &[number, symbol] : rewrite.symbols) {
        if (!writeSymbol(m_sheet.symbols[number], symbol)) {
            return false;
        }
    }
    for (const auto &[number, row] : rewrite.rows) {
        const std::size_t offset = m_sheet.instanceTable[number].offset;
        const auto node = nodeAt(m_bytes, offset);
        if (!node || node->keyword != "path") {
            return fail(offset, KicadEditTexts::tr("the row of the table of instances is not found again"));
        }
        m_lists.push_back({node->begin, node->end});
        m_writer.write(*node, row);
    }
    return finish(rewrite);
}

bool SheetRewriter::writeSymbol(const PlacedSymbol &placed, const SymbolRewrite &rewrite)
{
    const auto node = nodeAt(m_bytes, placed.offset);
    if (!node || node->keyword != "symbol") {
        return fail(placed.offset, KicadEditTexts::tr("the symbol is not found again"));
    }
    const QString refusal = m_writer.write(*node, placed, rewrite, m_names);
    if (!refusal.isEmpty()) {
        if (!rewrite.changes.empty()) {
            m_problem.edit = m_changes[rewrite.changes.front()].edit;
        }
        return fail(placed.offset, refusal);
    }
    m_lists.push_back({node->begin, node->end});
    for (const std::size_t change : rewrite.changes) {
        m_sites.emplace_back(siteOf(*node, m_changes[change].name), change);
    }
    return true;
}

/// Where a property or flag stands; the symbol where it has none yet.
std::size_t SheetRewriter::siteOf(const SexprNode &symbol, std::string_view name) const
{
    const SexprNode *site = findProperty(m_bytes, symbol, name);
    if (!site && (name == "DNP" || name == "BOMSKIP")) {
        site = symbol.last(name == "DNP" ? "dnp" : "in_bom");
    }
    return site ? site->begin : symbol.begin;
}

/// Counts on from the last offset that was asked for; only messages ask for earlier ones.
int SheetRewriter::lineOf(std::size_t offset)
{
    if (offset < m_lineOffset) {
        m_lineOffset = 0;
        m_line = 1;
    }
    const auto from = m_bytes.begin() + std::ptrdiff_t(m_lineOffset);
    m_line += int(std::count(from, m_bytes.begin() + std::ptrdiff_t(offset), '\n'));
    m_lineOffset = offset;
    return m_line;
}

bool SheetRewriter::finish(const SheetRewrite &rewrite)
{
    std::sort(m_sites.begin(), m_sites.end());
    for (const auto &[offset, change] : m_sites) {
        m_changes[change].line = lineOf(offset);
    }
    std::sort(m_lists.begin(), m_lists.end(),
              [](const ChangedList &a, const ChangedList &b) { return a.begin < b.begin; });
    if (!sortSplices(&m_splices)) {
        return fail(0, KicadEditTexts::tr("the changes to the file get in each other's way"));
    }
    makeSpliced(m_bytes, m_splices, &m_after);
    QString wrong = compareTexts(m_bytes, m_after, m_splices, m_lists);
    wrong = wrong.isEmpty() ? compareSheets(m_sheet, m_names, rewrite, m_variant, m_after) : wrong;
    if (!wrong.isEmpty()) {
        return fail(0, KicadEditTexts::tr("the file's new text did not stand the check: %1").arg(wrong));
    }
    if (m_after != m_bytes) {
        m_file = {m_sheet.path, m_sheet.fingerprint, fingerprintOf(m_after), std::move(m_splices)};
    }
    return true;
}

} // namespace designs::kicad
