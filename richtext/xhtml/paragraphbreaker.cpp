// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/paragraphbreaker.h"

#include <QStringBuilder>

#include <algorithm>

namespace {

constexpr qsizetype longestParagraph = 4000;
constexpr qsizetype longestWord = 20'000;

bool isBreakable(QChar c)
{
    return c == QChar(0x200B) || (c.isSpace() && c != QChar(QChar::Nbsp));
}

/// Whether a line may end before that place of a markup text: behind a blank or a space without width.
/// Elsewhere a reference or a value would be cut in two.
bool isBreakBefore(QStringView text, qsizetype position)
{
    return isBreakable(text[position - 1]) || text.first(position).endsWith(u"&#8203;");
}

/// The nearest place at `position` or before it that is not inside a character or an entity.
qsizetype betweenCharacters(QStringView text, qsizetype position)
{
    constexpr qsizetype longestEntity = 10;
    const qsizetype from = std::max<qsizetype>(position - longestEntity, 1);
    const qsizetype entity = text.first(position).lastIndexOf(u'&');
    if (entity >= from && !text.sliced(entity, position - entity).contains(u';')) {
        return entity;
    }
    return text[position].isLowSurrogate() ? position - 1 : position;
}

/// Where a text can be cut, at `wanted` or as near before it as possible, else behind it; its size when
/// nowhere.
qsizetype breakPosition(QStringView text, qsizetype wanted)
{
    for (qsizetype position = std::min(wanted, text.size()); position > 0; --position) {
        if (isBreakBefore(text, position)) {
            return position;
        }
    }
    // No name is as long as this, and a line without end would take as long to lay out.
    const qsizetype last = std::min(wanted + longestWord, text.size());
    qsizetype position = wanted + 1;
    while (position < last && !isBreakBefore(text, position)) {
        ++position;
    }
    return position < last || last == text.size() ? std::min(position, text.size())
                                                  : betweenCharacters(text, last);
}

} // namespace

void ParagraphBreaker::start(const Tag &tag)
{
    m_startTag = tag.is(u"p") ? tag.text : QStringView();
    m_length = 0;
    m_elementDepth = 0;
    m_result += tag.text;
}

void ParagraphBreaker::end(const Tag &tag)
{
    m_result += tag.text;
    m_startTag = {};
}

void ParagraphBreaker::writeText(QStringView text)
{
    while (canBreak() && m_length + text.size() > longestParagraph) {
        const qsizetype part = breakPosition(text, std::max<qsizetype>(longestParagraph - m_length, 0));
        if (part >= text.size()) {
            break;
        }
        m_result += text.first(part);
        text = text.sliced(part);
        breakParagraph();
    }
    m_result += text;
    m_length += text.size();
}

void ParagraphBreaker::writeTag(const Tag &tag)
{
    if (tag.is(u"br")) {
        if (canBreak() && m_length > longestParagraph) {
            breakParagraph();
        } else {
            m_result += tag.text;
        }
        return;
    }
    if (!tag.text.endsWith(u"/>")) {
        m_elementDepth += tag.isEnd ? -1 : 1;
    }
    m_result += tag.text;
}

void ParagraphBreaker::breakParagraph()
{
    m_result += QStringLiteral("</p>") % m_startTag;
    m_length = 0;
}
