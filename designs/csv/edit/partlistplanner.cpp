// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/edit/partlistplanner.h"

#include "designs/csv/edit/referencestyle.h"
#include "designs/csv/referencecell.h"
#include "designs/texts.h"
#include "designs/utf8.h"

#include <algorithm>
#include <array>
#include <string>

namespace designs {

namespace {

/// Equal for references that are to get the same cells.
std::string keyOf(const std::vector<CellText> &cells)
{
    std::string key;
    for (const CellText &cell : cells) {
        key += std::to_string(cell.column) + ':' + std::to_string(cell.text.size()) + ':' + cell.text;
    }
    return key;
}

/// How a text is stored under a name: any text in BOMSKIP means yes, so a "no" there is an empty cell.
std::string storedText(const Edit &edit)
{
    const std::string text = edit.value.value_or(std::string());
    return equalIgnoringCase(edit.name, "BOMSKIP") && PartListPlanner::saysNo(text) ? std::string() : text;
}

} // namespace

bool PartListPlanner::saysNo(std::string_view text)
{
    static constexpr std::array<std::string_view, 4> words = {"", "0", "no", "false"};
    return std::ranges::any_of(words,
                               [text](std::string_view word) { return equalIgnoringCase(text, word); });
}

EditPlan PartListPlanner::run(std::span<const Edit> edits)
{
    collect(edits);
    if (m_planned.empty()) {
        return std::move(m_plan);
    }
    std::string text = newText();
    if (!m_plan.problems.empty()) {
        return std::move(m_plan);
    }
    if (const auto problem =
            checkPartList(m_list, m_newColumns, m_order, m_planned, QByteArray::fromStdString(text))) {
        m_plan.problems.push_back({std::nullopt, *problem});
        return std::move(m_plan);
    }
    const QByteArray &bytes = m_file.bytes();
    m_plan.files.push_back(FileReplacement::whole(
        m_list.info().file, fingerprintOf({bytes.constData(), std::size_t(bytes.size())}), std::move(text)));
    return std::move(m_plan);
}

void PartListPlanner::collect(std::span<const Edit> edits)
{
    for (std::size_t edit = 0; edit < edits.size(); ++edit) {
        const Edit &asked = edits[edit];
        if (const auto column = columnFor(asked)) {
            m_planned.push_back({asked.component, {*column, storedText(asked)}, edit});
        }
    }
    const auto place = [](const PlannedCell &planned) {
        return std::pair(planned.component, planned.cell.column);
    };
    std::ranges::stable_sort(m_planned, {}, place);
    const auto isRepeated = [&](const PlannedCell &planned) {
        const PlannedCell *next = &planned + 1;
        return next != m_planned.data() + m_planned.size() && place(*next) == place(planned);
    };
    std::vector<PlannedCell> kept;
    for (PlannedCell &planned : m_planned) {
        if (!isRepeated(planned) && planned.cell.text != textBefore(planned.component, planned.cell.column)) {
            kept.push_back(std::move(planned));
        }
    }
    m_planned = std::move(kept);
    dropUnusedColumns();
    for (const PlannedCell &planned : m_planned) {
        addChange(planned, edits[planned.edit]);
    }
    std::ranges::sort(m_plan.changes, {}, &Change::edit);
}

std::optional<std::size_t> PartListPlanner::columnFor(const Edit &edit)
{
    if (const auto column = m_list.columnOf(edit.name, edit.component)) {
        return column;
    }
    const std::string key = caseFolded(edit.name);
    if (edit.value.value_or("").empty() && !m_newColumnIndices.contains(key)) {
        return std::nullopt;
    }
    const auto [found, isNew] = m_newColumnIndices.try_emplace(key, allColumns());
    if (isNew) {
        m_newColumns.push_back(edit.name);
    }
    return found->second;
}

/// Removes new columns that no cell needs because a later edit of the batch took the text back.
void PartListPlanner::dropUnusedColumns()
{
    const std::size_t old = m_list.columns().names.size();
    std::vector<bool> used(m_newColumns.size(), false);
    for (const PlannedCell &planned : m_planned) {
        if (planned.cell.column >= old) {
            used[planned.cell.column - old] = true;
        }
    }
    std::vector<std::size_t> moved;
    std::vector<std::string> names;
    for (std::size_t column = 0; column < used.size(); ++column) {
        moved.push_back(old + names.size());
        if (used[column]) {
            names.push_back(m_newColumns[column]);
        }
    }
    for (PlannedCell &planned : m_planned) {
        if (planned.cell.column >= old) {
            planned.cell.column = moved[planned.cell.column - old];
        }
    }
    m_newColumns = std::move(names);
}

std::string PartListPlanner::textBefore(std::size_t component, std::size_t column) const
{
    return std::string(m_list.cellText(component, column).value_or(""));
}

void PartListPlanner::addChange(const PlannedCell &planned, const Edit &edit)
{
    const std::vector<std::string> &names = m_list.columns().names;
    const Component &component = m_list.components()[planned.component];
    Change change;
    change.edit = planned.edit;
    change.name = planned.cell.column < names.size() ? names[planned.cell.column]
                                                     : m_newColumns[planned.cell.column - names.size()];
    if (const auto before = m_list.cellText(planned.component, planned.cell.column)) {
        change.before = std::string(*before);
    }
    if (edit.value && !(planned.cell.text.empty() && isMarkerHeading(change.name))) {
        change.after = planned.cell.text;
    }
    change.file = m_list.info().file;
    change.line = int(component.line);
    m_plan.changes.push_back(std::move(change));
}

std::string PartListPlanner::newText()
{
    const std::vector<CsvRow> &rows = m_file.rows();
    const QByteArray &bytes = m_file.bytes();
    const std::size_t heading = m_list.columns().headingRow;
    std::string out(bytes.constData(), rows[heading].begin);
    out.reserve(std::size_t(bytes.size()) + std::size_t(bytes.size()) / 8);
    writeHeading(&out);
    for (std::size_t row = heading + 1; row < rows.size(); ++row) {
        out += lineEnd(row - 1);
        writeRow(&out, row);
    }
    out += lineEnd(rows.size() - 1);
    return out;
}

void PartListPlanner::writeHeading(std::string *out) const
{
    std::vector<CellText> cells;
    for (const std::string &name : m_newColumns) {
        cells.push_back({m_list.columns().names.size() + cells.size(), name});
    }
    CsvWriter(m_file).appendRow(out, m_file.rows()[m_list.columns().headingRow], cells);
}

void PartListPlanner::writeRow(std::string *out, std::size_t row)
{
    const std::vector<Component> &components = m_list.components();
    const std::size_t first = m_nextComponent;
    while (m_nextComponent < components.size() && components[m_nextComponent].origin == row) {
        m_order.push_back(m_nextComponent++);
    }
    if (m_nextPlanned < m_planned.size() && m_planned[m_nextPlanned].component < m_nextComponent) {
        m_order.resize(m_order.size() - (m_nextComponent - first));
        m_nextComponent = first;
        m_rowEdit = m_planned[m_nextPlanned].edit;
        writeGroups(out, row, groupsOf(row));
        return;
    }
    CsvWriter(m_file).appendRow(out, m_file.rows()[row], {}, leastCells(m_file.rows()[row]));
}

/// The references that stay as they are come first, if there are any.
std::vector<PartListPlanner::Group> PartListPlanner::groupsOf(std::size_t row)
{
    const std::span<const CsvCell> cells = m_file.cells(m_file.rows()[row]);
    ReferenceCell cell(m_arena, m_list.isName());
    static_cast<void>(cell.read(m_file.text(cells[m_list.columns().reference], m_arena)));
    std::vector<Group> groups(1);
    std::unordered_map<std::string, std::size_t> known = {{std::string(), 0}};
    for (const std::string_view reference : cell.references()) {
        // Rows whose reference starts with # are not components; keep them unchanged.
        if (reference.starts_with('#')) {
            groups[0].references.push_back(reference);
            continue;
        }
        std::vector<CellText> wanted;
        while (m_nextPlanned < m_planned.size() && m_planned[m_nextPlanned].component == m_nextComponent) {
            wanted.push_back(m_planned[m_nextPlanned++].cell);
        }
        const auto [found, isNew] = known.try_emplace(keyOf(wanted), groups.size());
        if (isNew) {
            groups.push_back({{}, {}, std::move(wanted)});
        }
        groups[found->second].references.push_back(reference);
        groups[found->second].components.push_back(m_nextComponent++);
    }
    if (groups[0].references.empty()) {
        groups.erase(groups.begin());
    }
    return groups;
}

void PartListPlanner::writeGroups(std::string *out, std::size_t row, std::vector<Group> groups)
{
    const CsvRow &record = m_file.rows()[row];
    if (groups.size() > 1 && !nameReferences(record, &groups)) {
        return;
    }
    const std::string_view end = lineEnd(row).empty() ? m_list.dialect().lineEndText() : lineEnd(row);
    for (std::size_t group = 0; group < groups.size(); ++group) {
        *out += group > 0 ? end : std::string_view();
        CsvWriter(m_file).appendRow(out, record, groups[group].cells, leastCells(record));
        m_order.insert(m_order.end(), groups[group].components.begin(), groups[group].components.end());
    }
}

/// Gives each group of a row cells with its own references and, where the row tells one, its quantity.
bool PartListPlanner::nameReferences(const CsvRow &record, std::vector<Group> *groups)
{
    const PartListColumns &columns = m_list.columns();
    const std::span<const CsvCell> cells = m_file.cells(record);
    const std::string_view cell = m_file.text(cells[columns.reference], m_arena);
    const bool counts =
        columns.quantity && *columns.quantity < cells.size() && !m_file.isBlank(cells[*columns.quantity]);
    std::size_t all = 0;
    for (const Group &group : *groups) {
        all += group.references.size();
    }
    const ReferenceStyle style(cell, all, m_list.isName());
    for (Group &group : *groups) {
        const auto text = style.text(group.references);
        if (!text) {
            const QString why =
                PartListTexts::tr(
                    "the references %1 cannot be parted into rows of their own: write each with its letters")
                    .arg(quotedForMessage(cell));
            m_plan.problems.push_back({m_rowEdit, {m_list.info().file, int(record.line), why}});
            return false;
        }
        group.cells.push_back({columns.reference, *text});
        if (counts) {
            group.cells.push_back({*columns.quantity, std::to_string(group.references.size())});
        }
        std::ranges::sort(group.cells, {}, &CellText::column);
    }
    return true;
}

/// A row that had a cell for each heading gets one for each new heading; a row that was short stays short.
std::size_t PartListPlanner::leastCells(const CsvRow &row) const
{
    const std::size_t before = m_list.columns().names.size();
    const bool isFull = row.cellCount >= before && !m_newColumns.empty() && !m_file.isBlank(row);
    return isFull ? allColumns() : 0;
}

std::string_view PartListPlanner::lineEnd(std::size_t row) const
{
    const std::vector<CsvRow> &rows = m_file.rows();
    const std::size_t end = row + 1 < rows.size() ? rows[row + 1].begin : std::size_t(m_file.bytes().size());
    return {m_file.bytes().constData() + rows[row].end, end - rows[row].end};
}

} // namespace designs
