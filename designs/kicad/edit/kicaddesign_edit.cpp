// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// Changes of a schematic.
#include "designs/kicad/edit/editplanner.h"
#include "designs/kicad/kicaddesign.h"

namespace designs::kicad {

const EditModel &KicadDesign::editModel() const
{
    if (!m_editModel) {
        m_editModel = std::make_unique<EditModel>(EditModel::Source{
            *m_hierarchy, m_project, m_components, m_symbolUses, m_names, m_sheets, m_variant, m_info.variant,
            [this](const Component &component) { return lineOf(component); }});
    }
    return *m_editModel;
}

std::optional<QString> KicadDesign::checkEdit(const Edit &edit) const
{
    const ResolvedEdit resolved = EditResolver(editModel()).resolve(edit);
    return resolved.refusal.isEmpty() ? std::nullopt : std::optional(resolved.refusal);
}

EditPlan KicadDesign::planEdits(std::span<const Edit> edits) const
{
    return EditPlanner(editModel()).plan(edits);
}

} // namespace designs::kicad
