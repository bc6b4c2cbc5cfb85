// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/pagepainter.h"

#include "host/framework/hostui.h"
#include "richtext/css/stylesheet.h"
#include "richtext/paper/pagelayouter.h"
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

void drawDocument(QPainter &painter, const QTextDocument &document, const QRectF &part)
{
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = part;
    context.palette.setColor(QPalette::Text, Qt::black);
    painter.setClipRect(part, Qt::IntersectClip);
    document.documentLayout()->draw(&painter, context);
}

double gapFor(double height, const QPaintDevice &device)
{
    return height > 0 ? edgeGap * device.logicalDpiY() / pointsPerInch : 0;
}

} // namespace

PagePainter::PagePainter(const PagedText &text)
    : m_text(text)
{
    const HostUi &ui = HostUi::current();
    m_date = ui.locale().toString(ui.now().date(), QLocale::ShortFormat);
}

int PagePainter::layOut(QPagedPaintDevice &device)
{
    m_device = &device;
    const QSizeF page(device.width(), device.height());
    m_headerHeight = edgeHeight(m_text.header);
    m_footerHeight = edgeHeight(m_text.footer);
    const double top = m_headerHeight + gapFor(m_headerHeight, device);
    const double bottom = m_footerHeight + gapFor(m_footerHeight, device);
    // Whole pixels: the pages of a document stand one under the other.
    m_textArea = QRectF(0, std::ceil(top), page.width(), std::floor(page.height() - std::ceil(top) - bottom));
    layOutPages(m_document, m_text.xhtml, device, m_textArea.size());
    m_pages = std::max(m_document.pageCount(), 1);
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
    const std::array<std::pair<QString, QString>, 4> values{
        {{QStringLiteral("{pages}"), QString::number(pages)},
         {QStringLiteral("{page}"), QString::number(page)},
         {QStringLiteral("{title}"), m_text.title.toHtmlEscaped()},
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

void PagePainter::layOutEdge(SelfContainedDocument &edge, const QString &fragment, int page, int pages) const
{
    const QString xhtml = QStringLiteral("<html><head><style type=\"text/css\"></style></head><body>") +
                          withPlaceholders(fragment, page, pages) + QStringLiteral("</body></html>");
    edge.shareImages(m_document);
    layOutStrip(edge, xhtml, StyleSheet(splitXhtml(m_text.xhtml).css), *m_device, m_device->width());
}

double PagePainter::edgeHeight(const QString &fragment) const
{
    if (fragment.trimmed().isEmpty()) {
        return 0;
    }
    constexpr int widePageNumber = 999;
    SelfContainedDocument edge;
    layOutEdge(edge, fragment, widePageNumber, widePageNumber);
    return std::min(std::ceil(edge.size().height()), m_device->height() * largestEdge);
}

void PagePainter::paintPage(QPainter &painter, int page)
{
    paintEdge(painter, m_text.header, page, 0, m_headerHeight);
    paintEdge(painter, m_text.footer, page, m_device->height() - m_footerHeight, m_footerHeight);
    const QRectF part(0, (page - 1) * m_textArea.height(), m_textArea.width(), m_textArea.height());
    painter.save();
    painter.translate(0, m_textArea.top() - part.top());
    drawDocument(painter, m_document, part);
    painter.restore();
}

void PagePainter::paintEdge(QPainter &painter, const QString &fragment, int page, double top,
                            double height) const
{
    if (height <= 0) {
        return;
    }
    SelfContainedDocument edge;
    layOutEdge(edge, fragment, page, m_pages);
    painter.save();
    painter.translate(0, top);
    drawDocument(painter, edge, QRectF(0, 0, m_device->width(), height));
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
