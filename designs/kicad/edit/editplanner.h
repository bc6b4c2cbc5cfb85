// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "designs/filebuffer.h"
#include "designs/kicad/edit/editmodel.h"
#include "designs/kicad/edit/editresolver.h"
#include "designs/kicad/edit/rewritecollector.h"

#include <map>
#include <span>
#include <string>
#include <vector>

namespace designs::kicad {

/// Works a batch of edits out: resolves them, refuses those that contradict each other, and has the others
/// collected per symbol and written into the files' new texts.
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
    [[nodiscard]] QString referenceOf(std::size_t component) const;
    void buildFiles();
    void buildFile(quint32 number, const SheetRewrite &rewrite);

    const EditModel &m_model;
    EditResolver m_resolver;
    /// The edits that count, with their number; sorted by it.
    std::map<std::size_t, ResolvedEdit> m_edits;
    RewriteCollector m_rewrites;
    FileBuffer m_buffer;
    EditPlan m_plan;
};

} // namespace designs::kicad
