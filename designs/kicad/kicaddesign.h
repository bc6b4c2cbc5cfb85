// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"
#include "designs/kicad/componentbuilder.h"
#include "designs/kicad/hierarchy.h"
#include "designs/kicad/projectfiles.h"
#include "designs/linenumbers.h"

#include <memory>
#include <string>

namespace designs::kicad {

/// A schematic of KiCad 6 to 10 as it was read.
class KicadDesign : public Design
{
public:
    KicadDesign();

    /// Reads a .kicad_sch or .kicad_pro; false fills `problem`.
    bool read(const QString &path, const ReadOptions &options, Problem *problem);

    [[nodiscard]] Side placement(std::string_view reference) const override;
    [[nodiscard]] SymbolCount recount(Problem *error) const override;
    [[nodiscard]] int lineOf(const Component &component) const override;
    /// The path of identifiers from the root sheet to the symbol; of several units the first in the alphabet,
    /// because KiCad orders symbols anew when it saves.
    [[nodiscard]] std::string identityOf(const Component &component) const override;
    [[nodiscard]] std::optional<Position> positionOf(const Component &component) const override;

    /// What the components were made of.
    [[nodiscard]] const Hierarchy &hierarchy() const { return *m_hierarchy; }
    [[nodiscard]] const ProjectFile &project() const { return m_project; }
    /// The symbols of the components: `units` entries from Component::origin on.
    [[nodiscard]] const std::vector<SymbolUse> &symbolUses() const { return m_symbolUses; }
    /// The variant that was chosen for reading, empty for none.
    [[nodiscard]] const std::string &variant() const { return m_variant; }
    /// See ReadOptions.
    [[nodiscard]] int threads() const { return m_threads; }

private:
    static constexpr std::string_view fileStart = "(kicad_sch";

    bool findProject(const QString &path, Problem *problem);
    bool readSheets(const ReadOptions &options, Problem *problem);
    bool chooseVariant(const QString &wanted, Problem *problem);
    void collectVariants();
    void collectSheets();
    void fillInfo();
    [[nodiscard]] const SheetFile &fileOf(const SymbolUse &place) const;

    ProjectFile m_project;
    std::vector<RootSheet> m_roots;
    int m_threads = 0;
    std::unique_ptr<Hierarchy> m_hierarchy;
    std::vector<SymbolUse> m_symbolUses;
    mutable LineNumbers m_lines{fileStart};
    mutable bool m_boardRead = false;
    mutable BoardSides m_sides;
    std::string m_variant;
};

} // namespace designs::kicad
