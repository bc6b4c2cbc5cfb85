// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomhtmlview.h"

#include "core/bompartsdatabase.h"
#include "host/framework/applnprocess.h"
#include "host/framework/hostui.h"
#include "richtext/css/stylesheet.h"
#include "richtext/editor/textedit.h"
#include "richtext/paper/pagegeometry.h"
#include "richtext/paper/pdfoutput.h"
#include "richtext/xhtml/xmltext.h"
#include "views/report/htmltext.h"
#include "views/report/reportlink.h"
#include "views/savereport.h"

#include <QFileInfo>
#include <QPainter>
#include <QUrl>
#include <QVBoxLayout>

BOMHTMLView::BOMHTMLView(QWidget *parent)
    : BOMView(parent)
    // A soft hyphen and a space without width: long lists can wrap after any comma.
    , m_referenceSeparator(QStringLiteral(",&shy;&#8203;"))
{
}

BOMHTMLView::~BOMHTMLView() = default;

TextEdit *BOMHTMLView::textEdit()
{
    if (!m_textEdit) {
        m_textEdit = new TextEdit(this);
        m_textEdit->setObjectName(QStringLiteral("textEdit"));
        m_textEdit->setFocusPolicy(Qt::WheelFocus);
        m_textEdit->setReadOnly(true);
        m_textEdit->setUndoRedoEnabled(false);
        // A bar that comes and goes makes a long report be laid out once more.
        m_textEdit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        m_textEdit->setTextInteractionFlags(Qt::TextBrowserInteraction);
        setFocusProxy(m_textEdit);
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(m_textEdit);
        connect(m_textEdit, &TextEdit::linkActivated, this, &BOMHTMLView::onLinkActivated);
        connect(m_textEdit, &TextEdit::previewPainted, this,
                [this](QPainter *painter) { appendProjectNotes(*painter); });
    }
    return m_textEdit;
}

QByteArray BOMHTMLView::pdf()
{
    if (!isValid()) {
        return {};
    }
    const BOMTemplate &settings = database()->currentTemplate();
    PagedText text;
    text.xhtml = html();
    text.title = database()->designTitle();
    text.header = xmlText(settings.pageHeader());
    text.footer = xmlText(settings.pageFooter());
    PdfOutput output(pageLayout(StyleSheet(settings.css())), text.title);
    PagePainter pages(text);
    QPainter painter(&output.device());
    pages.paint(painter, 1, pages.layOut(output.device()));
    appendProjectNotes(painter);
    painter.end();
    return output.bytes();
}

void BOMHTMLView::handleBOMDataUpdate()
{
    if (!isValid()) {
        return;
    }
    textEdit()->loadDocument(html());
    textEdit()->document()->setTitle(::htmlText(database()->designTitle()));
}

void BOMHTMLView::saveHTML()
{
    if (!isValid()) {
        return;
    }
    if (textEdit()->document()->getHtml().isEmpty()) {
        handleBOMDataUpdate();
    }
    const QString html = textEdit()->document()->getHtml();
    const QString path =
        saveReport(this,
                   {tr("HTML file to save"), database()->defaultOutputPath(QStringLiteral(".html")),
                    tr("Web pages (*.html *.htm)")},
                   [&html] { return html.toUtf8(); });
    if (!path.isEmpty()) {
        setProperty("ExportFileName", path);
    }
}

void BOMHTMLView::prepareOutput()
{
    if (textEdit()->document()->getHtml().isEmpty()) {
        handleBOMDataUpdate();
    }
    const BOMTemplate &settings = database()->currentTemplate();
    textEdit()->setPageFragments(xmlText(settings.pageHeader()), xmlText(settings.pageFooter()));
    textEdit()->document()->setTitle(database()->designTitle());
}

void BOMHTMLView::generatePDF()
{
    if (!isValid()) {
        return;
    }
    prepareOutput();
    QPainter painter;
    const QString suggested = database()->defaultOutputPath(QStringLiteral(".pdf"));
    if (!textEdit()->printToPdf(suggested, true, false, painter)) {
        return;
    }
    appendProjectNotes(painter);
    painter.end();
    const QString path = textEdit()->finishPdf();
    if (!path.isEmpty() && QFileInfo::exists(path)) {
        HostUi::current().openUrl(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
    }
}

void BOMHTMLView::print()
{
    if (!isValid()) {
        return;
    }
    prepareOutput();
    QPainter painter;
    if (textEdit()->print(painter)) {
        appendProjectNotes(painter);
        painter.end();
    }
}

void BOMHTMLView::appendProjectNotes(QPainter &painter) const
{
    APPLNPROCESS *process = getapplnprocess();
    if (!process || !painter.isActive() || !database()->currentTemplate().appendNotes()) {
        return;
    }
    if (APPLNOBJECT *notes = process->currentobject("PROJNOTES", OBJECT_KIND_PROJECT_NOTES)) {
        notes->paint(painter, PAINT_MODE_APPEND);
    }
}

void BOMHTMLView::onLinkActivated(const QString &link)
{
    if (!isValid()) {
        return;
    }
    const QString folder = QFileInfo(database()->designInfo("FILENAME")).absolutePath();
    const QUrl target = linkTarget(link, folder);
    if (!target.isEmpty()) {
        HostUi::current().openUrl(target);
    }
}
