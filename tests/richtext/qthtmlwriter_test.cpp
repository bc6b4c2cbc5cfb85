// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/qthtmlwriter.h"

#include "richtext/css/stylesheet.h"
#include "richtext/documents.h"
#include "richtext/editor/textdocument.h"
#include "richtext/paper/pagelayouter.h"
#include "richtext/paper/pdfoutput.h"
#include "richtext/xhtml/qtstylesheet.h"
#include "richtext/xhtml/xhtmlparts.h"
#include "support/printtext.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <QTextTable>

namespace {

QString qtBody(const QString &css, const QString &body, Medium medium)
{
    const QString html = toQtHtml(page(css, body), StyleSheet(css), medium);
    return bodyOf(html).toString();
}

QTextTable *tableOf(const QTextDocument &document, int index = 0)
{
    return qobject_cast<QTextTable *>(document.rootFrame()->childFrames().value(index));
}

/// A document that is shown.
class Shown final : public TextDocument
{
public:
    Shown(const QString &css, const QString &body)
    {
        setSource(page(css, body));
        show();
    }
    [[nodiscard]] QTextCharFormat formatOf(const QString &text) const { return find(text).charFormat(); }
};

/// A document on pages of A4.
struct Pages
{
    explicit Pages(const QString &css, const QString &body)
    {
        layOutPages(document, page(css, body), output.device(),
                    QSizeF(output.device().width(), output.device().height()));
    }

    PdfOutput output{QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}), {}};
    QTextDocument document;
};

TEST(QtHtml, TranslatesWhatQTextDocumentDoesNotKnow)
{
    QStringList lines;
    for (const QString &line : dataFile("qt-html.txt").split(u'\n', Qt::SkipEmptyParts)) {
        lines += line.startsWith(u'#') ? QStringList() : QStringList(line);
    }
    ASSERT_EQ(lines.size() % 4, 0);
    for (qsizetype i = 0; i < lines.size(); i += 4) {
        EXPECT_EQ(qtBody(lines[i], lines[i + 1], Medium::Window), lines[i + 2]);
        EXPECT_EQ(qtBody(lines[i], lines[i + 1], Medium::Pages), lines[i + 3]);
    }
}

TEST(QtHtml, GivesPaddingAndBorderOfParagraphsToTheirCells)
{
    // Selectors for browsers only do not end the style sheet, and cells keep their own class.
    const Shown document(
        u"td:has(p.a) { color: blue; } p.a { padding: 3pt 6pt; border-bottom: 1.5pt solid red; } "
        "p.b { color: red; } td.n p { text-align: right; }"_s,
        u"<table><tr><td class='n'><p class='a'>1</p></td><td><p class='b'>2</p></td></tr></table>"_s);
    const QTextTable *table = tableOf(document);
    ASSERT_TRUE(table);
    const auto format = [&](int column) { return table->cellAt(0, column).format().toTableCellFormat(); };
    EXPECT_EQ(table->cellAt(0, 0).firstCursorPosition().blockFormat().alignment(), Qt::AlignRight);
    EXPECT_EQ(format(0).topPadding(), 4);
    EXPECT_EQ(format(0).leftPadding(), 8);
    EXPECT_EQ(format(0).bottomBorder(), 2);
    EXPECT_EQ(format(0).topBorder(), 0);
    EXPECT_FALSE(format(1).hasProperty(QTextFormat::TableCellLeftPadding));
    EXPECT_EQ(table->format().cellPadding(), 1);
}

TEST(QtHtml, GivesColumnsTheWidthsOfTheirStyles)
{
    const Shown document({}, u"<table width='100%'><tr><th style='width:70%'>a</th><th style='color:red; "
                             "width: 10%'>b</th><th style='min-width:9%'>c</th></tr></table>"_s);
    ASSERT_TRUE(tableOf(document));
    const QList<QTextLength> widths = tableOf(document)->format().columnWidthConstraints();
    ASSERT_EQ(widths.size(), 3);
    EXPECT_EQ(widths[0], QTextLength(QTextLength::PercentageLength, 70));
    EXPECT_EQ(widths[1], QTextLength(QTextLength::PercentageLength, 10));
    EXPECT_EQ(widths[2].type(), QTextLength::VariableLength);
}

