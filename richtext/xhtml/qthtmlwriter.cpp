// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/qthtmlwriter.h"

#include "richtext/css/cssloads.h"
#include "richtext/css/stylesheet.h"
#include "richtext/xhtml/paragraphbreaker.h"
#include "richtext/xhtml/qtstylesheet.h"
#include "richtext/xhtml/tagscanner.h"
#include "richtext/xhtml/xhtmlparts.h"

#include <QStringBuilder>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <deque>
#include <vector>

namespace {

/// What browsers put around the contents of cells.
constexpr QLatin1String usualCellPadding(" cellpadding='1'");

/// What a row without paddings takes in pixels: a line in the smallest font and the space between rows.
constexpr double lowestRow = 4;

constexpr auto highlightColour = "#ffe08a";

QString highlightRule(const QString &selector)
{
    // All of it would be marked.
    if (selector.isEmpty() || selector == QLatin1String("body")) {
        return {};
    }
    return QStringLiteral("\n") + selector + QStringLiteral(" { background-color: ") +
           QLatin1String(highlightColour) + QStringLiteral("; }\n");
}

/// Keeps the lengths in the attributes of tags within the limits of the document.
class TagLengths final
{
public:
    explicit TagLengths(const LargestLengths &largest)
        : m_largest(largest)
    {
    }

    /// The tag's text is then one that lives as long as this.
    void limit(Tag &tag)
    {
        const bool isShort =
            std::none_of(tag.text.begin(), tag.text.end(), [](QChar c) { return c.isDigit(); });
        if (isShort && !mayBreakPage(tag.text)) {
            return;
        }
        replace(tag, u"style", [&](const QString &value) { return limitedStyle(value); });
        for (const QStringView name :
             {u"width", u"height", u"size", u"border", u"cellpadding", u"cellspacing"}) {
            replace(tag, name, [&](const QString &value) {
                const double length = value.toDouble();
                return length > m_largest.box && (length > LargestLengths().box || !isSpare(length))
                           ? QString::number(m_largest.box, 'f', 0)
                           : value;
            });
        }
    }

private:
    /// Escapes may hide anything.
    [[nodiscard]] static bool mayBreakPage(QStringView text)
    {
        return text.contains(u'\\') || text.contains(u"page-break", Qt::CaseInsensitive);
    }

    QString limitedStyle(const QString &style)
    {
        if (mayBreakPage(style) && !isSpare(LargestLengths().box)) {
            return {};
        }
        // The largest one that a style may have, above and below, with its paddings.
        constexpr double most = LargestLengths().font;
        constexpr int lengthsOfStyle = 6;
        const QString limited = css::withLengthsUpTo(style, std::min(m_largest.box, m_largest.font));
        return limited != style && isSpare(most * lengthsOfStyle)
                   ? css::withLengthsUpTo(style, std::min(most, m_largest.font))
                   : limited;
    }

    /// Few large lengths do no harm in a large document.
    bool isSpare(double length)
    {
        if (length > m_spare) {
            return false;
        }
        m_spare -= length;
        return true;
    }

    template<typename Change>
    void replace(Tag &tag, QStringView name, Change change)
    {
        const QStringView value = tag.attribute(name);
        const QString old = value.toString();
        const QString changed = value.isEmpty() ? old : change(old);
        if (changed != old) {
            const qsizetype at = value.data() - tag.text.data();
            m_texts.push_back(tag.text.first(at) % changed % tag.text.sliced(at + value.size()));
            tag.text = m_texts.back();
        }
    }

    LargestLengths m_largest;
    /// In pixels.
    double m_spare = 200'000;
    /// Of a deque the members stay where they are.
    std::deque<QString> m_texts;
};

/// Copies a body tag by tag and changes what QTextDocument would not show:
/// - Only table cells have paddings and borders. A paragraph with them hands them to its cell. One that
///   stands in no cell gets a table of one cell around it.
/// - Rows and tables have no margins above their first paragraph. A row gets an empty row before it. A
///   table gets a margin of its own.
/// - Only rows in the head of a table are repeated on every page, and a table has one head. For pages, each
///   section that begins with heading rows becomes a table, with the margin above its first paragraph.
/// It looks ahead with copies of the scanner, never back: what was written stays.
class BodyWriter final
{
public:
    BodyWriter(QStringView body, const QtStyleSheet &style, Medium medium)
        : m_tags(body)
        , m_style(style)
        , m_medium(medium)
        , m_lengths(style.largest())
    {
        m_result.reserve(body.size() + body.size() / 4);
    }

