// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/groupedlines.h"

#include <span>

class BOMTemplate;
class PartStore;
class PropertyTypes;

/// Groups the parts of a category into lines, by the fields and the case rule of the current template.
class Grouping final
{
public:
    /// None is owned; all must outlive the grouping.
    Grouping(const BOMTemplate *settings, const PartStore *parts, const PropertyTypes *types)
        : m_settings(settings)
        , m_parts(parts)
        , m_types(types)
    {
    }

    [[nodiscard]] Qt::CaseSensitivity caseRule() const;
    /// Serves until the template, the property definitions or the number format change.
    [[nodiscard]] GroupingRule rule() const;
    /// The lines of parts that are given in the order in which they were added.
    [[nodiscard]] GroupedLines lines(std::span<Part *const> parts) const;

private:
    const BOMTemplate *m_settings;
    const PartStore *m_parts;
    const PropertyTypes *m_types;
};
