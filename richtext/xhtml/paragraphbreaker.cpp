// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/paragraphbreaker.h"

#include <QStringBuilder>

#include <algorithm>

namespace {

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
