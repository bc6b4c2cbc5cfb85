// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textedittoolbars.h"

#include "host/framework/hostui.h"
#include "richtext/editor/colormenu.h"
#include "richtext/editor/linkdialog.h"
#include "richtext/editor/textcommands.h"
#include "richtext/editor/textedit.h"
#include "richtext/editor/texttools.h"
#include "richtext/xhtml/embeddedimage.h"

#include <QAction>
#include <QEvent>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextList>

namespace {

QString sizeText(double size)
{
    return HostUi::current().locale().toString(size, 'g', 4);
}

} // namespace

TextEditToolBars::TextEditToolBars(QWidget *parent)
    : QWidget(parent)
    , m_tools(std::make_unique<TextTools>(*this))
{
    for (const int size : QFontDatabase::standardSizes()) {
        m_tools->size->addItem(sizeText(size));
    }
    connectFontTools();
    connectFormatTools();
    connectParagraphTools();
    connect(m_tools->link, &QAction::triggered, this, &TextEditToolBars::editLink);
    connect(m_tools->image, &QAction::triggered, this, &TextEditToolBars::insertImage);
    connect(m_tools->undo, &QAction::triggered, this, [this] { m_edit->undo(); });
    connect(m_tools->redo, &QAction::triggered, this, [this] { m_edit->redo(); });
    drawIcons();
    showState();
}

TextEditToolBars::~TextEditToolBars() = default;

void TextEditToolBars::connectFontTools()
{
    QComboBox &size = *m_tools->size;
    connect(m_tools->family, &QComboBox::textActivated, this, &TextEditToolBars::applyFamily);
    connect(&size, &QComboBox::textActivated, this, &TextEditToolBars::applySize);
    connect(size.lineEdit(), &QLineEdit::editingFinished, this, [this] {
        if (m_tools->size->lineEdit()->isModified()) {
            applySize(m_tools->size->lineEdit()->text());
        }
    });
    // Return would bring back the entry that was chosen before.
    m_tools->family->lineEdit()->installEventFilter(this);
    size.lineEdit()->installEventFilter(this);
}

void TextEditToolBars::connectFormatTools()
{
    const auto connectTool = [this](QAction *tool, void (*set)(QTextCharFormat &, bool)) {
        connect(tool, &QAction::triggered, this, [this, set](bool isOn) {
            QTextCharFormat format;
            set(format, isOn);
            mergeFormat(format);
        });
    };
    connectTool(m_tools->bold, [](QTextCharFormat &format, bool isOn) {
        format.setFontWeight(isOn ? QFont::Bold : QFont::Normal);
    });
    connectTool(m_tools->italic, [](QTextCharFormat &format, bool isOn) { format.setFontItalic(isOn); });
    connectTool(m_tools->underline,
                [](QTextCharFormat &format, bool isOn) { format.setFontUnderline(isOn); });
    connect(m_tools->textColors, &ColorMenu::colorChosen, this, &TextEditToolBars::applyTextColor);
    connect(m_tools->fillColors, &ColorMenu::colorChosen, this, &TextEditToolBars::applyFillColor);
}

void TextEditToolBars::connectParagraphTools()
{
    for (QAction *tool : std::as_const(m_tools->alignments)) {
        connect(tool, &QAction::triggered, this, [this, tool] {
            m_edit->setAlignment(Qt::Alignment(tool->data().toInt()));
            showState();
        });
    }
    const auto connectList = [this](QAction *tool, QTextListFormat::Style style) {
        connect(tool, &QAction::triggered, this, [this, style] {
            toggleList(*m_edit, style);
            showState();
        });
    };
    connectList(m_tools->bullets, QTextListFormat::ListDisc);
    connectList(m_tools->numbers, QTextListFormat::ListDecimal);
    connect(m_tools->outdent, &QAction::triggered, this, [this] { changeIndent(*m_edit, -1); });
    connect(m_tools->indent, &QAction::triggered, this, [this] { changeIndent(*m_edit, 1); });
}

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
    if (watched == m_tools->size->lineEdit()) {
        applySize(m_tools->size->lineEdit()->text());
    } else if (QFontDatabase::families().contains(m_tools->family->lineEdit()->text(), Qt::CaseInsensitive)) {
        applyFamily(m_tools->family->lineEdit()->text());
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
    m_tools->size->lineEdit()->setModified(false);
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
    m_tools->bold->setChecked(format.fontWeight() > QFont::Medium);
    m_tools->italic->setChecked(format.fontItalic());
    m_tools->underline->setChecked(format.fontUnderline());
    const Qt::Alignment alignment = m_edit->alignment();
    for (QAction *action : std::as_const(m_tools->alignments)) {
        action->setChecked((alignment & Qt::Alignment(action->data().toInt())) != 0);
    }
    const QTextList *list = m_edit->textCursor().currentList();
    const int style = list == nullptr ? 0 : int(list->format().style());
    m_tools->bullets->setChecked(style <= QTextListFormat::ListDisc && style >= QTextListFormat::ListSquare);
    m_tools->numbers->setChecked(style <= QTextListFormat::ListDecimal);
    m_tools->undo->setEnabled(m_edit->document()->isUndoAvailable());
    m_tools->redo->setEnabled(m_edit->document()->isRedoAvailable());
    showFont();
    showColors();
}

void TextEditToolBars::drawIcons()
{
    m_tools->drawIcons(palette());
    showColors();
}

void TextEditToolBars::showColors()
{
    const QTextCharFormat format = m_edit == nullptr ? QTextCharFormat() : m_edit->currentCharFormat();
    const auto colorOf = [](const QBrush &brush, const QColor &none) {
        return brush.style() == Qt::NoBrush ? none : brush.color();
    };
    m_tools->showColors(palette(), colorOf(format.foreground(), Qt::black),
                        colorOf(format.background(), Qt::white));
}

void TextEditToolBars::showFont()
{
    if (!m_tools->family->lineEdit()->hasFocus()) {
        m_tools->family->setCurrentFont(m_edit->currentFont());
    }
    if (!m_tools->size->lineEdit()->isModified()) {
        const QFont font = m_edit->currentFont();
        m_tools->size->setCurrentText(
            sizeText(font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF()));
    }
}
