// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/stylesheet.h"

#include "richtext/sheettext.h"

#include <gtest/gtest.h>

namespace {

[[nodiscard]] std::string edited(const char *css, const char *selector, const char *property,
                                 const char *value)
{
    StyleSheet sheet(u(css));
    sheet.setValue(u(selector), u(property), u(value));
    return sheet.text().toStdString();
}

} // namespace

TEST(StyleSheet, ReadsTheDefaultSheet)
{
    const StyleSheet sheet(defaultSheet());
    EXPECT_EQ(sheet.text(), defaultSheet());
    const QList<StyleSheet::Rule> rules = sheet.rules();
    ASSERT_EQ(rules.size(), 22);
    EXPECT_EQ(rules.at(0).title, u("Default Style"));
    EXPECT_EQ(rules.at(0).selector, u("body"));
    EXPECT_EQ(rules.at(0).declarations.size(), 6);
    EXPECT_EQ(rules.constLast().selector, u("p.horizLine"));
    EXPECT_EQ(rules.constLast().title, QString());
    EXPECT_EQ(sheet.value(u("body"), u("paper-width")), u("595.0pt"));
    EXPECT_EQ(sheet.value(u("p.oddfield"), u("padding")), u("1pt 3pt 2pt 4pt"));
    EXPECT_EQ(sheet.value(u("p.oddfield"), u("margin")), QString());
}

TEST(StyleSheet, AnEditOfTheDefaultSheetTouchesOneLine)
{
    const QString before = defaultSheet();
    StyleSheet sheet(before);
    for (const StyleSheet::Rule &rule : sheet.rules()) {
        for (const StyleSheet::Declaration &declaration : rule.declarations) {
            sheet = StyleSheet(before);
            sheet.setValue(rule.selector, declaration.property, u("1em"));
            EXPECT_EQ(sheet.value(rule.selector, declaration.property), u("1em"));
            const QStringList was = before.split(u'\n');
            const QStringList is = sheet.text().split(u'\n');
            ASSERT_EQ(was.size(), is.size());
            int touched = 0;
            for (int i = 0; i < was.size(); ++i) {
                touched += was.at(i) == is.at(i) ? 0 : 1;
            }
            EXPECT_EQ(touched, 1) << qPrintable(rule.selector + declaration.property);
            sheet.setValue(rule.selector, declaration.property, declaration.value);
            EXPECT_EQ(sheet.text(), before);
        }
    }
    sheet.setValue(u("tr.mine"), u("color"), u("red"));
    EXPECT_EQ(sheet.text(), before + u("\ntr.mine {\n    color: red;\n}\n"));
}

TEST(StyleSheet, AddsAndTakesAwayInTheLayoutFound)
{
    EXPECT_EQ(edited("p {\n\ta: b;\n}", "p", "C", "d"), "p {\n\ta: b;\n\tc: d;\n}");
    EXPECT_EQ(edited("p {\r\n  a: b\r\n}", "p", "c", "d"), "p {\r\n  a: b;\r\n  c: d;\r\n}");
    EXPECT_EQ(edited("p { a: b }", "p", "c", "d"), "p { a: b; c: d; }");
    EXPECT_EQ(edited("p {\n  a: b; /* x; */\n}", "p", "c", "d"), "p {\n  a: b; /* x; */\n  c: d;\n}");
    EXPECT_EQ(edited("p {}", "p", "c", "d"), "p {\n    c: d;\n}");
    EXPECT_EQ(edited("p { rubbish }", "p", "c", "d"), "p { c: d; rubbish }");
    EXPECT_EQ(edited("", "p", "c", "d"), "p {\n    c: d;\n}\n");
    EXPECT_EQ(edited("", "p", "c", ""), "");
    EXPECT_EQ(edited("p {\n  a: b;\n  c: d;\n}", "p", "a", ""), "p {\n  c: d;\n}");
    EXPECT_EQ(edited("p { a: b; c: d }", "p", "a", ""), "p { c: d }");
    EXPECT_EQ(edited("p {\n  a: b; A: c;  a: d;\n}", "p", "a", "e"), "p {\n  a: e;\n}");
    EXPECT_EQ(edited("p {\n  a: b; a: c; x: y\n}", "p", "a", ""), "p {\n  x: y\n}");
    EXPECT_EQ(edited("p{a:b}p{a:c}", "p", "a", "d"), "p{a:b}p{a:d}");
    EXPECT_EQ(edited("p { a : b /* why */ ; }", "p", "a", "e"), "p { a : e /* why */ ; }");
}