TEST(QtHtml, LeavesTheMarginAboveAParagraphThatSpansARow)
{
    const auto height = [](const QString &margin) {
        Shown document(u"p { margin: 0 } p.s { margin-top: "_s + margin + u"}"_s,
                       u"<table><tr><td>a</td><td>b</td></tr>"
                       "<tr><td colspan='2'><p class='s'>x</p></td></tr></table>"_s);
        document.setTextWidth(400);
        return document.size().height();
    };
    EXPECT_NEAR(height(u"30pt"_s) - height(u"0"_s), 40, 1.5);
    EXPECT_NEAR(height(u"7pt"_s) - height(u"0"_s), 9.3, 1.5);
}

TEST(QtHtml, SizesHeadingsAsBrowsersDo)
{
    const Shown document(u"body { font-size: 10pt; } h3 { font-size: 7pt; }"_s,
                         u"<p>a</p><h1>b</h1><h2>c</h2><h3>d</h3>"_s);
    const QList<std::pair<QString, double>> sizes{{u"a"_s, 10}, {u"b"_s, 20}, {u"c"_s, 15}, {u"d"_s, 7}};
    for (const auto &[text, size] : sizes) {
        EXPECT_EQ(document.formatOf(text).fontPointSize(), size) << text;
        EXPECT_FALSE(document.formatOf(text).hasProperty(QTextFormat::FontSizeAdjustment)) << text;
    }
}

TEST(QtHtml, BreaksLongParagraphsBetweenWordsOnly)
{
    const QString entities = u"&shy;&#8203;"_s.repeated(2000);
    const QString references = u"C1234,&shy;&#8203;"_s.repeated(2000);
    const QString words = u"&copy;word "_s.repeated(2000);
    for (const QString &text : {entities, references, words, u"<br/>"_s.repeated(9000) + entities}) {
        const QString body = qtBody({}, u"<p class='a'>"_s + text + u"</p>"_s, Medium::Window);
        EXPECT_GT(body.count(u"<p class='a'>"_s), 1);
        EXPECT_FALSE(body.contains(QRegularExpression(u"[^ >;]</p>"_s)));
        QTextDocument document;
        document.setHtml(body);
        EXPECT_FALSE(document.toPlainText().contains(u'&'));
        EXPECT_FALSE(document.toPlainText().contains(QChar::ReplacementCharacter));
    }
    // Not inside a word or an element, which would be cut in two.
    const QString word = u"<p>"_s + u"\U0001F600"_s.repeated(9001) + u"</p>"_s;
    EXPECT_EQ(qtBody({}, word, Medium::Window), word);
    // Unless it is without end.
    const QString endless =
        qtBody({}, u"<p>"_s + u"\U0001F600&copy;"_s.repeated(9000) + u"</p>"_s, Medium::Window);
    EXPECT_GT(endless.count(u"<p>"_s), 2);
    EXPECT_EQ(endless.count(u"\U0001F600"_s), 9000);
    EXPECT_EQ(endless.count(u"&copy;"_s), 9000);
    const QString link = u"<p><a href='x'>"_s + u"y"_s.repeated(9000) + u"</a></p>"_s;
    EXPECT_EQ(qtBody({}, link, Medium::Window), link);
}

TEST(QtHtml, StandsMarkupThatIsNone)
{
    for (const QString &text : {u""_s, u"<"_s, u"<p"_s, u"<table><tbody><tr><th"_s, u"</td></p></table>"_s,
                                u"<!-- <table> --> a < b"_s, u"<td class='><p class=''>"_s, u"<p class='a>"_s,
                                u"<table cellpadding='0'>"_s.repeated(20000)}) {
        for (const Medium medium : {Medium::Window, Medium::Pages}) {
            EXPECT_TRUE(qtBody(u"p.a { padding: 1pt }"_s, text, medium).endsWith(text.right(3)));
        }
    }
}

