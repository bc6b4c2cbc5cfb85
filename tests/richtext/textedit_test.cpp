// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textedit.h"

#include "richtext/css/cssvalue.h"
#include "richtext/css/pagegeometry.h"
#include "richtext/css/stylesheet.h"
#include "richtext/documents.h"
#include "richtext/paper/longtable.h"
#include "richtext/paper/pagelayouter.h"
#include "richtext/paper/pagepainter.h"
#include "richtext/paper/pdfoutput.h"
#include "richtext/paper/strip.h"
#include "support/pdftext.h"
#include "support/printtext.h"
#include "support/scriptedprintui.h"
#include "support/scriptedui.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

#include <gmock/gmock.h>

#include <cstdlib>
#include <functional>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

const QString sheet = u"body { margin: 20pt; paper-width: 300pt; paper-height: 400pt; }"_s;

QString longTable()
{
    QString rows;
    for (int i = 0; i < 60; ++i) {
        rows += u"<tr><td><p>line"_s + QString::number(i) + u"</p></td><td><p>x</p></td></tr>"_s;
    }
    return u"<table><tbody><tr><th><p>Heading</p></th><th><p>Other</p></th></tr>"_s + rows +
           u"</tbody></table>"_s;
}

/// With links in late rows and text behind the table.
QString reportOf(int rows, const QString &word = u"part"_s, const QString &look = {})
{
    QString body;
    for (int i = 0; i < rows; ++i) {
        body +=
            u"<tr><td><p>%1%2</p></td><td><p><a href='%2.pdf'>%3</a></p></td></tr>"_s.arg(word).arg(i).arg(
                u"x "_s.repeated(i % 40));
    }
    return page(
        sheet + look,
        u"<h1>Title</h1><table><tbody><tr><th><p class='h'>Heading</p></th><th><p class='h'>Other</p></th></tr>"_s +
            body +
            u"</tbody><tbody><tr><td><p>Totals</p></td></tr></tbody></table>"
            "<p><a name='end'>the end</a></p>"_s);
}

class Edit : public testing::Test
{
protected:
    /// As reports are shown.
    void showReport(const QString &xhtml)
    {
        edit.setReadOnly(true);
        edit.setUndoRedoEnabled(false);
        edit.resize(400, 300);
        edit.show();
        edit.loadDocument(xhtml);
    }
    QString copied(bool isWhole = true)
    {
        if (isWhole) {
            edit.selectAll();
        }
        edit.copy();
        return QApplication::clipboard()->text();
    }

    ScriptedUi ui;
    ScriptedPrintUi printUi;
    QTemporaryDir folder;
    TextEdit edit;
};

TEST(PageSetupDialog, SaysNothingOfPrinters)
{
    static QStringList messages;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
        if (text.contains(u"printer"_s)) {
            messages.append(text);
        }
    });
    QTimer::singleShot(0, qApp, [] { qobject_cast<QDialog *>(QApplication::activeModalWidget())->reject(); });
    QPageLayout layout(QPageSize(QPageSize::A5), QPageLayout::Portrait, {});
    EXPECT_FALSE(PrintUi::current().choosePaper(nullptr, layout));
    qWarning("other printer");
    qInstallMessageHandler(nullptr);
    EXPECT_THAT(messages, ElementsAre(u"other printer"_s));
}

TEST_F(Edit, ShowsLinksInTheirOwnColourInEveryTheme)
{
    const QPalette before = QGuiApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Link, Qt::yellow);
    QGuiApplication::setPalette(dark);
    edit.loadDocument(page({}, u"<p><a href='a.pdf'>x</a> <a name='y'>y</a></p>"_s));
    edit.document()->show();
    EXPECT_EQ(edit.document()->find(u"x"_s).charFormat().foreground().color(), QColor(Qt::blue));
    EXPECT_FALSE(edit.document()->find(u"y"_s).charFormat().hasProperty(QTextFormat::ForegroundBrush));
    edit.loadDocument(
        page(u"p, a { color: #123456; } p.x { color: red; }"_s, u"<p class='x'><a href='a.pdf'>x</a></p>"_s));
    edit.document()->show();
    EXPECT_EQ(edit.document()->find(u"x"_s).charFormat().foreground().color(), QColor(u"#123456"_s));
    QGuiApplication::setPalette(before);
}

