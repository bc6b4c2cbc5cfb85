// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/outermarks.h"

#include <algorithm>

namespace designs::kicad {

namespace {

/// Even-odd rule; a point on the outline may fall on either side.
bool contains(const std::vector<Point> &outline, Point point)
{
    bool inside = false;
    for (std::size_t i = 0, before = outline.size() - 1; i < outline.size(); before = i++) {
        const Point &a = outline[i];
        const Point &b = outline[before];
        if ((a.y > point.y) != (b.y > point.y) &&
            point.x < (b.x - a.x) * (point.y - a.y) / (b.y - a.y) + a.x) {
            inside = !inside;
        }
    }
    return inside;
}

template<class Says>
OuterMarks::Mark ofAreas(const SheetFile &file, Point at, Says &&says)
{
    const bool marked = std::any_of(file.ruleAreas.begin(), file.ruleAreas.end(), [&](const RuleArea &area) {
        return says(area) && contains(area.outline, at);
    });
    return {marked ? MarkedBy::RuleArea : MarkedBy::Nothing, 0};
}

} // namespace

const VariantRecord *findVariant(const InstanceRecord *record, std::string_view variant)
{
    if (!record || variant.empty()) {
        return nullptr;
    }
    const auto found = std::find_if(record->variants.begin(), record->variants.end(),
                                    [variant](const VariantRecord &each) { return each.name == variant; });
    return found == record->variants.end() ? nullptr : &*found;
}

OuterMarks::OuterMarks(const Hierarchy &hierarchy, std::string_view variant)
    : m_hierarchy(hierarchy)
{
    const auto &uses = hierarchy.uses();
    m_sheets.resize(uses.size());
    for (quint32 number = 0; number < uses.size(); ++number) {
        const HierarchyUse &use = uses[number];
        if (!use.symbol) {
            continue;
        }
        SheetMarks marks = m_sheets[use.parent];
        const VariantRecord *own = findVariant(use.instance, variant);
        if (marks.notInBom.by == MarkedBy::Nothing &&
            !(own ? own->inBom.value_or(use.symbol->inBom) : use.symbol->inBom)) {
            marks.notInBom = {MarkedBy::Sheet, number};
        }
        if (marks.notFitted.by == MarkedBy::Nothing &&
            (own ? own->dnp.value_or(use.symbol->dnp) : use.symbol->dnp)) {
            marks.notFitted = {MarkedBy::Sheet, number};
        }
        m_sheets[number] = marks;
    }
}

OuterMarks::Mark OuterMarks::notInBom(quint32 use, const PlacedSymbol &symbol) const
{
    const Mark &sheet = m_sheets[use].notInBom;
    const SheetFile &file = m_hierarchy.files()[m_hierarchy.uses()[use].file];
    return sheet.by != MarkedBy::Nothing
               ? sheet
               : ofAreas(file, symbol.at, [](const RuleArea &area) { return !area.inBom; });
}

OuterMarks::Mark OuterMarks::notFitted(quint32 use, const PlacedSymbol &symbol) const
{
    const Mark &sheet = m_sheets[use].notFitted;
    const SheetFile &file = m_hierarchy.files()[m_hierarchy.uses()[use].file];
    return sheet.by != MarkedBy::Nothing
               ? sheet
               : ofAreas(file, symbol.at, [](const RuleArea &area) { return area.dnp; });
}

} // namespace designs::kicad
