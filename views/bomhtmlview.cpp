// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomhtmlview.h"

#include "core/bompartsdatabase.h"
#include "host/framework/hostui.h"
#include "richtext/editor/findbar.h"
#include "richtext/editor/textedit.h"
#include "richtext/editor/textstyleeditor.h"
#include "richtext/xhtml/links.h"
#include "richtext/xhtml/tidylibwrapper.h"
#include "templates/templatepaths.h"
#include "views/bomtemplateeditor.h"
#include "views/pdfreport.h"
#include "views/report/htmlreport.h"
#include "views/report/templatemarkup.h"
#include "views/reportactions.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QPainter>
#include <QShortcut>
#include <QUrl>
#include <QVBoxLayout>

#include <memory>
#include <utility>

BOMHTMLView::BOMHTMLView(QWidget *parent)
    : BOMView(parent)
    , m_actions(new ReportActions(this))
{
    connectActions();
}

QList<QAction *> BOMHTMLView::findActions() const
{
    return m_actions->findActions();
}

QList<QAction *> BOMHTMLView::zoomActions() const
{
    return m_actions->zoomActions();
}

void BOMHTMLView::connectActions()
{
    connect(m_actions, &ReportActions::findRequested, this, [this] { findBar()->open(); });
    connect(m_actions, &ReportActions::findNextRequested, this, [this] { findBar()->findNext(); });
    connect(m_actions, &ReportActions::findPreviousRequested, this, [this] { findBar()->findPrevious(); });
    connect(m_actions, &ReportActions::zoomChanged, this, &BOMHTMLView::showZoom);
}

void BOMHTMLView::setPartsDatabase(BOMPartsDatabase *database)
{
    BOMView::setPartsDatabase(database);
    m_hasReport = false;
}

QString BOMHTMLView::html()
{
    if (!isValid()) {
        return {};
    }
    updateFields();
    tellMissingMarkup();
    return htmlReport(report(), HtmlUse::Pages);
}

void BOMHTMLView::tellMissingMarkup()
{
    const QStringList notices = templateMarkup(database()->currentTemplate()).notices;
    if (notices == m_toldNotices) {
        return;
    }
    m_toldNotices = notices;
    if (!notices.isEmpty()) {
        HostUi::current().warning(this, tr("BOM Template"),
                                  database()->currentTemplate().name() + QStringLiteral(":\n") +
                                      notices.join(u'\n'));
    }
}

QList<QStringList> BOMHTMLView::categoryRows(const QString &category, bool grouped, int width,
                                             int lines) const
{
    constexpr int referencesColumn = 1;
    QList<QStringList> rows = BOMView::categoryRows(category, grouped, width, lines);
    for (QStringList &row : rows) {
        row[referencesColumn] = htmlReferences(row[referencesColumn]);
    }
    return rows;
}

QString BOMHTMLView::fieldValue(const QString &reference, const QString &fieldName, bool formatted) const
{
    const QString text = BOMView::fieldValue(reference, fieldName, formatted);
    const ReportColumn *column = formatted && isValid() ? report().column(fieldName) : nullptr;
    const Part *part = column ? database()->part(reference) : nullptr;
    return part ? htmlLink(text, report().link(*part, *column)) : text;
}

QString BOMHTMLView::formatFieldValue(const QString &value, const QString &fieldName) const
{
    return ::htmlText(truncateToFieldWidth(BOMView::formatFieldValue(value, fieldName), fieldName));
}

QString BOMHTMLView::htmlText(const QString &text, bool allowMarkup)
{
    if (allowMarkup) {
        TidyLibWrapper tidy;
        QString tidied = tidy.tidyHtml(text, TidyLibWrapper::Fragment);
        if (tidy.errorString().isEmpty()) {
            return tidied;
        }
    }
    return ::htmlText(text);
}

TextEdit *BOMHTMLView::textEdit()
{
    if (!m_textEdit) {
        makeTextEdit();
    }
    return m_textEdit;
}