TEST_F(Edit, OpensLinksWithMouseAndKeyboard)
{
    QStringList opened;
    QObject::connect(&edit, &TextEdit::linkActivated, &edit,
                     [&](const QString &link) { opened.append(link); });
    edit.setReadOnly(true);
    edit.setTextInteractionFlags(Qt::TextBrowserInteraction);
    edit.resize(300, 200);
    edit.loadDocument(page(sheet, u"<p><a href='docs/a#1%.pdf'>link</a> text</p>"_s));
    edit.show();
    const QPoint onLink = edit.cursorRect().center() + QPoint(5, 0);
    QTest::mouseClick(edit.viewport(), Qt::LeftButton, {}, onLink);
    EXPECT_THAT(opened, ElementsAre(u"docs/a#1%.pdf"_s));
    QTest::mouseClick(edit.viewport(), Qt::LeftButton, {}, onLink + QPoint(150, 0));
    QTest::mousePress(edit.viewport(), Qt::LeftButton, {}, onLink + QPoint(150, 0));
    QTest::mouseRelease(edit.viewport(), Qt::LeftButton, {}, onLink);
    EXPECT_EQ(opened.size(), 1);
    QTest::keyClick(&edit, Qt::Key_Tab);
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(opened.size(), 2);
}

TEST_F(Edit, OpensAtTheTopAndKeepsItsPlaceWhenTheDocumentIsMadeAnew)
{
    // Before a window is laid out, its parts are small.
    edit.resize(300, 20);
    edit.loadDocument(page(sheet, longTable()));
    edit.show();
    edit.resize(300, 200);
    EXPECT_EQ(edit.verticalScrollBar()->value(), 0);
    edit.verticalScrollBar()->setValue(150);
    edit.document()->loadCss(u"p { color: red; }"_s, true);
    EXPECT_EQ(edit.verticalScrollBar()->value(), 150);
    edit.loadDocument(page(sheet, longTable()));
    EXPECT_EQ(edit.verticalScrollBar()->value(), 150);
}

class LookOfReport : public Edit, public testing::WithParamInterface<const char *>
{
};

TEST_P(LookOfReport, ShowsTheFirstRowsOfALongTableAtOnceAndThenAllAsOneTable)
{
    const QString xhtml = reportOf(1200, u"part"_s, QString::fromLatin1(GetParam()));
    edit.resize(400, 300);
    edit.show();
    edit.loadDocument(xhtml);
    const QString text = copied();
    const QString markup = QApplication::clipboard()->mimeData()->html();
    const double height = edit.document()->size().height();
    ASSERT_TRUE(edit.document()->isComplete());

    showReport(xhtml);
    EXPECT_FALSE(edit.document()->isComplete());
    EXPECT_TRUE(text.startsWith(edit.toPlainText().left(1000)));
    EXPECT_LT(edit.document()->blockCount(), 1000);
    ASSERT_TRUE(QTest::qWaitFor([&] { return edit.document()->isComplete(); }, 60000));
    EXPECT_EQ(edit.document()->size().height(), height);
    EXPECT_EQ(copied(), text);
    EXPECT_EQ(QApplication::clipboard()->mimeData()->html().count(u"<table"_s), markup.count(u"<table"_s));
    EXPECT_FALSE(edit.document()->isModified());
    edit.resize(300, 300);
    const double narrow = edit.document()->size().height();
    edit.setReadOnly(false);
    edit.loadDocument(xhtml);
    EXPECT_EQ(edit.document()->size().height(), narrow);
}

INSTANTIATE_TEST_SUITE_P(Looks, LookOfReport,
                         testing::Values("", "table { border-collapse: collapse; } p { padding: 2pt 4pt; } "
                                             "p.h { border-bottom: 1pt solid #0000ff; }"));

