// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/htmltext.h"

#include <gtest/gtest.h>

#include <QXmlStreamReader>

TEST(HtmlText, StartsADocumentWithTitleAndStyle)
{
    const QString expected = QStringLiteral(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "   <!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Transitional//EN\" "
        "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd\">\n"
        "      <html>\n"
        "\t      <head>\n"
        "\t         <meta http-equiv=\"Content-Type\" content=\"text/html; charset=UTF-8\" />\n"
        "\t         <title>50%2 &amp; %1</title>\n"
        "\t         <style type=\"text/css\">\n"
        "p { width: 5%; }\n"
        "\t         </style>\t      </head>\n"
        "\t   <body>\n");
    EXPECT_EQ(htmlDocumentStart(QStringLiteral("50%2 &amp; %1"), QStringLiteral("p { width: 5%; }")),
              expected);
}

TEST(HtmlText, EscapesMarkupAndReplacesWhatXmlLacks)
{
    const QString lone = QString(QChar(0xD800)) + u'a' + QChar(0xDC00);
    const QString pair = QStringLiteral("\U0001F600");
    EXPECT_EQ(htmlText(QStringLiteral("a<b>\"c\"&'d'\t\r\n") + pair),
              QStringLiteral("a&lt;b&gt;&quot;c&quot;&amp;'d'\t\r\n") + pair);
    EXPECT_EQ(htmlText(lone + QChar(0xFFFE) + QChar(0xFFFF) + QChar(0) + QChar(0x1B)),
              QStringLiteral("\uFFFDa\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"));
    EXPECT_EQ(xmlText(QStringLiteral("<a>&") + QChar(1)), QStringLiteral("<a>&\uFFFD"));
}

TEST(HtmlText, SharesCleanText)
{
    const QString clean = QStringLiteral("100nF 50V \U0001F600").repeated(3);
    EXPECT_TRUE(htmlText(clean).isSharedWith(clean));
}

TEST(HtmlText, IsReadBackByAnXmlReader)
{
    QString everything;
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        everything += QChar(unit);
    }
    QXmlStreamReader reader(htmlDocumentStart(htmlText(everything), QString()) + htmlDocumentEnd());
    while (!reader.atEnd()) {
        reader.readNext();
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
}
