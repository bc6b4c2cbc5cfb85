// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/stylesheet.h"
#include "richtext/editor/textdocument.h"
#include "richtext/xhtml/documentmarkup.h"
#include "richtext/xhtml/shownstyle.h"

#include <QTextCursor>
#include <QTextTable>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString page(const QString &css, const QString &body)
{
    return u"<html><head><style type=\"text/css\">"_s + css + u"</style></head><body>"_s + body +
           u"</body></html>"_s;
}

QString shownBody(const QString &css, const QString &body, Medium medium)
{
    const QString markup = shownMarkup(page(css, body), StyleSheet(css), medium);
    return bodyOf(markup).toString();
}

TEST(ShownMarkup, GivesPaddingAndBorderOfParagraphsToTheirCells)
{
    const QString css = u"p.a { padding: 3pt 6pt; border-bottom: 1.5pt solid red; } p.b { color: red; }"_s;
    const QString cells = u"<table><tr><td><p class='a'>1</p></td><td><p class='b'>2</p></td></tr></table>"_s;
    TextDocument document;
    document.setSource(page(css, cells));
    document.show();
    const auto *table = document.rootFrame()->childFrames().value(0);
    ASSERT_TRUE(table);
    const auto format = [&](int column) {
        return qobject_cast<const QTextTable *>(table)->cellAt(0, column).format().toTableCellFormat();
    };
    EXPECT_EQ(format(0).topPadding(), 4);
    EXPECT_EQ(format(0).leftPadding(), 8);
    EXPECT_EQ(format(0).bottomBorder(), 2);
    EXPECT_EQ(format(0).topBorder(), 0);
    EXPECT_FALSE(format(1).hasProperty(QTextFormat::TableCellLeftPadding));
    EXPECT_EQ(qobject_cast<const QTextTable *>(table)->format().cellPadding(), 1);
    // Outside a table the paragraph gets a cell of its own.
    EXPECT_EQ(shownBody(css, u"<p class='a'>x</p><p class='b'>y</p>"_s, Medium::Window),
              u"<table width='100%' cellspacing='0' cellpadding='0'><tr><td class='a'><p class='a'>x</p>"
              "</td></tr></table><p class='b'>y</p>"_s);
}

TEST(ShownMarkup, GivesColumnsTheWidthsOfTheirStyles)
{
    TextDocument document;
    document.setSource(
        page({}, u"<table width='100%'><tr><th style='width:70%'>a</th>"
                 "<th style='color:red; width: 10%'>b</th><th style='min-width:9%'>c</th></tr></table>"_s));
    document.show();
    const auto *table = qobject_cast<const QTextTable *>(document.rootFrame()->childFrames().value(0));
    ASSERT_TRUE(table);
    const QList<QTextLength> widths = table->format().columnWidthConstraints();
    ASSERT_EQ(widths.size(), 3);
    EXPECT_EQ(widths[0], QTextLength(QTextLength::PercentageLength, 70));
    EXPECT_EQ(widths[1], QTextLength(QTextLength::PercentageLength, 10));
    EXPECT_EQ(widths[2].type(), QTextLength::VariableLength);
}

TEST(ShownMarkup, LaterRulesOfASelectorLeaveItsMargins)
{
    const ShownStyle style{StyleSheet(u"p.a { margin: 3pt 0 6pt !important; } h1.b { margin: 0; } "
                                      "p.a, p.c { color: red; } p.a { color: red; } h1.b { color: red; }"_s)};
    EXPECT_EQ(style.marginAbove(u"a"), 4);
    EXPECT_EQ(style.marginBelow(u"a"), 8);
    EXPECT_EQ(style.marginAbove(u"b"), 0);
    EXPECT_FALSE(style.css().section(u"h1.b {"_s, 2).contains(u"margin"_s));
}

TEST(ShownMarkup, MakesSectionsTablesWithHeadsForPagesOnly)
{
    const QString table = u"<table class='t'><tbody><tr><th colspan='2'><p>A</p></th></tr><tr><th>x</th></tr>"
                          "<tr><td>1</td></tr></tbody><tbody><tr><th>B</th></tr></tbody>"
                          "<tbody><tr><td>sum</td></tr></tbody></table>"_s;
    EXPECT_EQ(shownBody({}, table, Medium::Window),
              QString(table).replace(u"'t'"_s, u"'t' cellpadding='1'"_s));
    EXPECT_EQ(
        shownBody({}, table, Medium::Pages),
        u"<table class='t' cellpadding='1'><thead><tr><th colspan='2'><p>A</p></th></tr><tr><th>x</th></tr>"
        "</thead><tbody><tr><td>1</td></tr></tbody></table>"
        "<table class='t' cellpadding='1'><thead><tr><th>B</th></tr></thead><tbody></tbody></table>"
        "<table class='t' cellpadding='1'><tbody><tr><td>sum</td></tr></tbody></table>"_s);
    const QString nested =
        u"<table cellpadding='1'><tbody><tr><th><table cellpadding='1'><tr><td>1</td></tr></table></th></tr></tbody></table>"_s;
    EXPECT_EQ(shownBody({}, nested, Medium::Pages), nested);
}

