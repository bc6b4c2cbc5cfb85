// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textedit.h"
#include "richtext/editor/textstyleeditor.h"
#include "support/pdftext.h"
#include "support/scriptedprintui.h"
#include "templates/templatepaths.h"
#include "views/bomhtmlview.h"
#include "views/viewfixture.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QXmlStreamReader>

#include <gmock/gmock.h>

#include <functional>

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

class HtmlEditing : public ViewFixture
{
protected:
    HtmlEditing()
    {
        netlist.add("R1", "10k");
        database.load();
        view.setPartsDatabase(&database);
        view.handleBOMDataUpdate();
        view.show();
    }

    /// Does that with the next modal dialog once it is open.
    template<typename Dialog>
    void inDialog(const std::function<void(Dialog &)> &act)
    {
        QTimer::singleShot(0, &view, [act] {
            auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            act(*dialog);
        });
    }
    [[nodiscard]] QColor colourOfTitle()
    {
        const QTextDocument &document = *view.textEdit()->document();
        return document.find(u"Bill Of"_s).charFormat().foreground().color();
    }

    ScriptedPrintUi printUi;
    QTemporaryDir folder;
    BOMHTMLView view;
    QSignalSpy modified{&view, &BOMHTMLView::currentTemplateModified};
};

TEST_F(HtmlEditing, HostileStyleSheetStaysStyleSheetAndOutlivesACancelledPageSetup)
{
    const QString css = u"p.a { color: red; } a[href='x&y'] {} <!-- </style><script>x</script> ]]> p.b {"_s;
    BOMTemplate changed = database.currentTemplate();
    changed.setCss(css);
    database.setTemplateLook(changed);
    view.handleBOMDataUpdate();
    view.setPageSize();
    EXPECT_EQ(database.currentTemplate().css(), css);
    const QString html = view.html();
    EXPECT_FALSE(html.contains(u"<script"_s));
    QXmlStreamReader reader(view.textEdit()->document()->getHtml());
    while (reader.readNext() != QXmlStreamReader::EndElement || reader.name() != u"style"_s) {
        ASSERT_FALSE(reader.atEnd()) << reader.errorString().toStdString();
    }
    view.textEdit()->document()->loadCss(css, true);
    EXPECT_EQ(view.textEdit()->document()->find(u"script"_s).position(), -1);
}

TEST_F(HtmlEditing, StylesArePreviewedAndTakenWhenAccepted)
{
    const QString old = database.currentTemplate().css();
    const QColor oldColour = colourOfTitle();
    const auto edit = [this](bool accepts) {
        inDialog<TextStyleEditor>([&](TextStyleEditor &editor) {
            editor.loadCSS(editor.getCSS().replace(u"#000099"_s, u"#00aa00"_s));
            EXPECT_EQ(colourOfTitle(), QColor(0, 0xaa, 0));
            accepts ? editor.accept() : editor.reject();
        });
        view.editStyleTemplate();
    };
    edit(false);
    EXPECT_EQ(colourOfTitle(), oldColour);
    EXPECT_EQ(database.currentTemplate().css(), old);
    EXPECT_EQ(modified.size(), 0);
    edit(true);
    EXPECT_EQ(colourOfTitle(), QColor(0, 0xaa, 0));
    EXPECT_TRUE(database.currentTemplate().css().contains(u"#00aa00"_s));
    EXPECT_EQ(modified.size(), 1);
    EXPECT_TRUE(view.html().contains(u"#00aa00"_s));
}

TEST_F(HtmlEditing, ResetReachesTheTemplateOnlyThroughTheStyleEditor)
{
    BOMTemplate settings = database.currentTemplate();
    settings.setCss(u"p { color: red; }"_s);
    database.setTemplateLook(settings);
    view.resetCSS();
    EXPECT_EQ(database.currentTemplate().css(), u"p { color: red; }"_s);
    for (const bool accepts : {false, true}) {
        inDialog<TextStyleEditor>([&](TextStyleEditor &editor) {
            Q_EMIT editor.resetCSS();
            accepts ? editor.accept() : editor.reject();
        });
        view.editStyleTemplate();
        EXPECT_EQ(database.currentTemplate().css(), accepts ? defaultStyleSheet() : u"p { color: red; }"_s);
    }
}

