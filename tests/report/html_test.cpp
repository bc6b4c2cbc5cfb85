// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/htmlreport.h"

#include "report/reportfixture.h"
#include "richtext/xhtml/links.h"
#include "views/report/browserhead.h"
#include "views/report/templatemarkup.h"

#include <QRegularExpression>
#include <QUrl>
#include <QXmlStreamReader>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class Html : public ReportFixture
{
protected:
    /// Every text that matches, first group.
    [[nodiscard]] QStringList all(const QString &pattern)
    {
        QStringList found;
        const QString html = htmlReport(report());
        for (const QRegularExpressionMatch &match : QRegularExpression(pattern).globalMatch(html)) {
            found.append(match.captured(1));
        }
        return found;
    }
};

TEST_F(Html, NamesNoVariantAndNoNotesWhereThereAreNoneAndAlwaysShowsValues)
{
    changeTemplate([](BOMTemplate &settings) { settings.setExcludeValueField(true); });
    netlist.add("R1", "1k");
    database.load();
    EXPECT_EQ(all(u"<p class='headerTitle'>(.*?)</p>"_s).size(), 7);
    EXPECT_TRUE(all(u"(NotesTitle)'>"_s).isEmpty());
    EXPECT_EQ(all(u"<p class='fieldHeading'>(Value)<"_s).size(), 1);
}

TEST_F(Html, GivesManualWidthsByPositionAndNoneBeyondAHundredPercent)
{
    netlist.add("R1", "1k");
    database.load();
    const auto widthsWith = [this](const QList<int> &fieldWidths) {
        changeTemplate([&fieldWidths](BOMTemplate &settings) {
            settings.setManualPrettyLayout(true);
            settings.setPrettyQuantityWidth(10);
            settings.setPrettyRefWidth(30);
            BOMFields fields;
            for (const int width : fieldWidths) {
                BOMField field;
                field.fieldName = QString::number(fields.size());
                field.propertyName = fields.isEmpty() ? u"VALUE"_s : field.fieldName;
                field.manualWidth = width;
                fields.add(field);
            }
            settings.setFields(fields);
        });
        return all(u"<th( style='width:.*?')?><p class='fieldHeading'>"_s);
    };
    const auto style = [](int width) { return u" style='width:"_s + QString::number(width) + u"%'"_s; };
    EXPECT_THAT(widthsWith({20, 0, 30, 20}),
                ElementsAre(style(10), style(30), style(20), style(30), QString(), QString()));
    EXPECT_THAT(widthsWith({20, 40}), ElementsAre(style(10), style(30), style(20), style(40)));
    // What was left out counts all the same.
    EXPECT_THAT(widthsWith({70, 10}), ElementsAre(style(10), style(30), QString(), QString()));
    EXPECT_THAT(widthsWith({2000000000, 2000000000, 5}),
                ElementsAre(style(10), style(30), QString(), QString(), QString()));
}

TEST_F(Html, ForReadingHasNumbersOnTheRightAndNeitherEmptyColumnsNorTotalsOfNothing)
{
    changeTemplate([](BOMTemplate &settings) { settings.setLayoutForReading(true); });
    netlist.add("R1", "1k", {{"COST", "0.5"}});
    netlist.add("R3", "1k", {{"COST", "0.5"}});
    netlist.add("C1", "1n");
    database.load();
    EXPECT_THAT(all(u"<th class='number' style='width:\\d+%'><p class='fieldHeading'>(.*?)<"_s),
                ElementsAre(u"Quantity"_s, u"Unit Cost"_s));
    EXPECT_THAT(all(u"<td class='number'><p class='.*?'>(.*?)<"_s),
                ElementsAre(u"1"_s, QString(), u"2"_s, u"0.50"_s, u"1.00"_s, u"1.00"_s));
    EXPECT_THAT(all(u"<td class='references'><p class='oddfield'>(.*?)<"_s),
                ElementsAre(u"C1"_s, u"R1, R3"_s));
    EXPECT_THAT(all(u"<p class='emptyColumns'>(.*?)<"_s), ElementsAre(u"Empty for all parts: Stock Code"_s));
    // A head once for browsers, one per category for our pages.
    EXPECT_EQ(htmlReport(report()).count(u">Unit Cost<"_s), 1);
    EXPECT_EQ(htmlReport(report(), HtmlUse::Pages).count(u">Unit Cost<"_s), 2);
}

