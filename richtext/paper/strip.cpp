// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/strip.h"

#include "richtext/xhtml/qthtmlwriter.h"

#include <QAbstractTextDocumentLayout>
#include <QPalette>
#include <QRectF>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>

void fillDocument(QTextDocument &document, const QString &html, QPaintDevice &device)
{
    document.setUndoRedoEnabled(false);
    document.setDocumentMargin(0);
    setQtHtml(document, html);
    document.documentLayout()->setPaintDevice(&device);
}

void layOutStrip(QTextDocument &document, const QString &qtHtml, QPaintDevice &device, double width)
{
    fillDocument(document, qtHtml, device);
    document.setTextWidth(width);
}

void layOutStrip(QTextDocument &document, const QString &xhtml, const StyleSheet &css, QPaintDevice &device,
                 double width)
{
    layOutStrip(document, toQtHtml(xhtml, css, Medium::Window), device, width);
}

QTextFrame &insertSpacer(QTextDocument &document)
{
    QTextFrameFormat format;
    format.setHeight(QTextLength(QTextLength::FixedLength, 1));
    QTextFrame *frame = QTextCursor(&document).insertFrame(format);
    QTextCharFormat smallest;
    smallest.setFontPointSize(1);
    frame->firstCursorPosition().setBlockCharFormat(smallest);
    return *frame;
}

void drawDocument(QPainter &painter, const QTextDocument &document, const QRectF &part)
{
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = part;
    context.palette.setColor(QPalette::Text, Qt::black);
    document.documentLayout()->draw(&painter, context);
}
