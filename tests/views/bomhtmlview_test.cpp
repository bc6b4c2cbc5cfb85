// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomhtmlview.h"

#include "report/reportfixture.h"
#include "richtext/editor/textedit.h"
#include "richtext/editor/textstyleeditor.h"
#include "support/pdftext.h"
#include "support/scriptedprintui.h"
#include "support/testfiles.h"
#include "templates/templatepaths.h"
#include "views/pdfreport.h"

#include <QApplication>
#include <QDialog>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

/// Notes of one page that count how often they are painted.
class FakeNotes final : public APPLNOBJECT
{
public:
    int painted = 0;

    void paint(QPainter &painter, int mode) override
    {
        EXPECT_EQ(mode, PAINT_MODE_APPEND);
        ++painted;
        painter.drawText(100, 100, u"project-notes-text"_s);
    }
};

class HtmlView : public ReportFixture
{
protected:
    HtmlView()
    {
        netlist.add("R1", "10k");
        database.load();
        view.setPartsDatabase(&database);
        view.handleBOMDataUpdate();
    }

    [[nodiscard]] TextDocument &document() { return *view.textEdit()->document(); }
    [[nodiscard]] QString css() const { return database.currentTemplate().css(); }
    void setCss(const QString &css)
    {
        BOMTemplate changed = database.currentTemplate();
        changed.setCss(css);
        database.setTemplateLook(changed);
    }
    /// Does that with the next modal dialog once it is open, then accepts or rejects it.
    template<typename Dialog>
    void inDialog(bool accepts, const std::function<void(Dialog &)> &act)
    {
        QTimer::singleShot(0, &view, [act, accepts] {
            auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            act(*dialog);
            accepts ? dialog->accept() : dialog->reject();
        });
    }

    ScriptedPrintUi printUi;
    QTemporaryDir folder;
    BOMHTMLView view;
    QSignalSpy modified{&view, &BOMHTMLView::currentTemplateModified};
};

TEST_F(HtmlView, CellsHoldMarkupAndLinksThatOpenBesideTheDesign)
{
    netlist.add("U1", "LM<358>", {{"BOMLINKS", "VALUE=a.pdf"}});
    netlist.add("U3", "LM<358>");
    database.reload();
    changeField(u"Value"_s, [](BOMField &field) {
        field.enableLinks = true;
        field.fieldWidth = 6;
    });
    view.updateFields();
    const QStringList row =
        view.categoryRows(database.categoryOf(u"U1"_s), true, Report::UnlimitedWidth, 1).value(0);
    EXPECT_EQ(row.value(1), u"U1,&shy;&#8203;U3"_s);
    EXPECT_EQ(row.value(2), u"<a href=\"a.pdf\">LM&lt;...</a>"_s);
    EXPECT_EQ(view.fieldValue(u"U1"_s, u"Value"_s, false), u"LM<358>"_s);
    EXPECT_EQ(BOMHTMLView::htmlText(u"<b>x"_s, false), u"&lt;b&gt;x"_s);
    EXPECT_EQ(BOMHTMLView::htmlText(u"<b>x"_s, true).simplified(), u"<b>x</b>"_s);
    process.design.info.insert("FILENAME", u"/designs/amp/amp.kicad_sch"_s);
    view.onLinkActivated(u"a.pdf"_s);
    view.onLinkActivated(u"javascript:alert(1)"_s);
    EXPECT_EQ(ui.openedUrls, QList<QUrl>{QUrl::fromLocalFile(u"/designs/amp/a.pdf"_s)});
}

TEST_F(HtmlView, LinksInsideTheDocumentScrollAndThoseToProgramsAsk)
{
    changeTemplate([](BOMTemplate &settings) {
        settings.setDocumentHeader(u"<p>x</p>"_s.repeated(100) + u"<p><a name='here'></a>y</p>"_s);
        settings.setDocumentFooter(u"<p>x</p>"_s.repeated(100));
    });
    view.handleBOMDataUpdate();
    view.resize(300, 300);
    view.show();
    view.onLinkActivated(u"#none"_s);
    EXPECT_EQ(view.textEdit()->verticalScrollBar()->value(), 0);
    view.onLinkActivated(u"#here"_s);
    EXPECT_GT(view.textEdit()->verticalScrollBar()->value(), 0);
    const QString program = writeFile(folder.filePath(u"run.sh"_s), "");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    const QString entry = writeFile(folder.filePath(u"a.Desktop"_s), "");
    view.onLinkActivated(program);
    view.onLinkActivated(QUrl::fromLocalFile(entry).toString());
    EXPECT_EQ(ui.questions.size(), 2);
    EXPECT_TRUE(ui.openedUrls.isEmpty());
    ui.answer = true;
    view.onLinkActivated(program);
    EXPECT_EQ(ui.openedUrls, QList<QUrl>{QUrl::fromLocalFile(program)});
}