void BOMHTMLView::makeTextEdit()
{
    m_textEdit = new TextEdit(this);
    m_textEdit->setObjectName(QStringLiteral("textEdit"));
    m_textEdit->setAccessibleName(tr("Report"));
    m_textEdit->setFocusPolicy(Qt::WheelFocus);
    m_textEdit->setReadOnly(true);
    m_textEdit->setUndoRedoEnabled(false);
    // A bar that comes and goes makes a long report be laid out once more.
    m_textEdit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_textEdit->setTextInteractionFlags(Qt::TextBrowserInteraction);
    setFocusProxy(m_textEdit);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_textEdit);
    makeFindBar();
    showZoom();
    connect(m_textEdit, &TextEdit::zoomTurned, m_actions, &ReportActions::changeZoom);
    m_textEdit->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_textEdit, &QWidget::customContextMenuRequested, this, &BOMHTMLView::showMenu);
    connect(m_textEdit, &TextEdit::linkActivated, this, &BOMHTMLView::onLinkActivated);
    connect(m_textEdit, &TextEdit::previewPainted, this,
            [this](QPainter *painter) { appendProjectNotes(*painter, database()->currentTemplate()); });
}

void BOMHTMLView::makeFindBar()
{
    m_findBar = new FindBar(m_textEdit);
    layout()->addWidget(m_findBar);
    auto *slash = new QShortcut(QKeySequence(Qt::Key_Slash), m_textEdit);
    slash->setContext(Qt::WidgetShortcut);
    connect(slash, &QShortcut::activated, m_findBar, &FindBar::open);
}

FindBar *BOMHTMLView::findBar()
{
    (void)textEdit();
    return m_findBar;
}

void BOMHTMLView::showZoom()
{
    constexpr double percent = 0.01;
    if (m_textEdit) {
        m_textEdit->setZoom(m_actions->zoom() * percent);
    }
}

void BOMHTMLView::showMenu(const QPoint &place)
{
    const std::unique_ptr<QMenu> menu(m_textEdit->createStandardContextMenu(place));
    menu->addSeparator();
    menu->addAction(m_actions->findActions().constFirst());
    menu->addSeparator();
    menu->addActions(m_actions->zoomActions());
    menu->exec(m_textEdit->viewport()->mapToGlobal(place));
}

void BOMHTMLView::handleBOMDataUpdate()
{
    if (!isValid()) {
        return;
    }
    const QString design = designOf(*database()).file;
    if (std::exchange(m_shownDesign, design) != design) {
        textEdit()->goToTop();
    }
    textEdit()->loadDocument(html());
    textEdit()->document()->setTitle(::htmlText(database()->designTitle()));
    m_hasReport = true;
}

void BOMHTMLView::ensureReport()
{
    if (!m_hasReport) {
        handleBOMDataUpdate();
    }
}

void BOMHTMLView::onLinkActivated(const QString &link)
{
    if (!isValid()) {
        return;
    }
    if (link.startsWith(u'#')) {
        textEdit()->goToAnchor(QUrl::fromPercentEncoding(link.mid(1).toUtf8()));
        return;
    }
    const QUrl target = linkTarget(link, QFileInfo(designOf(*database()).file).absolutePath());
    HostUi &ui = HostUi::current();
    const auto isWanted = [&] {
        return !isProgram(target) ||
               ui.question(this, tr("Open Link"),
                           tr("%1 is a program. Opening it may run it. Open it all the same?")
                               .arg(target.toLocalFile()),
                           false);
    };
    if (!target.isEmpty() && isWanted()) {
        ui.openUrl(target);
    }
}