TEST(ShownMarkup, LeavesTheMarginAboveAParagraphThatSpansARow)
{
    const auto height = [](const QString &margin) {
        TextDocument document;
        document.setSource(page(u"p { margin: 0 } p.s { margin-top: "_s + margin + u"}"_s,
                                u"<table><tr><td>a</td><td>b</td></tr>"
                                "<tr><td colspan='2'><p class='s'>x</p></td></tr></table>"_s));
        document.show();
        document.setTextWidth(400);
        return document.size().height();
    };
    EXPECT_NEAR(height(u"30pt"_s) - height(u"0"_s), 40, 1.5);
    EXPECT_NEAR(height(u"7pt"_s) - height(u"0"_s), 9.3, 1.5);
}

TEST(ShownMarkup, SizesHeadingsAsBrowsersDo)
{
    TextDocument document;
    document.setSource(page(u"body { font-size: 10pt; } h3 { font-size: 7pt; }"_s,
                            u"<p>a</p><h1>b</h1><h2>c</h2><h3>d</h3>"_s));
    document.show();
    const auto size = [&](const QString &text) {
        const QTextCharFormat format = document.find(text).charFormat();
        return format.hasProperty(QTextFormat::FontSizeAdjustment) ? 0 : format.fontPointSize();
    };
    EXPECT_EQ(size(u"a"_s), 10);
    EXPECT_EQ(size(u"b"_s), 20);
    EXPECT_EQ(size(u"c"_s), 15);
    EXPECT_EQ(size(u"d"_s), 7);
}

TEST(ShownMarkup, BreaksLongParagraphsBetweenCharacters)
{
    const QString entities = u"&shy;&#8203;"_s.repeated(2000);
    const QString faces = u"\U0001F600"_s.repeated(9001);
    for (const QString &text : {entities, faces, u"x"_s + faces, u"<br/>"_s.repeated(9000) + entities}) {
        const QString body = shownBody({}, u"<p class='a'>"_s + text + u"</p>"_s, Medium::Window);
        EXPECT_GT(body.count(u"<p class='a'>"_s), 1);
        QTextDocument document;
        document.setHtml(body);
        EXPECT_FALSE(document.toPlainText().contains(u'&'));
        EXPECT_FALSE(document.toPlainText().contains(QChar::ReplacementCharacter));
    }
    // Not inside an element, which would be cut in two.
    const QString link = u"<p><a href='x'>"_s + u"y"_s.repeated(9000) + u"</a></p>"_s;
    EXPECT_EQ(shownBody({}, link, Medium::Window), link);
}

TEST(ShownMarkup, StandsMarkupThatIsNone)
{
    for (const QString &text : {u""_s, u"<"_s, u"<p"_s, u"<table><tbody><tr><th"_s, u"</td></p></table>"_s,
                                u"<!-- <table> --> a < b"_s, u"<td class='><p class=''>"_s, u"<p class='a>"_s,
                                u"<table cellpadding='0'>"_s.repeated(20000)}) {
        for (const Medium medium : {Medium::Window, Medium::Pages}) {
            EXPECT_TRUE(shownBody(u"p.a { padding: 1pt }"_s, text, medium).endsWith(text.right(3)));
        }
    }
}

TEST(TextDocument, LooksTheSameWhileSuspended)
{
    TextDocument document;
    document.setSource(page(u"p { color: red; }"_s, u"<p>x</p>"_s));
    document.show();
    const auto colour = [&] { return document.find(u"x"_s).charFormat().foreground().color(); };
    document.suspend();
    document.loadCss(u"p { color: blue; }"_s, false);
    EXPECT_EQ(colour(), QColor(Qt::red));
    document.show();
    EXPECT_EQ(colour(), QColor(Qt::blue));
}

TEST(TextDocument, GivesBackTheTextItTookWithTheStyleSheetOfNow)
{
    const QString first = page(u"p { color: red; }"_s, u"<p class='x'>one</p>"_s);
    TextDocument document;
    document.setSource(first);
    document.setTitle(u"Title"_s);
    EXPECT_EQ(document.getHtml(), first);
    EXPECT_EQ(document.toPlainText(), QString());
    document.show();
    EXPECT_EQ(document.toPlainText(), u"one"_s);
    const auto colour = [&document] {
        return document.begin().begin().fragment().charFormat().foreground().color();
    };
    EXPECT_EQ(colour(), Qt::red);

    document.loadCss(u"p { color: blue; }"_s, true);
    EXPECT_EQ(colour(), Qt::blue);
    EXPECT_EQ(document.getHtml(), first);
    document.highlightSelector(u"p.x"_s);
    EXPECT_EQ(document.begin().blockFormat().background().style(), Qt::SolidPattern);
    document.highlightSelector({});
    EXPECT_EQ(document.begin().blockFormat().background().style(), Qt::NoBrush);
    document.loadCss(u"p { color: blue; }"_s, false);
    EXPECT_EQ(document.getCss(), u"p { color: blue; }"_s);
    EXPECT_EQ(document.getHtml(), page(u"p { color: blue; }"_s, u"<p class='x'>one</p>"_s));
    EXPECT_EQ(document.metaInformation(QTextDocument::DocumentTitle), u"Title"_s);
    EXPECT_FALSE(document.isModified());
}

} // namespace
