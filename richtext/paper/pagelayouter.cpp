// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/pagelayouter.h"

#include "richtext/css/stylesheet.h"
#include "richtext/paper/strip.h"
#include "richtext/paper/widestrows.h"
#include "richtext/xhtml/qthtmlwriter.h"
#include "richtext/xhtml/selfcontaineddocument.h"
#include "richtext/xhtml/xhtmlparts.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

/// Each moved section lays the rest out again; later ones stay where they are.
constexpr int mostMovedSections = 200;

QRectF cellRect(const QTextDocument &document, const QTextTableCell &cell)
{
    return document.documentLayout()->blockBoundingRect(cell.firstCursorPosition().block());
}

/// The widths of columns. Qt tells only where the texts of cells stand. Between two of them lie two paddings
/// and a gap; a table has one gap more than columns, which is what its width has left.
std::vector<double> measuredWidths(const std::vector<QRectF> &texts, double tableWidth)
{
    const double padding = texts.size() < 2 ? 0 : texts[1].left() - texts[0].right();
    const double withGap = texts.back().right() + padding - texts.front().left();
    const double gap = std::clamp(tableWidth - withGap, 0.0, padding);
    std::vector<double> widths;
    widths.reserve(texts.size());
    for (const QRectF &text : texts) {
        widths.push_back(text.width() + padding - gap);
    }
    return widths;
}

/// Lengths in percent are rounded: the widest column gives the others a pixel, so that no text is wrapped for
/// it.
QList<QTextLength> asPercentages(std::vector<double> widths)
{
    const auto widest = std::max_element(widths.begin(), widths.end());
    for (auto width = widths.begin(); width != widths.end(); ++width) {
        if (width != widest) {
            *width += 1;
            *widest -= 1;
        }
    }
    const double whole = std::accumulate(widths.begin(), widths.end(), 0.0);
    QList<QTextLength> percentages;
    for (const double width : widths) {
        percentages.append(QTextLength(QTextLength::PercentageLength, 100 * width / whole));
    }
    return whole > 0 ? percentages : QList<QTextLength>();
}

/// The widths of a table's columns in percent; empty when it has no plain row.
QList<QTextLength> columnWidths(const QTextDocument &document, const QTextTable &table)
{
    const int row = plainRow(table);
    if (row < 0) {
        return {};
    }
    std::vector<QRectF> texts;
    texts.reserve(size_t(table.columns()));
    for (int column = 0; column < table.columns(); ++column) {
        texts.push_back(cellRect(document, table.cellAt(row, column)));
    }
    const QRectF frame = document.documentLayout()->frameBoundingRect(const_cast<QTextTable *>(&table));
    return asPercentages(measuredWidths(texts, frame.width()));
}

/// Gives the tables of `pages` that are one table in `whole` the columns that they have there. Both documents
/// have their tables in the same order; a table of `whole` stands for those after it that have as many
/// columns. Of a table with headings `whole` may lack rows. `pages` begins behind the `first` tables of
/// `whole`.
void shareColumns(QTextDocument &pages, const QTextDocument &whole, bool lacksRows, size_t first)
{
    const std::vector<QTextTable *> wholes = tablesOf(whole);
    auto source = wholes.begin() + std::ptrdiff_t(std::min(first, wholes.size()));
    QList<QTextLength> widths;
    const QTextTable *measured = nullptr;
    for (QTextTable *table : tablesOf(pages)) {
        while (source != wholes.end() && (*source)->columns() != table->columns()) {
            ++source;
        }
        if (source == wholes.end()) {
            return;
        }
        if (measured != *source) {
            measured = *source;
            widths = columnWidths(whole, *measured);
        }
        const bool isPart = lacksRows
                                ? table->format().headerRowCount() > 0 || table->rows() != measured->rows()
                                : table->rows() < measured->rows();
        if (isPart && !widths.isEmpty()) {
            QTextTableFormat format = table->format();
            format.setColumnWidthConstraints(widths);
            table->setFormat(format);
        }
    }
}

/// Where the text of a cell begins: its first line may stand on the page after that of its top.
double textTop(const QTextDocument &document, const QTextTableCell &cell)
{
    const QTextBlock block = cell.firstCursorPosition().block();
    const double top = document.documentLayout()->blockBoundingRect(block).top();
    return block.layout()->lineCount() > 0 ? top + block.layout()->lineAt(0).y() : top;
}

bool startsAtFoot(const QTextDocument &document, const QTextTable &table, double pageHeight)
{
    const int headings = table.format().headerRowCount();
    if (headings == 0 || headings >= table.rows()) {
        return false;
    }
    const double title = textTop(document, table.cellAt(0, 0));
    const double firstRow = textTop(document, table.cellAt(headings, 0));
    return int(title / pageHeight) != int(firstRow / pageHeight);
}

