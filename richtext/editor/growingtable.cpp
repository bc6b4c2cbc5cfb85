// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/growingtable.h"

#include "richtext/css/stylesheet.h"
#include "richtext/paper/pagelayouter.h"
#include "richtext/paper/widestrows.h"
#include "richtext/xhtml/qthtmlwriter.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QImage>
#include <QStringBuilder>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextTable>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

/// Shorter tables are made in one go before anyone notices.
constexpr size_t leastRows = 1000;

/// What a piece should take, in ms: the window answers between two.
constexpr qint64 pieceTime = 40;
constexpr qsizetype smallestPiece = 15'000;
constexpr qsizetype largestPiece = 100'000;

constexpr int continuationProperty = QTextFormat::UserProperty + 1;

const QString tableEnd = QStringLiteral("</table>");

/// The table that begins behind a paragraph. Within a step frames do not know their children.
QTextTable *tableBehind(const QTextDocument &document, const QTextBlock &block)
{
    return qobject_cast<QTextTable *>(document.objectForFormat(block.next().charFormat()));
}

/// How much larger than itself a document is laid out.
double zoomOf(const QTextDocument &document)
{
    const QPaintDevice *device = document.documentLayout()->paintDevice();
    return device ? double(device->logicalDpiY()) / QImage(1, 1, QImage::Format_RGB32).logicalDpiY() : 1.0;
}

/// The look of a body with that table. The names of classes are looked for in each kind of cells as often as
/// matters, because the whole would take long.
QtStyleSheet styleOf(const PlainTable &table, QStringView body, const StyleSheet &css)
{
    constexpr int oftenEnough = 1000;
    std::vector<int> counts(size_t(table.kinds.size()));
    for (const PlainCell &cell : table.cells) {
        ++counts[size_t(cell.kind)];
    }
    QString classes = table.before % table.startTag % table.after;
    for (qsizetype i = 0; i < table.kinds.size(); ++i) {
        classes += table.kinds[i].repeated(std::min(counts[size_t(i)], oftenEnough));
    }
    LargestLengths lengths = largestLengths(body);
    lengths.body = classes;
    return QtStyleSheet(css, lengths);
}

} // namespace

std::unique_ptr<GrowingTable> GrowingTable::begin(SelfContainedDocument &document, const QString &xhtml,
                                                  const StyleSheet &css, const QString &highlighted)
{
    XhtmlParts parts = splitXhtml(xhtml);
    std::optional<PlainTable> table = readPlainTable(bodyOf(parts.tail));
    if (!table || table->rows.size() < leastRows) {
        return nullptr;
    }
    std::unique_ptr<GrowingTable> growing(
        new GrowingTable(document, std::move(parts), std::move(*table), css, highlighted));
    return growing->start(css) ? std::move(growing) : nullptr;
}

GrowingTable::GrowingTable(SelfContainedDocument &document, XhtmlParts parts, PlainTable table,
                           const StyleSheet &css, const QString &highlighted)
    : m_document(document)
    , m_parts(std::move(parts))
    , m_table(std::move(table))
    , m_style(styleOf(m_table, bodyOf(m_parts.tail), css))
    , m_highlighted(highlighted)
{
    m_sample.shareImages(document);
    m_sample.setUndoRedoEnabled(false);
}

GrowingTable::~GrowingTable() = default;

bool GrowingTable::start(const StyleSheet &css)
{
    // A document of a widget has no device; it takes the resolution of the screen, as images do.
    QImage screen(1, 1, QImage::Format_RGB32);
    const QString widest = widestRowsBody(m_table, css, screen);
    if (widest.isEmpty()) {
        return false;
    }
    setQtHtml(m_document, qtHtml(m_table.before % nextRows()));
    const std::vector<QTextTable *> tables = tablesOf(m_document);
    if (tables.empty()) {
        return false;
    }
    m_tablesBefore = tables.size() - 1;
    join(*tables.back(), false);
    return makeSample(widest, css);
}

bool GrowingTable::makeSample(const QString &body, const StyleSheet &css)
{
    m_sample.setDefaultFont(m_document.defaultFont());
    setQtHtml(m_sample, qtHtml(body));
    const std::vector<QTextTable *> tables = tablesOf(m_sample);
    if (tables.size() <= m_tablesBefore) {
        return false;
    }
    m_sampleTable = tables[m_tablesBefore];
    m_plainRow = plainRow(*m_sampleTable);
    // What surrounds a table would surround each of its pieces.
    const QTextTableFormat format = m_sampleTable->format();
    if (m_plainRow < 0 || format.border() > 0 || format.padding() > 0) {
        return false;
    }
    measurePaddings();
    m_sampleColumns.emplace(m_sample, css);
    return true;
}

