// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/widestrows.h"

#include "richtext/paper/plaintable.h"
#include "richtext/paper/strip.h"
#include "richtext/xhtml/selfcontaineddocument.h"
#include "richtext/xhtml/xhtmlparts.h"

#include <QFontMetricsF>
#include <QStringBuilder>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace {

/// Shorter tables are laid out faster than measured.
constexpr size_t leastRows = 300;

/// What a column must give a text: room for its longest word, and for all of it on one line.
struct Needs
{
    double word = 0;
    double line = 0;
};

/// The widths of the letters of a font, which are added up faster than a text is laid out.
class LetterWidths final
{
public:
    LetterWidths(const QFont &font, QPaintDevice &device)
        : m_metrics(font, &device)
        , m_isPlain(font.capitalization() == QFont::MixedCase && font.wordSpacing() == 0)
    {
        m_widths.fill(-1);
    }

    /// No less than a cell's content needs. Nothing when it has entities other than break places, or letters
    /// that may take part in shapes of their own.
    [[nodiscard]] std::optional<Needs> bound(QStringView content)
    {
        // Kerning and rounding; both are far smaller.
        constexpr double tolerance = 1.03;
        constexpr double fewPixels = 1;
        Needs needs;
        double word = 0;
        for (qsizetype i = 0; i < content.size(); ++i) {
            const QChar c = content[i];
            const bool isBreakPlace = c == u'&' && content.sliced(i).startsWith(breakPlace);
            if (!m_isPlain || c.unicode() >= m_widths.size() || (c == u'&' && !isBreakPlace)) {
                return std::nullopt;
            }
            const double width = isBreakPlace ? 0 : widthOf(c);
            i += isBreakPlace ? breakPlace.size() - 1 : 0;
            word = isBreakPlace || c == u' ' ? 0 : word + width;
            needs.word = std::max(needs.word, word);
            needs.line += width;
        }
        return Needs{needs.word * tolerance + fewPixels, needs.line * tolerance + fewPixels};
    }

private:
    static constexpr QStringView breakPlace = u"&shy;&#8203;";

    [[nodiscard]] double widthOf(QChar c)
    {
        double &width = m_widths[c.unicode()];
        if (width < 0) {
            width = m_metrics.horizontalAdvance(c);
        }
        return width;
    }

    QFontMetricsF m_metrics;
    bool m_isPlain;
    /// Of Latin letters and signs, -1 for one that was not asked for yet. Marks that combine come behind
    /// them.
    std::array<double, 0x300> m_widths{};
};

/// Measures the texts of a table's cells as QTextDocument would.
class CellRuler final
{
public:
    CellRuler(const PlainTable &table, const StyleSheet &css, QPaintDevice &device)
        : m_device(device)
    {
        SelfContainedDocument samples;
        QString body;
        for (const QString &tags : table.kinds) {
            body += table.startTag % QStringLiteral("<tr>") % tags % QStringLiteral("x</table>");
        }
        layOutStrip(samples, QStringLiteral("<html><body>") % body % QStringLiteral("</body></html>"), css,
                    device, 1);
        m_option = samples.defaultTextOption();
        for (QTextBlock block = samples.begin(); block.isValid(); block = block.next()) {
            if (block.text() == QLatin1String("x")) {
                m_fonts.append(QFont(block.begin().fragment().charFormat().font(), &device));
                m_letters.emplace_back(m_fonts.back(), device);
            }
        }
    }

    /// Whether the look of every kind was found.
    [[nodiscard]] bool isValid(const PlainTable &table) const { return m_fonts.size() == table.kinds.size(); }

    /// Whether a cell may need more than that.
    [[nodiscard]] bool mayNeedMore(const PlainCell &cell, const Needs &known)
    {
        const std::optional<Needs> bound = m_letters[size_t(cell.kind)].bound(cell.content);
        return !bound || bound->word > known.word || bound->line > known.line;
    }

