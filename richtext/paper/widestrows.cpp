// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/widestrows.h"

#include "richtext/paper/plaintable.h"
#include "richtext/paper/strip.h"
#include "richtext/paper/textruler.h"
#include "richtext/xhtml/selfcontaineddocument.h"
#include "richtext/xhtml/xhtmlparts.h"

#include <QStringBuilder>
#include <QTextBlock>
#include <QTextDocument>

#include <optional>
#include <vector>

namespace {

/// Shorter tables are laid out faster than measured.
constexpr size_t leastRows = 300;

/// Measures the texts of a table's cells as QTextDocument would.
class CellRuler final
{
public:
    CellRuler(const PlainTable &table, const StyleSheet &css, QPaintDevice &device)
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
                const QFont font = block.begin().fragment().charFormat().font();
                m_rulers.emplace_back(QFont(font, &device), device);
            }
        }
    }

    /// Whether the look of every kind was found.
    [[nodiscard]] bool isValid(const PlainTable &table) const
    {
        return m_rulers.size() == size_t(table.kinds.size());
    }

    /// Whether a cell may need more than that.
    [[nodiscard]] bool mayNeedMore(const PlainCell &cell, const TextNeeds &known)
    {
        const std::optional<TextNeeds> bound = m_rulers[size_t(cell.kind)].bound(cell.content);
        return !bound || !bound->isWithin(known);
    }

    [[nodiscard]] TextNeeds measure(const QString &text, int kind) const
    {
        return m_rulers[size_t(kind)].measure(text, m_option);
    }

private:
    QTextOption m_option;
    std::vector<TextRuler> m_rulers;
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
                m_isKept[found.rowOfLetter] = true;
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
        TextNeeds needs{-1, -1, -1};
        size_t rowOfLetter = 0;
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
        const TextNeeds needs = m_ruler.measure(*text, cell.kind);
        if (needs.letter > widest.needs.letter) {
            widest.needs.letter = needs.letter;
            widest.rowOfLetter = row;
        }
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
