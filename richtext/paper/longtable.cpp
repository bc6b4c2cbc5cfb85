// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/longtable.h"

#include "richtext/css/stylesheet.h"
#include "richtext/paper/pagelayouter.h"
#include "richtext/paper/strip.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QStringBuilder>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>

#include <algorithm>

namespace {

constexpr size_t leastRows = 300;
constexpr qsizetype mostShapes = 200;
/// In characters. One text without an end would keep all others waiting.
constexpr qsizetype longestText = 100'000;

double textTop(const QTextDocument &document, const QTextTableCell &cell)
{
    return document.documentLayout()->blockBoundingRect(cell.firstCursorPosition().block()).top();
}

/// The first block that shows something, counted from the end of the document; 0 when none does.
int firstText(const QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!block.text().trimmed().isEmpty()) {
            return document.blockCount() - block.blockNumber();
        }
    }
    return 0;
}

double topFromEnd(const QTextDocument &document, int blocks)
{
    const QTextBlock block = document.findBlockByNumber(document.blockCount() - blocks);
    return document.documentLayout()->blockBoundingRect(block).top();
}

} // namespace

LongTable::LongTable(const QString &xhtml, QPaintDevice &device, const QSizeF &page)
    : m_xhtml(xhtml)
    , m_parts(splitXhtml(xhtml))
    , m_device(device)
    , m_page(page)
    , m_keepsRows(StyleSheet(m_parts.css).value(QStringLiteral("tr"), QStringLiteral("break-inside")) ==
                  u"avoid")
{
}

LongTable::~LongTable() = default;

std::unique_ptr<LongTable> LongTable::layOut(const QString &xhtml, QPaintDevice &device, const QSizeF &page)
{
    std::unique_ptr<LongTable> table(new LongTable(xhtml, device, page));
    return table->layOutAll() ? std::move(table) : nullptr;
}

bool LongTable::layOutAll()
{
    std::optional<PlainTable> table = readPlainTable(bodyOf(m_parts.tail));
    // QTextDocument lays shorter tables out fast enough, but breaks rows.
    if (!table || (table->rows.size() < leastRows && !m_keepsRows)) {
        return false;
    }
    m_table = std::move(*table);
    m_layouter = std::make_unique<PageLayouter>(m_xhtml, m_device, m_page.width());
    layOutStart();
    if (!measureSample()) {
        return false;
    }
    m_places.reserve(m_table.rows.size());
    for (size_t section = 0; section < m_table.sections.size(); ++section) {
        if (!layOutSection(section)) {
            return false;
        }
    }
    layOutRest();
    return true;
}

int LongTable::pageCount() const
{
    return std::max(pageAbove(m_bottom) + 1, m_rest.isEmpty() ? 0 : m_restPage + m_rest.pageCount());
}

QString LongTable::document(const QString &body) const
{
    return joinXhtml(m_parts, m_parts.css, body);
}

QString LongTable::rowsText(size_t first, size_t end) const
{
    QString text;
    for (size_t row = first; row < end; ++row) {
        text += m_table.rows[row].text;
    }
    return text;
}

void LongTable::layOutStart()
{
    const PlainSection &first = m_table.sections.front();
    const QString body = m_table.before % m_table.startTag % QStringLiteral("<tbody>") %
                         rowsText(first.firstRow, first.firstRow + first.headings + 1) %
                         QStringLiteral("</tbody></table>");
    m_layouter->layOut(m_start, document(body), m_page.height());
    m_tablesBefore = tablesOf(m_start).size() - 1;
}

