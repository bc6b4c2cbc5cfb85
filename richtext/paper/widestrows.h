// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QPaintDevice;
class StyleSheet;
struct PlainTable;

/// An XHTML document whose columns are as wide as those of `xhtml`, with few of the rows: of a long table
/// only those stay that make a column as wide as it is. A document without such a table stays as it is.
[[nodiscard]] QString withWidestRows(const QString &xhtml, const StyleSheet &css, QPaintDevice &device);

/// The body of such a document, from a table that was read before. Empty when the look of its cells is not
/// found.
[[nodiscard]] QString widestRowsBody(const PlainTable &table, const StyleSheet &css, QPaintDevice &device);