TEST_F(Html, LinksAddressesOfTheWebInColumnsWithLinks)
{
    changeTemplate([](BOMTemplate &settings) { settings.setLayoutForReading(true); });
    netlist.add("R1", "https://example.com/?a=1&b", {{"CODE", "https://example.com/r.pdf"}});
    netlist.add("R2", "1k", {{"CODE", "http://x/y see there"}});
    netlist.add("R3", "2k", {{"CODE", "javascript:alert(1)"}});
    database.load();
    EXPECT_THAT(all(u"<a href=\"(.*?)\""_s), ElementsAre(u"https://example.com/r.pdf"_s));
}

TEST(CssString, CannotEndItselfNorTheStyleSheet)
{
    EXPECT_EQ(cssString(u"A1 \"\\</style>\n&\u00e4"_s),
              u"\"A1 \\22 \\5c \\3c \\2f style\\3e \\a \\26 \u00e4\""_s);
}

TEST(TemplateMarkup, TellsWhatTheReportIsWithout)
{
    BOMTemplate settings;
    settings.setDocumentHeader(
        u"<p id='a' onclick='' ondblclick='' onmousedown='' onmouseup='' onmouseover='' "
        "onmouseout=''>x</p>"_s);
    settings.setDocumentFooter(u"<p id='a'>y</p>"_s);
    settings.setPageHeader(u"<p>x</p>"_s.repeated(101));
    settings.setCss(u"p.a { color: red } "_s.repeated(1'001));
    const TemplateMarkup markup = templateMarkup(settings);
    EXPECT_EQ(markup.documentFooter, u"<p>y</p>"_s);
    EXPECT_THAT(
        markup.notices,
        ElementsAre(
            u"the header of the template is shown without what would run or fetch something: onclick, "
            "ondblclick, onmousedown, onmouseup, onmouseover and 1 more"_s,
            u"the report is without the page header of the template: The HTML text has too many "
            "elements."_s,
            u"the style sheet of the template is too long: windows and PDF files show its first rules "
            "only"_s));
}

TEST(ReportLink, LeadsToFilesAndAddressesOnly)
{
    const std::pair<QString, QUrl> cases[] = {
        {u"docs/a#1 100%.pdf"_s, QUrl::fromLocalFile(u"/designs/amp/docs/a#1 100%.pdf"_s)},
        {u"https://example.com/x?y=1"_s, QUrl(u"https://example.com/x?y=1"_s)},
        {u"mailto:a@b.c"_s, QUrl(u"mailto:a@b.c"_s)},
        {u"/data/x.pdf"_s, QUrl::fromLocalFile(u"/data/x.pdf"_s)},
        {u"file:rel/x.pdf#page=2"_s, QUrl(u"file:///designs/amp/rel/x.pdf#page=2"_s)},
        {u"file:///data/x.pdf"_s, QUrl::fromLocalFile(u"/data/x.pdf"_s)},
        {u"javascript:alert(1)"_s, {}},
        {u" java\tscript:alert(1)"_s, {}},
        {u"data:text/html,x"_s, {}},
        {u""_s, {}},
    };
    for (const auto &[link, target] : cases) {
        EXPECT_EQ(linkTarget(link, u"/designs/amp"_s), target) << link.toStdString();
    }
}

TEST(HtmlText, EscapesMarkupAndReplacesWhatXmlLacks)
{
    const QString lone = QString(QChar(0xD800)) + u'a' + QChar(0xDC00);
    EXPECT_EQ(htmlText(u"a<b>\"c\"&'d'\t\r\n\U0001F600"_s + lone + QChar(0xFFFE) + QChar(0x1B)),
              u"a&lt;b&gt;&quot;c&quot;&amp;'d'\t\r\n\U0001F600\uFFFDa\uFFFD\uFFFD\uFFFD"_s);
    const QString clean = u"100nF 50V \U0001F600"_s.repeated(3);
    EXPECT_TRUE(htmlText(clean).isSharedWith(clean));
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

} // namespace