void keepHeadingsWithRows(QTextDocument &document, double pageHeight)
{
    int moved = 0;
    for (QTextTable *table : tablesOf(document)) {
        if (moved < mostMovedSections && startsAtFoot(document, *table, pageHeight)) {
            ++moved;
            QTextTableFormat format = table->format();
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
            table->setFormat(format);
        }
    }
}

void encodeAddresses(QTextDocument &document)
{
    struct Link
    {
        int position;
        int length;
        QString address;
    };
    std::vector<Link> links;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QString address = it.fragment().charFormat().anchorHref();
            if (const QString encoded = encodedAddress(address); encoded != address) {
                links.push_back({it.fragment().position(), it.fragment().length(), encoded});
            }
        }
    }
    QTextCursor cursor(&document);
    for (const Link &link : links) {
        QTextCharFormat format;
        format.setAnchorHref(link.address);
        cursor.setPosition(link.position);
        cursor.setPosition(link.position + link.length, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(format);
    }
}

/// The background of a paragraph that goes on over pages hides the headings that are repeated on them; that
/// of its cell does not.
void giveBackgroundsToCells(QTextDocument &document)
{
    QTextCursor cursor(&document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        if (!format.hasProperty(QTextFormat::BackgroundBrush)) {
            continue;
        }
        cursor.setPosition(block.position());
        const QTextTable *table = cursor.currentTable();
        if (!table) {
            continue;
        }
        QTextTableCell cell = table->cellAt(cursor);
        QTextCharFormat cellFormat = cell.format();
        if (!cellFormat.hasProperty(QTextFormat::BackgroundBrush)) {
            cellFormat.setBackground(format.background());
            cell.setFormat(cellFormat);
        }
        if (cellFormat.background() == format.background()) {
            format.clearBackground();
            cursor.setBlockFormat(format);
        }
    }
}

/// Otherwise every single change lays the document out again.
template<typename Changes>
void changeAtOnce(QTextDocument &document, Changes changes)
{
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    changes();
    cursor.endEditBlock();
}

} // namespace

std::vector<QTextTable *> tablesOf(const QTextDocument &document)
{
    std::vector<QTextTable *> tables;
    for (QTextFrame *frame : document.rootFrame()->childFrames()) {
        if (auto *table = qobject_cast<QTextTable *>(frame)) {
            tables.push_back(table);
        }
    }
    return tables;
}

int plainRow(const QTextTable &table)
{
    for (int row = 0; row < table.rows(); ++row) {
        bool isPlain = true;
        for (int column = 0; isPlain && column < table.columns(); ++column) {
            isPlain = table.cellAt(row, column).columnSpan() == 1;
        }
        if (isPlain) {
            return row;
        }
    }
    return -1;
}

QString encodedAddress(const QString &address)
{
    return QString::fromLatin1(address.toUtf8().toPercentEncoding("!#$%&'*+,/:;=?@[]~"));
}

// QTextDocument repeats the head of a table on every page, but a table has one head only, and the report's
// tables have one for each category. So every section of a table becomes a table. What the sections lose by
// that is put back: the columns they had in common are measured in a second document with whole tables, of
// long ones only with the rows that make the columns wide, and a section whose first row would not stand on
// the page of its title is moved to the next page, from the first one on, because each move lays out all that
// follows. Column widths must be set before the pages are made, or rows would be measured with the wrong
// heights.
PageLayouter::PageLayouter(const QString &xhtml, QPaintDevice &device, double width)
    : m_device(device)
    , m_width(width)
    , m_css(std::make_unique<StyleSheet>(splitXhtml(xhtml).css))
    , m_whole(std::make_unique<SelfContainedDocument>())
{
    const QString widest = withWidestRows(xhtml, *m_css, device);
    m_lacksRows = widest.size() != xhtml.size();
    layOutStrip(*m_whole, widest, *m_css, device, width);
}

PageLayouter::~PageLayouter() = default;

void PageLayouter::layOut(QTextDocument &document, const QString &xhtml, double pageHeight,
                          size_t tablesBefore) const
{
    fillDocument(document, toQtHtml(xhtml, *m_css, Medium::Pages), m_device);
    changeAtOnce(document, [&] {
        encodeAddresses(document);
        giveBackgroundsToCells(document);
        shareColumns(document, *m_whole, m_lacksRows, tablesBefore);
    });
    if (pageHeight > 0) {
        document.setPageSize(QSizeF(m_width, pageHeight));
        keepHeadingsWithRows(document, pageHeight);
    } else {
        document.setTextWidth(m_width);
    }
}

void layOutPages(QTextDocument &document, const QString &xhtml, QPaintDevice &device, const QSizeF &page)
{
    PageLayouter(xhtml, device, page.width()).layOut(document, xhtml, page.height());
}
