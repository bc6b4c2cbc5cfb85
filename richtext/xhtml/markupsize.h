// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

/// How much work a piece of HTML is for a parser that descends into every element.
struct MarkupSize
{
    /// Start tags, comments and the text of scripts aside.
    int elements = 0;
    /// The deepest nesting when unclosed elements are taken as open to the end of what holds them.
    int depth = 0;
};

[[nodiscard]] MarkupSize markupSize(QStringView html);