    [[nodiscard]] Needs measure(const QString &text, int kind) const
    {
        constexpr double anyWidth = 1e6;
        QTextLayout layout(text, m_fonts[kind], &m_device);
        layout.setTextOption(m_option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(anyWidth);
        }
        layout.endLayout();
        return {layout.minimumWidth(), layout.maximumWidth()};
    }

private:
    QPaintDevice &m_device;
    QTextOption m_option;
    QList<QFont> m_fonts;
    std::vector<LetterWidths> m_letters;
};

/// Finds the rows whose cells need most, of each kind in each column: their fonts and paddings differ.
class WidestRows final
{
public:
    WidestRows(const PlainTable &table, CellRuler &ruler)
        : m_table(table)
        , m_ruler(ruler)
        , m_isKept(table.rows.size(), false)
        , m_widest(size_t(table.columns) * size_t(table.kinds.size()))
    {
        for (size_t row = 0; row < table.rows.size(); ++row) {
            for (size_t cell = table.rows[row].firstCell; cell < table.cellEnd(row); ++cell) {
                meet(row, table.cells[cell]);
            }
        }
        for (const Widest &found : m_widest) {
            if (found.needs.line >= 0) {
                m_isKept[found.rowOfWord] = true;
                m_isKept[found.rowOfLine] = true;
            }
        }
    }

    /// The table with these rows, each section of them under its headings; open at its end.
    [[nodiscard]] QString text() const
    {
        QString text = m_table.startTag.toString();
        for (size_t section = 0; section < m_table.sections.size(); ++section) {
            const PlainSection &from = m_table.sections[section];
            const size_t firstLine = from.firstRow + from.headings;
            QString rows;
            bool isKept = false;
            for (size_t row = from.firstRow; row < m_table.rowEnd(section); ++row) {
                isKept = isKept || m_isKept[row];
                rows += row < firstLine || m_isKept[row] ? m_table.rows[row].text : QStringView();
            }
            text += isKept ? QStringLiteral("<tbody>") % rows % QStringLiteral("</tbody>") : QString();
        }
        return text;
    }

private:
    struct Widest
    {
        Needs needs{-1, -1};
        size_t rowOfWord = 0;
        size_t rowOfLine = 0;
    };

    void meet(size_t row, const PlainCell &cell)
    {
        Widest &widest = m_widest[size_t(cell.column) * size_t(m_table.kinds.size()) + size_t(cell.kind)];
        if (!m_ruler.mayNeedMore(cell, widest.needs)) {
            return;
        }
        const std::optional<QString> text = plainText(cell.content);
        if (!text) {
            m_isKept[row] = true;
            return;
        }
        const Needs needs = m_ruler.measure(*text, cell.kind);
        if (needs.word > widest.needs.word) {
            widest.needs.word = needs.word;
            widest.rowOfWord = row;
        }
        if (needs.line > widest.needs.line) {
            widest.needs.line = needs.line;
            widest.rowOfLine = row;
        }
    }

    const PlainTable &m_table;
    CellRuler &m_ruler;
    std::vector<bool> m_isKept;
    /// By column, and in each by kind.
    std::vector<Widest> m_widest;
};

} // namespace

QString widestRowsBody(const PlainTable &table, const StyleSheet &css, QPaintDevice &device)
{
    CellRuler ruler(table, css, device);
    return ruler.isValid(table) ? table.before % WidestRows(table, ruler).text() % table.after : QString();
}

QString withWidestRows(const QString &xhtml, const StyleSheet &css, QPaintDevice &device)
{
    const XhtmlParts parts = splitXhtml(xhtml);
    const std::optional<PlainTable> table = readPlainTable(bodyOf(parts.tail));
    const QString body =
        table && table->rows.size() >= leastRows ? widestRowsBody(*table, css, device) : QString();
    return body.isEmpty() ? xhtml : joinXhtml(parts, parts.css, body);
}
