// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

class QTextBlock;
class QTextList;

/// The list tags between the blocks of a document.
class XhtmlLists final
{
public:
    /// The tags that come before a block: end tags for lists that it is not in, and its item's start tag.
    [[nodiscard]] QString startOf(const QTextBlock &block);
    /// The tags that end every open list.
    [[nodiscard]] QString closeAll();
    [[nodiscard]] bool isOpen() const { return !m_open.isEmpty(); }

private:
    struct Open
    {
        const QTextList *list;
        QString element;
        int indent;
    };

    [[nodiscard]] QString closeLast();
    [[nodiscard]] QString open(const QTextList &list);

    QList<Open> m_open;
};
