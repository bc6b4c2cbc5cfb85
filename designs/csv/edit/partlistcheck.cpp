// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/edit/partlistcheck.h"

#include "designs/csv/partlistreader.h"
#include "designs/texts.h"
#include "designs/utf8.h"

#include <algorithm>

namespace designs {

namespace {

using Texts = std::vector<std::pair<std::string_view, std::string_view>>;

/// The properties that say something, under their names, in the order of the columns.
void fill(Texts *texts, const Design &design, const Component &component)
{
    texts->clear();
    for (const Property &property : component.properties) {
        if (!property.value.empty()) {
            texts->emplace_back(design.names().name(property.name), property.value);
        }
    }
}

class Comparison
{
public:
    Comparison(const PartList &list, const std::vector<std::string> &newColumns,
               const std::vector<PlannedCell> &planned)
        : m_list(list)
        , m_newColumns(newColumns)
        , m_planned(planned)
    {
    }

    /// Whether a component of the changed list says what the component at `index` is to say.
    bool isAsPlanned(std::size_t index, const Design &changed, const Component &now)
    {
        const Component &before = m_list.components()[index];
        if (now.reference != before.reference) {
            return false;
        }
        expect(index, before);
        fill(&m_found, changed, now);
        return now.value == m_value && m_found == m_expected;
    }

private:
    void expect(std::size_t index, const Component &before)
    {
        const auto first = std::ranges::lower_bound(m_planned, index, {}, &PlannedCell::component);
        const auto last = std::find_if(first, m_planned.end(),
                                       [index](const PlannedCell &cell) { return cell.component != index; });
        m_value = before.value;
        fill(&m_expected, m_list, before);
        if (first == last) {
            return;
        }
        const PartListColumns &columns = m_list.columns();
        m_expected.clear();
        for (std::size_t column = 0; column < columns.names.size() + m_newColumns.size(); ++column) {
            const auto cell = std::find_if(
                first, last, [column](const PlannedCell &planned) { return planned.cell.column == column; });
            const auto text = cell != last ? std::string_view(cell->cell.text)
                                           : m_list.cellText(index, column).value_or("");
            const std::string_view added = column < columns.names.size()
                                               ? std::string_view()
                                               : m_newColumns[column - columns.names.size()];
            if (column == columns.value || isValueHeading(added)) {
                m_value = text;
            } else if (!text.empty() && !added.empty()) {
                m_expected.emplace_back(added, text);
            } else if (!text.empty() && columns.isProperty(column)) {
                m_expected.emplace_back(columns.names[column], text);
            }
        }
    }

    const PartList &m_list;
    const std::vector<std::string> &m_newColumns;
    const std::vector<PlannedCell> &m_planned;
    Texts m_expected;
    Texts m_found;
    std::string_view m_value;
};

} // namespace

std::optional<Problem> checkPartList(const PartList &list, const std::vector<std::string> &newColumns,
                                     const std::vector<std::size_t> &order,
                                     const std::vector<PlannedCell> &planned, const QByteArray &changed)
{
    const QString &file = list.info().file;
    const ReadResult read = readPartListBytes(file, changed);
    if (!read.design) {
        return Problem{file, 0,
                       PartListTexts::tr("the changed list could not be read again (line %1: %2)")
                           .arg(QString::number(read.error.line), read.error.text)};
    }
    const std::vector<Component> &now = read.design->components();
    Comparison comparison(list, newColumns, planned);
    for (std::size_t at = 0; at < std::min(now.size(), order.size()); ++at) {
        if (!comparison.isAsPlanned(order[at], *read.design, now[at])) {
            const Component &part = list.components()[order[at]];
            return Problem{file, int(part.line),
                           PartListTexts::tr("the changed list would not be read as it is meant, at %1")
                               .arg(quotedForMessage(part.reference))};
        }
    }
    if (now.size() != order.size() || read.design->symbols().power != list.symbols().power) {
        return Problem{file, 0, PartListTexts::tr("the changed list would not have the same parts")};
    }
    return std::nullopt;
}

} // namespace designs
