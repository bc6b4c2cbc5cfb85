// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMarginsF>
#include <QPageLayout>
#include <QString>

#include <optional>

class StyleSheet;

/// A CSS length in points; nothing for a text that is none, or that is relative such as "2em" or "10%".
/// Units: pt, px (a 96th of an inch), pc, in, cm, mm; a bare 0 needs none.
[[nodiscard]] std::optional<double> lengthInPoints(const QString &text);

/// The paper and margins of a style sheet: paper-width, paper-height and margin of its body rule. A4 where
/// the sheet says nothing, or nothing sensible.
[[nodiscard]] QPageLayout pageLayout(const StyleSheet &css);

/// Writes paper and margins into the body rule where they differ from what the sheet says.
void setPageLayout(StyleSheet &css, const QPageLayout &layout);

/// The margins of a rule in points, from `margin` and its four single properties.
[[nodiscard]] QMarginsF marginsInPoints(const StyleSheet &css, const QString &selector);
