// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/groupedlines.h"

#include "core/part.h"

#include <algorithm>

size_t GroupedLines::indexOf(const BomString &value) const
{
    const auto found =
        std::lower_bound(m_values.begin(), m_values.end(), value,
                         [](const Value &entry, const BomString &text) { return entry.text < text; });
    const bool isThere = found != m_values.end() && found->text == value;
    return isThere ? size_t(found - m_values.begin()) : m_values.size();
}

BomString groupingKey(const Part &part, const GroupingRule &rule)
{
    QString key;
    for (const PropertyQuery &property : rule.properties) {
        key += part.property(property);
        key += u',';
    }
    return BomString(key, rule.caseRule);
}

int compareTexts(const Part &left, const Part &right, const GroupingRule &rule)
{
    for (const PropertyQuery &property : rule.properties) {
        if (const int order = left.property(property).compare(right.property(property), rule.caseRule)) {
            return order;
        }
    }
    return int(left.isNotFitted()) - int(right.isNotFitted());
}
