// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "designs/filebuffer.h"
#include "designs/kicad/edit/editmodel.h"
#include "designs/kicad/edit/editresolver.h"
#include "designs/kicad/edit/rewritecollector.h"
#include "designs/kicad/edit/sheetrewriter.h"

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
    /// The model must outlive the planner. `threads` is how many write new texts at once, 0 for as many as
    /// are worth while; the plan is the same for any number.
    EditPlanner(const EditModel &model, int threads);

    [[nodiscard]] EditPlan plan(std::span<const Edit> edits);

private:
    void resolveAll(std::span<const Edit> edits);
    void refuse(std::size_t edit, const QString &why);
    void refuseCrossing();
    void refuseConflicts();
    [[nodiscard]] std::vector<std::string> sharedKeys(const ResolvedEdit &edit) const;
    [[nodiscard]] QString referenceOf(std::size_t component) const;
    void buildFiles();
    [[nodiscard]] int threadsForFiles() const;
    /// What one thread needs; memory that is used for one sheet after the other.
    struct Workplace
    {
        FileBuffer before;
        std::string after;
    };
    [[nodiscard]] RewrittenSheet rewritten(quint32 number, const SheetRewrite &rewrite, Workplace *workplace);

    const EditModel &m_model;
    int m_threads;
    EditResolver m_resolver;
    /// The edits that count, with their number; sorted by it.
    std::map<std::size_t, ResolvedEdit> m_edits;
    RewriteCollector m_rewrites;
    EditPlan m_plan;
};

} // namespace designs::kicad
