// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class BOMFields;
class BOMTemplate;

// What the parts database does to its working copy of a template.

/// Gives a template what no report can do without, the VALUE field (as first column) and a miscellaneous
/// category (as last one), so that no part is missing from a report. One sentence per change, none when
/// nothing was missing.
[[nodiscard]] QStringList repairTemplate(BOMTemplate &settings);

/// The fields of a template as columns of a bill; with `marksNotFitted` one for parts that are not fitted as
/// the last, unless a field has that property.
[[nodiscard]] BOMFields columnsOf(const BOMTemplate &settings, bool marksNotFitted);

/// Gives `target` the style sheet, header, footer and old HTML file of `source`, which change no line.
void takeLook(const BOMTemplate &source, BOMTemplate *target);

/// Gives `target` the column widths, the layout and data output flags and the case rule of `source`. A field
/// takes the widths of the source's field of its name and keeps its own without one. False when nothing
/// differed.
[[nodiscard]] bool takeLayout(const BOMTemplate &source, BOMTemplate *target);

/// Gives `target` the options that stand beside the report: categories without parts, how references are
/// listed, full text and the project notes behind printed pages. False when nothing differed.
[[nodiscard]] bool takeOptions(const BOMTemplate &source, BOMTemplate *target);