/// What surrounds the table, with two of its sections: one with a row of each shape, one with any.
QString LongTable::sampleBody()
{
    QHash<QString, int> known;
    QString rows;
    QString last;
    m_shapes.assign(m_table.rows.size(), -1);
    for (size_t section = 0; section < m_table.sections.size(); ++section) {
        const PlainSection &from = m_table.sections[section];
        for (size_t row = from.firstRow + from.headings; row < m_table.rowEnd(section); ++row) {
            const QString shape = shapeOf(m_table, row);
            if (const auto found = known.constFind(shape); found != known.cend()) {
                m_shapes[row] = *found;
                continue;
            }
            m_shapes[row] = int(known.size());
            known.insert(shape, m_shapes[row]);
            last = sampleRow(m_table, row);
            rows += last;
        }
    }
    const PlainSection &first = m_table.sections.front();
    const QString headings = rowsText(first.firstRow, first.firstRow + first.headings);
    const QString end = QStringLiteral("</tbody>");
    return known.size() > mostShapes
               ? QString()
               : m_table.before % m_table.startTag % QStringLiteral("<tbody>") % headings % rows % end %
                     QStringLiteral("<tbody>") % headings % last % end % m_table.after;
}

bool LongTable::measureSample()
{
    const QString body = sampleBody();
    if (body.isEmpty()) {
        return false;
    }
    m_layouter->layOut(m_sample, document(body), 0);
    const std::vector<QTextTable *> tables = tablesOf(m_sample);
    const int headings = int(m_table.sections.front().headings);
    if (tables.size() < m_tablesBefore + 2 || tables[m_tablesBefore]->rows() <= headings) {
        return false;
    }
    const QTextTable &table = *tables[m_tablesBefore];
    const QTextTable &next = *tables[m_tablesBefore + 1];
    std::optional<std::vector<RowLook>> looks = readRowLooks(m_sample, table, headings, m_device);
    if (!looks) {
        return false;
    }
    m_looks = std::move(*looks);
    m_spacing = rowSpacing(table, m_device);
    if (m_looks.size() > 1) {
        m_borderAbove = m_looks[0].top - (m_looks[1].top - m_spacing - m_looks[0].height);
        m_looks[0].top -= m_borderAbove;
    }
    m_headingsHeight = m_looks.front().top - textTop(m_sample, table.cellAt(0, 0));
    m_headingTop =
        table.format().topMargin() * deviceScale(m_device) + m_spacing + cellPaddingAbove(table, m_device);
    m_footMargin = m_spacing + table.format().topMargin() * deviceScale(m_device);
    m_sectionGap = textTop(m_sample, next.cellAt(0, 0)) - m_looks.back().top - m_looks.back().height;
    const QTextBlock last = next.cellAt(headings, 0).firstCursorPosition().block();
    m_sampleBottom =
        m_sample.documentLayout()->blockBoundingRect(last).top() - m_looks.back().cells.front().paddingAbove;
    return true;
}

QTextDocument &LongTable::headings(size_t section)
{
    if (m_headingSection != section) {
        const PlainSection &from = m_table.sections[section];
        m_headingSection = section;
        m_headingDocument = std::make_unique<SelfContainedDocument>();
        m_layouter->layOut(*m_headingDocument,
                           document(m_table.startTag % QStringLiteral("<tbody>") %
                                    rowsText(from.firstRow, from.firstRow + from.headings) %
                                    QStringLiteral("</tbody></table>")),
                           0, m_tablesBefore);
    }
    return *m_headingDocument;
}

/// Titles that need more lines make the headings of their section higher.
double LongTable::headingsHeight(size_t section)
{
    const double height = headings(section).size().height();
    if (section == 0) {
        m_firstHeadings = height;
    }
    return m_headingsHeight + height - m_firstHeadings;
}

bool LongTable::layOutSection(size_t section)
{
    const PlainSection &from = m_table.sections[section];
    if (from.headings != m_table.sections.front().headings) {
        return false;
    }
    for (size_t row = from.firstRow; row < from.firstRow + from.headings; ++row) {
        m_places.push_back({m_bottom, m_bottom, 0});
    }
    size_t row = from.firstRow + from.headings;
    if (section == 0 && !placeFirstRow()) {
        return false;
    }
    m_areaOffset = snapped(m_headingTop + headingsHeight(section));
    if (section == 0) {
        // It is painted with what stands before it.
        m_places.push_back({m_bottom, m_bottom, 0});
        ++row;
    } else if (!placeHeadings(section)) {
        return false;
    }
    for (; row < m_table.rowEnd(section); ++row) {
        if (!layOutRow(row, section)) {
            return false;
        }
    }
    return true;
}

