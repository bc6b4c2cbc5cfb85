// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/kicaddesign.h"
#include "designs/kicad/outermarks.h"
#include "designs/kicad/textvariables.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace designs::kicad {

/// A row of version 6's table of instances: the number of the root's file and of the entry in it.
struct TableRow
{
    quint32 file = 0;
    quint32 entry = 0;
};

/// What edits ask about a design that has been read: where a component's texts stand and who shares them.
class EditModel
{
public:
    /// The design must outlive the model.
    explicit EditModel(const KicadDesign &design);

    [[nodiscard]] const std::vector<Component> &components() const { return m_design.components(); }
    [[nodiscard]] const PropertyNames &names() const { return m_design.names(); }
    [[nodiscard]] std::optional<NameId> storedName(std::size_t component, std::span<const NameId> names) const
    {
        return m_design.storedName(components()[component], names);
    }
    [[nodiscard]] const std::string &variant() const { return m_design.variant(); }
    [[nodiscard]] const Hierarchy &hierarchy() const { return m_design.hierarchy(); }
    [[nodiscard]] const OuterMarks &outerMarks() const { return m_outer; }
    [[nodiscard]] QString sheetName(quint32 use) const { return m_design.sheets()[use].path; }

    [[nodiscard]] int lineOf(std::size_t component) const { return m_design.lineOf(components()[component]); }
    /// The symbols that make up a component.
    [[nodiscard]] std::span<const SymbolUse> places(std::size_t component) const;
    [[nodiscard]] quint32 fileOf(const SymbolUse &place) const;
    [[nodiscard]] const SheetFile &sheetOf(const SymbolUse &place) const;
    [[nodiscard]] const PlacedSymbol &symbolOf(const SymbolUse &place) const;
    /// The instance path of the use that a symbol is drawn in.
    [[nodiscard]] const std::string &pathOf(const SymbolUse &place) const;
    /// The symbol's record for this use of its sheet, null when there is none.
    [[nodiscard]] const InstanceRecord *recordOf(const SymbolUse &place) const;

    /// What the symbol itself says under a name, variables and all.
    [[nodiscard]] std::optional<std::string_view> ownText(const SymbolUse &place,
                                                          std::string_view name) const;
    /// The same with the table of instances and the variant applied.
    [[nodiscard]] std::optional<std::string_view> usedText(const SymbolUse &place,
                                                           std::string_view name) const;
    /// The name under which a symbol has a property, the exact one first, else one that differs in letter
    /// case only.
    [[nodiscard]] std::optional<std::string_view> nameIn(const SymbolUse &place, std::string_view name) const;
    /// A text with its variables resolved for a component.
    [[nodiscard]] std::string resolved(std::size_t component, std::string_view text) const;

    /// The components that are drawn with that symbol, in order.
    [[nodiscard]] std::span<const quint32> sharers(const SymbolUse &place) const;
    /// The rows for all uses of a symbol.
    [[nodiscard]] std::vector<TableRow> rowsOf(quint32 file, const PlacedSymbol &symbol) const;
    /// The row for one use.
    [[nodiscard]] const TableInstance *rowOf(const SymbolUse &place) const;

private:
    struct Table
    {
        quint32 file = 0;
        /// Entries by their path, the first of several first.
        std::vector<quint32> byPath;
    };

    void indexSharers();
    void indexTables();
    [[nodiscard]] std::size_t symbolNumber(const SymbolUse &place) const;
    [[nodiscard]] std::span<const quint32> entriesOf(quint32 use, const PlacedSymbol &symbol) const;

    const KicadDesign &m_design;
    OuterMarks m_outer;
    TextVariables m_variables;
    std::vector<std::vector<quint32>> m_usesOfFile;
    /// Where the symbols of a file begin in m_sharerEnds.
    std::vector<std::size_t> m_firstSymbol;
    std::vector<std::size_t> m_sharerEnds;
    std::vector<quint32> m_sharers;
    /// By the number of the root's use.
    std::unordered_map<quint32, Table> m_tables;
};

} // namespace designs::kicad
