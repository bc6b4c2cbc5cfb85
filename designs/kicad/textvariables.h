// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"
#include "designs/kicad/componentbuilder.h"
#include "designs/kicad/hierarchy.h"
#include "designs/kicad/projectfiles.h"

#include <string>
#include <unordered_map>

namespace designs::kicad {

/// Resolves text variables ("${NAME}", "${R1:VALUE}") in the values of components, per instance: the
/// component's own fields, what KiCad knows of symbol and sheet, the fields of the sheets above, the title
/// block, then the project's variables. A variable that nobody knows stays as it stands.
class TextVariables
{
public:
    static constexpr int maximumDepth = 10;
    static constexpr std::size_t maximumLength = 1 << 16;
    /// Variables that name each other can ask for any amount of work; what a design may ask for, in bytes
    /// looked at.
    static constexpr std::size_t workPerDesign = std::size_t(1) << 26;
    static constexpr std::size_t workPerComponent = std::size_t(1) << 12;

    TextVariables(const Hierarchy &hierarchy, const ProjectFile &project, const PropertyNames &names,
                  QString variant);

    /// Replaces the variables in the values of all components that have any; the new texts go into the arena.
    void resolve(std::vector<Component> *components, const std::vector<SymbolUse> &symbols, TextArena *arena);

    /// What a text of a resolved component reads as. The components and symbols must outlive the variables.
    void setComponents(const std::vector<Component> &components, const std::vector<SymbolUse> &symbols);
    [[nodiscard]] std::string textOf(const Component &component, std::string_view text) const;

    /// Whether variables were left as they stand because there was more work than allowed, a text grew too
    /// long or variables name each other in a circle.
    [[nodiscard]] bool leftSome() const { return m_ranOut || m_leftSome; }

    /// The text with the variables of a root's title block and the project resolved.
    [[nodiscard]] std::string titleText(std::string_view text) const;

private:
    struct Context
    {
        const Component *component = nullptr;
        const PlacedSymbol *symbol = nullptr;
        quint32 use = 0;
        int unit = 0;
    };
    using Answer = std::optional<std::string>;
    static constexpr std::size_t workPerVariable = 64;
    static constexpr std::size_t workPerProperty = 16;

    [[nodiscard]] std::string expand(std::string_view text, const Context &context, int depth) const;
    [[nodiscard]] bool spend(std::size_t work) const;
    [[nodiscard]] Answer variable(std::string_view name, const Context &context, int depth) const;
    [[nodiscard]] Answer ofComponent(const QString &name, const Context &context, int depth) const;
    [[nodiscard]] Answer ofSymbol(const QString &name, const Context &context) const;
    [[nodiscard]] Answer ofSheets(const QString &name, const Context &context, int depth) const;
    [[nodiscard]] Answer ofTitleBlock(const QString &name, const Context &context, int depth) const;
    [[nodiscard]] Answer ofProject(const QString &name, const Context &context, int depth) const;
    [[nodiscard]] Answer ofOtherPart(std::string_view name, int depth) const;
    [[nodiscard]] Context contextOf(const Component &component) const;
    [[nodiscard]] QString pageOf(quint32 use) const;

    const Hierarchy &m_hierarchy;
    const ProjectFile &m_project;
    const PropertyNames &m_names;
    QString m_variant;
    const std::vector<Component> *m_components = nullptr;
    const std::vector<SymbolUse> *m_symbols = nullptr;
    mutable std::unordered_map<std::string_view, quint32> m_byReference;
    mutable std::size_t m_budget = workPerDesign;
    mutable bool m_ranOut = false;
    mutable bool m_leftSome = false;
};

} // namespace designs::kicad
