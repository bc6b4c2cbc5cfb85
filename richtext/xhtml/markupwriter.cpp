// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/markupwriter.h"

#include "richtext/xhtml/shownstyle.h"
#include "richtext/xhtml/tagscanner.h"

#include <QStringBuilder>

#include <algorithm>

namespace {

/// What browsers put around the contents of cells.
constexpr QLatin1String usualCellPadding(" cellpadding='1'");

/// What a row without paddings takes in pixels: a line in the smallest font and the space between rows.
constexpr double lowestRow = 4;

constexpr qsizetype longestParagraph = 4000;

/// Where a text can be cut, at `wanted` or a little behind it: not inside a character or an entity.
qsizetype breakPosition(QStringView text, qsizetype wanted)
{
    constexpr qsizetype longestEntity = 12;
    qsizetype position = std::min(wanted, text.size());
    const qsizetype start = text.first(position).lastIndexOf(u'&');
    const qsizetype end = start < 0 || position - start > longestEntity ? -1 : text.indexOf(u';', start);
    if (end >= position && end - start <= longestEntity) {
        position = end + 1;
    }
    const bool isInPair = position > 0 && position < text.size() && text[position].isLowSurrogate();
    return isInPair ? position + 1 : position;
}

/// Copies a body, changing what its tags say.
class MarkupWriter final
{
public:
    MarkupWriter(QStringView body, const ShownStyle &style, Medium medium)
        : m_tags(body)
        , m_style(style)
        , m_medium(medium)
    {
        m_result.reserve(body.size() + body.size() / 4);
    }

    QString rewrite()
    {
        while (const auto tag = m_tags.next()) {
            writeText(tag->textBefore);
            write(*tag);
        }
        m_result += m_tags.rest();
        return m_result;
    }

private:
    void write(const Tag &tag)
    {
        writeTag(tag);
        if (!(tag.isEnd && tag.isParagraph())) {
            m_marginBelow = 0;
        }
    }

    /// The time for laying out a paragraph grows with the square of its length: long ones become several.
    void writeText(QStringView text)
    {
        while (mayBreakParagraph() && m_paragraphLength + text.size() > longestParagraph) {
            const qsizetype part =
                breakPosition(text, std::max<qsizetype>(longestParagraph - m_paragraphLength, 0));
            if (part >= text.size()) {
                break;
            }
            m_result += text.first(part);
            text = text.sliced(part);
            breakParagraph();
        }
        m_result += text;
        m_paragraphLength += text.size();
    }

    /// Inside a paragraph, and in no element of it.
    [[nodiscard]] bool mayBreakParagraph() const { return !m_paragraphStart.isEmpty() && m_inlineDepth == 0; }

    void breakParagraph()
    {
        m_result += QStringLiteral("</p>") % m_paragraphStart;
        m_paragraphLength = 0;
    }

    /// Text inside a paragraph's elements, and its line breaks.
    void writeInline(const Tag &tag)
    {
        if (tag.is(u"br")) {
            if (mayBreakParagraph() && m_paragraphLength > longestParagraph) {
                breakParagraph();
            } else {
                m_result += tag.text;
            }
            return;
        }
        if (!tag.text.endsWith(u"/>")) {
            m_inlineDepth += tag.isEnd ? -1 : 1;
        }
        m_result += tag.text;
    }

    void writeTag(const Tag &tag)
    {
        if (tag.isCell() && !tag.isEnd) {
            writeCell(tag);
        } else if (tag.is(u"table")) {
            writeTable(tag);
        } else if (tag.is(u"tbody") && m_isSplit) {
            writeSection(tag);
        } else if (tag.is(u"tr") && !tag.isEnd) {
            writeRow(tag);
        } else if (tag.isParagraph()) {
            writeParagraph(tag);
        } else {
            writeInline(tag);
        }
    }

    void writeCell(const Tag &tag)
    {
        m_result += tag.text;
        const auto content = m_tags.peek();
        m_isCellStart = content && content->isParagraph() && !content->isEnd;
        const QStringView name = m_isCellStart ? content->className() : QStringView();
        if (m_style.isBoxed(name) && !tag.hasClass()) {
            addAttribute(u"class", name);
        }
        // QTextDocument knows widths as attributes only.
        if (const QStringView width = tag.styleWidth(); !width.isEmpty()) {
            addAttribute(u"width", width);
        }
    }

    /// To the tag that was written last.
    void addAttribute(QStringView name, QStringView value)
    {
        m_result.chop(1);
        m_result += u' ' % name % QStringLiteral("='") % value % QStringLiteral("'>");
    }