class RowsInWindow : public Edit, public testing::WithParamInterface<int>
{
protected:
    /// A report whose columns are made for paper of 800 pixels.
    void show(int width)
    {
        const QString row =
            u"<tr><td><p>PIC_18_PINS</p></td><td><p>A package with a long name</p></td></tr>"_s;
        edit.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        showReport(page(u"body { margin: 0pt; paper-width: 600pt; } table { width: 100%; }"_s,
                        u"<table><tbody><tr><th style='width:12%'><p>Value</p></th><th style='width:88%'>"
                        "<p>Footprint</p></th></tr>"_s +
                            row.repeated(GetParam()) + u"</tbody></table>"_s));
        edit.resize(width, 300);
        edit.document()->complete();
    }
    [[nodiscard]] int linesOf(const QString &text)
    {
        return edit.document()->find(text).block().layout()->lineCount();
    }
};

TEST_P(RowsInWindow, BreaksNoWordsThatFitOnThePaperWhileThereIsRoom)
{
    show(300);
    EXPECT_EQ(linesOf(u"PIC"_s), 1);
    EXPECT_EQ(linesOf(u"package"_s), 1);
    edit.resize(180, 300);
    EXPECT_TRUE(QTest::qWaitFor([this] { return linesOf(u"package"_s) > 1; }));
    EXPECT_EQ(linesOf(u"PIC"_s), 1);
    edit.resize(100, 300);
    EXPECT_TRUE(QTest::qWaitFor([this] { return edit.horizontalScrollBar()->maximum() > 20; }));
    EXPECT_LE(linesOf(u"package"_s), 4);
    edit.resize(300, 300);
    EXPECT_TRUE(QTest::qWaitFor([this] { return edit.document()->textWidth() == edit.viewport()->width(); }));
    EXPECT_FALSE(edit.document()->isModified());
}

TEST_P(RowsInWindow, KeepsTheTextAtItsTop)
{
    show(300);
    QScrollBar &bar = *edit.verticalScrollBar();
    edit.resize(300, 40);
    bar.setValue(bar.maximum() / 2);
    const auto top = [this] { return edit.cursorForPosition({0, 0}).blockNumber(); };
    const int before = top();
    for (const int width : {180, 300}) {
        const double height = edit.document()->size().height();
        edit.resize(width, 40);
        EXPECT_TRUE(QTest::qWaitFor([&] { return edit.document()->size().height() != height; }));
        EXPECT_EQ(top(), before);
    }
}

TEST_P(RowsInWindow, IsAsWideAsBeforeItWasZoomed)
{
    show(300);
    const QSizeF before = edit.document()->size();
    edit.setZoom(1.5);
    EXPECT_GT(edit.horizontalScrollBar()->maximum(), 100);
    edit.resize(350, 300);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return edit.document()->textWidth() == qRound(1.5 * edit.viewport()->width()); }));
    edit.setZoom(0.5);
    EXPECT_EQ(edit.document()->textWidth(), edit.viewport()->width());
    edit.setZoom(1.1);
    edit.resize(300, 300);
    edit.setZoom(1);
    EXPECT_EQ(edit.document()->size(), before);
    EXPECT_TRUE(QTest::qWaitFor([this] { return edit.horizontalScrollBar()->maximum() == 0; }));
}

INSTANTIATE_TEST_SUITE_P(Rows, RowsInWindow, testing::Values(3, 1200));

