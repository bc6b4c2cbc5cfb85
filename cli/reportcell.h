// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/bomfields.h"

#include <QString>

/// Whether a cell of a file of delimited cells reads as the report writes the text, or as the text itself:
/// the report drops quotes and line breaks, reading drops the blanks around a cell.
[[nodiscard]] bool isReportCell(const QString &cell, const QString &text);

/// The value in a report's cell without the prefix and the suffix of its field.
[[nodiscard]] QString withoutAffixes(const QString &cell, const BOMField &field);