TEST(StyleSheet, CommentsStringsAndAtRulesMayHoldBraces)
{
    const StyleSheet sheet(
        u("@import 'x{y';\n@media print { p { color: red } }\n"
          "/* } p { color: red } */ /*_H  My  Name */ /* other */\n"
          "p /* { */ , \n div:hover { content: \"};\\\"}\"; background: URL(a;b/*c) no-repeat;"
          " color /* ; */ : /* } */ red /* { */ }\n"
          "td[x=\"}\"] { a { color: blue } color: green }"));
    const QList<StyleSheet::Rule> rules = sheet.rules();
    ASSERT_EQ(rules.size(), 2);
    EXPECT_EQ(rules.at(0).selector, u("p , div:hover"));
    EXPECT_EQ(rules.at(0).title, u("My Name"));
    ASSERT_EQ(rules.at(0).declarations.size(), 3);
    EXPECT_EQ(rules.at(0).declarations.at(0).value, u("\"};\\\"}\""));
    EXPECT_EQ(rules.at(0).declarations.at(1).value, u("URL(a;b/*c) no-repeat"));
    EXPECT_EQ(rules.at(0).declarations.at(2).property, u("color"));
    EXPECT_EQ(rules.at(0).declarations.at(2).value, u("red"));
    EXPECT_EQ(rules.at(1).title, QString());
    EXPECT_EQ(sheet.value(u("td[x=\"}\"]"), u("color")), u("green"));
    EXPECT_FALSE(sheet.hasRule(u("div:hover")));
}

TEST(StyleSheet, BodyIsTakenAndPutAsItStands)
{
    StyleSheet sheet(u("p { a: b; /* c */ }\nq {}"));
    EXPECT_EQ(sheet.body(u("p")), u(" a: b; /* c */ "));
    sheet.setBody(u("p"), u("\n  x: y;\n"));
    sheet.setBody(u("new  rule"), u("x: y;"));
    EXPECT_EQ(sheet.text(), u("p {\n  x: y;\n}\nq {}\n\nnew rule {\n    x: y;\n}\n"));
    EXPECT_EQ(sheet.body(u("missing")), QString());
}

TEST(StyleSheet, WhatIsOpenAtTheEndIsClosedBeforeSomethingFollows)
{
    for (const char *open :
         {"p { a: b", "p { a: b; /* c", "p { a: 'b", "p { a: 'b\\", "p { a: url(b", "p { a: b\\", "p { a: (b",
          "p { q { r {", "p", "p\\", "/*", "/* *", "@media x { p { ", "@x", "'", "}", "{{", "p { a: 'b\n"}) {
        StyleSheet sheet(u(open));
        sheet.setValue(u("new"), u("c"), u("d"));
        EXPECT_EQ(sheet.value(u("new"), u("c")), u("d")) << open;
        EXPECT_TRUE(sheet.text().startsWith(u(open))) << open;
        sheet.setValue(u("p"), u("e"), u("f"));
        EXPECT_EQ(sheet.value(u("p"), u("e")), u("f")) << open << " made " << qPrintable(sheet.text());
    }
}

// With work that grows with the square of the text this would take many minutes.
TEST(StyleSheet, StandsLongHostileTexts)
{
    for (const char *piece : {"{", "}",  "/*",   ";", "p{", "p{}",  "p{a:b;", "url(",  "'",   "\\",
                              "@", "@{", "/*_H", ":", "(",  "<!--", "/",      "p{;;}", "\n ", "*/"}) {
        const QString text = u(piece).repeated(200000 / int(qstrlen(piece)));
        StyleSheet sheet(text);
        EXPECT_LE(sheet.rules().size(), 100000);
        sheet.setValue(u("new"), u("c"), u("d"));
        EXPECT_EQ(sheet.value(u("new"), u("c")), u("d")) << piece;
        EXPECT_TRUE(sheet.text().startsWith(text)) << piece;
    }
    StyleSheet same(u("p{\n") + u("a:b;\n").repeated(200000) + u("}"));
    same.setValue(u("p"), u("a"), u("c"));
    EXPECT_EQ(same.text(), u("p{\na:c;\n}"));
}
