// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/markupcleaner.h"

#include "richtext/css/cssloads.h"
#include "richtext/documents.h"
#include "richtext/paper/pagelayouter.h"
#include "richtext/paper/pdfoutput.h"
#include "richtext/xhtml/selfcontaineddocument.h"
#include "richtext/xhtml/xmltext.h"
#include "support/datatable.h"
#include "support/printtext.h"

#include <QImage>
#include <QPixmap>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

const QString image =
    u"data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAA"
    "AABJRU5ErkJggg=="_s;

TEST(MarkupCleaner, KeepsWhatIsHarmlessAsItIs)
{
    for (
        const QString &text :
        {u""_s, u"plain"_s, u"\n<p  class='DocHeader'>A &amp; B&nbsp;&copy;<br/></p>\r\n<!-- kept -->"_s,
         u"<table width='100%'><tr><td colspan='2'>x</td></tr></table><a href='#top'>up</a><a name=\"top\"></a>"_s,
         u"<p><img alt='' src='"_s + image +
             u"' width='20'/></p><ul><li><b>x</b></li></ul>{page} of {pages}"_s,
         u"<p style=\"background: #fff url("_s + image + u"); font-size: 12pt\">&#8364;</p>"_s}) {
        EXPECT_EQ(MarkupCleaner().clean(text), (CleanMarkup{text, {}, {}}));
    }
}

TEST(MarkupCleaner, MendsAndLeavesOutWhatActsOrFetches)
{
    for (const auto &[markup, xhtml, leftOut] : dataTable<3>("richtext/cleaned-markup.txt")) {
        const CleanMarkup cleaned = MarkupCleaner().clean(QString::fromStdString(markup));
        EXPECT_EQ(cleaned.xhtml.toStdString(), xhtml) << markup;
        EXPECT_EQ(cleaned.leftOut.join(u',').toStdString(), leftOut) << markup;
    }
    MarkupCleaner document;
    EXPECT_EQ(document.clean(u"<p id='a'>x</p>"_s).xhtml, u"<p id='a'>x</p>"_s);
    EXPECT_EQ(document.clean(u"<p id='a'>x</p>"_s).xhtml, u"<p>x</p>"_s);
    EXPECT_EQ(document.clean(u"<p id='b'>x<b>y</p>"_s).problem, QString());
    EXPECT_EQ(document.clean(u"<p id='b'>x</p>"_s).xhtml, u"<p>x</p>"_s);
}

