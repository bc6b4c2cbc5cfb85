// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bomstring.h"
#include "core/propertyquery.h"

#include <span>
#include <vector>

class Part;

/// The parts of one line of the bill of materials, in reference order.
using BomLine = std::span<Part *const>;

/// The lines of one category: values in their order, below each value its lines in the order of their
/// grouping keys.
class GroupedLines final
{
public:
    struct Value
    {
        BomString text;
        /// Where its lines begin; they end where those of the next value begin.
        quint32 firstLine = 0;
    };

    [[nodiscard]] size_t lineCount() const { return m_starts.empty() ? 0 : m_starts.size() - 1; }
    [[nodiscard]] BomLine line(size_t index) const { return lineRange(index, index + 1); }
    /// Of all lines, line by line.
    [[nodiscard]] BomLine parts() const { return m_parts; }
    [[nodiscard]] size_t valueCount() const { return m_values.size(); }
    [[nodiscard]] const BomString &value(size_t index) const { return m_values[index].text; }
    [[nodiscard]] size_t firstLine(size_t value) const { return m_values[value].firstLine; }
    [[nodiscard]] size_t endLine(size_t value) const
    {
        return value + 1 < m_values.size() ? m_values[value + 1].firstLine : lineCount();
    }

    /// The parts of several lines that follow each other, line by line.
    [[nodiscard]] BomLine lineRange(size_t first, size_t end) const
    {
        return BomLine(m_parts).subspan(m_starts[first], m_starts[end] - m_starts[first]);
    }

    /// The position of a value, valueCount() when there is none.
    [[nodiscard]] size_t indexOf(const BomString &value) const;

private:
    friend class LineBuilder;

    std::vector<Part *> m_parts;
    /// Where in m_parts each line begins, and the end.
    std::vector<quint32> m_starts;
    std::vector<Value> m_values;
};

/// What lines are made by.
struct GroupingRule
{
    Qt::CaseSensitivity caseRule = Qt::CaseSensitive;
    /// The properties that must agree, besides the value.
    std::vector<PropertyQuery> properties;
};

/// The texts of the rule's properties, each with a comma behind it.
[[nodiscard]] BomString groupingKey(const Part &part, const GroupingRule &rule);

/// Compares the texts of the rule's properties one by one: below, equal to or above 0. Texts with commas may
/// differ where the keys do not: "a,b" and "c" against "a" and "b,c". Parts with equal texts differ where one
/// is marked as not fitted.
[[nodiscard]] int compareTexts(const Part &left, const Part &right, const GroupingRule &rule);
