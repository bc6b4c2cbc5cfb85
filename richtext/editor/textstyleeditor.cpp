// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textstyleeditor.h"

#include "editor/ui_textstyleeditor.h"
#include "richtext/css/cssscan.h"

#include <QFontDatabase>
#include <QLayout>
#include <QPushButton>
#include <QSet>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QToolButton>

namespace {

constexpr int typingPause = 200; // ms
constexpr int selectorRole = Qt::UserRole;

} // namespace

TextStyleEditor::TextStyleEditor(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::TextStyleEditor>())
{
    m_ui->setupUi(this);
    m_ui->filterEdit->findChild<QToolButton *>()->setAccessibleName(tr("Clear the text"));
    setUp();
    showSheet();
}

TextStyleEditor::~TextStyleEditor() = default;

void TextStyleEditor::setUp()
{
    m_ui->splitter->setSizes({150, 560});
    m_ui->splitter->setStretchFactor(0, 1);
    m_ui->splitter->setStretchFactor(1, 3);
    m_ui->cssEdit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_ui->styleList->setFocus();
    m_pause.setSingleShot(true);
    m_pause.setInterval(typingPause);
    connect(&m_pause, &QTimer::timeout, this, &TextStyleEditor::readText);
    connect(m_ui->cssEdit, &QPlainTextEdit::textChanged, this, [this] {
        m_typed = true;
        m_pause.start();
    });
    connect(m_ui->tabs, &QTabWidget::currentChanged, this, &TextStyleEditor::tabChanged);
    connect(m_ui->styleList, &QListWidget::currentRowChanged, this, &TextStyleEditor::showRule);
    connect(m_ui->filterEdit, &QLineEdit::textChanged, this, &TextStyleEditor::filterList);
    connect(m_ui->stylePanel, &StylePanel::edited, this, &TextStyleEditor::take);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &TextStyleEditor::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &TextStyleEditor::reject);
    QPushButton *reset = m_ui->buttonBox->button(QDialogButtonBox::Reset);
    reset->setToolTip(tr("Back to the default styles"));
    connect(reset, &QPushButton::clicked, this, &TextStyleEditor::resetCSS);
}

void TextStyleEditor::setColorChooser(const ColorChooser &chooser)
{
    m_ui->stylePanel->setColorChooser(chooser);
}

void TextStyleEditor::hideUserStyles()
{
    m_hidesUserStyles = true;
    fillList();
}

void TextStyleEditor::loadCSS(const QString &css)
{
    m_pause.stop();
    m_typed = false;
    m_sheet = StyleSheet(css);
    m_ui->stylePanel->showRule(StyleSheet(), QString()); // forgets which side of a border was chosen
    showSheet();
    if (m_running) {
        announce();
    } else {
        m_announced = css;
    }
}

QString TextStyleEditor::getCSS() const
{
    return m_sheet.text();
}

bool TextStyleEditor::run()
{
    m_original = m_sheet.text();
    m_announced = m_original;
    m_running = true;
    Q_EMIT currentSelectorChanged(m_selector);
    const bool accepted = exec() == Accepted;
    m_running = false;
    m_pause.stop();
    if (!accepted) {
        const bool previewed = m_announced != m_original;
        loadCSS(m_original);
        if (previewed) {
            Q_EMIT currentStyleChanged(m_original, true);
        }
    } else if (m_sheet.text() != m_original) {
        Q_EMIT currentStyleChanged(m_sheet.text(), false);
    }
    Q_EMIT currentSelectorChanged(QString());
    return accepted;
}

void TextStyleEditor::accept()
{
    if (m_typed) {
        readText();
    } else {
        m_ui->stylePanel->commit();
    }
    QDialog::accept();
}

void TextStyleEditor::take(const QString &css)
{
    m_sheet = StyleSheet(css);
    showSheet();
    announce();
}

void TextStyleEditor::announce()
{
    if (m_sheet.text() == m_announced) {
        return;
    }
    m_announced = m_sheet.text();
    Q_EMIT currentStyleChanged(m_announced);
    Q_EMIT currentStyleChanged(m_announced, true);
}

void TextStyleEditor::readText()
{
    m_pause.stop();
    if (!m_typed) {
        return;
    }
    QString text = shownText();
    if (m_sheet.text().contains(QLatin1String("\r\n"))) {
        text.replace(QLatin1String("\n"), QLatin1String("\r\n"));
    }
    take(text);
    m_typed = false;
}