TEST_F(HtmlView, TellsOnceWhatItDoesNotShowOfTheTemplate)
{
    changeTemplate([](BOMTemplate &settings) { settings.setDocumentHeader(u"<p onclick='x()'>ACME</p>"_s); });
    view.handleBOMDataUpdate();
    view.handleBOMDataUpdate();
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_TRUE(ui.warnings[0].text.contains(u"onclick"_s));
    EXPECT_TRUE(view.html().contains(u"<p>ACME</p>"_s));
}

TEST_F(HtmlView, ShowsTheDocumentOnlyWhenItsTabIsVisible)
{
    EXPECT_EQ(view.textEdit()->toPlainText(), QString());
    EXPECT_EQ(document().getHtml(), view.html());
    view.show();
    EXPECT_TRUE(view.textEdit()->toPlainText().contains(u"10k"_s));
    EXPECT_EQ(document().getHtml(), view.html());
    EXPECT_EQ(view.textEdit()->focusPolicy(), Qt::WheelFocus);
}

TEST_F(HtmlView, KeepsItsPlaceUntilAnotherDesignIsShown)
{
    for (int i = 2; i < 60; ++i) {
        netlist.add(u"R%1"_s.arg(i).toUtf8(), u"%1k"_s.arg(i).toUtf8());
    }
    view.resize(300, 200);
    view.show();
    QScrollBar &bar = *view.textEdit()->verticalScrollBar();
    database.reload();
    view.handleBOMDataUpdate();
    bar.setValue(150);
    view.handleBOMDataUpdate();
    EXPECT_EQ(bar.value(), 150);
    process.design.info.insert("FILENAME", u"/designs/other/other.kicad_sch"_s);
    view.handleBOMDataUpdate();
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(HtmlView, SavesWhatItShows)
{
    ui.fileName = folder.filePath(u"a.html"_s);
    const QString shown = view.html();
    netlist.add("R2", "\xce\xa9");
    database.reload();
    view.saveHTML();
    EXPECT_EQ(QString::fromUtf8(readFile(ui.fileName)), shown);
    EXPECT_EQ(view.property("ExportFileName").toString(), ui.fileName);
}

TEST_F(HtmlView, PutsOutTheReportOfItsDatabaseThoughNoneWasShown)
{
    ui.fileName = folder.filePath(u"a.html"_s);
    BOMHTMLView fresh;
    fresh.setPartsDatabase(&database);
    fresh.setPageSize();
    fresh.saveHTML();
    EXPECT_EQ(QString::fromUtf8(readFile(ui.fileName)), view.html());
    FakeNetlist other;
    other.add("C1", "1u");
    BOMPartsDatabase others;
    others.setNetlist(other.cache());
    others.load();
    fresh.setPartsDatabase(&others);
    fresh.saveHTML();
    EXPECT_EQ(QString::fromUtf8(readFile(ui.fileName)), fresh.html());
}

TEST_F(HtmlView, IsNothingWithoutADatabase)
{
    view.setPartsDatabase(nullptr);
    for (const auto operation : {&BOMHTMLView::handleBOMDataUpdate, &BOMHTMLView::saveHTML,
                                 &BOMHTMLView::generatePDF, &BOMHTMLView::print, &BOMHTMLView::setPageSize,
                                 &BOMHTMLView::editStyleTemplate, &BOMHTMLView::editTemplate}) {
        (view.*operation)();
    }
    view.onLinkActivated(u"https://x"_s);
    EXPECT_EQ(view.html(), QString());
    EXPECT_TRUE(ui.fileRequests.isEmpty() && ui.openedUrls.isEmpty());
}

TEST_F(HtmlView, HostileStyleSheetStaysStyleSheetAndOutlivesACancelledPageSetup)
{
    const QString hostile =
        u"p.a { color: red; } a[href='x&y'] {} <!-- </style><script>x</script> ]]> p.b {"_s;
    setCss(hostile);
    view.handleBOMDataUpdate();
    view.show();
    view.setPageSize();
    EXPECT_EQ(css(), hostile);
    EXPECT_FALSE(view.html().contains(u"<script"_s));
    QXmlStreamReader reader(document().getHtml());
    while (reader.readNext() != QXmlStreamReader::EndElement || reader.name() != u"style"_s) {
        ASSERT_FALSE(reader.atEnd()) << reader.errorString().toStdString();
    }
    document().loadCss(hostile, true);
    EXPECT_EQ(document().find(u"script"_s).position(), -1);
}

TEST_F(HtmlView, StylesArePreviewedAndTakenWhenAccepted)
{
    view.show();
    const auto colourOfTitle = [this] {
        return document().find(u"Bill Of"_s).charFormat().foreground().color();
    };
    for (const bool accepts : {false, true}) {
        inDialog<TextStyleEditor>(accepts, [&](TextStyleEditor &editor) {
            editor.loadCSS(editor.getCSS().replace(u"#000099"_s, u"#00aa00"_s));
            EXPECT_EQ(colourOfTitle(), QColor(0, 0xaa, 0));
        });
        view.editStyleTemplate();
        EXPECT_EQ(colourOfTitle(), accepts ? QColor(0, 0xaa, 0) : QColor(0, 0, 0x99));
        EXPECT_EQ(css(), defaultStyleSheet().replace(u"#000099"_s, accepts ? u"#00aa00"_s : u"#000099"_s));
        EXPECT_EQ(modified.size(), accepts ? 1 : 0);
        EXPECT_EQ(view.html().contains(u"#00aa00"_s), accepts);
    }
}

TEST_F(HtmlView, ResetReachesTheTemplateOnlyThroughTheStyleEditor)
{
    const QString own = u"p { color: red; }"_s;
    setCss(own);
    view.resetCSS();
    EXPECT_EQ(css(), own);
    for (const bool accepts : {false, true}) {
        inDialog<TextStyleEditor>(accepts, [](TextStyleEditor &editor) { Q_EMIT editor.resetCSS(); });
        view.editStyleTemplate();
        EXPECT_EQ(css(), accepts ? defaultStyleSheet() : own);
    }
}

TEST_F(HtmlView, AnotherPaperBecomesTheTemplates)
{
    view.setPageSize();
    printUi.paper = QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(5, 5, 5, 5),
                                QPageLayout::Millimeter);
    view.setPageSize();
    EXPECT_EQ(modified.size(), 0);
    EXPECT_EQ(css(), defaultStyleSheet());
    printUi.paper->setPageSize(QPageSize(QPageSize::A3));
    view.setPageSize();
    EXPECT_TRUE(css().contains(u"paper-width: 842.0pt;"_s));
    view.setPageSize();
    EXPECT_EQ(modified.size(), 1);
}

