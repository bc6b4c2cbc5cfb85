// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/xhtmlwriter.h"

#include "richtext/documents.h"
#include "richtext/xhtml/xmltext.h"
#include "support/printtext.h"
#include "support/randominputs.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

namespace {

const QString sheet = u"p.Note { font-size: 12pt; color: #000099 } a { text-decoration: underline }"_s;

QString written(const QTextDocument &document)
{
    return toXhtml(document, u"Note"_s, sheet);
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
    text.replace(u"\uFDD1\u2029"_s, u"\uFDD1"_s);
    text.replace(u'\t', u"        "_s);
    text.replace(QChar(QChar::Nbsp), u' ');
    static const QRegularExpression emptyLine(u"(^|[\u2029\uFDD0\uFDD1]) (?=[\u2029\uFDD0\uFDD1]|$)"_s);
    text.replace(emptyLine, u"\\1"_s);
    return xmlText(text);
}

/// Writes, loads, writes: the texts are the same, and so is what the reader of the document sees.
void expectLasting(const QTextDocument &document)
{
    const QString body = written(document);
    EXPECT_EQ(xmlErrorOf(body), QString()) << body;
    QTextDocument copy;
    copy.setDefaultStyleSheet(sheet);
    copy.setHtml(body);
    EXPECT_EQ(comparable(copy), comparable(document)) << body;
    EXPECT_EQ(written(copy), body);
}

TEST(XhtmlWriter, WritesOnlyWhatDiffersFromTheParagraphsLook)
{
    const QStringList texts = dataFile("xhtml.txt").trimmed().split(u"\n\n"_s);
    for (qsizetype i = 1; i + 1 < texts.size(); i += 2) {
        EXPECT_EQ(rewritten(texts[i]), texts[i + 1]);
        EXPECT_EQ(rewritten(texts[i + 1]), texts[i + 1]);
    }
}

TEST(XhtmlWriter, NestsListsAndKeepsTheirKinds)
{
    const QString body = rewritten(u"<ul><li>a<ol><li>b</li><li>c</li></ol></li><li>d</li></ul><p>e</p>"_s);
    QTextDocument document;
    document.setHtml(body);
    QStringList seen;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextList *list = block.textList();
        seen += block.text() +
                (list ? QString::number(list->format().indent()) + list->itemText(block) : QString());
    }
    EXPECT_EQ(seen, (QStringList{u"a1."_s, u"b21."_s, u"c22."_s, u"d1."_s, u"e"_s})) << body;
}

TEST(XhtmlWriter, KeepsBlanksTabsAndLineBreaks)
{
    QTextDocument document;
    QTextCursor(&document).insertText(u" a  b\tc \u2028 d\u2003e"_s);
    EXPECT_EQ(toXhtml(document, {}),
              u"<p style=\"margin-top:0px; margin-bottom:0px;\">&#160;a&#160; b&#160;&#160;&#160;&#160;"
              "&#160;&#160;&#160;&#160;c&#160;<br />&#160;d<span style=\"white-space:pre-wrap;\">\u2003"
              "</span>e</p>"_s);
}

TEST(XhtmlWriter, WritesWhatXmlLacksAsReplacementCharacters)
{
    QTextDocument document;
    QTextCursor(&document).insertText(QString(QChar(0xD800)) + u'a' + QChar(1) + QChar(0xFFFF));
    EXPECT_TRUE(written(document).contains(u"\uFFFDa\uFFFD\uFFFD"_s));
}

/// Random paragraphs, lists and tables with random texts in them, and more typed in between.
TEST(XhtmlWriter, KeepsWhatPeopleWrite)
{
    const QStringList lines = dataFile("document-pieces.txt").split(u'\n', Qt::SkipEmptyParts);
    const QStringList blocks = lines.filter(u"@"_s);
    const QStringList texts = lines.filter(QRegularExpression(u"^[^@]*$"_s));
    const QStringList typed{u"word"_s,   u" "_s,      u"  "_s,     u"\t"_s,     u"a<b>&\""_s,
                            u"\u2003"_s, u"\u2028"_s, u"\u00A0"_s, u"\u0001"_s, u"\u65E5"_s};
    for (quint32 seed = 1; seed <= 150 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        RandomInputs random(seed);
        QString body = random.textOf(blocks, 12);
        for (qsizetype at = body.indexOf(u'@'); at >= 0; at = body.indexOf(u'@', at)) {
            body.replace(at, 1, random.textOf(texts, 4));
        }
        QTextDocument document;
        document.setDefaultStyleSheet(sheet);
        document.setHtml(body);
        for (int i = 0; i < 10; ++i) {
            QTextCursor cursor(&document);
            cursor.setPosition(random.below(document.characterCount()));
            cursor.insertText(random.textOf(typed, 2));
        }
        expectLasting(document);
    }
}

} // namespace