bool LongTable::placeFirstRow()
{
    QTextTable *table = tablesOf(m_start).back();
    const auto looks = readRowLooks(m_start, *table, int(m_table.sections.front().headings), m_device);
    if (!looks) {
        return false;
    }
    const double top = looks->front().top - m_borderAbove;
    m_grid =
        table->format().borderCollapse() ? top : m_start.documentLayout()->frameBoundingRect(table).top();
    m_bottom = snapped(top + looks->front().height);
    return true;
}

/// Begins a section on the page that has room for its first row too.
bool LongTable::placeHeadings(size_t section)
{
    const PlainSection &from = m_table.sections[section];
    const size_t row = from.firstRow + from.headings;
    const std::optional<RowTexts> cells = texts(row);
    if (!cells) {
        return false;
    }
    double title = m_bottom + m_sectionGap;
    double first = title + m_areaOffset - m_headingTop;
    if (first >= nextPage() || !startsOnPage(row, first, *cells)) {
        title = nextPage() + m_headingTop;
        first = nextPage() + m_areaOffset;
    }
    m_headings.push_back({pageAt(title), section, title});
    m_bottom = first - m_spacing;
    return true;
}

bool LongTable::layOutRow(size_t row, size_t section)
{
    std::optional<RowTexts> cells = texts(row);
    if (!cells) {
        return false;
    }
    double top = m_bottom + m_spacing;
    if (top >= nextPage() || !startsOnPage(row, top, *cells)) {
        top = nextPage() + m_areaOffset;
        addHeadings(pageAt(top), section);
    }
    m_bottom = placeLines(row, top, *cells, m_areaOffset);
    for (int page = pageAt(top) + 1; page <= pageAbove(m_bottom); ++page) {
        addHeadings(page, section);
    }
    m_places.push_back({top, m_bottom, m_areaOffset});
    return true;
}

/// The headings of a section that goes on on a page.
void LongTable::addHeadings(int page, size_t section)
{
    m_headings.push_back({page, section, page * m_page.height() + m_headingTop});
}

std::optional<RowTexts> LongTable::texts(size_t row) const
{
    const RowLook &shape = look(row);
    const PlainRow &from = m_table.rows[row];
    RowTexts cells;
    cells.reserve(shape.cells.size());
    for (size_t i = from.firstCell; i < m_table.cellEnd(row); ++i) {
        const PlainCell &cell = m_table.cells[i];
        const std::optional<QString> text = plainText(cell.content);
        if (!text || text->size() > longestText || cells.size() == shape.cells.size()) {
            return std::nullopt;
        }
        cells.push_back(
            layOutCell(*text, cell.link, shape.cells[cells.size()], m_sample.defaultTextOption(), m_device));
    }
    return cells;
}

/// Whether the first line of any text has room on the page; if not, the row begins on the next one. A row
/// that is kept in one piece needs room for all of it, unless no page has that.
bool LongTable::startsOnPage(size_t row, double top, const RowTexts &cells) const
{
    const RowLook &shape = look(row);
    const double whole = rowHeight(shape, cells) + m_footMargin;
    if (m_keepsRows && m_areaOffset + whole <= m_page.height()) {
        return top + whole <= pageEnd(top);
    }
    for (size_t i = 0; i < cells.size(); ++i) {
        const CellLook &cell = shape.cells[i];
        const double bottom =
            top + cell.paddingAbove + cells[i].text->lineAt(0).height() + cell.paddingBelow + m_footMargin;
        if (bottom <= pageEnd(top)) {
            return true;
        }
    }
    return false;
}

