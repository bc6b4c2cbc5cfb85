// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textcommands.h"

#include "richtext/xhtml/qtstylesheet.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextImageFormat>
#include <QTextList>

#include <algorithm>

namespace {

constexpr double indentWidth = 40;

/// One step for undo while it lives.
class EditBlock final
{
public:
    explicit EditBlock(const QTextCursor &cursor)
        : m_cursor(cursor)
    {
        m_cursor.beginEditBlock();
    }
    EditBlock(const EditBlock &) = delete;
    EditBlock &operator=(const EditBlock &) = delete;
    ~EditBlock() { m_cursor.endEditBlock(); }

private:
    QTextCursor m_cursor;
};

QList<QTextBlock> selectedBlocks(const QTextEdit &edit)
{
    const QTextCursor cursor = edit.textCursor();
    QList<QTextBlock> blocks;
    QTextBlock block = edit.document()->findBlock(cursor.selectionStart());
    const QTextBlock last = edit.document()->findBlock(cursor.selectionEnd());
    while (block.isValid()) {
        blocks.append(block);
        if (block == last) {
            break;
        }
        block = block.next();
    }
    return blocks;
}

/// Headings have a size relative to the document's, which would win over any other.
void clearRelativeSizes(const QTextEdit &edit)
{
    const QTextCursor selection = edit.textCursor();
    for (const QTextBlock &block : selectedBlocks(edit)) {
        QList<QTextCursor> found;
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextFragment part = at.fragment();
            const int start = std::max(part.position(), selection.selectionStart());
            const int end = std::min(part.position() + part.length(), selection.selectionEnd());
            if (start < end && part.charFormat().hasProperty(QTextFormat::FontSizeAdjustment)) {
                QTextCursor cursor(block);
                cursor.setPosition(start);
                cursor.setPosition(end, QTextCursor::KeepAnchor);
                found.append(cursor);
            }
        }
        for (QTextCursor &cursor : found) {
            QTextCharFormat format = cursor.charFormat();
            format.clearProperty(QTextFormat::FontSizeAdjustment);
            cursor.setCharFormat(format);
        }
    }
}

void leaveList(const QTextBlock &block)
{
    block.textList()->remove(block);
    QTextBlockFormat format = block.blockFormat();
    format.setIndent(0);
    QTextCursor(block).setBlockFormat(format);
}

void moveItem(const QTextBlock &block, int steps)
{
    QTextListFormat format = block.textList()->format();
    format.setIndent(format.indent() + steps);
    if (format.indent() < 1) {
        leaveList(block);
        return;
    }
    // The item joins the list of its new level that it continues, so that numbers go on.
    for (QTextBlock above = block.previous(); above.isValid() && above.textList() != nullptr;
         above = above.previous()) {
        const QTextListFormat other = above.textList()->format();
        if (other.indent() == format.indent()) {
            above.textList()->add(block);
            return;
        }
        if (other.indent() < format.indent()) {
            break;
        }
    }
    QTextCursor(block).createList(format);
}

void moveParagraph(const QTextBlock &block, int steps)
{
    QTextBlockFormat format = block.blockFormat();
    format.setLeftMargin(std::max(0.0, format.leftMargin() + (format.indent() + steps) * indentWidth));
    format.setIndent(0);
    QTextCursor(block).setBlockFormat(format);
}

} // namespace

void setFontSize(QTextEdit &edit, double points)
{
    const EditBlock step(edit.textCursor());
    clearRelativeSizes(edit);
    QTextCharFormat format = edit.currentCharFormat();
    if (!edit.textCursor().hasSelection() && format.hasProperty(QTextFormat::FontSizeAdjustment)) {
        format.clearProperty(QTextFormat::FontSizeAdjustment);
        edit.setCurrentCharFormat(format);
    }
    QTextCharFormat size;
    size.setFontPointSize(points);
    edit.mergeCurrentCharFormat(size);
}

void toggleList(QTextEdit &edit, QTextListFormat::Style style)
{
    const EditBlock step(edit.textCursor());
    const QList<QTextBlock> blocks = selectedBlocks(edit);
    const bool areAllIn = std::all_of(blocks.begin(), blocks.end(), [&](const QTextBlock &block) {
        return block.textList() != nullptr && block.textList()->format().style() == style;
    });
    if (areAllIn) {
        std::for_each(blocks.begin(), blocks.end(), leaveList);
        return;
    }
    QTextListFormat format;
    if (const QTextList *list = edit.textCursor().currentList()) {
        format = list->format();
    } else {
        format.setIndent(1);
    }
    format.setStyle(style);
    edit.textCursor().createList(format);
}

void changeIndent(QTextEdit &edit, int steps)
{
    const EditBlock step(edit.textCursor());
    for (const QTextBlock &block : selectedBlocks(edit)) {
        if (block.textList() != nullptr) {
            moveItem(block, steps);
        } else {
            moveParagraph(block, steps);
        }
    }
}

QTextCursor linkAtCursor(const QTextEdit &edit)
{
    const QTextCursor cursor = edit.textCursor();
    const QTextBlock block = cursor.document()->findBlock(cursor.selectionStart());
    int start = -1;
    int end = -1;
    QString address;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextFragment part = at.fragment();
        const QString href = part.charFormat().isAnchor() ? part.charFormat().anchorHref() : QString();
        const bool continues = !href.isEmpty() && href == address && part.position() == end;
        if (!continues) {
            if (start >= 0 && start <= cursor.selectionStart() && end >= cursor.selectionEnd()) {
                break;
            }
            start = href.isEmpty() ? -1 : part.position();
            address = href;
        }
        end = part.position() + part.length();
    }
    QTextCursor link = cursor;
    if (start >= 0 && start <= cursor.selectionStart() && end >= cursor.selectionEnd()) {
        link.setPosition(start);
        link.setPosition(end, QTextCursor::KeepAnchor);
    }
    return link;
}

void setLink(QTextEdit &edit, QTextCursor where, const QString &text, const QString &address)
{
    const EditBlock step(where);
    QTextCharFormat format = where.charFormat();
    QTextCharFormat after = format;
    for (QTextCharFormat *plain : {&format, &after}) {
        if (plain->isAnchor()) {
            plain->clearProperty(QTextFormat::IsAnchor);
            plain->clearProperty(QTextFormat::AnchorHref);
            plain->clearForeground();
            plain->clearProperty(QTextFormat::TextUnderlineStyle);
            plain->clearProperty(QTextFormat::FontUnderline);
        }
    }
    if (!address.isEmpty()) {
        format.setAnchor(true);
        format.setAnchorHref(address);
        // As readers of the text show links.
        format.setForeground(usualLinkColor());
        format.setFontUnderline(true);
    }
    where.insertText(text, format);
    edit.setTextCursor(where);
    edit.setCurrentCharFormat(after);
}

void insertImage(QTextEdit &edit, const QString &source, const QSize &size, int widest)
{
    QTextImageFormat image;
    image.setName(source);
    const QSize shown =
        size.width() > widest ? size.scaled(widest, size.height(), Qt::KeepAspectRatio) : size;
    image.setWidth(shown.width());
    image.setHeight(shown.height());
    edit.textCursor().insertImage(image);
}
