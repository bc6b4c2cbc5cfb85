// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Report;

/// What the head of a report for browsers has behind the template's style sheet: paper, margins and the foot
/// of printed pages; for narrow screens each line of the bill as a block, its texts under each other behind
/// the names of their columns.
[[nodiscard]] QString browserHead(const Report &report);

/// The text as a string of a style sheet, in quotes; it cannot end the string nor the style element.
[[nodiscard]] QString cssString(const QString &text);