TEST(QtHtml, KeepsFewLargeLengthsInLargeDocuments)
{
    const QString css = u"p.Head { margin-left: 200px; } p.cell { margin-left: 200px; }"_s;
    const QString html = toQtHtml(
        page(css, u"<p class=\"Head\" style=\"margin-top: 70px\"><img width=\"200\" /></p><table>"_s +
                      u"<tr><td width=\"200\"><p class=\"cell\">x</p></td></tr>"_s.repeated(10'000) +
                      u"</table>"_s),
        StyleSheet(css), Medium::Window);
    for (const char *text : {"p.Head { margin-left: 200px", "margin-top: 70px", "<img width=\"200\""}) {
        EXPECT_TRUE(html.contains(QLatin1String(text))) << text;
    }
    EXPECT_FALSE(html.contains(u"p.cell { margin-left: 200px"_s));
    EXPECT_LT(html.count(u"<td width=\"200\""_s), 1'001);
}

TEST(QtStyleSheet, TakesOverTheFirstRulesOfALongStyleSheet)
{
    const StyleSheet css(u"p.a { color: red } "_s.repeated(1'001));
    EXPECT_FALSE(QtStyleSheet::holds(css));
    EXPECT_LT(QtStyleSheet(css).text().count(u"p.a"_s), 1'001);
    EXPECT_TRUE(QtStyleSheet::holds(StyleSheet(defaultSheet())));
}

TEST(QtStyleSheet, KeepsTheMarginsOfASelectorWhenALaterRuleHasNone)
{
    const QtStyleSheet style{
        StyleSheet(u"p.a { margin: 3pt 0 6pt !important; } h1.b { margin: 0; } "
                   "p.a, p.c { color: red; } p.a { color: red; } h1.b { color: red; }"_s)};
    EXPECT_EQ(style.marginAbove(u"a"), 4);
    EXPECT_EQ(style.marginBelow(u"a"), 8);
    EXPECT_EQ(style.marginAbove(u"b"), 0);
    EXPECT_FALSE(style.text().section(u"h1.b {"_s, 2).contains(u"margin"_s));
}

TEST(Pages, GiveTheBackgroundOfLongParagraphsToTheirCells)
{
    const Pages pages(u"p.a { padding: 1pt; background-color: red; }"_s,
                      u"<table><tbody><tr><th><p>Heading</p></th></tr><tr><td><p class='a'>"_s +
                          u"word "_s.repeated(4000) + u"</p></td></tr></tbody></table>"_s);
    ASSERT_GT(pages.document.pageCount(), 1);
    ASSERT_TRUE(tableOf(pages.document));
    const QTextTableCell cell = tableOf(pages.document)->cellAt(1, 0);
    EXPECT_EQ(cell.format().background().color(), QColor(Qt::red));
    ASSERT_NE(cell.firstCursorPosition().block(), cell.lastCursorPosition().block());
    for (auto block = cell.begin(); block != cell.end(); ++block) {
        EXPECT_EQ(block.currentBlock().blockFormat().background().style(), Qt::NoBrush);
    }
}

TEST(Pages, LeaveColumnsTheWidthOfTheirWords)
{
    const auto section = [](const QString &cell, const QString &word) {
        return u"<tbody><tr><th>Long</th><th>Word</th><th>x</th><th>y</th></tr><tr><td>"_s + cell +
               u"</td><td>"_s + word + u"</td><td></td><td></td></tr></tbody>"_s;
    };
    const Pages pages({}, u"<table width='100%'>"_s + section(u"R1, "_s.repeated(300), u"1k"_s) +
                              section(u"G1"_s, u"Half_Automated_Word_Of_Some_Length"_s) + u"</table>"_s);
    ASSERT_TRUE(tableOf(pages.document, 1));
    const QTextCursor word = tableOf(pages.document, 1)->cellAt(1, 1).firstCursorPosition();
    EXPECT_EQ(word.block().layout()->lineCount(), 1);
}

TEST(TextDocument, GivesBackTheTextItTookWithTheStyleSheetOfNow)
{
    const QString body = u"<p class='x'>one</p>"_s;
    const QString first = page(u"p { color: red; }"_s, body);
    TextDocument document;
    document.setSource(first);
    document.setTitle(u"Title"_s);
    EXPECT_EQ(document.getHtml(), first);
    EXPECT_EQ(document.toPlainText(), QString());
    document.show();
    EXPECT_EQ(document.toPlainText(), u"one"_s);
    const QString blue = u"p { color: blue; }"_s;
    document.loadCss(blue, true);
    const auto colour = [&] { return document.find(u"one"_s).charFormat().foreground().color(); };
    EXPECT_EQ(colour(), Qt::blue);
    EXPECT_EQ(document.getHtml(), first);
    const auto background = [&] { return document.begin().blockFormat().background().style(); };
    document.highlightSelector(u"p.x"_s);
    EXPECT_EQ(background(), Qt::SolidPattern);
    document.highlightSelector({});
    EXPECT_EQ(background(), Qt::NoBrush);
    document.loadCss(blue, false);
    EXPECT_EQ(document.getCss(), blue);
    EXPECT_EQ(document.getHtml(), page(blue, body));
    EXPECT_EQ(document.metaInformation(QTextDocument::DocumentTitle), u"Title"_s);
    EXPECT_FALSE(document.isModified());
    document.suspend();
    document.loadCss({}, false);
    EXPECT_EQ(colour(), Qt::blue) << "what is shown stays until it is shown again";
    document.show();
    EXPECT_NE(colour(), Qt::blue);
}

} // namespace