/// With the no-break spaces, which the plain text would have lost.
QString TextStyleEditor::shownText() const
{
    return m_ui->cssEdit->document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

void TextStyleEditor::showText()
{
    QString text = m_sheet.text();
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (shownText() != text) {
        const QSignalBlocker blocker(m_ui->cssEdit);
        m_ui->cssEdit->setPlainText(text);
    }
    showTextOfRule();
}

/// Scrolls to the rule that is worked on.
void TextStyleEditor::showTextOfRule()
{
    QString text = m_sheet.text();
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    const css::Sheet sheet = css::scan(text);
    for (auto rule = sheet.rules.crbegin(); rule != sheet.rules.crend(); ++rule) {
        if (css::withoutComments(rule->selector.in(text)) == m_selector) {
            QTextCursor cursor(m_ui->cssEdit->document());
            cursor.movePosition(QTextCursor::End);
            m_ui->cssEdit->setTextCursor(cursor); // so that the rule comes up to the top
            for (const css::Span &part : {rule->title, rule->selector}) {
                if (!part.isEmpty()) {
                    cursor.setPosition(int(part.begin));
                    m_ui->cssEdit->setTextCursor(cursor);
                }
            }
            return;
        }
    }
}

void TextStyleEditor::tabChanged()
{
    if (m_ui->tabs->currentWidget() == m_ui->cssTab) {
        m_ui->stylePanel->commit();
        showText();
    } else {
        readText();
    }
}

void TextStyleEditor::showSheet()
{
    fillList();
    showFault();
    if (m_ui->tabs->currentWidget() == m_ui->cssTab && !m_typed) {
        showText();
    }
}

void TextStyleEditor::fillList()
{
    const QString wanted = m_selector;
    {
        const QSignalBlocker blocker(m_ui->styleList);
        m_ui->styleList->clear();
        QSet<QString> listed;
        for (const StyleSheet::Rule &rule : m_sheet.rules()) {
            if (listed.contains(rule.selector) || (m_hidesUserStyles && rule.title.isEmpty())) {
                continue;
            }
            listed.insert(rule.selector);
            auto *item = new QListWidgetItem(rule.title.isEmpty() ? rule.selector : rule.title);
            const bool rich = Qt::mightBeRichText(rule.selector);
            item->setToolTip(rich ? rule.selector.toHtmlEscaped() : rule.selector);
            item->setData(selectorRole, rule.selector);
            m_ui->styleList->addItem(item);
            if (rule.selector == wanted) {
                m_ui->styleList->setCurrentItem(item);
            }
        }
    }
    filterList();
}

/// Hides what does not match; a current style that is hidden gives way to the first that is not.
void TextStyleEditor::filterList()
{
    const QString wanted = m_ui->filterEdit->text().simplified();
    int first = -1;
    {
        const QSignalBlocker blocker(m_ui->styleList);
        for (int row = 0; row < m_ui->styleList->count(); ++row) {
            QListWidgetItem *item = m_ui->styleList->item(row);
            const bool matches = item->text().contains(wanted, Qt::CaseInsensitive) ||
                                 item->data(selectorRole).toString().contains(wanted, Qt::CaseInsensitive);
            item->setHidden(!matches);
            first = matches && first < 0 ? row : first;
        }
        const QListWidgetItem *current = m_ui->styleList->currentItem();
        if (!current || current->isHidden()) {
            m_ui->styleList->setCurrentRow(first);
        }
    }
    showRule();
}

QString TextStyleEditor::currentSelector() const
{
    const QListWidgetItem *item = m_ui->styleList->currentItem();
    return item ? item->data(selectorRole).toString() : QString();
}

void TextStyleEditor::showRule()
{
    const QString selector = currentSelector();
    const bool another = selector != m_selector;
    m_selector = selector;
    const QListWidgetItem *item = m_ui->styleList->currentItem();
    m_ui->stylePanel->showRule(m_sheet, selector);
    m_ui->preview->showRule(m_sheet, selector, item ? item->text() : QString());
    if (another) {
        if (m_ui->tabs->currentWidget() == m_ui->cssTab && !m_typed) {
            showTextOfRule();
        }
        if (m_running) {
            Q_EMIT currentSelectorChanged(selector);
        }
    }
}

void TextStyleEditor::showFault()
{
    QString text = css::faultMessage(m_sheet.text());
    if (text.isEmpty() && m_ui->styleList->count() == 0) {
        text = tr("There are no styles to choose from. The CSS tab shows the whole style sheet.");
    }
    m_ui->faultLabel->setText(text);
    m_ui->faultLabel->setVisible(!text.isEmpty());
    layout()->activate(); // the list may have become lower
    m_ui->styleList->scrollToItem(m_ui->styleList->currentItem());
}
