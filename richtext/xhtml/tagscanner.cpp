// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/tagscanner.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

bool isNameCharacter(QChar c)
{
    return c.isLetterOrNumber() || c == u'-' || c == u':';
}

/// Behind the bracket that closes the tag at `start`, or -1.
qsizetype tagEnd(QStringView text, qsizetype start)
{
    QChar quote;
    for (qsizetype i = start; i < text.size(); ++i) {
        const QChar c = text[i];
        if (!quote.isNull()) {
            quote = c == quote ? QChar() : quote;
        } else if (c == u'"' || c == u'\'') {
            quote = c;
        } else if (c == u'>') {
            return i + 1;
        }
    }
    return -1;
}

/// Behind the comment, declaration or stray bracket at `start`; `start` itself when a tag stands there.
qsizetype behindNoTag(QStringView text, qsizetype start)
{
    if (text.sliced(start).startsWith(u"<!--")) {
        const qsizetype end = text.indexOf(u"-->", start);
        return end < 0 ? text.size() : end + 3;
    }
    const qsizetype first = start + 1;
    const bool isTag = first < text.size() && (text[first].isLetter() || text[first] == u'/');
    return isTag ? start : first;
}

} // namespace

bool Tag::isParagraph() const
{
    return is(u"p") ||
           (name.size() == 2 && (name[0] == u'h' || name[0] == u'H') && name[1] >= u'1' && name[1] <= u'6');
}

QStringView Tag::attribute(QStringView wanted) const
{
    for (qsizetype at = text.indexOf(wanted); at >= 0; at = text.indexOf(wanted, at + 1)) {
        const qsizetype equals = at + wanted.size();
        const bool isWhole = at > 0 && text[at - 1].isSpace() && equals + 1 < text.size();
        if (!isWhole || text[equals] != u'=') {
            continue;
        }
        const QChar quote = text[equals + 1];
        const qsizetype end = text.indexOf(quote, equals + 2);
        if ((quote == u'"' || quote == u'\'') && end >= 0) {
            return text.sliced(equals + 2, end - equals - 2);
        }
    }
    return {};
}

QStringView Tag::styleWidth() const
{
    static const QRegularExpression width(QStringLiteral("(?:^|;)\\s*width\\s*:\\s*([0-9]+(?:\\.[0-9]+)?%)"));
    const QStringView style = attribute(u"style");
    return style.isEmpty() ? QStringView() : width.match(style).capturedView(1);
}

std::optional<Tag> TagScanner::next()
{
    qsizetype start = m_text.indexOf(u'<', m_position);
    while (start >= 0) {
        const qsizetype behind = behindNoTag(m_text, start);
        if (behind == start) {
            break;
        }
        start = m_text.indexOf(u'<', behind);
    }
    const qsizetype end = start < 0 ? -1 : tagEnd(m_text, start);
    if (end < 0) {
        return std::nullopt;
    }
    Tag tag;
    tag.textBefore = m_text.sliced(m_position, start - m_position);
    tag.text = m_text.sliced(start, end - start);
    tag.isEnd = tag.text[1] == u'/';
    const qsizetype nameStart = tag.isEnd ? 2 : 1;
    const auto nameEnd = std::find_if_not(tag.text.begin() + nameStart, tag.text.end(), isNameCharacter);
    tag.name = tag.text.sliced(nameStart, nameEnd - tag.text.begin() - nameStart);
    m_position = end;
    return tag;
}

std::optional<Tag> TagScanner::peek() const
{
    const auto firstMark =
        std::find_if_not(m_text.begin() + m_position, m_text.end(), [](QChar c) { return c.isSpace(); });
    if (firstMark == m_text.end() || *firstMark != u'<') {
        return std::nullopt;
    }
    TagScanner ahead = *this;
    const auto tag = ahead.next();
    return tag && tag->textBefore.trimmed().isEmpty() ? tag : std::nullopt;
}

bool TagScanner::hasHeadedSections() const
{
    TagScanner ahead = *this;
    bool hasHeading = false;
    while (const auto tag = ahead.next()) {
        if (tag->is(u"table")) {
            return tag->isEnd && hasHeading;
        }
        hasHeading = hasHeading || (tag->is(u"tbody") && !tag->isEnd && ahead.startsHeadingRow());
    }
    return false;
}

bool TagScanner::startsHeadingRow() const
{
    TagScanner ahead = *this;
    const auto row = ahead.peek();
    return row && row->is(u"tr") && !row->isEnd && ahead.next() && ahead.isBeforeHeadingCell();
}

bool TagScanner::isBeforeHeadingCell() const
{
    const auto cell = peek();
    return cell && cell->is(u"th") && !cell->isEnd;
}

std::optional<TagScanner::SpanningParagraph> TagScanner::spanningParagraph() const
{
    TagScanner ahead = *this;
    const auto cell = ahead.peek();
    if (!cell || !cell->isCell() || cell->isEnd || cell->attribute(u"colspan").isEmpty() || !ahead.next()) {
        return std::nullopt;
    }
    const auto paragraph = ahead.peek();
    if (!paragraph || !paragraph->isParagraph() || paragraph->isEnd) {
        return std::nullopt;
    }
    return SpanningParagraph{paragraph->className(), cell->attribute(u"colspan")};
}
