// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMarginsF>
#include <QPageLayout>

class StyleSheet;

/// The paper and margins of a style sheet: paper-width, paper-height and margin of its body rule. A4 where
/// the sheet says nothing, or nothing sensible.
[[nodiscard]] QPageLayout pageLayout(const StyleSheet &css);

/// Writes paper and margins into the body rule where they differ from what the sheet says.
void setPageLayout(StyleSheet &css, const QPageLayout &layout);

/// The margins of the body rule in points, from `margin` and its four single properties; none below 0.
[[nodiscard]] QMarginsF pageMargins(const StyleSheet &css);
