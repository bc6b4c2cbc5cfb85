// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/xhtmllists.h"

#include <QTextBlock>
#include <QTextList>
#include <QTextListFormat>

namespace {

struct ListKind
{
    QTextListFormat::Style style;
    const char *name;
};

constexpr ListKind kinds[]{
    {QTextListFormat::ListDisc, "disc"},
    {QTextListFormat::ListCircle, "circle"},
    {QTextListFormat::ListSquare, "square"},
    {QTextListFormat::ListDecimal, "decimal"},
    {QTextListFormat::ListLowerAlpha, "lower-alpha"},
    {QTextListFormat::ListUpperAlpha, "upper-alpha"},
    {QTextListFormat::ListLowerRoman, "lower-roman"},
    {QTextListFormat::ListUpperRoman, "upper-roman"},
};

QString kindName(QTextListFormat::Style style)
{
    for (const ListKind &kind : kinds) {
        if (kind.style == style) {
            return QLatin1String(kind.name);
        }
    }
    return QStringLiteral("disc");
}

bool isNumbered(QTextListFormat::Style style)
{
    return style <= QTextListFormat::ListDecimal && style >= QTextListFormat::ListUpperRoman;
}

} // namespace

QString XhtmlLists::closeLast()
{
    const QString tags = QStringLiteral("</li></") + m_open.takeLast().element + QStringLiteral(">");
    return m_open.isEmpty() ? tags + QStringLiteral("\n") : tags;
}

QString XhtmlLists::closeAll()
{
    QString tags;
    while (!m_open.isEmpty()) {
        tags += closeLast();
    }
    return tags;
}

QString XhtmlLists::open(const QTextList &list)
{
    const QTextListFormat format = list.format();
    const int natural = int(m_open.size()) + 1;
    const QString element = isNumbered(format.style()) ? QStringLiteral("ol") : QStringLiteral("ul");
    QString style = QStringLiteral("margin-top:0px; margin-bottom:0px; list-style-type:") +
                    kindName(format.style()) + QStringLiteral(";");
    if (format.indent() != natural) {
        style += QStringLiteral(" -qt-list-indent:") + QString::number(format.indent()) + QStringLiteral(";");
    }
    m_open.append({&list, element, format.indent()});
    return QStringLiteral("<") + element + QStringLiteral(" style=\"") + style + QStringLiteral("\"><li>");
}

QString XhtmlLists::startOf(const QTextBlock &block)
{
    const QTextList *list = block.textList();
    if (list == nullptr) {
        return closeAll();
    }
    const int indent = list->format().indent();
    QString tags;
    while (!m_open.isEmpty() && m_open.last().list != list && m_open.last().indent >= indent) {
        tags += closeLast();
    }
    if (!m_open.isEmpty() && m_open.last().list == list) {
        return tags + QStringLiteral("</li><li>");
    }
    return tags + open(*list);
}