TEST_F(Edit, DoesWithTheWholeDocumentWhatIsAskedForWhileItGrows)
{
    const QString xhtml = reportOf(1200);
    showReport(xhtml);
    EXPECT_EQ(edit.document()->getHtml(), xhtml);
    const QString all = copied();
    EXPECT_TRUE(all.contains(u"part1199"_s) && all.trimmed().endsWith(u"the end"_s)) << all.size();
    edit.loadDocument(xhtml);
    edit.goToAnchor(u"end"_s);
    EXPECT_EQ(edit.verticalScrollBar()->value(), edit.verticalScrollBar()->maximum());
    const int bottom = edit.verticalScrollBar()->value();
    EXPECT_GT(bottom, 3000);
    edit.loadDocument(xhtml);
    EXPECT_EQ(edit.verticalScrollBar()->value(), bottom);
    edit.goToTop();
    edit.loadDocument(xhtml);
    EXPECT_FALSE(edit.document()->isComplete());
    QTest::keyClick(&edit, Qt::Key_End, Qt::ControlModifier);
    EXPECT_FALSE(edit.document()->isComplete());
    ASSERT_TRUE(QTest::qWaitFor([&] { return edit.document()->isComplete(); }, 60000));
    EXPECT_EQ(edit.verticalScrollBar()->value(), bottom);
    edit.goToTop();
    edit.loadDocument(xhtml);
    // Another takes its place.
    edit.loadDocument(reportOf(1100, u"other"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return edit.document()->isComplete(); }, 60000));
    EXPECT_FALSE(edit.toPlainText().contains(u"part"_s));
    EXPECT_EQ(edit.toPlainText().count(u"other"_s), 1100);
}

TEST_F(Edit, PrintsPagesWithHeadingsAndFragments)
{
    edit.loadDocument(page(sheet, longTable()));
    edit.document()->setTitle(u"<T&>"_s);
    edit.setPageFragments(u"<p>{title} {page} of {pages} {nothing}</p>"_s, u"<p>foot {date} {subject}</p>"_s,
                          u"a<b"_s);
    printUi.printFile = folder.filePath(u"print.pdf"_s);
    printUi.previewFile = folder.filePath(u"preview.pdf"_s);
    QPainter painter;
    ASSERT_TRUE(edit.print(painter));
    painter.end();
    EXPECT_EQ(printUi.offeredPaper.fullRect(QPageLayout::Point).size(), QSizeF(300, 400));
    EXPECT_EQ(printUi.offeredPaper.margins(QPageLayout::Point), QMarginsF(20, 20, 20, 20));
    const std::string today = QLocale::c().toString(ui.clock.date(), QLocale::ShortFormat).toStdString();
    for (const QString &file : {printUi.printFile, printUi.previewFile}) {
        const QStringList pages = pdfPages(file);
        ASSERT_GE(pages.size(), 2);
        for (qsizetype i = 0; i < pages.size(); ++i) {
            EXPECT_THAT(pages[i].toStdString(),
                        HasSubstr(u"<T&> %1 of %2 {nothing}"_s.arg(i + 1).arg(pages.size()).toStdString()));
            EXPECT_THAT(pages[i].toStdString(), HasSubstr("foot " + today + " a<b"));
            EXPECT_EQ(pages[i].count(u"Heading"_s), 1);
        }
        for (int i = 0; i < 60; ++i) {
            EXPECT_EQ(pages.join(u' ').count(QRegularExpression(u"\\bline%1\\b"_s.arg(i))), 1) << i;
        }
    }
    const QStringList all = pdfPages(printUi.printFile);
    ASSERT_GE(all.size(), 3);
    for (const auto &[pages, expected] :
         {std::pair(u"1,3-9"_s, QStringList{all[0]} + all.mid(2)), {u"2"_s, all.mid(1, 1)}}) {
        printUi.pages = pages;
        ASSERT_TRUE(edit.print(painter));
        painter.end();
        EXPECT_EQ(pdfPages(printUi.printFile), expected) << pages;
    }
    printUi.whileAsked = [&] {
        QPainter other;
        EXPECT_TRUE(edit.print(other)) << "has a printer of its own";
    };
    ASSERT_TRUE(edit.print(painter));
    painter.end();
    EXPECT_EQ(pdfPages(printUi.printFile), all.mid(1, 1));
    printUi.printFile.clear();
    EXPECT_FALSE(edit.print(painter));
    EXPECT_FALSE(painter.isActive());
}

/// A page, small but with all that stands on it.
QImage imageOf(const QSizeF &size, int page, const std::function<void(QPainter &, const QRectF &)> &draw)
{
    constexpr int width = 300;
    const double scale = width / size.width();
    QImage image(width, int(size.height() * scale), QImage::Format_RGB32);
    image.fill(Qt::white);
    const QRectF part(0, page * size.height(), size.width(), size.height());
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.translate(0, -part.top());
    painter.setClipRect(part);
    draw(painter, part);
    return image;
}

