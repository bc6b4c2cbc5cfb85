// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/xhtmlwriter.h"

#include "richtext/css/cssvalue.h"
#include "richtext/xhtml/xhtmllists.h"
#include "richtext/xhtml/xhtmlruns.h"
#include "richtext/xhtml/xmltext.h"

#include <QHash>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

namespace {

/// What elements look like under the style sheets of a document.
class UsualLooks final
{
public:
    UsualLooks(const QTextDocument &document, const QString &css)
        : m_css(document.defaultStyleSheet() + QStringLiteral("\n") + css)
        , m_font(document.defaultFont())
    {
    }

    const UsualLook &of(const QString &element, const QString &attributes)
    {
        const auto known = m_looks.constFind(element);
        if (known != m_looks.constEnd()) {
            return *known;
        }
        const QString start = QStringLiteral("<html><body><") + element + attributes + QStringLiteral(">");
        const QString end = QStringLiteral("</") + element + QStringLiteral("></body></html>");
        QTextDocument sample;
        sample.setDefaultStyleSheet(m_css);
        sample.setDefaultFont(m_font);
        sample.setHtml(start + QStringLiteral("x") + end);
        UsualLook look{
            sample.begin().blockFormat(), sample.begin().begin().fragment().charFormat(), {}, m_font};
        sample.setHtml(start + QStringLiteral("<a href=\"x\">x</a>") + end);
        look.link = sample.begin().begin().fragment().charFormat();
        return *m_looks.insert(element, look);
    }

private:
    QString m_css;
    QFont m_font;
    QHash<QString, UsualLook> m_looks;
};

class Writer final
{
public:
    Writer(const QTextDocument &document, const QString &paragraphClass, const QString &css)
        : m_looks(document, css)
        , m_class(xmlAttribute(QStringLiteral("class"), paragraphClass))
    {
    }

    QString write(const QTextDocument &document)
    {
        const QTextFrame *root = document.rootFrame();
        writeContent(root->begin(), root->end(), {});
        return m_result;
    }

private:
    void writeContent(QTextFrame::iterator at, const QTextFrame::iterator &end, const Surroundings &cell)
    {
        XhtmlLists outer;
        std::swap(outer, m_lists);
        const qsizetype start = m_result.size();
        bool isFirst = true;
        bool isAfterTable = false;
        while (at != end) {
            QTextFrame::iterator next = at;
            ++next;
            const bool isBeforeTable = next != end && next.currentFrame() != nullptr;
            if (QTextFrame *frame = at.currentFrame()) {
                m_result += m_lists.closeAll();
                writeFrame(frame, cell);
            } else if (!isTableNeighbour(at.currentBlock(), isAfterTable || (isFirst && isBeforeTable))) {
                writeBlock(at.currentBlock(), cell);
            }
            isAfterTable = at.currentFrame() != nullptr;
            isFirst = false;
            at = next;
        }
        m_result += m_lists.closeAll();
        // A line feed before an end tag would be read as a blank.
        while (m_result.size() > start && m_result.endsWith(u'\n')) {
            m_result.chop(1);
        }
        std::swap(outer, m_lists);
    }

    /// QTextDocument has an empty block before and after every table; it adds them again when it reads the
    /// XHTML.
    static bool isTableNeighbour(const QTextBlock &block, bool isBeside)
    {
        return isBeside && block.length() == 1;
    }

    void writeFrame(QTextFrame *frame, const Surroundings &cell)
    {
        if (auto *table = qobject_cast<QTextTable *>(frame); table != nullptr && !isBox(*table)) {
            writeTable(*table);
        } else {
            writeContent(frame->begin(), frame->end(), cell);
            m_result += QStringLiteral("\n");
        }
    }

    /// Whether a table is only there to show a paragraph's padding or border, which its class says.
    bool isBox(const QTextTable &table)
    {
        const QTextTableFormat format = table.format();
        const bool isPlain = table.rows() == 1 && table.columns() == 1 && format.border() == 0 &&
                             format.cellSpacing() == 0 && format.cellPadding() == 0 &&
                             format.width() == QTextLength(QTextLength::PercentageLength, 100);
        if (!isPlain || m_class.isEmpty()) {
            return false;
        }
        const QBrush background = backgroundOf(table.cellAt(0, 0));
        return !isVisible(background) ||
               background == m_looks.of(QStringLiteral("p"), m_class).block.background();
    }

    void writeBlock(const QTextBlock &block, const Surroundings &cell)
    {
        const QTextBlockFormat format = block.blockFormat();
        if (format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth)) {
            m_result += m_lists.closeAll() + QStringLiteral("<hr />\n");
            return;
        }
        m_result += m_lists.startOf(block);
        const int level = qBound(0, format.headingLevel(), 6);
        const QString element =
            level > 0 ? QStringLiteral("h") + QString::number(level) : QStringLiteral("p");
        writeParagraph(block, element, level > 0 ? QString() : m_class, cell);
        m_result += m_lists.isOpen() ? QString() : QStringLiteral("\n");
    }

