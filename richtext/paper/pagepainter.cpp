// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/pagepainter.h"

#include "host/framework/hostui.h"
#include "richtext/paper/longtable.h"
#include "richtext/paper/pagelayouter.h"
#include "richtext/paper/strip.h"
#include "richtext/xhtml/qthtmlwriter.h"
#include "richtext/xhtml/xhtmlparts.h"

#include <QAbstractTextDocumentLayout>
#include <QLocale>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// Header and footer may take that share of a page each.
constexpr double largestEdge = 0.25;
/// Between header or footer and the text, in points.
constexpr double edgeGap = 6;
constexpr double pointsPerInch = 72;

double gapFor(double height, const QPaintDevice &device)
{
    return height > 0 ? edgeGap * device.logicalDpiY() / pointsPerInch : 0;
}

} // namespace

PagePainter::PagePainter(const PagedText &text)
    : m_text(text)
    , m_css(splitXhtml(text.xhtml).css)
{
    m_header.fragment = text.header;
    m_footer.fragment = text.footer;
    const HostUi &ui = HostUi::current();
    m_date = ui.locale().toString(ui.now().date(), QLocale::ShortFormat);
}

PagePainter::~PagePainter() = default;

int PagePainter::layOut(QPagedPaintDevice &device)
{
    m_device = &device;
    const QSizeF page(device.width(), device.height());
    measureEdge(m_header);
    measureEdge(m_footer);
    const double top = m_header.height + gapFor(m_header.height, device);
    const double bottom = m_footer.height + gapFor(m_footer.height, device);
    // Whole pixels: the pages of a document stand one under the other.
    m_textArea = QRectF(0, std::ceil(top), page.width(), std::floor(page.height() - std::ceil(top) - bottom));
    m_longTable = LongTable::layOut(m_text.xhtml, device, m_textArea.size());
    if (!m_longTable) {
        layOutPages(m_document, m_text.xhtml, device, m_textArea.size());
    }
    m_pages = std::max(m_longTable ? m_longTable->pageCount() : m_document.pageCount(), 1);
    return m_pages;
}

bool PagePainter::paint(QPainter &painter, int first, int last)
{
    for (int page = first; page <= last; ++page) {
        if (page > first && !m_device->newPage()) {
            return false;
        }
        paintPage(painter, page);
    }
    return true;
}

QString PagePainter::withPlaceholders(const QString &fragment, int page, int pages) const
{
    const std::array<std::pair<QString, QString>, 5> values{
        {{QStringLiteral("{pages}"), QString::number(pages)},
         {QStringLiteral("{page}"), QString::number(page)},
         {QStringLiteral("{title}"), m_text.title.toHtmlEscaped()},
         {QStringLiteral("{subject}"), m_text.subject.toHtmlEscaped()},
         {QStringLiteral("{date}"), m_date.toHtmlEscaped()}}};
    QString text;
    for (qsizetype i = 0; i < fragment.size();) {
        const auto found = std::find_if(values.begin(), values.end(), [&](const auto &value) {
            return QStringView(fragment).sliced(i).startsWith(value.first);
        });
        text += found == values.end() ? QString(fragment[i]) : found->second;
        i += found == values.end() ? 1 : found->first.size();
    }
    return text;
}

void PagePainter::layOutEdge(Edge &edge, int page, int pages)
{
    const QString shown = withPlaceholders(edge.fragment, page, pages);
    if (edge.document && shown == edge.shown) {
        return;
    }
    edge.shown = shown;
    edge.document.emplace();
    edge.document->shareImages(m_document);
    const QString xhtml = QStringLiteral("<html><head><style type=\"text/css\"></style></head><body>") +
                          shown + QStringLiteral("</body></html>");
    layOutStrip(*edge.document, toQtHtml(xhtml, *edge.style, Medium::Window), *m_device, m_device->width());
}

void PagePainter::measureEdge(Edge &edge)
{
    // It may have been laid out for another device.
    edge.document.reset();
    edge.height = 0;
    if (edge.fragment.trimmed().isEmpty()) {
        return;
    }
    if (!edge.style) {
        edge.style.emplace(m_css, largestLengths(edge.fragment));
    }
    constexpr int widePageNumber = 999;
    layOutEdge(edge, widePageNumber, widePageNumber);
    edge.height = std::min(std::ceil(edge.document->size().height()), m_device->height() * largestEdge);
}

void PagePainter::paintPage(QPainter &painter, int page)
{
    paintEdge(painter, m_header, page, 0);
    paintEdge(painter, m_footer, page, m_device->height() - m_footer.height);
    const QRectF part(0, (page - 1) * m_textArea.height(), m_textArea.width(), m_textArea.height());
    painter.save();
    painter.translate(0, m_textArea.top() - part.top());
    painter.setClipRect(part, Qt::IntersectClip);
    if (m_longTable) {
        m_longTable->draw(painter, page - 1);
    } else {
        drawDocument(painter, m_document, part);
    }
    painter.restore();
}

void PagePainter::paintEdge(QPainter &painter, Edge &edge, int page, double top)
{
    if (edge.height <= 0) {
        return;
    }
    layOutEdge(edge, page, m_pages);
    painter.save();
    painter.translate(0, top);
    const QRectF part(0, 0, m_device->width(), edge.height);
    painter.setClipRect(part, Qt::IntersectClip);
    drawDocument(painter, *edge.document, part);
    painter.restore();
}

bool paintTextPages(QPainter &painter, const QString &title, const QString &text)
{
    auto *device = dynamic_cast<QPagedPaintDevice *>(painter.device());
    if (!device || !device->newPage()) {
        return false;
    }
    PagedText pages;
    pages.title = title;
    pages.xhtml = QStringLiteral("<html><head><style type=\"text/css\">"
                                 "body { font-family: Arial; font-size: 11pt; }"
                                 "h1 { font-size: 16pt; }"
                                 "</style></head><body><h1>") +
                  title.toHtmlEscaped() + QStringLiteral("</h1><div style='white-space: pre-wrap'>") +
                  text.toHtmlEscaped() + QStringLiteral("</div></body></html>");
    PagePainter notes(pages);
    return notes.paint(painter, 1, notes.layOut(*device));
}
