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

/// A schematic of KiCad 6 to 10.
class KicadDesign final : public Design
{
public:
    KicadDesign();

    /// Reads a .kicad_sch or .kicad_pro; false fills `problem`.
    bool read(const QString &path, const ReadOptions &options, Problem *problem);

    [[nodiscard]] Side placement(std::string_view reference) const override;
    [[nodiscard]] SymbolCount recount(Problem *error) const override;
    [[nodiscard]] int lineOf(const Component &component) const override;

private:
    bool findProject(const QString &path, Problem *problem);
    bool readSheets(Problem *problem);
    bool chooseVariant(const QString &wanted, Problem *problem);
    void collectVariants();
    void collectSheets();
    void fillInfo();

    ProjectFile m_project;
    /// Root sheets as (file, identifier that instance paths begin with).
    std::vector<std::pair<QString, QString>> m_roots;
    std::unique_ptr<Hierarchy> m_hierarchy;
    std::vector<SymbolUse> m_symbolUses;
    mutable LineNumbers m_lines{"(kicad_sch"};
    mutable bool m_boardRead = false;
    mutable BoardSides m_sides;
};

/// Reads a KiCad design.
[[nodiscard]] ReadResult readKicadDesign(const QString &path, const ReadOptions &options);

} // namespace designs::kicad