    static bool isFirstOfCell(const QTextBlock &block)
    {
        const QTextTable *table = QTextCursor(block).currentTable();
        return table != nullptr &&
               table->cellAt(block.position()).firstCursorPosition().position() == block.position();
    }

    void writeParagraph(const QTextBlock &block, const QString &element, const QString &attributes,
                        const Surroundings &cell)
    {
        const QTextBlockFormat format = block.blockFormat();
        const UsualLook &usual = m_looks.of(element, attributes);
        const bool isColoured = isVisible(format.background());
        QString style = blockStyle(format, usual, cell);
        QString text = xhtmlRuns(block, usual, isColoured ? Surroundings{format.background()} : cell);
        if (text.isEmpty() && (block.textList() != nullptr || isFirstOfCell(block))) {
            // An empty paragraph there would be read as a second one.
            text = QStringLiteral("&#160;");
        } else if (text.isEmpty()) {
            style = (QStringLiteral("-qt-paragraph-type:empty; ") + style).trimmed();
            text = QStringLiteral("<br />");
        }
        // Some readers know this value only as an attribute.
        const bool isJustified = style.contains(QLatin1String("text-align:justify"));
        m_result += QStringLiteral("<") + element + attributes +
                    (isJustified ? QStringLiteral(" align=\"justify\"") : QString()) +
                    xmlAttribute(QStringLiteral("style"), style) + QStringLiteral(">") + text +
                    QStringLiteral("</") + element + QStringLiteral(">");
    }

    static QString length(const QTextLength &length)
    {
        switch (length.type()) {
        case QTextLength::PercentageLength:
            return css::numberText(length.rawValue()) + QStringLiteral("%");
        case QTextLength::FixedLength:
            return QString::number(qRound(length.rawValue()));
        default:
            return {};
        }
    }

    static QString tableAttributes(const QTextTableFormat &format)
    {
        const auto number = [](double value) { return QString::number(qRound(value)); };
        QString alignment;
        if (format.alignment() & Qt::AlignHCenter) {
            alignment = QStringLiteral("center");
        } else if (format.alignment() & Qt::AlignRight) {
            alignment = QStringLiteral("right");
        }
        return xmlAttribute(QStringLiteral("border"), number(format.border())) +
               xmlAttribute(QStringLiteral("cellspacing"), number(format.cellSpacing())) +
               xmlAttribute(QStringLiteral("cellpadding"), number(format.cellPadding())) +
               xmlAttribute(QStringLiteral("width"), length(format.width())) +
               xmlAttribute(QStringLiteral("align"), alignment);
    }

    void writeTable(const QTextTable &table)
    {
        m_result += QStringLiteral("<table") + tableAttributes(table.format()) + QStringLiteral(">\n");
        for (int row = 0; row < table.rows(); ++row) {
            m_result += QStringLiteral("<tr>");
            for (int column = 0; column < table.columns(); ++column) {
                const QTextTableCell cell = table.cellAt(row, column);
                if (cell.row() == row && cell.column() == column) {
                    writeCell(table, cell);
                }
            }
            m_result += QStringLiteral("</tr>\n");
        }
        m_result += QStringLiteral("</table>\n");
    }

    /// Readers give a cell the background of its first paragraph.
    static QBrush backgroundOf(const QTextTableCell &cell)
    {
        const QBrush first = cell.firstCursorPosition().blockFormat().background();
        return isVisible(first) ? first : cell.format().background();
    }

    static QString cellAttributes(const QTextTable &table, const QTextTableCell &cell)
    {
        const auto span = [](int count) { return count > 1 ? QString::number(count) : QString(); };
        const auto widths = table.format().columnWidthConstraints();
        const bool hasWidth = cell.columnSpan() == 1 && cell.column() < widths.size();
        const QBrush background = backgroundOf(cell);
        return xmlAttribute(QStringLiteral("colspan"), span(cell.columnSpan())) +
               xmlAttribute(QStringLiteral("rowspan"), span(cell.rowSpan())) +
               xmlAttribute(QStringLiteral("width"), hasWidth ? length(widths[cell.column()]) : QString()) +
               xmlAttribute(QStringLiteral("style"),
                            isVisible(background)
                                ? QStringLiteral("background-color:") + cssColour(background.color())
                                : QString());
    }

    void writeCell(const QTextTable &table, const QTextTableCell &cell)
    {
        m_result += QStringLiteral("<td") + cellAttributes(table, cell) + QStringLiteral(">");
        const bool isEmpty = cell.firstCursorPosition() == cell.lastCursorPosition();
        if (!isEmpty) {
            writeContent(cell.begin(), cell.end(), {backgroundOf(cell)});
        }
        m_result += QStringLiteral("</td>");
    }

    UsualLooks m_looks;
    QString m_class;
    XhtmlLists m_lists;
    QString m_result;
};

} // namespace

QString toXhtml(const QTextDocument &document, const QString &paragraphClass, const QString &css)
{
    return Writer(document, paragraphClass, css).write(document);
}
