// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/widestrows.h"

#include "richtext/paper/plaintable.h"
#include "richtext/paper/strip.h"
#include "richtext/xhtml/selfcontaineddocument.h"
#include "richtext/xhtml/xhtmlparts.h"

#include <QHash>
#include <QStringBuilder>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <utility>

namespace {

/// Shorter tables are laid out faster than measured.
constexpr size_t leastRows = 300;

/// What a column must give a text: room for its longest word, and for all of it on one line.
struct Needs
{
    double word = 0;
    double line = 0;
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
            }
        }
    }

    /// Whether the look of every kind was found.
    [[nodiscard]] bool isValid(const PlainTable &table) const { return m_fonts.size() == table.kinds.size(); }

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
};

/// Finds the rows whose cells need most, of each kind in each column: their fonts and paddings differ.
class WidestRows final
{
public:
    WidestRows(const PlainTable &table, const CellRuler &ruler)
        : m_table(table)
        , m_ruler(ruler)
        , m_isKept(table.rows.size(), false)
    {
        for (size_t row = 0; row < table.rows.size(); ++row) {
            for (size_t cell = table.rows[row].firstCell; cell < table.cellEnd(row); ++cell) {
                meet(row, table.cells[cell]);
            }
        }
        for (const Widest &found : std::as_const(m_widest)) {
            m_isKept[found.rowOfWord] = true;
            m_isKept[found.rowOfLine] = true;
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
        const std::optional<QString> text = plainText(cell.content);
        if (!text) {
            m_isKept[row] = true;
            return;
        }
        const Needs needs = m_ruler.measure(*text, cell.kind);
        Widest &widest = m_widest[{cell.column, cell.kind}];
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
    const CellRuler &m_ruler;
    std::vector<bool> m_isKept;
    QHash<std::pair<int, int>, Widest> m_widest;
};

} // namespace

QString withWidestRows(const QString &xhtml, const StyleSheet &css, QPaintDevice &device)
{
    const XhtmlParts parts = splitXhtml(xhtml);
    const std::optional<PlainTable> table = readPlainTable(bodyOf(parts.tail));
    if (!table || table->rows.size() < leastRows) {
        return xhtml;
    }
    const CellRuler ruler(*table, css, device);
    if (!ruler.isValid(*table)) {
        return xhtml;
    }
    const QString body = table->before % WidestRows(*table, ruler).text() % table->after;
    return joinXhtml(parts, parts.css, body);
}
