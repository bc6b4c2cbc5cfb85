// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"
#include "designs/kicad/boardfile.h"
#include "designs/kicad/componentbuilder.h"
#include "designs/kicad/hierarchy.h"
#include "designs/kicad/projectfile.h"
#include "designs/linenumbers.h"

#include <memory>

namespace designs::kicad {

class EditModel;

/// A schematic of KiCad 6 to 10.
class KicadDesign final : public Design
{
public:
    KicadDesign();
    ~KicadDesign() override;

    /// Reads a .kicad_sch or .kicad_pro; false fills `problem`.
    bool read(const QString &path, const ReadOptions &options, Problem *problem);

    [[nodiscard]] Side placement(std::string_view reference) const override;
    [[nodiscard]] SymbolCount recount(Problem *error) const override;
    [[nodiscard]] int lineOf(const Component &component) const override;
    [[nodiscard]] std::optional<QString> checkEdit(const Edit &edit) const override;
    [[nodiscard]] EditPlan planEdits(std::span<const Edit> edits) const override;

private:
    bool findProject(const QString &path, Problem *problem);
    bool readSheets(Problem *problem);
    bool chooseVariant(const QString &wanted, Problem *problem);
    void collectVariants();
    void collectSheets();
    void fillInfo();
    [[nodiscard]] const EditModel &editModel() const;

    ProjectFile m_project;
    /// Root sheets as (file, identifier that instance paths begin with).
    std::vector<std::pair<QString, QString>> m_roots;
    std::unique_ptr<Hierarchy> m_hierarchy;
    std::vector<SymbolUse> m_symbolUses;
    mutable LineNumbers m_lines{"(kicad_sch"};
    mutable bool m_boardRead = false;
    mutable BoardSides m_sides;
    /// The variant that was chosen for reading.
    std::string m_variant;
    /// Made at the first question about an edit.
    mutable std::unique_ptr<EditModel> m_editModel;
};

/// Reads a KiCad design.
[[nodiscard]] ReadResult readKicadDesign(const QString &path, const ReadOptions &options);

} // namespace designs::kicad
