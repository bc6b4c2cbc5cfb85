// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/xhtmlwriter.h"
#include "richtext/xhtml/xmltext.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <QXmlStreamReader>

namespace {

const QString sheet =
    QStringLiteral("p.Note { font-size: 12pt; color: #000099 } a { text-decoration: underline }");

QString written(const QTextDocument &document)
{
    return xhtmlBody(document, QStringLiteral("Note"), sheet);
}

QString rewritten(const QString &body)
{
    QTextDocument document;
    document.setDefaultStyleSheet(sheet);
    document.setHtml(body);
    return written(document);
}

/// The text with what HTML cannot tell apart made one.
QString comparable(const QTextDocument &document)
{
    QString text = document.toRawText();
    text.replace(QStringLiteral("\uFDD1\u2029"), QStringLiteral("\uFDD1"));
    text.replace(u'\t', QStringLiteral("        "));
    text.replace(QChar(QChar::Nbsp), u' ');
    static const QRegularExpression emptyLine(
        QStringLiteral("(^|[\u2029\uFDD0\uFDD1]) (?=[\u2029\uFDD0\uFDD1]|$)"));
    text.replace(emptyLine, QStringLiteral("\\1"));
    return xmlText(text);
}

void expectWellFormed(const QString &body)
{
    QXmlStreamReader reader(QLatin1String("<body>") + body + QLatin1String("</body>"));
    while (!reader.atEnd()) {
        reader.readNext();
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString()) << "\n" << qPrintable(body);
}

/// Writes, loads, writes: the texts are the same, and so is what the reader of the document sees.
void expectLasting(const QTextDocument &document)
{
    const QString body = written(document);
    expectWellFormed(body);
    QTextDocument copy;
    copy.setDefaultStyleSheet(sheet);
    copy.setHtml(body);
    EXPECT_EQ(comparable(copy), comparable(document)) << qPrintable(body);
    EXPECT_EQ(written(copy), body);
}

class Author final
{
public:
    Author(QTextDocument &document, quint32 seed)
        : m_cursor(&document)
        , m_random(seed)
    {
    }

    void write()
    {
        for (int step = 0; step < 40; ++step) {
            m_cursor.setPosition(below(m_cursor.document()->characterCount()));
            act();
        }
    }

private:
    int below(int count) { return m_random.bounded(count); }

    void act()
    {
        switch (below(9)) {
        case 0:
            m_cursor.insertBlock();
            break;
        case 1:
            format();
            break;
        case 2:
            paragraph();
            break;
        case 3:
            m_cursor.createList(QTextListFormat::Style(-1 - below(8)));
            break;
        case 4:
            deepen();
            break;
        case 5:
            table();
            break;
        default:
            m_cursor.insertText(text());
        }
    }

    QString text()
    {
        static const QStringList pieces{
            QStringLiteral("word"),   QStringLiteral(" "),       QStringLiteral("  "),
            QStringLiteral("\t"),     QStringLiteral("a<b>&\""), QStringLiteral("\u2003"),
            QStringLiteral("\u2028"), QStringLiteral("\u00A0"),  QStringLiteral("\u0001"),
            QStringLiteral("\u65E5"), QStringLiteral(" x ")};
        return pieces[below(int(pieces.size()))] + pieces[below(int(pieces.size()))];
    }

    void format()
    {
        QTextCharFormat format;
        format.setFontWeight(below(2) != 0 ? QFont::Bold : QFont::Normal);
        format.setFontItalic(below(2) != 0);
        format.setFontUnderline(below(2) != 0);
        format.setFontStrikeOut(below(4) == 0);
        format.setFontPointSize(8 + below(20) / 4.0);
        format.setForeground(QColor(below(256), below(256), 0, below(2) != 0 ? 255 : below(255)));
        if (below(3) == 0) {
            format.setBackground(QColor(0, below(256), 0));
            format.setFontFamilies({QStringLiteral("Courier \"New\""), QStringLiteral("Arial")});
        }
        if (below(3) == 0) {
            format.setAnchor(true);
            format.setAnchorHref(QStringLiteral("http://x/?a=1&b=\"2\""));
        }
        m_cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, below(8));
        m_cursor.mergeCharFormat(format);
    }

    void paragraph()
    {
        static constexpr Qt::AlignmentFlag alignments[]{Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter,
                                                        Qt::AlignJustify};
        QTextBlockFormat format;
        format.setAlignment(alignments[below(4)]);
        format.setTextIndent(below(80) / 3.0 - 10);
        format.setLeftMargin(below(80) / 7.0);
        format.setTopMargin(below(20));
        if (below(3) == 0) {
            format.setBackground(QColor(0, 0, 50 + below(200)));
            format.setLineHeight(150, QTextBlockFormat::ProportionalHeight);
        }
        m_cursor.mergeBlockFormat(format);
    }

