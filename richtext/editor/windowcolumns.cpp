// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/windowcolumns.h"

#include "richtext/css/pagegeometry.h"
#include "richtext/css/stylesheet.h"
#include "richtext/paper/pagelayouter.h"
#include "richtext/paper/textruler.h"

#include <QHash>
#include <QImage>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

#include <algorithm>
#include <iterator>
#include <numeric>

namespace {

constexpr double pixelsPerPoint = 4.0 / 3;
/// For columns that become whole pixels.
constexpr double spare = 2;
/// Some ten letters with the paddings of a cell.
constexpr double shortWord = 80;

/// Measures paragraphs, those of a kind with the letters of one font.
class ParagraphRuler final
{
public:
    ParagraphRuler(const QTextDocument &document, double zoom)
        : m_zoom(zoom)
        , m_option(document.defaultTextOption())
    {
        m_screen.setDotsPerMeterX(qRound(m_screen.dotsPerMeterX() * zoom));
        m_screen.setDotsPerMeterY(qRound(m_screen.dotsPerMeterY() * zoom));
    }

    /// Makes `known` as large as the paragraph asks for.
    void meet(const QTextBlock &block, double padding, ColumnRoom &known)
    {
        const auto fragment = block.begin();
        if (fragment.atEnd()) {
            return;
        }
        TextRuler &ruler = rulerOf(fragment.fragment().charFormat(), fragment.fragment().charFormatIndex());
        const QTextBlockFormat format = block.blockFormat();
        const double around = padding + format.leftMargin() + format.rightMargin() + format.textIndent();
        const QString text = block.text();
        const std::optional<TextNeeds> bound = ruler.bound(text);
        const auto isKnown = [&](const TextNeeds &needs) {
            return needs.word / m_zoom + around <= known.word && needs.line / m_zoom + around <= known.line;
        };
        if (bound && isKnown(*bound)) {
            return;
        }
        const TextNeeds needs = ruler.measure(text, m_option);
        known.word = std::max(known.word, needs.word / m_zoom + around);
        known.line = std::max(known.line, needs.line / m_zoom + around);
    }

private:
    TextRuler &rulerOf(const QTextCharFormat &format, int index)
    {
        const auto found = m_places.constFind(index);
        if (found != m_places.cend()) {
            return m_rulers[*found];
        }
        m_places.insert(index, m_rulers.size());
        return m_rulers.emplace_back(QFont(format.font(), &m_screen), m_screen);
    }

    /// A document of a widget takes the resolution of the screen, as images do.
    QImage m_screen{1, 1, QImage::Format_RGB32};
    double m_zoom;
    QTextOption m_option;
    QHash<int, size_t> m_places;
    std::vector<TextRuler> m_rulers;
};

double paddingOf(const QTextTable &table, const QTextTableCell &cell)
{
    const QTextTableCellFormat format = cell.format().toTableCellFormat();
    const auto side = [&](int property) {
        return format.hasProperty(property) ? format.doubleProperty(property) : table.format().cellPadding();
    };
    return side(QTextFormat::TableCellLeftPadding) + side(QTextFormat::TableCellRightPadding) +
           format.leftBorder() + format.rightBorder();
}

/// Leaves the shares as they are.
void measureColumns(const QTextTable &table, ParagraphRuler &ruler, double zoom,
                    std::vector<ColumnRoom> &columns)
{
    for (ColumnRoom &room : columns) {
        room = {.share = room.share};
    }
    for (int row = 0; row < table.rows(); ++row) {
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            if (cell.columnSpan() > 1) {
                column = cell.column() + cell.columnSpan() - 1;
                continue;
            }
            for (auto part = cell.begin(); !part.atEnd(); ++part) {
                if (part.currentBlock().isValid()) {
                    ruler.meet(part.currentBlock(), paddingOf(table, cell), columns[size_t(column)]);
                }
            }
        }
    }
    for (ColumnRoom &room : columns) {
        room.word += spare / zoom;
        room.line += spare / zoom;
    }
}

/// In percent; empty when columns have other widths, or none.
QList<double> sharesOf(const QTextTable &table)
{
    QList<double> shares;
    for (const QTextLength &length : table.format().columnWidthConstraints()) {
        if (length.type() != QTextLength::PercentageLength) {
            return {};
        }
        shares << length.rawValue();
    }
    return shares.size() == table.columns() ? shares : QList<double>();
}

/// Raises widths to what is wanted, first those that lack least, as far as others have more than they want;
/// those give in proportion to it. The sum stays.
void balance(std::vector<double> &widths, const std::vector<double> &wanted)
{
    std::vector<size_t> poor;
    double free = 0;
    for (size_t i = 0; i < widths.size(); ++i) {
        free += std::max(0.0, widths[i] - wanted[i]);
        if (widths[i] < wanted[i]) {
            poor.push_back(i);
        }
    }
    std::sort(poor.begin(), poor.end(),
              [&](size_t a, size_t b) { return wanted[a] - widths[a] < wanted[b] - widths[b]; });
    double left = free;
    for (const size_t i : poor) {
        const double given = std::min(left, wanted[i] - widths[i]);
        widths[i] += given;
        left -= given;
    }
    const double part = free > 0 ? (free - left) / free : 0;
    for (size_t i = 0; i < widths.size(); ++i) {
        widths[i] -= part * std::max(0.0, widths[i] - wanted[i]);
    }
}