TEST(MarkupCleaner, RefusesWhatIsTooDeepOrTooMuch)
{
    const QString table = u"<table><tr><td>"_s;
    const QString tableEnd = u"</td></tr></table>"_s;
    const QString longest = u"<p>"_s + u"x"_s.repeated(20'000) + u"</p>"_s;
    const QString picture = u"<p><img alt='' src='"_s + image + u"'/></p>"_s;
    for (const QString &text :
         {u"<div>"_s.repeated(100) + u"</div>"_s.repeated(100), table.repeated(8) + tableEnd.repeated(8),
          (table + tableEnd).repeated(20), longest.repeated(100), picture.repeated(100),
          u"<p x='' y='' z=''>a</p>"_s.repeated(7'000)}) {
        EXPECT_EQ(MarkupCleaner().clean(text).problem, QString()) << text.left(30);
    }
    for (const QString &text :
         {u"<div>"_s.repeated(101) + u"</div>"_s.repeated(101), u"<div>"_s.repeated(20'000),
          table.repeated(9) + tableEnd.repeated(9), u"<br/>"_s.repeated(20'001), u"<p>x"_s.repeated(20'001),
          longest.repeated(101), picture.repeated(101), u"<p>x<br/></p>"_s.repeated(10'001),
          u"<p>"_s + u"x<br/>"_s.repeated(2'000) + u"</p>"_s,
          u"<p"_s + u" title=''"_s.repeated(500) + u">x</p>"_s,
          u"<table>"_s + u"<tr><td colspan='1000' rowspan='1000'>x</td></tr>"_s.repeated(20) +
              u"</table>"_s}) {
        const CleanMarkup result = MarkupCleaner().clean(text);
        EXPECT_EQ(result.xhtml, QString()) << text.left(30);
        EXPECT_NE(result.problem, QString()) << text.left(30);
    }
    EXPECT_NE(MarkupCleaner(MarkupCleaner::ofPage).clean(u"<p>x</p>"_s.repeated(101)).problem, QString());
}

TEST(StyleLoads, AreTakenAway)
{
    for (const auto &[css, quiet] : std::initializer_list<std::pair<QString, QString>>{
             {u"p { color: red } /* url(x) */ a { content: 'url(x)' }"_s,
              u"p { color: red } /* url(x) */ a { content: 'url(x)' }"_s},
             {u"@import 'x'; @\\69mport url(x;y); @media print { p {} }"_s, u"  @media print { p {} }"_s},
             {u"p { background: URL( \"x)\" ) red }"_s, u"p { background: none red }"_s},
             {u"p { background: image-set('x' 1x, url(y) 2x), url("_s + image + u") }"_s,
              u"p { background: none, url("_s + image + u") }"_s},
             {u"p { content: 'a\r b: url(x) }"_s, u"p { content: 'a\n b: none }"_s},
             {u"p { width: expression(alert(1)) }"_s, u"p { width: none }"_s}}) {
        EXPECT_EQ(css::withoutLoads(css), quiet);
        EXPECT_EQ(css::withoutLoads(quiet), quiet);
        EXPECT_EQ(styleElementText(css), quiet);
    }
}

TEST(SelfContainedDocument, OpensNoFile)
{
    QTemporaryDir folder;
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    PdfOutput output(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}), {});
    SelfContainedDocument document;
    const QString css = u"p { background-image: url("_s + pipe + u") }"_s;
    const QString svg =
        u"<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><image width='9' height='9' "
        "xlink:href='"_s +
        pipe + u"' xmlns:xlink='http://www.w3.org/1999/xlink'/></svg>"_s;
    const QString drawing = u"data:image/svg+xml;base64,"_s + QString::fromLatin1(svg.toUtf8().toBase64());
    layOutPages(document,
                page(css, u"<style>@import url("_s + pipe + u");</style><link rel='stylesheet' href='"_s +
                              pipe + u"'><p style='background: url("_s + pipe + u")'><img src='"_s + pipe +
                              u"'><img src='file://"_s + pipe + u"'><img src='"_s + image +
                              u"'><img src='"_s + drawing + u"'>x</p>"_s),
                output.device(), QSizeF(2000, 3000));
    EXPECT_EQ(document.pageCount(), 1);
    const auto pixelsOf = [&document](const QString &source) {
        return document.resource(QTextDocument::ImageResource, QUrl(source))
            .value<QImage>()
            .pixelColor(0, 0)
            .alpha();
    };
    EXPECT_EQ(pixelsOf(pipe), 0);
    EXPECT_GT(pixelsOf(image), 0);
}

TEST(Pages, EndForHugeLengths)
{
    for (const QString &css :
         {u"p { font-size: 99999pt }"_s, u"p { margin: 1e9px }"_s, u"td { padding: 9999cm }"_s,
          u"td { padding: INFpx }"_s, u"td { padding: 'in\\66' }"_s, u"[class] { margin-top: nan }"_s,
          u"p.b { page-break-before: always } p.b { pa\\67 e-break-after: always }"_s}) {
        PdfOutput output(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}), {});
        SelfContainedDocument document;
        layOutPages(
            document,
            page(
                css,
                u"<table class='a'><tr><td><p style='margin-top: 5000px'>text</p></td></tr></table>"
                "<p class='b' style='page-break-before:always'>x</p><p style='pag\\65-break-after: always'>y</p>"_s
                    .repeated(500)),
            output.device(), QSizeF(2000, 3000));
        EXPECT_LT(document.pageCount(), 9000) << css;
    }
}

} // namespace