TEST_F(HtmlView, ProjectNotesFollowWhereTheTemplateAppendsThem)
{
    FakeNotes notes;
    process.projectNotes = &notes;
    process.design.info.insert("TITLE", u"Amp & Co"_s);
    ui.fileName = folder.filePath(u"report.pdf"_s);
    printUi.printFile = folder.filePath(u"print.pdf"_s);
    printUi.previewFile = folder.filePath(u"preview.pdf"_s);
    const QString written = folder.filePath(u"written.pdf"_s);
    for (const bool appends : {false, true}) {
        changeTemplate([appends](BOMTemplate &settings) { settings.setAppendNotes(appends); });
        view.handleBOMDataUpdate();
        notes.painted = 0;
        view.generatePDF();
        view.print();
        writeFile(written, pdfReport(report()));
        EXPECT_EQ(notes.painted, appends ? 4 : 0);
        for (const QString &file : {ui.fileName, printUi.printFile, printUi.previewFile, written}) {
            const QString text = pdfPages(file).join(u' ');
            EXPECT_TRUE(text.contains(u"Design Title"_s)) << text.toStdString();
            EXPECT_EQ(text.contains(u"project-notes-text"_s), appends);
        }
    }
    EXPECT_EQ(ui.openedUrls.size(), 2);
    ui.fileName.clear();
    printUi.printFile.clear();
    view.generatePDF();
    EXPECT_EQ(ui.openedUrls.size(), 2);
}

TEST_F(HtmlView, HeaderAndFooterAreTakenFromTheirEditor)
{
    view.show();
    for (const bool accepts : {false, true}) {
        inDialog<QDialog>(accepts, [](QDialog &dialog) {
            dialog.findChild<TextEdit *>(u"headerTextEdit"_s)->insertPlainText(u"ACME <1>"_s);
        });
        view.editTemplate();
        EXPECT_EQ(database.currentTemplate().documentHeader(),
                  accepts ? u"<p class=\"DocHeader\">ACME &lt;1&gt;</p>"_s : QString());
        EXPECT_EQ(modified.size(), accepts ? 1 : 0);
    }
    EXPECT_EQ(database.currentTemplate().documentFooter(), QString());
    EXPECT_EQ(css(), defaultStyleSheet());
    EXPECT_TRUE(view.textEdit()->toPlainText().startsWith(u"ACME <1>\n"_s));
}

} // namespace