    QString write()
    {
        while (auto tag = m_tags.next()) {
            m_lengths.limit(*tag);
            m_paragraph.writeText(tag->textBefore);
            writeTag(*tag);
            if (!(tag->isEnd && tag->isParagraph())) {
                m_marginBelow = 0;
            }
        }
        m_result += m_tags.rest();
        return m_result;
    }

private:
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
            m_paragraph.writeTag(tag);
        }
    }

    void writeCell(const Tag &tag)
    {
        const auto content = m_tags.peek();
        m_isCellStart = content && content->isParagraph() && !content->isEnd;
        const QStringView name = m_isCellStart ? content->className() : QStringView();
        m_result += tag.text;
        if (m_style.hasBox(name)) {
            addClass(tag, name);
        }
        // QTextDocument knows widths as attributes only.
        if (const QStringView width = tag.styleWidth(); !width.isEmpty()) {
            addAttribute(u"width", width);
        }
    }

    /// To the tag that was written last, beside the classes that it has.
    void addClass(const Tag &tag, QStringView name)
    {
        if (!tag.hasClass()) {
            addAttribute(u"class", name);
            return;
        }
        const QStringView own = tag.className();
        const qsizetype behind = tag.text.data() + tag.text.size() - (own.data() + own.size());
        m_result.insert(m_result.size() - behind, QString(u' ' % name));
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

    /// The margin above the section's first paragraph, which its table gets.
    [[nodiscard]] double marginAboveSection() const
    {
        TagScanner row = m_tags;
        const auto spanned = row.next() ? row.spanningParagraph() : std::nullopt;
        return spanned ? m_style.marginAbove(spanned->className) : 0;
    }

    /// The margin is also that below the paragraph before the table, which QTextDocument drops.
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
            writeSpacingRow();
        }
        m_result += tag.text;
    }

    /// An empty row as high as the margin above the first paragraph of the row that follows.
    void writeSpacingRow()
    {
        const auto spanned = m_tags.spanningParagraph();
        const double margin = spanned ? m_style.marginAbove(spanned->className) : 0;
        if (margin > 0) {
            m_result += QStringLiteral("<tr><td colspan='") % spanned->columns %
                        QStringLiteral("' style='font-size:1pt; padding-bottom:0px; padding-top:") %
                        QString::number(std::max(margin - lowestRow, 0.0)) % QStringLiteral("px'></td></tr>");
        }
    }

    /// A paragraph with paddings or borders that stands in no cell gets a table of one.
    void writeParagraph(const Tag &tag)
    {
        if (tag.isEnd) {
            m_paragraph.end(tag);
            m_marginBelow = m_style.marginBelow(m_paragraphClass);
            if (m_isInOwnCell) {
                m_isInOwnCell = false;
                m_result += QStringLiteral("</td></tr></table>");
            }
            return;
        }
        const QStringView name = tag.className();
        m_paragraphClass = name;
        if (!m_isCellStart && !m_isInOwnCell && m_style.hasBox(name)) {
            m_isInOwnCell = true;
            m_result +=
                QStringLiteral("<table width='100%' cellspacing='0' cellpadding='0'><tr><td class='") % name %
                QStringLiteral("'>");
        }
        m_isCellStart = false;
        m_paragraph.start(tag);
    }

    TagScanner m_tags;
    const QtStyleSheet &m_style;
    Medium m_medium;
    TagLengths m_lengths;
    QString m_result;
    ParagraphBreaker m_paragraph{m_result};
    QStringView m_tableStart;
    QStringView m_paragraphClass;
    double m_marginBelow = 0;
    double m_marginAboveTable = 0;
    int m_sections = 0;
    bool m_hasCellPadding = false;
    bool m_isSplit = false;
    bool m_isInHead = false;
    bool m_isCellStart = false;
    bool m_isInOwnCell = false;
};

[[nodiscard]] bool hasTwoSizes(const QTextCharFormat &format)
{
    return format.fontPointSize() > 0 && format.hasProperty(QTextFormat::FontSizeAdjustment);
}

void dropRelativeSizes(const QTextBlock &block)
{
    std::vector<std::pair<int, int>> found;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        if (const QTextFragment part = at.fragment(); hasTwoSizes(part.charFormat())) {
            found.emplace_back(part.position(), part.position() + part.length());
        }
    }
    QTextCursor cursor(block);
    for (const auto &[start, end] : found) {
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        QTextCharFormat format = cursor.charFormat();
        format.clearProperty(QTextFormat::FontSizeAdjustment);
        cursor.setCharFormat(format);
    }
}

void dropRelativeSizesFrom(QTextBlock block)
{
    for (; block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0) {
            dropRelativeSizes(block);
        }
    }
}

/// Previews draw soft hyphens everywhere; the space without width that follows is enough to break a line.
QString breakableBody(const XhtmlParts &parts)
{
    return bodyOf(parts.tail).toString().replace(QStringLiteral("&shy;&#8203;"), QStringLiteral("&#8203;"));
}

} // namespace

QString toQtHtml(const QString &xhtml, const StyleSheet &css, Medium medium, const QString &highlighted)
{
    const XhtmlParts parts = splitXhtml(xhtml);
    const QString body = breakableBody(parts);
    const QtStyleSheet style(css, largestLengths(body));
    return joinXhtml(parts, style.text() + highlightRule(highlighted),
                     BodyWriter(body, style, medium).write());
}

QString toQtHtml(const QString &xhtml, const QtStyleSheet &style, Medium medium, const QString &highlighted)
{
    const XhtmlParts parts = splitXhtml(xhtml);
    return joinXhtml(parts, style.text() + highlightRule(highlighted),
                     BodyWriter(breakableBody(parts), style, medium).write());
}

void setQtHtml(QTextDocument &document, const QString &html)
{
    document.setHtml(html);
    dropRelativeSizesFrom(document.begin());
}

void appendQtHtml(QTextDocument &document, const QString &html)
{
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    const int place = cursor.position();
    cursor.beginEditBlock();
    cursor.insertHtml(html);
    dropRelativeSizesFrom(document.findBlock(place));
    cursor.endEditBlock();
}
