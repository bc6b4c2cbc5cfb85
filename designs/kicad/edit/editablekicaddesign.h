// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/edit/editmodel.h"
#include "designs/kicad/kicaddesign.h"

#include <memory>

namespace designs::kicad {

/// A schematic that can be changed: what reading gives, and the plans for edits of it.
class EditableKicadDesign final : public KicadDesign
{
public:
    [[nodiscard]] std::optional<QString> checkEdit(const Edit &edit) const override;
    [[nodiscard]] EditPlan planEdits(std::span<const Edit> edits) const override;

private:
    [[nodiscard]] const EditModel &editModel() const;

    /// Made at the first question about an edit.
    mutable std::unique_ptr<EditModel> m_editModel;
};

/// Reads a KiCad design.
[[nodiscard]] ReadResult readKicadDesign(const QString &path, const ReadOptions &options);

} // namespace designs::kicad