/// The words that fit into that room all together: the longest ones are broken first.
std::vector<double> fittingWords(std::vector<double> words, double room)
{
    std::vector<double> sorted = words;
    std::sort(sorted.begin(), sorted.end());
    double left = room;
    double most = 0;
    for (size_t i = 0; i < sorted.size(); ++i) {
        most = left / double(sorted.size() - i);
        if (sorted[i] > most) {
            break;
        }
        left -= sorted[i];
        most = sorted[i];
    }
    for (double &word : words) {
        word = std::min(word, most);
    }
    return words;
}

} // namespace

QList<double> windowShares(const std::vector<ColumnRoom> &columns, double width, double paperWidth)
{
    std::vector<double> widths;
    std::vector<double> words;
    std::vector<double> lines;
    for (const ColumnRoom &column : columns) {
        const double onPaper = column.share / 100 * paperWidth * column.stretch;
        widths.push_back(column.share / 100 * width);
        words.push_back(std::min(column.word, onPaper));
        lines.push_back(std::min(column.line, onPaper));
    }
    const double whole = std::accumulate(widths.begin(), widths.end(), 0.0);
    if (width > 0 && whole > 0) {
        words = fittingWords(words, whole);
        // First what lines do not need is given to those that need it; then lines make room for words.
        balance(widths, lines);
        balance(widths, words);
    }
    QList<double> shares;
    for (const double column : widths) {
        shares << (width > 0 ? column / width * 100 : 0);
    }
    return shares;
}

WindowColumns::WindowColumns(QTextDocument &document, const StyleSheet &css)
    : m_document(document)
    , m_paperWidth(pageLayout(css).fullRect(QPageLayout::Point).width() * pixelsPerPoint)
{
    for (QTextTable *table : tablesOf(document)) {
        const QList<double> shares = sharesOf(*table);
        if (shares.isEmpty()) {
            continue;
        }
        const QTextTableFormat format = table->format();
        const double spacing = format.borderCollapse() ? 0 : format.cellSpacing();
        const double around = (table->columns() + 1) * spacing + format.leftMargin() + format.rightMargin() +
                              2 * (format.border() + format.padding());
        m_tables.push_back({.table = table, .around = around});
        for (const double share : shares) {
            m_tables.back().columns.push_back({.share = share});
        }
    }
    measure(1);
    for (Table &table : m_tables) {
        std::ranges::transform(table.columns, std::back_inserter(table.words), &ColumnRoom::word);
    }
}

void WindowColumns::measure(double zoom)
{
    m_zoom = zoom;
    ParagraphRuler ruler(m_document, zoom);
    for (Table &table : m_tables) {
        measureColumns(*table.table, ruler, zoom, table.columns);
        for (size_t i = 0; i < table.words.size(); ++i) {
            table.columns[i].stretch = std::max(1.0, table.columns[i].word / table.words[i]);
        }
    }
}

double WindowColumns::bodyMargins() const
{
    const QTextFrameFormat body = m_document.rootFrame()->frameFormat();
    return body.leftMargin() + body.rightMargin();
}

double WindowColumns::leastWidth(double zoom)
{
    if (m_zoom != zoom) {
        measure(zoom);
    }
    double least = 0;
    for (const Table &table : m_tables) {
        const double around = bodyMargins() + table.around;
        double width = around;
        for (const ColumnRoom &column : table.columns) {
            const double onPaper = column.share / 100 * (m_paperWidth - around);
            width += std::min(column.word, column.stretch * std::min(onPaper, shortWord));
        }
        least = std::max(least, width);
    }
    return least;
}

bool WindowColumns::fit(double width, double zoom)
{
    if (m_zoom != zoom) {
        measure(zoom);
    }
    const double margins = bodyMargins();
    const bool isLaidOut = m_document.isLayoutEnabled();
    bool isChanged = false;
    m_document.setLayoutEnabled(false);
    for (const Table &table : m_tables) {
        const double around = margins + table.around;
        QList<QTextLength> lengths;
        for (const double share : windowShares(table.columns, width - around, m_paperWidth - around)) {
            lengths << QTextLength(QTextLength::PercentageLength, share);
        }
        QTextTableFormat format = table.table->format();
        if (format.columnWidthConstraints() != lengths) {
            format.setColumnWidthConstraints(lengths);
            table.table->setFormat(format);
            isChanged = true;
        }
    }
    m_document.setLayoutEnabled(isLaidOut);
    return isChanged;
}
