// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/tidylibwrapper.h"

#include "richtext/documents.h"
#include "support/printtext.h"

namespace {

QString tidied(const QString &html, int mode = TidyLibWrapper::Fragment)
{
    TidyLibWrapper tidy;
    const QString result = tidy.tidyHtml(html, mode);
    EXPECT_TRUE(tidy.errorString().isEmpty()) << tidy.errorString();
    return result;
}

QString errorOf(const QString &html)
{
    TidyLibWrapper tidy;
    const QString result = tidy.tidyHtml(html, TidyLibWrapper::Fragment);
    EXPECT_TRUE(result.isEmpty());
    return tidy.errorString();
}

} // namespace

TEST(Tidy, MendsAFragmentAndKeepsItOne)
{
    EXPECT_EQ(tidied(u"<P ID=x class='a b'>caf&eacute;&nbsp;\u03A9<br><B>c<I>d</I>"_s),
              u"<p id=\"x\" class='a b'>caf\u00E9&#160;\u03A9<br />\n<b>c<i>d</i></b></p>"_s);
    EXPECT_EQ(tidied(u"plain & <b></b><p class='e'></p>"_s), u"plain &amp; <b></b>\n<p class='e'></p>"_s);
    EXPECT_EQ(tidied(QString()), QString());
}

TEST(Tidy, DoesNotWrapLinesNorSignTheDocument)
{
    const QString words = u"word "_s.repeated(200).trimmed();
    const QString document = tidied(u"<html><body><div>"_s + words, TidyLibWrapper::Document);
    EXPECT_TRUE(document.contains(u"<div>"_s + words + u"</div>"_s));
    EXPECT_FALSE(document.contains(u"generator"_s));
    EXPECT_TRUE(document.contains(u"<body>"_s));
}

TEST(Tidy, TellsWhatItCannotMendAndForgetsItAtTheNextCall)
{
    TidyLibWrapper tidy;
    EXPECT_TRUE(tidy.tidyHtml(u"<nosuchthing>x"_s, TidyLibWrapper::Fragment).isEmpty());
    EXPECT_TRUE(tidy.errorString().contains(u"nosuchthing"_s));
    EXPECT_EQ(tidy.tidyHtml(u"x"_s, TidyLibWrapper::Fragment), u"x"_s);
    EXPECT_TRUE(tidy.errorString().isEmpty());
}

TEST(Tidy, RefusesWhatWouldExhaustTheStack)
{
    for (const QString &text :
         {u"<div>"_s.repeated(1'000'000), u"<ul><li>"_s.repeated(300'000), u"<li><dd>"_s.repeated(300'000),
          u"<table></b><tr><td>"_s.repeated(19'000), u"<font size=1 a='>'>"_s.repeated(500)}) {
        EXPECT_FALSE(errorOf(text).isEmpty()) << text.left(20);
    }
}

TEST(Tidy, TakesManyElementsAndMuchTextThatAreFlat)
{
    const QString rows = u"<tr><td>a<td>b"_s.repeated(3'000);
    EXPECT_EQ(tidied(u"<table>"_s + rows).right(8), u"</table>"_s);
    EXPECT_TRUE(tidied(u"<p>a<p>b<br>"_s.repeated(3'000)).startsWith(u"<p>a</p>"_s));
    EXPECT_TRUE(errorOf(u"<!--"_s + u"<div>"_s.repeated(1'000) + u"-->"_s).isEmpty());
}

TEST(Tidy, ReplacesCharactersThatXmlLacks)
{
    EXPECT_EQ(tidied(u"a&#1;b\u0002c&#31;"_s + QChar(0xD800)), u"a\uFFFDb\uFFFDc\uFFFD\uFFFD"_s);
    EXPECT_TRUE(tidied(u"x&#0;&#xD800;&#xFFFF;y"_s).endsWith(u'y'));
}

TEST(Tidy, GivesWellFormedTextForHostileInput)
{
    QString controls = QString(QChar(0xD800)) + u'a' + QChar(0xDC00) + QChar(0xFFFE) + QChar(0xFFFF);
    for (int unit = 0; unit < 0x20; ++unit) {
        controls += QChar(unit);
    }
    const QStringList texts{controls,
                            u"<b title='"_s + controls + u"'>x"_s,
                            u"&#0;&#1;&#xD800;&#xFFFF;&#99999999;&nosuch;&"_s,
                            u"<script>a<b && ']]>'</script>"_s,
                            u"<!-- a -- b --->"_s,
                            u"<p a:b='1' c:d=2 \"q\" <b>x"_s,
                            u"<![CDATA[x]]><?php y ?>"_s,
                            u"<p\u0001 class>x</p><"_s,
                            u"</p></div>x<"_s,
                            u"<"_s};
    for (const QString &text : texts) {
        EXPECT_EQ(xmlErrorOf(TidyLibWrapper().tidyHtml(text, TidyLibWrapper::Fragment)), QString()) << text;
    }
}
