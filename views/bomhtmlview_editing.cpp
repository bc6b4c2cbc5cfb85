// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomhtmlview.h"

#include "core/bompartsdatabase.h"
#include "richtext/editor/textedit.h"
#include "richtext/editor/textstyleeditor.h"
#include "templates/templatepaths.h"
#include "views/bomtemplateeditor.h"
#include "views/report/oldhtmltemplate.h"

// What changes the template's look.

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
        m_styleEditor = new TextStyleEditor(this);
        m_styleEditor->hideUserStyles();
        connect(m_styleEditor, &TextStyleEditor::resetCSS, this, &BOMHTMLView::resetCSS);
        TextDocument *document = textEdit()->document();
        connect(m_styleEditor, qOverload<const QString &, bool>(&TextStyleEditor::currentStyleChanged),
                document, &TextDocument::loadCss);
        connect(m_styleEditor, &TextStyleEditor::currentSelectorChanged, document,
                &TextDocument::highlightSelector);
        // The report is made anew in any case; going back to its old look first would take its time.
        connect(m_styleEditor, &QDialog::finished, document, &TextDocument::suspend);
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

void BOMHTMLView::upgradeTemplate()
{
    BOMTemplate changed = database()->currentTemplate();
    const QString file = changed.htmlTemplateFileName();
    if (file.isEmpty() || !changed.documentHeader().isEmpty() || !changed.documentFooter().isEmpty()) {
        return;
    }
    const OldHtmlTemplate old = readOldHtmlTemplate(file);
    changed.setDocumentHeader(old.header);
    changed.setDocumentFooter(old.footer);
    changed.setHtmlTemplateFileName({});
    if (old.isConverted) {
        takeTemplate(changed);
        tellTemplateUpgraded(this, changed.name());
    } else {
        database()->setTemplateLook(changed);
    }
}

void BOMHTMLView::takeTemplate(const BOMTemplate &changed)
{
    database()->setTemplateLook(changed);
    Q_EMIT currentTemplateModified(true);
}
