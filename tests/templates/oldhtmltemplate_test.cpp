// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/oldhtmltemplate.h"

#include "support/printtext.h"
#include "support/testfiles.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace {

QStringList debugLines;

void keepLine(QtMsgType, const QMessageLogContext &, const QString &text)
{
    debugLines.append(text);
}

class OldTemplate : public testing::Test
{
protected:
    OldTemplate()
        : m_previous(qInstallMessageHandler(keepLine))
    {
        debugLines.clear();
    }
    ~OldTemplate() override { qInstallMessageHandler(m_previous); }

    [[nodiscard]] OldHtmlTemplate read(const QByteArray &html)
    {
        return readOldHtmlTemplate(writeFile(m_folder.filePath(QStringLiteral("old #1%20.html")), html));
    }

    QTemporaryDir m_folder;
    QtMessageHandler m_previous;
};

} // namespace

TEST_F(OldTemplate, TakesTheTextOfHeaderAndFooter)
{
    const OldHtmlTemplate old =
        read("<html><body>x<div id='customHeader'><p>A &amp; B&nbsp;\xC3\xA9 <b>c</b></p><div>in</div></div>"
             "<div id=\"other\">no<span id=customFooter>F<br></span></div></body></html>");
    EXPECT_TRUE(old.isConverted);
    EXPECT_EQ(old.header.simplified(), QStringLiteral("<p>A &amp; B&#160;\u00E9 <b>c</b></p> <div>in</div>"));
    EXPECT_EQ(old.footer.simplified(), QStringLiteral("F<br />"));
    const OldHtmlTemplate plain = read("<p>plain</p>");
    EXPECT_TRUE(plain.isConverted);
    EXPECT_EQ(plain.header + plain.footer + read("<div id='customHeader'/>").header, QString());
    EXPECT_TRUE(debugLines.isEmpty());
}

TEST_F(OldTemplate, TellsWhatCannotBeRead)
{
    EXPECT_FALSE(readOldHtmlTemplate({}).isConverted);
    EXPECT_FALSE(readOldHtmlTemplate(m_folder.filePath(QStringLiteral("missing"))).isConverted);
    EXPECT_EQ(debugLines, QStringList{QStringLiteral("BOM: load of HTML template with no name attempted.")});
    debugLines.clear();
    EXPECT_FALSE(read("<div id='customHeader'><nosuch>x</nosuch></div>").isConverted);
    EXPECT_FALSE(read(QByteArray("<div>").repeated(300'000)).isConverted);
    ASSERT_EQ(debugLines.size(), 2);
    EXPECT_TRUE(debugLines.first().startsWith(QStringLiteral("BOM v1 template import error:")));
}

TEST_F(OldTemplate, MendsHostileFiles)
{
    EXPECT_EQ(read("\xFF\xFE\x01<body><p id=customHeader a:b=1>x\x02&#1;&bogus;</body><p id='customFooter'>y")
                  .footer,
              QStringLiteral("y"));
    EXPECT_EQ(read("<div id='customHeader'>a<div id='customFooter'>b</div></div>").footer, QString());
    EXPECT_EQ(read("<p id='customHeader'>&lt;/p&gt; \xF0\x9F\x98\x80<!-- </p> -->z</p>").header,
              QStringLiteral("&lt;/p&gt; \U0001F600<!-- </p> -->z"));
}
