// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/shownmarkup.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <vector>

namespace {

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

} // namespace

void showMarkup(QTextDocument &document, const QString &markup)
{
    document.setHtml(markup);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0) {
            dropRelativeSizes(block);
        }
    }
}
