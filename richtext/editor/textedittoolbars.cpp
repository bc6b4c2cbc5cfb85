// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textedittoolbars.h"

#include "host/framework/hostui.h"
#include "richtext/editor/colormenu.h"
#include "richtext/editor/linkdialog.h"
#include "richtext/editor/textcommands.h"
#include "richtext/editor/textedit.h"
#include "richtext/editor/toolicon.h"
#include "richtext/xhtml/embeddedimage.h"

#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextList>

// What the tools do; how they are laid out stands in textedittoolbars_layout.cpp.

TextEditToolBars::~TextEditToolBars() = default;

TextEdit *TextEditToolBars::textEdit() const
{
    return m_edit;
}

void TextEditToolBars::setTextEdit(TextEdit *edit)
{
    if (m_edit == edit) {
        return;
    }
    if (m_edit != nullptr) {
        m_edit->disconnect(this);
    }
    m_edit = edit;
    if (edit != nullptr) {
        connect(edit, &QTextEdit::currentCharFormatChanged, this, &TextEditToolBars::showState);
        connect(edit, &QTextEdit::cursorPositionChanged, this, &TextEditToolBars::showState);
        connect(edit, &QTextEdit::textChanged, this, &TextEditToolBars::showState);
        connect(edit, &QTextEdit::undoAvailable, this, &TextEditToolBars::showState);
        connect(edit, &QTextEdit::redoAvailable, this, &TextEditToolBars::showState);
        connect(edit, &QObject::destroyed, this, [this] {
            m_edit.clear(); // no TextEdit any more, and not to be touched as one
            showState();
        });
    }
    showState();
}

void TextEditToolBars::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange) {
        drawIcons();
    }
    QWidget::changeEvent(event);
}

bool TextEditToolBars::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress;
    const int key = isKey ? static_cast<QKeyEvent *>(event)->key() : 0;
    if (key != Qt::Key_Return && key != Qt::Key_Enter) {
        return QWidget::eventFilter(watched, event);
    }
    if (watched == m_size->lineEdit()) {
        applySize(m_size->lineEdit()->text());
    } else if (QFontDatabase::families().contains(m_family->lineEdit()->text(), Qt::CaseInsensitive)) {
        applyFamily(m_family->lineEdit()->text());
    }
    return true;
}

void TextEditToolBars::mergeFormat(const QTextCharFormat &format)
{
    if (m_edit != nullptr) {
        m_edit->mergeCurrentCharFormat(format);
        showState();
    }
}

void TextEditToolBars::applyFamily(const QString &family)
{
    QTextCharFormat format;
    format.setFontFamilies({family});
    mergeFormat(format);
    if (m_edit != nullptr) {
        m_edit->setFocus();
    }
}

void TextEditToolBars::applySize(const QString &text)
{
    constexpr double smallest = 1;
    constexpr double largest = 400;
    m_size->lineEdit()->setModified(false);
    bool isNumber = false;
    const double size = HostUi::current().locale().toDouble(text, &isNumber);
    if (isNumber && size >= smallest && size <= largest) {
        if (m_edit != nullptr) {
            setFontSize(*m_edit, size);
        }
    }
    showState();
    if (m_edit != nullptr) {
        m_edit->setFocus();
    }
}

void TextEditToolBars::applyTextColor(const QColor &color)
{
    QTextCharFormat format;
    format.setForeground(color);
    mergeFormat(format);
}

void TextEditToolBars::applyFillColor(const QColor &color)
{
    QTextCharFormat format;
    format.setBackground(color.isValid() ? QBrush(color) : QBrush(Qt::NoBrush));
    mergeFormat(format);
}

void TextEditToolBars::editLink()
{
    if (m_edit == nullptr) {
        return;
    }
    const QTextCursor where = linkAtCursor(*m_edit);
    const QTextCharFormat format = where.charFormat();
    LinkDialog dialog(where.selectedText().simplified(), format.isAnchor() ? format.anchorHref() : QString(),
                      this);
    if (dialog.exec() == QDialog::Accepted && m_edit != nullptr) {
        setLink(*m_edit, where, dialog.text(), dialog.address());
        m_edit->setFocus();
    }
}

void TextEditToolBars::insertImage()
{
    if (m_edit == nullptr) {
        return;
    }
    HostUi &ui = HostUi::current();
    const QString path = ui.openFileName(this, tr("Insert Image"), QString(),
                                         tr("Images (*.png *.jpg *.jpeg *.gif *.svg *.bmp)"));
    if (path.isEmpty() || m_edit == nullptr) {
        return;
    }
    const EmbeddedImage image = embeddedImage(path);
    if (!image.error.isEmpty()) {
        ui.warning(this, tr("Insert Image"), image.error);
        return;
    }
    constexpr int widest = 640;
    ::insertImage(*m_edit, image.source, image.size, widest);
    m_edit->setFocus();
}

void TextEditToolBars::showState()
{
    setEnabled(m_edit != nullptr);
    if (m_edit == nullptr) {
        return;
    }
    const QTextCharFormat format = m_edit->currentCharFormat();
    m_bold->setChecked(format.fontWeight() > QFont::Medium);
    m_italic->setChecked(format.fontItalic());
    m_underline->setChecked(format.fontUnderline());
    const Qt::Alignment alignment = m_edit->alignment();
    for (QAction *action : std::as_const(m_alignments)) {
        action->setChecked((alignment & Qt::Alignment(action->data().toInt())) != 0);
    }
    const QTextList *list = m_edit->textCursor().currentList();
    const int style = list == nullptr ? 0 : int(list->format().style());
    m_bullets->setChecked(style <= QTextListFormat::ListDisc && style >= QTextListFormat::ListSquare);
    m_numbers->setChecked(style <= QTextListFormat::ListDecimal);
    m_undo->setEnabled(m_edit->document()->isUndoAvailable());
    m_redo->setEnabled(m_edit->document()->isRedoAvailable());
    showFont();
    showColors();
}
