// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "designs/kicad/edit/editmodel.h"
#include "designs/kicad/edit/editresolver.h"
#include "designs/kicad/edit/symbolrewrite.h"

#include <map>
#include <string>
#include <vector>

namespace designs::kicad {

/// Collects what becomes of each symbol, from edits that can be made.
class RewriteCollector
{
public:
    /// The model must outlive the collector.
    explicit RewriteCollector(const EditModel &model);

    /// Adds what an edit asks of the symbols of its component. Gives the change that this is, but for its
    /// line; `number` is the index of the edit, `index` the one that the change gets in EditPlan::changes.
    [[nodiscard]] Change add(std::size_t number, const ResolvedEdit &edit, std::size_t index);

    /// By the number of the file.
    [[nodiscard]] const std::map<quint32, SheetRewrite> &sheets() const { return m_sheets; }

private:
    /// These tell whether anything becomes of the symbol.
    bool addProperty(const ResolvedEdit &edit, const SymbolUse &place);
    bool addNotFitted(bool wanted, const SymbolUse &place, std::size_t component);
    bool addNotInBom(bool wanted, const SymbolUse &place);
    void setText(const SymbolUse &place, std::string_view name, const std::optional<std::string> &text);
    void setRows(const SymbolUse &place, std::string_view name, const std::string &text);
    [[nodiscard]] std::vector<std::size_t> alsoChanges(const ResolvedEdit &edit) const;
    [[nodiscard]] SymbolRewrite &rewriteOf(const SymbolUse &place);
    [[nodiscard]] VariantRewrite &variantRewriteOf(const SymbolUse &place);

    const EditModel &m_model;
    std::map<quint32, SheetRewrite> m_sheets;
};

} // namespace designs::kicad