void BOMHTMLView::saveHTML()
{
    if (!isValid()) {
        return;
    }
    ensureReport();
    const QString html = database()->currentTemplate().layoutForReading() ? htmlReport(report())
                                                                          : textEdit()->document()->getHtml();
    const QString path =
        saveOutput({tr("HTML file to save"), QStringLiteral(".html"), tr("Web pages (*.html *.htm)")},
                   [&html] { return html.toUtf8(); });
    if (!path.isEmpty()) {
        setProperty("ExportFileName", path);
    }
}

void BOMHTMLView::prepareOutput()
{
    ensureReport();
    const BOMTemplate &settings = database()->currentTemplate();
    const TemplateMarkup markup = templateMarkup(settings);
    textEdit()->setPageFragments(markup.pageHeader, markup.pageFooter, subjectOf(designOf(*database())));
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
    appendProjectNotes(painter, database()->currentTemplate());
    painter.end();
    const QString path = textEdit()->finishPdf();
    if (!path.isEmpty() && QFileInfo::exists(path)) {
        HostUi::current().showWrittenFile(path);
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
        appendProjectNotes(painter, database()->currentTemplate());
        painter.end();
    }
}

void BOMHTMLView::setPageSize()
{
    if (!isValid()) {
        return;
    }
    TextDocument *document = textEdit()->document();
    // The document's text has it without what XHTML cannot hold.
    document->loadCss(database()->currentTemplate().css(), false);
    textEdit()->pageSetup();
    const QString css = document->getCss().trimmed();
    if (css == database()->currentTemplate().css().trimmed()) {
        return;
    }
    BOMTemplate changed = database()->currentTemplate();
    changed.setCss(css);
    takeTemplate(changed);
    handleBOMDataUpdate();
}

void BOMHTMLView::editStyleTemplate()
{
    if (!isValid()) {
        return;
    }
    if (!m_styleEditor) {
        makeStyleEditor();
    }
    m_styleEditor->loadCSS(database()->currentTemplate().css());
    const bool isAccepted = m_styleEditor->run();
    textEdit()->document()->highlightSelector({});
    if (isAccepted) {
        BOMTemplate changed = database()->currentTemplate();
        changed.setCss(m_styleEditor->getCSS());
        takeTemplate(changed);
    }
    handleBOMDataUpdate();
}

void BOMHTMLView::makeStyleEditor()
{
    m_styleEditor = new TextStyleEditor(this);
    m_styleEditor->hideUserStyles();
    connect(m_styleEditor, &TextStyleEditor::resetCSS, this, &BOMHTMLView::resetCSS);
    TextDocument *document = textEdit()->document();
    connect(m_styleEditor, qOverload<const QString &, bool>(&TextStyleEditor::currentStyleChanged), document,
            &TextDocument::loadCss);
    connect(m_styleEditor, &TextStyleEditor::currentSelectorChanged, document,
            &TextDocument::highlightSelector);
    // The report is made anew in any case; going back to its old look first would take its time.
    connect(m_styleEditor, &QDialog::finished, document, &TextDocument::suspend);
}

void BOMHTMLView::resetCSS()
{
    if (m_styleEditor) {
        m_styleEditor->loadCSS(defaultStyleSheet());
    }
}

void BOMHTMLView::editTemplate()
{
    if (!isValid()) {
        return;
    }
    if (!m_templateEditor) {
        m_templateEditor = new BOMTemplateEditor(textEdit(), this);
    }
    BOMTemplate changed = database()->currentTemplate();
    m_templateEditor->setCSS(changed.css());
    m_templateEditor->setHeader(changed.documentHeader());
    m_templateEditor->setFooter(changed.documentFooter());
    if (!m_templateEditor->run()) {
        return;
    }
    changed.setDocumentHeader(m_templateEditor->header());
    changed.setDocumentFooter(m_templateEditor->footer());
    changed.setCss(m_templateEditor->css());
    takeTemplate(changed);
    handleBOMDataUpdate();
}

void BOMHTMLView::takeTemplate(const BOMTemplate &changed)
{
    database()->setTemplateLook(changed);
    Q_EMIT currentTemplateModified(true);
}
