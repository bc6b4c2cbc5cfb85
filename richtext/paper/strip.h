// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QPaintDevice;
class QPainter;
class QRectF;
class QTextDocument;
class QTextFrame;
class StyleSheet;

/// Fills a document with HTML as QTextDocument reads it, to be laid out for a device.
void fillDocument(QTextDocument &document, const QString &html, QPaintDevice &device);

/// Fills `document` with Qt HTML on one page of that width and any height.
void layOutStrip(QTextDocument &document, const QString &qtHtml, QPaintDevice &device, double width);

/// Fills `document` with an XHTML document on one page of that width and any height.
void layOutStrip(QTextDocument &document, const QString &xhtml, const StyleSheet &css, QPaintDevice &device,
                 double width);

/// Puts an empty frame before all of a document. Margins would be kept free at the foot of pages too.
[[nodiscard]] QTextFrame &insertSpacer(QTextDocument &document);

/// Draws a part of a document, in black where it names no colour, at its place in it.
void drawDocument(QPainter &painter, const QTextDocument &document, const QRectF &part);
