// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/tidylibwrapper.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

#include <QXmlStreamReader>

namespace {

QString tidied(const QString &html, int mode = TidyLibWrapper::Fragment)
{
    TidyLibWrapper tidy;
    const QString result = tidy.tidyHtml(html, mode);
    EXPECT_TRUE(tidy.errorString().isEmpty()) << qPrintable(tidy.errorString());
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
    EXPECT_EQ(tidied(QStringLiteral("<P ID=x class='a b'>caf&eacute;&nbsp;\u03A9<br><B>c<I>d</I>")),
              QStringLiteral("<p id=\"x\" class='a b'>caf\u00E9&#160;\u03A9<br />\n<b>c<i>d</i></b></p>"));
    EXPECT_EQ(tidied(QStringLiteral("plain & <b></b><p class='e'></p>")),
              QStringLiteral("plain &amp; <b></b>\n<p class='e'></p>"));
    EXPECT_EQ(tidied(QString()), QString());
}

TEST(Tidy, DoesNotWrapLinesNorSignTheDocument)
{
    const QString words = QStringLiteral("word ").repeated(200).trimmed();
    const QString document = tidied(QStringLiteral("<html><body><div>") + words, TidyLibWrapper::Document);
    EXPECT_TRUE(document.contains(QStringLiteral("<div>") + words + QStringLiteral("</div>")));
    EXPECT_FALSE(document.contains(QStringLiteral("generator")));
    EXPECT_TRUE(document.contains(QStringLiteral("<body>")));
}

TEST(Tidy, TellsWhatItCannotMendAndForgetsItAtTheNextCall)
{
    TidyLibWrapper tidy;
    EXPECT_TRUE(tidy.tidyHtml(QStringLiteral("<nosuchthing>x"), TidyLibWrapper::Fragment).isEmpty());
    EXPECT_TRUE(tidy.errorString().contains(QStringLiteral("nosuchthing")));
    EXPECT_EQ(tidy.tidyHtml(QStringLiteral("x"), TidyLibWrapper::Fragment), QStringLiteral("x"));
    EXPECT_TRUE(tidy.errorString().isEmpty());
}

TEST(Tidy, RefusesWhatWouldExhaustTheStack)
{
    EXPECT_FALSE(errorOf(QStringLiteral("<div>").repeated(1'000'000)).isEmpty());
    EXPECT_FALSE(errorOf(QStringLiteral("<ul><li>").repeated(300'000)).isEmpty());
    EXPECT_FALSE(errorOf(QStringLiteral("<li><dd>").repeated(300'000)).isEmpty());
    EXPECT_FALSE(errorOf(QStringLiteral("<table></b><tr><td>").repeated(19'000)).isEmpty());
    EXPECT_FALSE(errorOf(QStringLiteral("<font size=1 a='>'>").repeated(500)).isEmpty());
}

TEST(Tidy, TakesManyElementsAndMuchTextThatAreFlat)
{
    const QString rows = QStringLiteral("<tr><td>a<td>b").repeated(3'000);
    EXPECT_EQ(tidied(QStringLiteral("<table>") + rows).right(8), QStringLiteral("</table>"));
    EXPECT_TRUE(
        tidied(QStringLiteral("<p>a<p>b<br>").repeated(3'000)).startsWith(QStringLiteral("<p>a</p>")));
    EXPECT_TRUE(
        errorOf(QStringLiteral("<!--") + QStringLiteral("<div>").repeated(1'000) + QStringLiteral("-->"))
            .isEmpty());
}

TEST(Tidy, ReplacesCharactersThatXmlLacks)
{
    EXPECT_EQ(tidied(QStringLiteral("a&#1;b\u0002c&#31;") + QChar(0xD800)),
              QStringLiteral("a\uFFFDb\uFFFDc\uFFFD\uFFFD"));
    EXPECT_TRUE(tidied(QStringLiteral("x&#0;&#xD800;&#xFFFF;y")).endsWith(u'y'));
}

TEST(Tidy, GivesWellFormedTextForHostileInput)
{
    QString controls;
    for (int unit = 0; unit < 0x20; ++unit) {
        controls += QChar(unit);
    }
    controls += QString(QChar(0xD800)) + u'a' + QChar(0xDC00) + QChar(0xFFFE) + QChar(0xFFFF);
    const QStringList texts{controls,
                            QStringLiteral("<b title='") + controls + QStringLiteral("'>x"),
                            QStringLiteral("&#0;&#1;&#xD800;&#xFFFF;&#99999999;&nosuch;&"),
                            QStringLiteral("<script>a<b && ']]>'</script>"),
                            QStringLiteral("<!-- a -- b --->"),
                            QStringLiteral("<p a:b='1' c:d=2 \"q\" <b>x"),
                            QStringLiteral("<![CDATA[x]]><?php y ?>"),
                            QStringLiteral("<p\u0001 class>x</p><"),
                            QStringLiteral("</p></div>x<"),
                            QStringLiteral("<")};
    for (const QString &text : texts) {
        TidyLibWrapper tidy;
        const QString result = tidy.tidyHtml(text, TidyLibWrapper::Fragment);
        QXmlStreamReader reader;
        reader.setNamespaceProcessing(false);
        reader.addData(QLatin1String("<r>") + result + QLatin1String("</r>"));
        while (!reader.atEnd()) {
            reader.readNext();
        }
        EXPECT_FALSE(reader.hasError()) << qPrintable(text) << "\n" << qPrintable(result);
    }
}
