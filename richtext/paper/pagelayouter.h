// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QString>

class QPaintDevice;
class QTextDocument;
class StyleSheet;

/// Fills `document` with an XHTML document broken into pages of that size in the device's pixels. The
/// sections of a table have common columns, and none begins at the foot of a page without a row.
void layOutPages(QTextDocument &document, const QString &xhtml, QPaintDevice &device, const QSizeF &page);

/// Fills `document` with an XHTML document on one page of that width and any height.
void layOutStrip(QTextDocument &document, const QString &xhtml, const StyleSheet &css, QPaintDevice &device,
                 double width);
