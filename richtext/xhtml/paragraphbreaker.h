// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/xhtml/tagscanner.h"

/// Writes the content of paragraphs and breaks one that grows long into several of the same class: the time
/// for laying out a paragraph grows with the square of its length, and a list of thousands of references is
/// one.
class ParagraphBreaker final
{
public:
    /// Appends to `result`, which must outlive it.
    explicit ParagraphBreaker(QString &result)
        : m_result(result)
    {
    }

    /// The start tag of a paragraph or heading. Headings are not broken.
    void start(const Tag &tag);
    void end(const Tag &tag);
    void writeText(QStringView text);
    /// A line break, or a tag of an element inside the paragraph.
    void writeTag(const Tag &tag);

private:
    [[nodiscard]] bool canBreak() const { return !m_startTag.isEmpty() && m_elementDepth == 0; }
    void breakParagraph();

    QString &m_result;
    /// Empty outside of paragraphs.
    QStringView m_startTag;
    qsizetype m_length = 0;
    /// Inside an element a break would cut that in two.
    int m_elementDepth = 0;
};
