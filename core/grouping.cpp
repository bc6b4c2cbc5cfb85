// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/grouping.h"

#include "core/linebuilder.h"
#include "templates/bomtemplate.h"

Qt::CaseSensitivity Grouping::caseRule() const
{
    return m_settings->caseSensitiveGrouping() ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

GroupingRule Grouping::rule() const
{
    GroupingRule rule{caseRule(), {}};
    for (const BOMField &field : m_settings->fields().fields()) {
        if (field.propertyName != valueProperty()) {
            rule.properties.emplace_back(field.propertyName, m_types);
        }
    }
    return rule;
}

GroupedLines Grouping::lines(std::span<Part *const> parts) const
{
    return LineBuilder(parts, *m_parts, rule()).build();
}
