// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/css/stylesheet.h"
#include "richtext/xhtml/qtstylesheet.h"
#include "richtext/xhtml/selfcontaineddocument.h"

#include <QRectF>
#include <QString>

#include <optional>

#include <memory>

class LongTable;
class QPagedPaintDevice;
class QPainter;

/// A document as it is to be put on paper.
struct PagedText
{
    /// A whole XHTML document; its style sheet says the look.
    QString xhtml;
    QString title;
    /// The document in one line for the top or bottom of its pages.
    QString subject;
    /// Fragments of XHTML for the top and bottom of every page, or empty. {page}, {pages}, {title}, {subject}
    /// and {date} stand for the page number, their count, these texts and the date.
    QString header;
    QString footer;
};

/// Breaks a document into the pages of a device, see layOutPages(), and paints them. Sections of tables
/// repeat their heading rows at the top of each page that they reach; links can be clicked where the device
/// knows links.
class PagePainter final
{
public:
    explicit PagePainter(const PagedText &text);
    PagePainter(const PagePainter &) = delete;
    PagePainter &operator=(const PagePainter &) = delete;
    ~PagePainter();

    /// Breaks it for the device's page; returns the number of pages, at least 1. The device must stay until
    /// the painting is done.
    int layOut(QPagedPaintDevice &device);

    /// Paints pages `first` to `last`, counted from 1, each on a page of the device of its own; the painter
    /// is on the first one. False when the device gives no further page.
    bool paint(QPainter &painter, int first, int last);

private:
    [[nodiscard]] QString withPlaceholders(const QString &fragment, int page, int pages) const;
    /// The top or bottom of a page.
    struct Edge
    {
        /// With placeholders.
        QString fragment;
        double height = 0;
        std::optional<QtStyleSheet> style;
        /// What the document shows; nothing before the first time.
        QString shown;
        std::optional<SelfContainedDocument> document;
    };

    void layOutEdge(Edge &edge, int page, int pages);
    void measureEdge(Edge &edge);
    void paintPage(QPainter &painter, int page);
    void paintEdge(QPainter &painter, Edge &edge, int page, double top);

    PagedText m_text;
    StyleSheet m_css;
    QString m_date;
    /// A document with a long table; otherwise null, and the document holds the pages.
    std::unique_ptr<LongTable> m_longTable;
    SelfContainedDocument m_document;
    QPagedPaintDevice *m_device = nullptr;
    /// The part of the page for the text, in the device's pixels.
    QRectF m_textArea;
    Edge m_header;
    Edge m_footer;
    int m_pages = 1;
};

/// Paints plain text on pages of its own, beginning with a new one of the painter's device, in a plain look.
/// False when the device is none with pages or gives no further page.
bool paintTextPages(QPainter &painter, const QString &title, const QString &text);
