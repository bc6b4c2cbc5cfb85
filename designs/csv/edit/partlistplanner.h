// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/edit/partlistcheck.h"
#include "designs/csv/partlist.h"

#include <span>
#include <unordered_map>
#include <vector>

namespace designs {

/// Works out what edits make of a part list.
class PartListPlanner final
{
public:
    PartListPlanner(const PartList &list, const CsvFile &file)
        : m_list(list)
        , m_file(file)
    {
    }

    /// Of edits that each can be made by itself.
    [[nodiscard]] EditPlan run(std::span<const Edit> edits);

    /// Whether a text is one of the words that switch BOMSKIP or DNP off.
    [[nodiscard]] static bool saysNo(std::string_view text);

private:
    /// References of a row that stay together.
    struct Group
    {
        std::vector<std::string_view> references;
        std::vector<std::size_t> components;
        std::vector<CellText> cells;
    };

    void collect(std::span<const Edit> edits);
    [[nodiscard]] std::optional<std::size_t> columnFor(const Edit &edit);
    void dropUnusedColumns();
    [[nodiscard]] std::string textBefore(std::size_t component, std::size_t column) const;
    void addChange(const PlannedCell &planned, const Edit &edit);

    [[nodiscard]] std::string newText();
    void writeHeading(std::string *out) const;
    void writeRow(std::string *out, std::size_t row);
    [[nodiscard]] std::vector<Group> groupsOf(std::size_t row);
    void writeGroups(std::string *out, std::size_t row, std::vector<Group> groups);
    [[nodiscard]] bool nameReferences(const CsvRow &record, std::vector<Group> *groups);
    [[nodiscard]] std::size_t leastCells(const CsvRow &row) const;
    [[nodiscard]] std::string_view lineEnd(std::size_t row) const;

    [[nodiscard]] std::size_t allColumns() const
    {
        return m_list.columns().names.size() + m_newColumns.size();
    }

    const PartList &m_list;
    const CsvFile &m_file;
    TextArena m_arena;
    EditPlan m_plan;
    /// Sorted by component and column, the last of each.
    std::vector<PlannedCell> m_planned;
    std::size_t m_nextPlanned = 0;
    /// One of the edits of the row that is written.
    std::size_t m_rowEdit = 0;
    std::size_t m_nextComponent = 0;
    std::vector<std::string> m_newColumns;
    std::unordered_map<std::string, std::size_t> m_newColumnIndices;
    /// The components in the order of the new file.
    std::vector<std::size_t> m_order;
};

} // namespace designs