/// How many pixels of one are in the other neither at their place nor directly above or below it.
int differenceOf(const QImage &a, const QImage &b)
{
    int count = 0;
    for (int y = 1; y < a.height() - 1; ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y);
            int least = 1000;
            for (int dy = -1; dy <= 1; ++dy) {
                const QRgb other = b.pixel(x, y + dy);
                least =
                    std::min(least, std::abs(qRed(one) - qRed(other)) + std::abs(qBlue(one) - qBlue(other)));
            }
            count += least > 128 ? 1 : 0;
        }
    }
    return count;
}

QString twoSections(const QString &look)
{
    QString rows;
    for (int i = 0; i < 155; ++i) {
        const int words = i % 30;
        rows += u"<tr><td><p class='%1'>%2</p></td><td><p class='%1'>%3</p></td></tr>"_s.arg(
            words < 4 ? u"a"_s : u"b"_s, i % 3 == 0 ? u"<a href='x'>%1</a>"_s.arg(i) : QString::number(i),
            u"word "_s.repeated(words));
    }
    const auto section = [&rows](const QString &title) {
        return u"<tbody><tr><th><p class='h'>Heading</p></th><th><p class='h'>"_s + title +
               u"</p></th></tr>"_s + rows + u"</tbody>"_s;
    };
    const QString body = u"<p>before</p><table>"_s + section(u"Other"_s) +
                         section(u"Title of many words "_s.repeated(8)) + u"</table><p>after</p>"_s;
    return page(sheet + u"p { margin: 0pt; } p.b { color: #cc0000; } "_s + look, body);
}

void expectPagesOfOneDocument(const QString &look)
{
    const QString xhtml = twoSections(look);
    PdfOutput output(pageLayout(StyleSheet(sheet)), {});
    const QSizeF size(output.device().width(), output.device().height());
    const auto table = LongTable::layOut(xhtml, output.device(), size);
    ASSERT_TRUE(table) << look;
    QTextDocument document;
    layOutPages(document, xhtml, output.device(), size);
    EXPECT_EQ(table->pageCount(), document.pageCount());
    for (int number = 0; number < document.pageCount(); ++number) {
        const QImage shown =
            imageOf(size, number, [&](QPainter &painter, const QRectF &) { table->draw(painter, number); });
        const QImage expected = imageOf(size, number, [&](QPainter &painter, const QRectF &part) {
            drawDocument(painter, document, part);
        });
        EXPECT_LT(differenceOf(shown, expected), 20) << look << " page " << number;
    }
}

TEST(LongTableTest, ShowsThePagesThatOneDocumentHas)
{
    const QString box = u"p.a { background-color: #ccddff; padding: 2pt 5pt; } "_s;
    expectPagesOfOneDocument(box);
    expectPagesOfOneDocument(box +
                             u"table { border-collapse: collapse; } p.h { border-bottom: 1pt solid #0000ff; "
                             "padding: 3pt 4pt; } p.b { padding: 2pt 4pt; }"_s);
    // What only QTextDocument knows is left to it.
    PdfOutput output(pageLayout(StyleSheet(sheet)), {});
    const QSizeF size(output.device().width(), output.device().height());
    EXPECT_FALSE(LongTable::layOut(twoSections(u"p.b { margin: 3pt; }"_s), output.device(), size));
    QString references = twoSections(box);
    references.replace(u"word "_s.repeated(29), u"R1,&shy;&#8203;"_s.repeated(800));
    EXPECT_TRUE(LongTable::layOut(references, output.device(), size));
}