    void writeTable(const Tag &tag)
    {
        if (tag.isEnd) {
            m_isSplit = false;
            m_result += tag.text;
            return;
        }
        m_tableStart = tag.text;
        m_hasCellPadding = !tag.attribute(u"cellpadding").isEmpty();
        m_isSplit = m_medium == Medium::Pages && m_tags.hasHeadedSections();
        m_sections = 0;
        m_marginAboveTable = tag.textBefore.trimmed().isEmpty() ? m_marginBelow : 0;
        if (!m_isSplit) {
            writeTableStart(m_marginAboveTable);
        }
    }

    /// A section of a table becomes a table with its heading rows as head.
    void writeSection(const Tag &tag)
    {
        if (tag.isEnd) {
            closeHead();
            m_result += tag.text;
            return;
        }
        if (m_sections++ > 0) {
            m_result += QStringLiteral("</table>");
        }
        m_isInHead = m_tags.startsHeadingRow();
        writeTableStart(std::max(m_sections == 1 ? m_marginAboveTable : 0, marginAboveSection()));
        m_result += m_isInHead ? QStringView(u"<thead>") : tag.text;
    }

    /// The margin above the section's first paragraph is that of the table.
    [[nodiscard]] double marginAboveSection() const
    {
        TagScanner row = m_tags;
        const auto spanned = row.next() ? row.spanningParagraph() : std::nullopt;
        return spanned ? m_style.marginAbove(spanned->className) : 0;
    }

    /// Tables take the margin below the paragraph before, which QTextDocument drops.
    void writeTableStart(double margin)
    {
        m_result += m_tableStart.chopped(1);
        if (!m_hasCellPadding) {
            m_result += usualCellPadding;
        }
        if (margin > 0) {
            m_result +=
                QStringLiteral(" style='margin-top:") % QString::number(margin) % QStringLiteral("px'");
        }
        m_result += u'>';
    }

    void closeHead()
    {
        if (m_isInHead) {
            m_isInHead = false;
            m_result += QStringLiteral("</thead><tbody>");
        }
    }

    void writeRow(const Tag &tag)
    {
        if (m_isInHead && !m_tags.isBeforeHeadingCell()) {
            closeHead();
        }
        if (!m_isSplit) {
            writeSpace();
        }
        m_result += tag.text;
    }

    /// The margin above the first paragraph of a row, which cells do not have.
    void writeSpace()
    {
        const auto spanned = m_tags.spanningParagraph();
        const double margin = spanned ? m_style.marginAbove(spanned->className) : 0;
        if (margin > 0) {
            m_result += QStringLiteral("<tr><td colspan='") % spanned->columns %
                        QStringLiteral("' style='font-size:1pt; padding-bottom:0px; padding-top:") %
                        QString::number(std::max(margin - lowestRow, 0.0)) % QStringLiteral("px'></td></tr>");
        }
    }

    /// A paragraph with a box that stands in no cell gets one.
    void writeParagraph(const Tag &tag)
    {
        if (tag.isEnd) {
            m_result += tag.text;
            m_paragraphStart = {};
            m_marginBelow = m_style.marginBelow(m_paragraphClass);
            if (m_isBoxOpen) {
                m_isBoxOpen = false;
                m_result += QStringLiteral("</td></tr></table>");
            }
            return;
        }
        const QStringView name = tag.className();
        m_paragraphClass = name;
        if (!m_isCellStart && !m_isBoxOpen && m_style.isBoxed(name)) {
            m_isBoxOpen = true;
            m_result +=
                QStringLiteral("<table width='100%' cellspacing='0' cellpadding='0'><tr><td class='") % name %
                QStringLiteral("'>");
        }
        m_isCellStart = false;
        m_paragraphStart = tag.is(u"p") ? tag.text : QStringView();
        m_paragraphLength = 0;
        m_inlineDepth = 0;
        m_result += tag.text;
    }

    TagScanner m_tags;
    const ShownStyle &m_style;
    Medium m_medium;
    QString m_result;
    QStringView m_tableStart;
    QStringView m_paragraphClass;
    /// The tag of the paragraph that is open.
    QStringView m_paragraphStart;
    qsizetype m_paragraphLength = 0;
    int m_inlineDepth = 0;
    double m_marginBelow = 0;
    double m_marginAboveTable = 0;
    int m_sections = 0;
    bool m_hasCellPadding = false;
    bool m_isSplit = false;
    bool m_isInHead = false;
    bool m_isCellStart = false;
    bool m_isBoxOpen = false;
};

} // namespace

QString markupFor(Medium medium, QStringView body, const ShownStyle &style)
{
    return MarkupWriter(body, style, medium).rewrite();
}