TEST_F(HtmlEditing, AnotherPaperBecomesTheTemplates)
{
    view.setPageSize();
    printUi.paper = QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(5, 5, 5, 5),
                                QPageLayout::Millimeter);
    view.setPageSize();
    EXPECT_EQ(modified.size(), 0);
    EXPECT_EQ(database.currentTemplate().css(), defaultStyleSheet());
    printUi.paper->setPageSize(QPageSize(QPageSize::A3));
    view.setPageSize();
    EXPECT_EQ(modified.size(), 1);
    EXPECT_TRUE(database.currentTemplate().css().contains(u"paper-width: 842.0pt;"_s));
    view.setPageSize();
    EXPECT_EQ(modified.size(), 1);
}

TEST_F(HtmlEditing, ProjectNotesFollowWhereTheTemplateAppendsThem)
{
    FakeNotes notes;
    process.projectNotes = &notes;
    process.design.info.insert("TITLE", u"Amp & Co"_s);
    ui.fileName = folder.filePath(u"report.pdf"_s);
    printUi.printFile = folder.filePath(u"print.pdf"_s);
    printUi.previewFile = folder.filePath(u"preview.pdf"_s);
    for (const bool appends : {false, true}) {
        changeTemplate([appends](BOMTemplate &settings) { settings.setAppendNotes(appends); });
        view.handleBOMDataUpdate();
        notes.painted = 0;
        view.generatePDF();
        view.print();
        EXPECT_FALSE(view.pdf().isEmpty());
        EXPECT_EQ(notes.painted, appends ? 4 : 0);
        for (const QString &file : {ui.fileName, printUi.printFile, printUi.previewFile}) {
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

TEST_F(HtmlEditing, HeaderAndFooterAreTakenFromTheirEditor)
{
    const auto edit = [this](bool accepts) {
        inDialog<QDialog>([&](QDialog &dialog) {
            dialog.findChild<TextEdit *>(u"headerTextEdit"_s)->insertPlainText(u"ACME <1>"_s);
            accepts ? dialog.accept() : dialog.reject();
        });
        view.editTemplate();
    };
    edit(false);
    EXPECT_EQ(database.currentTemplate().documentHeader(), QString());
    EXPECT_EQ(modified.size(), 0);
    edit(true);
    EXPECT_EQ(database.currentTemplate().documentHeader(), u"<p class=\"DocHeader\">ACME &lt;1&gt;</p>"_s);
    EXPECT_EQ(database.currentTemplate().documentFooter(), QString());
    EXPECT_EQ(database.currentTemplate().css(), defaultStyleSheet());
    EXPECT_EQ(modified.size(), 1);
    EXPECT_TRUE(view.textEdit()->toPlainText().startsWith(u"ACME <1>\n"_s));
}

TEST_F(HtmlEditing, AnOldTemplatesFileBecomesHeaderAndFooterOnce)
{
    QFile file(folder.filePath(u"old.html"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        "<html><body><div id=customHeader>Head &copy;<br></div><p>rest<div id='customFooter'><p>Foot</div>");
    file.close();
    changeTemplate([&file](BOMTemplate &settings) {
        settings.setName(u"House"_s);
        settings.setHtmlTemplateFileName(file.fileName());
    });
    view.handleBOMDataUpdate();
    view.handleBOMDataUpdate();
    EXPECT_TRUE(database.currentTemplate().documentHeader().startsWith(u"Head \u00a9<br"_s))
        << database.currentTemplate().documentHeader().toStdString();
    EXPECT_TRUE(database.currentTemplate().documentFooter().contains(u"<p>Foot</p>"_s));
    ASSERT_EQ(ui.informations.size(), 1);
    EXPECT_EQ(ui.informations[0].title, u"BOM Template Upgraded"_s);
    EXPECT_EQ(ui.informations[0].text,
              u"The BOM template 'House' has been upgraded.  Some styling may have changed."_s);
    EXPECT_EQ(modified.size(), 1);
    changeTemplate([this](BOMTemplate &settings) {
        settings.setDocumentHeader({});
        settings.setDocumentFooter({});
        settings.setHtmlTemplateFileName(folder.filePath(u"none.html"_s));
    });
    view.handleBOMDataUpdate();
    EXPECT_EQ(database.currentTemplate().documentHeader(), QString());
    EXPECT_EQ(ui.informations.size(), 1);
}

} // namespace
