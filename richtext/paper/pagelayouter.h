// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QString>

class QPaintDevice;
class QTextDocument;

/// Fills `document` with an XHTML document broken into pages of that size in the device's pixels. The
/// sections of a table have common columns, and none begins at the foot of a page without a row.
void layOutPages(QTextDocument &document, const QString &xhtml, QPaintDevice &device, const QSizeF &page);
