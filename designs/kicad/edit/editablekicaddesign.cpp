// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/editablekicaddesign.h"

#include "designs/kicad/edit/editplanner.h"

namespace designs::kicad {

const EditModel &EditableKicadDesign::editModel() const
{
    if (!m_editModel) {
        m_editModel = std::make_unique<EditModel>(*this);
    }
    return *m_editModel;
}

std::optional<QString> EditableKicadDesign::checkEdit(const Edit &edit) const
{
    const ResolvedEdit resolved = EditResolver(editModel()).resolve(edit);
    return resolved.refusal.isEmpty() ? std::nullopt : std::optional(resolved.refusal);
}

EditPlan EditableKicadDesign::planEdits(std::span<const Edit> edits) const
{
    return EditPlanner(editModel(), threads()).plan(edits);
}

ReadResult readKicadDesign(const QString &path, const ReadOptions &options)
{
    auto design = std::make_unique<EditableKicadDesign>();
    ReadResult result;
    if (design->read(path, options, &result.error)) {
        result.design = std::move(design);
    }
    return result;
}

} // namespace designs::kicad