TEST(LongTableTest, KeepsRowsInOnePieceWhereTheStyleSheetSaysSo)
{
    PdfOutput output(pageLayout(StyleSheet(sheet)), {});
    QString rows;
    for (int i = 0; i < 90; ++i) {
        rows += u"<tr><td><p>begin%1 "_s.arg(i) + u"word "_s.repeated(i % 40 * 3) +
                u"last%1</p></td></tr>"_s.arg(i);
    }
    PagedText text;
    text.xhtml = page(sheet + u"p { margin: 0pt; } tr { break-inside: avoid; }"_s,
                      u"<table><tbody><tr><th><p>Heading</p></th></tr>"_s + rows + u"</tbody></table>"_s);
    PagePainter pages(text);
    QPainter painter(&output.device());
    pages.paint(painter, 1, pages.layOut(output.device()));
    painter.end();
    QTemporaryDir folder;
    const QString file = folder.filePath(u"a.pdf"_s);
    writeFile(file, output.bytes());
    const QStringList shown = pdfPages(file);
    EXPECT_GT(shown.size(), 3);
    for (int i = 0; i < 90; ++i) {
        const QRegularExpression row(u"\\bbegin%1\\b.*\\blast%1\\b"_s.arg(i),
                                     QRegularExpression::DotMatchesEverythingOption);
        EXPECT_EQ(shown.filter(row).size(), 1) << i;
    }
}

TEST_F(Edit, NeverLeavesAHeadingAloneAtTheFootOfAPage)
{
    for (int lines = 0; lines < 30; ++lines) {
        const QString body = u"<p>x</p>"_s.repeated(lines) +
                             u"<table><tbody><tr><th><p>Title</p></th></tr><tr><td><p>alpha</p></td></tr>"
                             "<tr><td><p>beta</p></td></tr></tbody></table>"_s;
        edit.loadDocument(page(sheet, body));
        QPainter painter;
        ASSERT_TRUE(edit.printToPdf(folder.filePath(u"%1.pdf"_s.arg(lines)), false, false, painter));
        painter.end();
        for (const QString &text : pdfPages(edit.finishPdf())) {
            EXPECT_EQ(text.contains(u"Title"_s), text.contains(u"alpha"_s) || text.contains(u"beta"_s))
                << lines;
        }
    }
}

TEST_F(Edit, WritesPdfFilesWithClickableLinksAsAWhole)
{
    edit.loadDocument(page(sheet, u"<p><a href=\"https://example.com/(x\">site</a></p>"_s));
    ui.fileName = folder.filePath(u"a#1.pdf"_s);
    QPainter painter;
    ASSERT_TRUE(edit.printToPdf(u"/suggested.pdf"_s, true, true, painter));
    EXPECT_TRUE(painter.isActive());
    EXPECT_FALSE(QFile::exists(ui.fileName));
    painter.end();
    EXPECT_EQ(edit.finishPdf(), ui.fileName);
    EXPECT_EQ(ui.fileRequests.value(0).path, u"/suggested.pdf"_s);
    EXPECT_THAT(ui.openedUrls, ElementsAre(QUrl::fromLocalFile(ui.fileName)));
    EXPECT_TRUE(readFile(ui.fileName).contains("/URI (https://example.com/%28x)"));
    EXPECT_EQ(edit.finishPdf(), QString());

    ui.fileName.clear();
    EXPECT_FALSE(edit.printToPdf(u"/suggested.pdf"_s, true, false, painter));
    ASSERT_TRUE(edit.printToPdf(folder.filePath(u"none/x.pdf"_s), false, false, painter));
    painter.end();
    EXPECT_EQ(edit.finishPdf(), QString());
    EXPECT_EQ(ui.warnings.size(), 1);
}

