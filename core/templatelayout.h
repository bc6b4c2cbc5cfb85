// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class BOMTemplate;

/// Gives `target` the column widths, the layout and data output flags and the case rule of `source`. A field
/// takes the widths of the source's field of its name and keeps its own without one. False when nothing
/// differed.
[[nodiscard]] bool takeLayout(const BOMTemplate &source, BOMTemplate *target);
