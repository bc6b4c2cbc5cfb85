// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/csvdialect.h"
#include "designs/csv/partlistcolumns.h"
#include "designs/csv/referencecell.h"
#include "designs/design.h"

#include <QByteArray>

#include <string>
#include <unordered_set>
#include <vector>

namespace designs {

/// A design read from a list of parts in a file of delimited cells.
///
/// The components of one row share their properties. Component::origin is the row's index in CsvFile::rows().
class PartList : public Design
{
public:
    [[nodiscard]] const CsvDialect &dialect() const { return m_dialect; }
    [[nodiscard]] const PartListColumns &columns() const { return m_columns; }
    /// For reading the list's cells of references: which texts that look like ranges ("X1-2") it uses as
    /// names.
    [[nodiscard]] ReferenceCell::IsName isName() const;

    /// Counts the references in the file as it is now, with a reader of its own.
    [[nodiscard]] SymbolCount recount(Problem *error) const override;

    /// The column that a name stands for: exactly, by alias (VALUE, PACKAGE), ignoring letter case; of
    /// several the one that says something of the component.
    [[nodiscard]] std::optional<std::size_t> columnOf(std::string_view name, std::size_t component) const;
    /// What the cell of a component says; nothing where it has no such property.
    [[nodiscard]] std::optional<std::string_view> cellText(std::size_t component, std::size_t column) const;

private:
    friend class PartListReader;

    /// What the texts of the components are cut out of.
    QByteArray m_bytes;
    CsvDialect m_dialect;
    PartListColumns m_columns;
    std::unordered_set<std::string> m_hyphenatedNames;
    /// Indices of the rows that repeat the headings or sum up.
    std::vector<std::size_t> m_passedOver;
};

} // namespace designs
