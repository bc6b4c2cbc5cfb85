// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomtemplateeditor.h"

#include "host/framework/hostui.h"
#include "richtext/css/cssscan.h"
#include "richtext/css/pagegeometry.h"
#include "richtext/editor/textedit.h"
#include "richtext/editor/textedithruler.h"
#include "richtext/editor/textedittoolbars.h"
#include "richtext/xhtml/markupcleaner.h"
#include "richtext/xhtml/xhtmlparts.h"
#include "ui_bomtemplateeditor.h"
#include "views/report/htmlreport.h"

#include <QPushButton>
#include <QTabBar>

namespace {

constexpr double pixelsPerPoint = 96.0 / 72.0;

const QString headerClass = QStringLiteral("DocHeader");
const QString footerClass = QStringLiteral("DocFooter");

QString paragraphRule(const QString &className)
{
    return QStringLiteral("p.") + className;
}

} // namespace

BOMTemplateEditor::BOMTemplateEditor(TextEdit *reportEdit, QWidget *parent)
    : APPLNDIALOG(parent)
    , m_ui(std::make_unique<Ui::BOMTemplateEditor>())
{
    m_ui->setupUi(this);
    m_ui->tabWidget->tabBar()->setStyleSheet(
        QStringLiteral("background-color {qlineargradient(spread:pad, x1:0, y1:0, x2:1, y2:0, "
                       "stop:0 rgba(0, 0, 0, 100), stop:1 rgba(255, 255, 255, 100))}"));
    // Return belongs to the text.
    for (QAbstractButton *button : m_ui->buttonBox->buttons()) {
        static_cast<QPushButton *>(button)->setAutoDefault(false);
    }
    const QFont font = reportEdit == nullptr ? QFont() : reportEdit->document()->defaultFont();
    setUpEditor(*m_ui->headerTextEdit, *m_ui->headerHRuler, font);
    setUpEditor(*m_ui->footerTextEdit, *m_ui->footerHRuler, font);
    updateCurrentEdit();
}

BOMTemplateEditor::~BOMTemplateEditor() = default;

void BOMTemplateEditor::setUpEditor(TextEdit &edit, TextEditHRuler &ruler, const QFont &font)
{
    edit.document()->setDefaultFont(font);
    edit.setLineWrapMode(QTextEdit::FixedPixelWidth);
    ruler.setTextEdit(&edit);
    ruler.setHasTabStops(false);
    connect(&ruler, &TextEditHRuler::paperMarginsChanged, this, &BOMTemplateEditor::movePaperMargins);
}

void BOMTemplateEditor::setCSS(const QString &css)
{
    m_templateCss = css;
    m_css = StyleSheet(css);
}

bool BOMTemplateEditor::run()
{
    m_css = StyleSheet(m_templateCss);
    load(*m_ui->headerTextEdit, m_header, headerClass);
    load(*m_ui->footerTextEdit, m_footer, footerClass);
    showPaper();
    m_ui->tabWidget->setCurrentWidget(m_ui->headerTab);
    updateCurrentEdit();
    m_ui->headerTextEdit->setFocus();
    return exec() == QDialog::Accepted;
}

QString BOMTemplateEditor::shownCss(const QString &className) const
{
    // Paragraphs that bring no class have the look of those that people write here. The editor has the
    // margins beside the text, see showPaper().
    return styleElementText(m_templateCss + css::scan(m_templateCss).closer + QStringLiteral("\np {") +
                            m_css.body(paragraphRule(className)) +
                            QStringLiteral("}\nbody { margin-left: 0pt; margin-right: 0pt; }\n"));
}

void BOMTemplateEditor::load(TextEdit &edit, const QString &fragment, const QString &className) const
{
    const QString start = htmlDocumentStart(htmlText(windowTitle()), shownCss(className));
    const CleanMarkup cleaned = MarkupCleaner().clean(fragment);
    if (!cleaned.problem.isEmpty()) {
        HostUi::current().warning(
            parentWidget(), windowTitle(),
            tr("%1: the text cannot be shown. It stays as it is unless another one is written.\n%2")
                .arg(edit.accessibleName(), cleaned.problem.section(u'\n', 0, 0)));
    }
    const QString text = cleaned.xhtml.isEmpty()
                             ? QStringLiteral("<p class=\"") + className +
                                   QStringLiteral("\" style=\"-qt-paragraph-type:empty;\"><br /></p>")
                             : cleaned.xhtml;
    edit.document()->setParagraphClass(className);
    edit.loadDocument(start + text + htmlDocumentEnd());
}

QString BOMTemplateEditor::textOf(const TextEdit &edit, const QString &source)
{
    const TextDocument &document = *edit.document();
    if (!document.isModified()) {
        return source;
    }
    return document.isEmpty() ? QString() : bodyOf(document.getHtml()).toString();
}

QString BOMTemplateEditor::header() const
{
    return textOf(*m_ui->headerTextEdit, m_header);
}

QString BOMTemplateEditor::footer() const
{
    return textOf(*m_ui->footerTextEdit, m_footer);
}

bool BOMTemplateEditor::hasTypedText() const
{
    return m_ui->headerTextEdit->document()->isModified() || m_ui->footerTextEdit->document()->isModified();
}

QString BOMTemplateEditor::css() const
{
    StyleSheet result(m_templateCss);
    for (const QString &selector :
         {paragraphRule(headerClass), paragraphRule(footerClass), QStringLiteral("body")}) {
        if (m_css.body(selector) != result.body(selector)) {
            result.setBody(selector, m_css.body(selector));
        }
    }
    return result.text();
}

TextEdit *BOMTemplateEditor::currentEdit() const
{
    return m_ui->tabWidget->currentWidget() == m_ui->footerTab ? m_ui->footerTextEdit : m_ui->headerTextEdit;
}

void BOMTemplateEditor::updateCurrentEdit()
{
    m_ui->toolBars->setTextEdit(currentEdit());
}

void BOMTemplateEditor::showPaper()
{
    const double width = pageLayout(m_css).fullRect(QPageLayout::Point).width();
    for (TextEditHRuler *ruler : {m_ui->headerHRuler, m_ui->footerHRuler}) {
        ruler->setPaperWidth(width);
    }
    const QMarginsF margins = pageMargins(m_css) * pixelsPerPoint;
    for (TextEdit *edit : {m_ui->headerTextEdit, m_ui->footerTextEdit}) {
        edit->setPaperMargins(margins.left(), margins.right());
        edit->setLineWrapColumnOrWidth(qRound(width * pixelsPerPoint - margins.left() - margins.right()));
    }
}

void BOMTemplateEditor::movePaperMargins(double left, double right)
{
    QPageLayout layout = pageLayout(m_css);
    layout.setUnits(QPageLayout::Point);
    QMarginsF margins = layout.margins();
    margins.setLeft(left);
    margins.setRight(right);
    if (layout.setMargins(margins)) {
        setPageLayout(m_css, layout);
        showPaper();
    }
}