/// Qt tells only where the texts of cells stand.
void GrowingTable::measurePaddings()
{
    constexpr double wide = 1000;
    const QTextTableFormat format = m_sampleTable->format();
    QTextTableFormat probe = format;
    probe.setColumnWidthConstraints(
        QList<QTextLength>(m_sampleTable->columns(), QTextLength(QTextLength::FixedLength, wide)));
    m_sampleTable->setFormat(probe);
    m_sample.setTextWidth(wide);
    for (const double width : textWidths()) {
        m_paddings.push_back(wide - width);
    }
    m_sampleTable->setFormat(format);
}

std::vector<double> GrowingTable::textWidths() const
{
    std::vector<double> widths;
    for (int column = 0; column < m_sampleTable->columns(); ++column) {
        const QTextBlock block = m_sampleTable->cellAt(m_plainRow, column).firstCursorPosition().block();
        widths.push_back(m_sample.documentLayout()->blockBoundingRect(block).width());
    }
    return widths;
}

double GrowingTable::leastWidth()
{
    return m_sampleColumns->leastWidth(zoomOf(m_document));
}

void GrowingTable::alignColumns(double width)
{
    // All but the width is in the document's own size.
    const double zoom = zoomOf(m_document);
    m_sample.documentLayout()->setPaintDevice(m_document.documentLayout()->paintDevice());
    m_sample.setDefaultFont(m_document.defaultFont());
    m_sample.rootFrame()->setFrameFormat(m_document.rootFrame()->frameFormat());
    m_sampleColumns->fit(width / zoom, zoom);
    m_sample.setTextWidth(width);
    const std::vector<double> texts = textWidths();
    QList<QTextLength> columns;
    for (size_t i = 0; i < texts.size(); ++i) {
        columns.append(QTextLength(QTextLength::FixedLength, texts[i] / zoom + m_paddings[i]));
    }
    if (std::exchange(m_columns, columns) == columns) {
        return;
    }
    const bool isLaidOut = m_document.isLayoutEnabled();
    m_document.setLayoutEnabled(false);
    const std::vector<QTextTable *> tables = tablesOf(m_document);
    for (size_t i = m_tablesBefore; i < tables.size(); ++i) {
        if (i == m_tablesBefore || isContinuation(*tables[i])) {
            join(*tables[i], i > m_tablesBefore);
        }
    }
    m_document.setLayoutEnabled(isLaidOut);
}

bool GrowingTable::isContinuation(const QTextTable &table)
{
    return table.format().boolProperty(continuationProperty);
}

/// Makes a table go on where the one before it ends.
void GrowingTable::join(QTextTable &table, bool isContinuation) const
{
    QTextTableFormat format = table.format();
    format.setColumnWidthConstraints(m_columns);
    if (isContinuation) {
        format.setProperty(continuationProperty, true);
        // Never quite 0: pieces are known by it when they are copied, see GrownSelection.
        format.setTopMargin(format.borderCollapse() ? -0.001 : -format.cellSpacing());
    }
    if (!m_isComplete) {
        format.setBottomMargin(0);
    }
    table.setFormat(format);
}

QString GrowingTable::nextRows()
{
    QString rows = m_table.startTag.toString();
    const qsizetype end = rows.size() + m_pieceSize;
    while (m_nextRow < m_table.rows.size() && rows.size() < end) {
        rows += m_table.rows[m_nextRow++].text;
    }
    m_isComplete = m_nextRow == m_table.rows.size();
    rows += m_isComplete ? m_table.after : QStringView(tableEnd);
    return rows;
}

QString GrowingTable::qtHtml(const QString &body) const
{
    return toQtHtml(joinXhtml(m_parts, m_parts.css, body), m_style, Medium::Window, m_highlighted);
}

void GrowingTable::append()
{
    if (m_isComplete) {
        return;
    }
    QElapsedTimer elapsed;
    elapsed.start();
    insertPiece();
    m_pieceSize = std::clamp(m_pieceSize * pieceTime / std::max(elapsed.elapsed(), qint64(1)), smallestPiece,
                             largestPiece);
}

void GrowingTable::appendAll()
{
    // Laid out once.
    QTextCursor step(&m_document);
    step.beginEditBlock();
    while (!m_isComplete) {
        insertPiece();
    }
    step.endEditBlock();
}

void GrowingTable::insertPiece()
{
    QTextCursor step(&m_document);
    step.beginEditBlock();
    const int place = m_document.lastBlock().position();
    appendQtHtml(m_document, qtHtml(nextRows()));
    if (QTextTable *table = tableBehind(m_document, m_document.findBlock(place))) {
        join(*table, true);
    }
    step.endEditBlock();
    if (m_isComplete) {
        m_table = {};
        m_parts = {};
    }
}
