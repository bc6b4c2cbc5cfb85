// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

/// How much work a text is for a parser that descends into every element.
struct HtmlSize
{
    /// Start tags, comments and the text of scripts aside.
    int elements = 0;
    /// The deepest nesting when unclosed elements are taken as open to the end of what holds them.
    int depth = 0;
    /// Of one tag: the most places at which an attribute can begin or end.
    int attributeEnds = 0;

    /// Parsers descend into elements by recursion, and take time in proportion to size times depth.
    static constexpr int deepest = 100;
    /// Parsers compare each attribute of a tag with each.
    static constexpr int mostAttributeEnds = 400;
    [[nodiscard]] static QString tooManyAttributes();
};

/// Counts without building anything, so that hostile input costs no more than a look at each character, and
/// goes no further than to the first place that is too deep.
[[nodiscard]] HtmlSize htmlSize(QStringView html);
