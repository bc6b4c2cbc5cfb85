// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/stylesheet.h"

#include "richtext/documents.h"
#include "support/printtext.h"

#include <functional>
#include <numeric>

namespace {

TEST(StyleSheet, ReadsTheDefaultSheet)
{
    const StyleSheet sheet(defaultSheet());
    const QList<StyleSheet::Rule> rules = sheet.rules();
    ASSERT_EQ(rules.size(), 22);
    EXPECT_EQ(rules.at(0).title, u"Default Style"_s);
    EXPECT_EQ(rules.at(0).selector, u"body"_s);
    EXPECT_EQ(rules.constLast().selector, u"p.horizLine"_s);
    EXPECT_EQ(rules.constLast().title, QString());
    EXPECT_EQ(sheet.value(u"body"_s, u"paper-width"_s), u"595.0pt"_s);
    EXPECT_EQ(sheet.value(u"p.oddfield"_s, u"padding"_s), u"1pt 3pt 2pt 4pt"_s);
    EXPECT_EQ(sheet.value(u"p.oddfield"_s, u"margin"_s), QString());
}

TEST(StyleSheet, AnEditOfTheDefaultSheetTouchesOneLine)
{
    const QString before = defaultSheet();
    const QStringList was = before.split(u'\n');
    for (const StyleSheet::Rule &rule : StyleSheet(before).rules()) {
        for (const StyleSheet::Declaration &declaration : rule.declarations) {
            StyleSheet sheet(before);
            sheet.setValue(rule.selector, declaration.property, u"1em"_s);
            EXPECT_EQ(sheet.value(rule.selector, declaration.property), u"1em"_s);
            const QStringList is = sheet.text().split(u'\n');
            ASSERT_EQ(was.size(), is.size());
            EXPECT_EQ(
                std::inner_product(was.begin(), was.end(), is.begin(), 0, std::plus(), std::not_equal_to()),
                1)
                << rule.selector << declaration.property;
            sheet.setValue(rule.selector, declaration.property, declaration.value);
            EXPECT_EQ(sheet.text(), before);
        }
    }
}

TEST(StyleSheet, AddsAndTakesAwayInTheLayoutFound)
{
    for (QString line : dataFile("style-edits.txt").split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList fields =
            line.replace(u"\\n"_s, u"\n"_s).replace(u"\\r"_s, u"\r"_s).replace(u"\\t"_s, u"\t"_s).split(u'|');
        if (!line.startsWith(u'#')) {
            ASSERT_EQ(fields.size(), 4) << line;
            StyleSheet sheet(fields[0]);
            sheet.setValue(u"p"_s, fields[1], fields[2]);
            EXPECT_EQ(sheet.text(), fields[3]) << line;
        }
    }
}

TEST(StyleSheet, CommentsStringsAndAtRulesMayHoldBraces)
{
    const StyleSheet sheet(dataFile("braces.css"));
    const QList<StyleSheet::Rule> rules = sheet.rules();
    ASSERT_EQ(rules.size(), 2);
    EXPECT_EQ(rules.at(0).selector, u"p , div:hover"_s);
    EXPECT_EQ(rules.at(0).title, u"My Name"_s);
    ASSERT_EQ(rules.at(0).declarations.size(), 3);
    EXPECT_EQ(rules.at(0).declarations.at(0).value, u"\"};\\\"}\""_s);
    EXPECT_EQ(rules.at(0).declarations.at(1).value, u"URL(a;b/*c) no-repeat"_s);
    EXPECT_EQ(rules.at(0).declarations.at(2).property, u"color"_s);
    EXPECT_EQ(rules.at(0).declarations.at(2).value, u"red"_s);
    EXPECT_EQ(rules.at(1).title, QString());
    EXPECT_EQ(sheet.value(u"td[x=\"}\"]"_s, u"color"_s), u"green"_s);
}

TEST(StyleSheet, BodyIsTakenAndPutAsItStands)
{
    StyleSheet sheet(u"p { a: b; /* c */ }\nq {}"_s);
    EXPECT_EQ(sheet.body(u"p"_s), u" a: b; /* c */ "_s);
    sheet.setBody(u"p"_s, u"\n  x: y;\n"_s);
    sheet.setBody(u"new  rule"_s, u"x: y;"_s);
    EXPECT_EQ(sheet.text(), u"p {\n  x: y;\n}\nq {}\n\nnew rule {\n    x: y;\n}\n"_s);
    EXPECT_EQ(sheet.body(u"missing"_s), QString());
}

TEST(StyleSheet, WhatIsOpenAtTheEndIsClosedBeforeSomethingFollows)
{
    for (const char *text :
         {"p { a: b", "p { a: b; /* c", "p { a: 'b", "p { a: 'b\\", "p { a: url(b", "p { a: b\\", "p { a: (b",
          "p { q { r {", "p", "p\\", "/*", "/* *", "@media x { p { ", "@x", "'", "}", "{{", "p { a: 'b\n"}) {
        const QString open = QLatin1String(text);
        StyleSheet sheet(open);
        sheet.setValue(u"new"_s, u"c"_s, u"d"_s);
        EXPECT_EQ(sheet.value(u"new"_s, u"c"_s), u"d"_s) << open;
        EXPECT_TRUE(sheet.text().startsWith(open)) << sheet.text();
        sheet.setValue(u"p"_s, u"e"_s, u"f"_s);
        EXPECT_EQ(sheet.value(u"p"_s, u"e"_s), u"f"_s) << open << sheet.text();
    }
}

// With work that grows with the square of the text this would take many minutes.
TEST(StyleSheet, StandsLongHostileTexts)
{
    for (const char *piece : {"{", "}",  "/*",   ";", "p{", "p{}",  "p{a:b;", "url(",  "'",   "\\",
                              "@", "@{", "/*_H", ":", "(",  "<!--", "/",      "p{;;}", "\n ", "*/"}) {
        const QString text = QString(QLatin1String(piece)).repeated(200000 / int(qstrlen(piece)));
        StyleSheet sheet(text);
        EXPECT_LE(sheet.rules().size(), 100000);
        sheet.setValue(u"new"_s, u"c"_s, u"d"_s);
        EXPECT_EQ(sheet.value(u"new"_s, u"c"_s), u"d"_s) << piece;
        EXPECT_TRUE(sheet.text().startsWith(text)) << piece;
    }
    StyleSheet same(u"p{\n"_s + u"a:b;\n"_s.repeated(200000) + u"}"_s);
    same.setValue(u"p"_s, u"a"_s, u"c"_s);
    EXPECT_EQ(same.text(), u"p{\na:c;\n}"_s);
}

} // namespace