/// Gives the lines of a row their places in the flow of pages. Returns the bottom of the row.
double LongTable::placeLines(size_t row, double top, RowTexts &cells, double areaOffset) const
{
    const RowLook &shape = look(row);
    double bottom = top;
    for (size_t i = 0; i < cells.size(); ++i) {
        const CellLook &cell = shape.cells[i];
        double y = top + cell.paddingAbove;
        for (int number = 0; number < cells[i].text->lineCount(); ++number) {
            QTextLine line = cells[i].text->lineAt(number);
            if (y + line.height() + cell.paddingBelow + m_footMargin > pageEnd(y)) {
                y = pageEnd(y) + areaOffset + cell.paddingAbove;
            }
            line.setPosition(QPointF(line.position().x(), y));
            y += line.height();
        }
        bottom = std::max(bottom, snapped(y + cell.paddingBelow));
    }
    if (pageAbove(bottom) == pageAt(top)) {
        lowerLines(shape, bottom - top, cells);
    }
    return bottom;
}

void LongTable::layOutRest()
{
    m_layouter->layOut(m_rest, document(restBody()), 0, m_tablesBefore);
    const int text = firstText(m_rest);
    if (text == 0) {
        m_rest.clear();
        return;
    }
    // In the sample the rest follows the table of the second section.
    const RowLook &last = m_looks.back();
    const double sampleBottom = m_sampleBottom + last.height;
    const double wanted = m_bottom + topFromEnd(m_sample, text) - sampleBottom;
    m_restPage = pageAbove(m_bottom);
    const double place = wanted - m_restPage * m_page.height();
    QTextFrame &spacer = insertSpacer(m_rest);
    // Heights of frames are in the device's pixels.
    QTextFrameFormat format = spacer.frameFormat();
    format.setHeight(
        QTextLength(QTextLength::FixedLength, std::max(1 + place - topFromEnd(m_rest, text), 1.0)));
    spacer.setFrameFormat(format);
    m_rest.setPageSize(m_page);
}

/// Sections without headings as a table of their own, then what follows the table.
QString LongTable::restBody() const
{
    const bool isWhole = m_table.after.trimmed().startsWith(u"</table", Qt::CaseInsensitive);
    return isWhole ? m_table.after.mid(m_table.after.indexOf(u'>') + 1).toString()
                   : m_table.startTag % m_table.after;
}

void LongTable::draw(QPainter &painter, int page)
{
    const QRectF part(0, page * m_page.height(), m_page.width(), m_page.height());
    if (page < m_start.pageCount()) {
        drawDocument(painter, m_start, part);
    }
    auto row = std::lower_bound(m_places.begin(), m_places.end(), part.top(),
                                [](const Place &place, double y) { return place.bottom < y; });
    for (; row != m_places.end() && row->top < part.bottom(); ++row) {
        if (row->bottom > row->top) {
            drawRow(painter, size_t(row - m_places.begin()), part);
        }
    }
    const auto isBefore = [](const Headings &headings, int wanted) { return headings.page < wanted; };
    auto heading = std::lower_bound(m_headings.begin(), m_headings.end(), page, isBefore);
    for (; heading != m_headings.end() && heading->page == page; ++heading) {
        const QTextDocument &document = headings(heading->section);
        painter.save();
        painter.translate(0, heading->top - textTop(document, tablesOf(document).front()->cellAt(0, 0)));
        drawDocument(painter, document, QRectF(QPointF(), m_page));
        painter.restore();
    }
    if (!m_rest.isEmpty() && page >= m_restPage) {
        const double offset = m_restPage * m_page.height();
        painter.save();
        painter.translate(0, offset);
        drawDocument(painter, m_rest, part.translated(0, -offset));
        painter.restore();
    }
}

void LongTable::drawRow(QPainter &painter, size_t row, const QRectF &part) const
{
    const RowLook &shape = look(row);
    const Place &place = m_places[row];
    std::optional<RowTexts> cells = texts(row);
    if (!cells) {
        return;
    }
    placeLines(row, place.top, *cells, place.areaOffset);
    for (size_t i = 0; i < cells->size(); ++i) {
        const CellLook &cell = shape.cells[i];
        if (cell.background.style() != Qt::NoBrush) {
            painter.fillRect(QRectF(cell.left, place.top, cell.width, place.bottom - place.top),
                             cell.background);
        }
        painter.setPen(cell.color);
        drawLines(painter, *(*cells)[i].text, cell.left + cell.paddingLeft, part);
    }
}
