// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "designs/filebuffer.h"
#include "designs/kicad/edit/editmodel.h"
#include "designs/kicad/edit/editresolver.h"
#include "designs/kicad/edit/symbolchange.h"

#include <map>
#include <span>
#include <string>
#include <vector>

namespace designs::kicad {

/// Works a batch of edits out: from what is asked for to what changes where.
class EditPlanner
{
public:
    /// The model must outlive the planner.
    explicit EditPlanner(const EditModel &model);

    [[nodiscard]] EditPlan plan(std::span<const Edit> edits);

private:
    void resolveAll(std::span<const Edit> edits);
    void refuse(std::size_t edit, const QString &why);
    void refuseCrossing();
    void refuseConflicts();
    [[nodiscard]] std::vector<std::string> sharedKeys(const ResolvedEdit &edit) const;
    void apply(std::size_t edit);
    /// These tell whether anything becomes of the symbol.
    bool applyProperty(const ResolvedEdit &edit, const SymbolUse &place);
    bool applyNotFitted(bool wanted, const SymbolUse &place, std::size_t component);
    bool applyNotInBom(bool wanted, const SymbolUse &place);
    void setText(const SymbolUse &place, std::string_view name, const std::optional<std::string> &text);
    void setRows(const SymbolUse &place, std::string_view name, const std::string &text);
    [[nodiscard]] std::vector<std::size_t> alsoChanges(const ResolvedEdit &edit) const;
    [[nodiscard]] SymbolChange &changeOf(const SymbolUse &place);
    [[nodiscard]] VariantChange &variantChangeOf(const SymbolUse &place);
    [[nodiscard]] QString referenceOf(std::size_t component) const;
    void buildFiles();
    void buildFile(quint32 number, const SheetChange &change);

    const EditModel &m_model;
    EditResolver m_resolver;
    /// The edits that count, with their number; sorted by it.
    std::map<std::size_t, ResolvedEdit> m_edits;
    std::map<quint32, SheetChange> m_changes;
    FileBuffer m_buffer;
    EditPlan m_plan;
};

} // namespace designs::kicad
