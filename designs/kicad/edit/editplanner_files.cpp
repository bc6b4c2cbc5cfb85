// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// From what changes where to the new text of each file.
#include "designs/kicad/edit/editcheck.h"
#include "designs/kicad/edit/editplanner.h"
#include "designs/kicad/edit/symbolwriter.h"

#include <algorithm>

namespace designs::kicad {

namespace {

/// The new text of one sheet.
class SheetRewriter
{
public:
    SheetRewriter(std::string_view bytes, const SheetFile &sheet, const PropertyNames &names,
                  std::string_view variant)
        : m_bytes(bytes)
        , m_sheet(sheet)
        , m_names(names)
        , m_variant(variant)
        , m_writer(bytes, sheet, variant, &m_splices)
    {
    }

    /// False fills problem().
    bool write(const SheetChange &change, EditPlan *plan)
    {
        for (const auto &[number, symbol] : change.symbols) {
            if (!writeSymbol(m_sheet.symbols[number], symbol, plan)) {
                return false;
            }
        }
        for (const auto &[number, row] : change.rows) {
            const std::size_t offset = m_sheet.instanceTable[number].offset;
            const auto node = nodeAt(m_bytes, offset);
            if (!node || node->keyword != "path") {
                return fail(offset, QStringLiteral("the row of the table of instances is not found again"));
            }
            m_lists.push_back({node->begin, node->end});
            m_writer.write(*node, row);
        }
        return finish(change, plan);
    }

    [[nodiscard]] const Problem &problem() const { return m_problem; }
    /// The edit that the problem is one of; nothing for one of the file.
    [[nodiscard]] std::optional<std::size_t> refused() const { return m_refused; }

private:
    bool fail(std::size_t offset, const QString &text)
    {
        m_problem = {m_sheet.path, lineOf(offset), text};
        return false;
    }

    bool writeSymbol(const PlacedSymbol &placed, const SymbolChange &change, EditPlan *plan)
    {
        const auto node = nodeAt(m_bytes, placed.offset);
        if (!node || node->keyword != "symbol") {
            return fail(placed.offset, QStringLiteral("the symbol is not found again"));
        }
        const QString refusal = m_writer.write(*node, placed, change, m_names);
        if (!refusal.isEmpty()) {
            m_refused = change.planned.empty() ? std::nullopt
                                               : std::optional(plan->changes[change.planned.front()].edit);
            return fail(placed.offset, refusal);
        }
        m_lists.push_back({node->begin, node->end});
        for (const std::size_t index : change.planned) {
            m_sites.emplace_back(siteOf(*node, plan->changes[index].name), index);
        }
        return true;
    }

    /// Where a property or flag stands; the symbol where it has none yet.
    std::size_t siteOf(const SexprNode &symbol, std::string_view name) const
    {
        const SexprNode *site = findProperty(m_bytes, symbol, name);
        if (!site && (name == "DNP" || name == "BOMSKIP")) {
            site = symbol.last(name == "DNP" ? "dnp" : "in_bom");
        }
        return site ? site->begin : symbol.begin;
    }

    /// Lines are asked for with growing offsets but for messages.
    int lineOf(std::size_t offset)
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

    bool finish(const SheetChange &change, EditPlan *plan)
    {
        std::sort(m_sites.begin(), m_sites.end());
        for (const auto &[offset, index] : m_sites) {
            plan->changes[index].line = lineOf(offset);
        }
        std::sort(m_lists.begin(), m_lists.end(),
                  [](const ChangedList &a, const ChangedList &b) { return a.begin < b.begin; });
        if (!sortSplices(&m_splices)) {
            return fail(0, QStringLiteral("the changes to the file get in each other's way"));
        }
        const QByteArray after = spliced(m_bytes, m_splices);
        const std::string_view text(after.constData(), std::size_t(after.size()));
        QString wrong = compareTexts(m_bytes, text, m_splices, m_lists);
        wrong = wrong.isEmpty() ? compareSheets(m_sheet, m_names, change, m_variant, text) : wrong;
        if (!wrong.isEmpty()) {
            return fail(0, QStringLiteral("the file's new text did not stand the check: ") + wrong);
        }
        if (text != m_bytes) {
            plan->files.push_back({m_sheet.path, m_sheet.fingerprint, after});
        }
        return true;
    }

    std::string_view m_bytes;
    const SheetFile &m_sheet;
    const PropertyNames &m_names;
    std::string_view m_variant;
    std::vector<Splice> m_splices;
    SymbolWriter m_writer;
    std::vector<ChangedList> m_lists;
    /// Offset, and index into the plan's changes.
    std::vector<std::pair<std::size_t, std::size_t>> m_sites;
    std::size_t m_lineOffset = 0;
    int m_line = 1;
    Problem m_problem;
    std::optional<std::size_t> m_refused;
};

} // namespace

void EditPlanner::buildFiles()
{
    for (const auto &[number, change] : m_changes) {
        buildFile(number, change);
    }
}

void EditPlanner::buildFile(quint32 number, const SheetChange &change)
{
    const SheetFile &sheet = m_model.hierarchy().files()[number];
    Problem problem;
    if (!m_buffer.read(sheet.path, "(kicad_sch", &problem)) {
        m_plan.problems.push_back({std::nullopt, problem});
        return;
    }
    if (m_buffer.fingerprint() != sheet.fingerprint) {
        m_plan.problems.push_back(
            {std::nullopt,
             {sheet.path, 0, QStringLiteral("was changed since it was read; read the design again")}});
        return;
    }
    SheetRewriter rewriter(m_buffer.text(), sheet, m_model.names(), m_model.variant());
    if (!rewriter.write(change, &m_plan)) {
        m_plan.problems.push_back({rewriter.refused(), rewriter.problem()});
    }
}

} // namespace designs::kicad
