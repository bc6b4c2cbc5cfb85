// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class BOMTemplate;

/// Gives a template what no report can do without, the VALUE field (as first column) and a miscellaneous
/// category (as last one), so that no part is missing from a report. One sentence per change, none when
/// nothing was missing.
[[nodiscard]] QStringList repairTemplate(BOMTemplate &settings);