TEST_F(Edit, ReturnKeepsTheLookAndEndsListsAndHeadings)
{
    const QString css = u"p.x { font-size: 15pt; color: red; margin-top: 3pt; }"_s;
    edit.document()->setParagraphClass(u"x"_s);
    edit.loadDocument(page(css, u"<ul><li><p class='x'>item</p></li></ul>"_s));
    edit.show();
    const auto type = [&](const QString &text) {
        QTest::keyClick(&edit, Qt::Key_Return);
        QTest::keyClicks(&edit, text);
        return edit.textCursor().charFormat();
    };
    edit.moveCursor(QTextCursor::End);
    type({});
    EXPECT_TRUE(edit.textCursor().currentList());
    EXPECT_EQ(type(u"after"_s).fontPointSize(), 15);
    EXPECT_FALSE(edit.textCursor().currentList());
    type({});
    EXPECT_EQ(type(u"blank"_s).fontPointSize(), 15);
    edit.loadDocument(page(css, u"<h1>head</h1>"_s));
    edit.moveCursor(QTextCursor::End);
    const QTextCharFormat plain = type(u"plain"_s);
    EXPECT_EQ(edit.textCursor().blockFormat().headingLevel(), 0);
    EXPECT_EQ(edit.textCursor().blockFormat().topMargin(), 4);
    EXPECT_EQ(plain.fontPointSize(), 15);
    EXPECT_EQ(plain.foreground().color(), QColor(Qt::red));
    EXPECT_LT(plain.fontWeight(), QFont::Bold);
}

TEST_F(Edit, StaysAsItIsWhenTheClipboardIsEmpty)
{
    edit.loadDocument(page({}, u"<p>kept</p>"_s));
    PasteSafePlainTextEdit css;
    css.setPlainText(u"p {}"_s);
    QApplication::clipboard()->setMimeData(new QMimeData);
    for (QWidget *field : {static_cast<QWidget *>(&edit), static_cast<QWidget *>(&css)}) {
        field->show();
        QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    }
    EXPECT_EQ(edit.toPlainText(), u"kept"_s);
    EXPECT_EQ(css.toPlainText(), u"p {}"_s);
}

TEST_F(Edit, PaperIsKeptInTheStyleSheetOnlyWhenItChanges)
{
    edit.loadDocument(page(sheet, u"<p>x</p>"_s));
    edit.pageSetup();
    printUi.paper = pageLayout(StyleSheet(sheet));
    edit.pageSetup();
    EXPECT_EQ(edit.document()->getCss(), sheet);
    printUi.paper = QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Landscape,
                                QMarginsF(20, 20, 20, 20), QPageLayout::Point);
    edit.pageSetup();
    EXPECT_EQ(edit.document()->getCss(),
              u"body { margin: 20pt; paper-width: 792.0pt; paper-height: 612.0pt; }"_s);
    printUi.paper->setMargins(QMarginsF(30, 10, 20, 40));
    edit.pageSetup();
    EXPECT_EQ(pageMargins(StyleSheet(edit.document()->getCss())), QMarginsF(30, 10, 20, 40));
}

TEST(PageGeometry, ReadsLengthsAndDoubtsWhatMakesNoPage)
{
    for (const QString &inch : {u" 25.4mm "_s, u"1in"_s, u"96PX"_s}) {
        EXPECT_EQ(css::points(inch, 0, 0), 72) << inch;
    }
    EXPECT_EQ(css::points(u"0"_s, 0, 0), 0);
    for (const QString &none :
         {u""_s, u"12"_s, u"x"_s, u"1e400pt"_s, u"NaNpt"_s, QString(400, u'9') + u"pt"_s}) {
        EXPECT_FALSE(css::points(none, 1, 1)) << none;
    }
    EXPECT_EQ(pageMargins(StyleSheet(u"body { font-size: 10pt; margin: 1pt 2em 3pt !important; } "
                                     "body { margin-left: -4pt; }"_s)),
              QMarginsF(0, 1, 20, 3));
    const QPageLayout a4 =
        pageLayout(StyleSheet(u"body { paper-width: 0.1pt; paper-height: -5mm; margin: -1pt; }"_s));
    EXPECT_EQ(a4.pageSize().id(), QPageSize::A4);
    EXPECT_EQ(a4.margins(), QMarginsF());
    const QPageLayout narrow =
        pageLayout(StyleSheet(u"body { paper-width: 100pt; paper-height: 1in; margin: 90pt; }"_s));
    EXPECT_GT(narrow.paintRect(QPageLayout::Point).width(), 20);
    EXPECT_GT(narrow.paintRect(QPageLayout::Point).height(), 20);
}

} // namespace