    void deepen()
    {
        if (QTextList *list = m_cursor.currentList()) {
            QTextListFormat format = list->format();
            format.setIndent(format.indent() + 1);
            m_cursor.createList(format);
        }
    }

    void table()
    {
        if (m_cursor.currentTable() != nullptr || m_cursor.currentList() != nullptr || below(3) != 0) {
            return;
        }
        QTextTable *table = m_cursor.insertTable(2, 3);
        table->mergeCells(0, 1, 1, 2);
    }

    QTextCursor m_cursor;
    QRandomGenerator m_random;
};

} // namespace

TEST(XhtmlWriter, WritesOnlyWhatDiffersFromTheParagraphsLook)
{
    EXPECT_EQ(
        rewritten(QStringLiteral("<p class='Note'>one</p><p class='Note' align='center'>t<b>w</b>o</p>")),
        QStringLiteral("<p class=\"Note\">one</p>\n<p class=\"Note\" style=\"text-align:center;\">t"
                       "<span style=\"font-weight:700;\">w</span>o</p>"));
    EXPECT_EQ(
        rewritten(QStringLiteral("<p class='Note'><a href=\"u?a&amp;b\">x<i>y</i></a></p>")),
        QStringLiteral("<p class=\"Note\"><a href=\"u?a&amp;b\">x<span style=\"font-style:italic;\">y</span>"
                       "</a></p>"));
    EXPECT_EQ(rewritten(QStringLiteral("<h2>h</h2>")), QStringLiteral("<h2>h</h2>"));
    EXPECT_EQ(
        rewritten(QStringLiteral("<p>plain</p>")),
        QStringLiteral("<p class=\"Note\"><span style=\"font-size:9pt; color:#000000;\">plain</span></p>"));
}

TEST(XhtmlWriter, NestsListsAndKeepsTheirKinds)
{
    const QString body =
        rewritten(QStringLiteral("<ul><li>a<ol><li>b</li><li>c</li></ol></li><li>d</li></ul><p>e</p>"));
    QTextDocument document;
    document.setHtml(body);
    QStringList seen;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextList *list = block.textList();
        seen += block.text() + (list == nullptr ? QString() : QString::number(list->format().indent())) +
                (list == nullptr ? QString() : list->itemText(block));
    }
    EXPECT_EQ(seen, (QStringList{QStringLiteral("a1."), QStringLiteral("b21."), QStringLiteral("c22."),
                                 QStringLiteral("d1."), QStringLiteral("e")}))
        << qPrintable(body);
}

TEST(XhtmlWriter, KeepsTablesAndImages)
{
    const QString body = rewritten(
        QStringLiteral("<p class='Note'>a</p><table border='1' width='50%'><tr><td colspan='2' "
                       "bgcolor='#eeeeee'>wide</td></tr><tr><td width='30%'>l</td><td></td></tr></table>"
                       "<p class='Note'><img src='data:image/png;base64,AA==' width='10' height='20'/>"
                       "<img src='data:image/png;base64,AA==' width='10' height='20'/></p>"));
    EXPECT_TRUE(body.contains(QStringLiteral("<td colspan=\"2\" style=\"background-color:#eeeeee\">")))
        << qPrintable(body);
    EXPECT_TRUE(body.contains(QStringLiteral("width=\"50%\"")));
    EXPECT_TRUE(body.contains(QStringLiteral("<td width=\"30%\">")));
    EXPECT_EQ(body.count(QStringLiteral(
                  "<img src=\"data:image/png;base64,AA==\" alt=\"\" width=\"10\" height=\"20\" />")),
              2);
    EXPECT_EQ(rewritten(body), body);
}

TEST(XhtmlWriter, KeepsBlanksTabsAndLineBreaks)
{
    QTextDocument document;
    QTextCursor(&document).insertText(QStringLiteral(" a  b\tc \u2028 d\u2003e"));
    EXPECT_EQ(xhtmlBody(document, {}),
              QStringLiteral(
                  "<p style=\"margin-top:0px; margin-bottom:0px;\">&#160;a&#160; b&#160;&#160;&#160;&#160;"
                  "&#160;&#160;&#160;&#160;c&#160;<br />&#160;d<span style=\"white-space:pre-wrap;\">\u2003"
                  "</span>e</p>"));
}

TEST(XhtmlWriter, WritesWhatXmlLacksAsReplacementCharacters)
{
    QTextDocument document;
    QTextCursor(&document).insertText(QString(QChar(0xD800)) + u'a' + QChar(1) + QChar(0xFFFF));
    EXPECT_TRUE(written(document).contains(QStringLiteral("\uFFFDa\uFFFD\uFFFD")));
}

TEST(XhtmlWriter, KeepsWhatPeopleWrite)
{
    for (quint32 seed = 1; seed <= 150 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        QTextDocument document;
        document.setDefaultStyleSheet(sheet);
        document.setHtml(QStringLiteral("<p class='Note'>start</p>"));
        Author(document, seed).write();
        expectLasting(document);
    }
}
