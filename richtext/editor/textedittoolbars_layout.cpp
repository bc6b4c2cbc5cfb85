// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textedittoolbars.h"

#include "host/framework/hostui.h"
#include "richtext/editor/colormenu.h"
#include "richtext/editor/textcommands.h"
#include "richtext/editor/textedit.h"
#include "richtext/editor/toolicon.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QLineEdit>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int iconSide = 20;

QToolBar *newBar(const QString &title)
{
    auto *bar = new QToolBar(title);
    bar->setIconSize({iconSide, iconSide});
    return bar;
}

QString sizeText(double size)
{
    return HostUi::current().locale().toString(size, 'g', 4);
}

} // namespace

TextEditToolBars::TextEditToolBars(QWidget *parent)
    : QWidget(parent)
{
    QToolBar *text = newBar(tr("Text"));
    addFontTools(*text);
    addStyleTools(*text);
    QToolBar *paragraph = newBar(tr("Paragraph"));
    addParagraphTools(*paragraph);
    paragraph->addSeparator();
    addInsertTools(*paragraph);
    paragraph->addSeparator();
    addUndoTools(*paragraph);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(text);
    layout->addWidget(paragraph);
    drawIcons();
    showState();
}

void TextEditToolBars::addFontTools(QToolBar &bar)
{
    m_family = new QFontComboBox;
    m_family->setObjectName(QStringLiteral("fontFamily"));
    m_family->setAccessibleName(tr("Font"));
    m_family->setToolTip(tr("Font"));
    constexpr int familyWidth = 150;
    m_family->setMinimumWidth(familyWidth);
    m_family->setMaximumWidth(2 * familyWidth);
    connect(m_family, &QComboBox::textActivated, this, &TextEditToolBars::applyFamily);
    bar.addWidget(m_family);

    m_size = new QComboBox;
    m_size->setObjectName(QStringLiteral("fontSize"));
    m_size->setAccessibleName(tr("Font size in points"));
    m_size->setToolTip(tr("Font size in points"));
    m_size->setEditable(true);
    m_size->setInsertPolicy(QComboBox::NoInsert);
    for (const int size : QFontDatabase::standardSizes()) {
        m_size->addItem(sizeText(size));
    }
    connect(m_size, &QComboBox::textActivated, this, &TextEditToolBars::applySize);
    connect(m_size->lineEdit(), &QLineEdit::editingFinished, this, [this] {
        if (m_size->lineEdit()->isModified()) {
            applySize(m_size->lineEdit()->text());
        }
    });
    // Return would bring back the entry that was chosen before.
    m_family->lineEdit()->installEventFilter(this);
    m_size->lineEdit()->installEventFilter(this);
    bar.addWidget(m_size);
}

QAction *TextEditToolBars::addTool(QToolBar &bar, const QString &name, const QString &text,
                                   const QString &keys)
{
    QAction *action = bar.addAction(text);
    action->setObjectName(name);
    action->setToolTip(text);
    if (!keys.isEmpty()) {
        action->setShortcut(QKeySequence(keys));
        action->setToolTip(text + QStringLiteral(" (") +
                           action->shortcut().toString(QKeySequence::NativeText) + QStringLiteral(")"));
    }
    bar.widgetForAction(action)->setObjectName(name + QStringLiteral("Button"));
    m_tools.append(action);
    return action;
}

QAction *TextEditToolBars::addFormatTool(QToolBar &bar, const QString &name, const QString &text,
                                         const QString &keys, void (*set)(QTextCharFormat &, bool))
{
    QAction *action = addTool(bar, name, text, keys);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, set](bool isOn) {
        QTextCharFormat format;
        set(format, isOn);
        mergeFormat(format);
    });
    return action;
}

QToolButton *TextEditToolBars::addColorTool(QToolBar &bar, const QString &name, const QString &text,
                                            ColorMenu *menu)
{
    auto *button = new QToolButton;
    button->setObjectName(name);
    button->setAccessibleName(text);
    button->setToolTip(text);
    button->setMenu(menu);
    button->setPopupMode(QToolButton::InstantPopup);
    bar.addWidget(button);
    return button;
}

void TextEditToolBars::addStyleTools(QToolBar &bar)
{
    m_bold = addFormatTool(
        bar, QStringLiteral("bold"), tr("Bold"), QStringLiteral("Ctrl+B"),
        [](QTextCharFormat &format, bool isOn) { format.setFontWeight(isOn ? QFont::Bold : QFont::Normal); });
    m_italic = addFormatTool(bar, QStringLiteral("italic"), tr("Italic"), QStringLiteral("Ctrl+I"),
                             [](QTextCharFormat &format, bool isOn) { format.setFontItalic(isOn); });
    m_underline = addFormatTool(bar, QStringLiteral("underline"), tr("Underline"), QStringLiteral("Ctrl+U"),
                                [](QTextCharFormat &format, bool isOn) { format.setFontUnderline(isOn); });
    m_textColors = new ColorMenu(QString(), this);
    m_textColor = addColorTool(bar, QStringLiteral("textcolour"), tr("Text colour"), m_textColors);
    connect(m_textColors, &ColorMenu::colorChosen, this, &TextEditToolBars::applyTextColor);
    m_fillColors = new ColorMenu(tr("No Background"), this);
    m_fillColor = addColorTool(bar, QStringLiteral("fillcolour"), tr("Background colour"), m_fillColors);
    connect(m_fillColors, &ColorMenu::colorChosen, this, &TextEditToolBars::applyFillColor);
}

void TextEditToolBars::addAlignmentTool(QToolBar &bar, const QString &name, const QString &text,
                                        Qt::Alignment alignment)
{
    QAction *action = addTool(bar, name, text);
    action->setCheckable(true);
    action->setData(int(alignment));
    m_alignments.append(action);
    connect(action, &QAction::triggered, this, [this, alignment] {
        m_edit->setAlignment(alignment);
        showState();
    });
}

void TextEditToolBars::addParagraphTools(QToolBar &bar)
{
    addAlignmentTool(bar, QStringLiteral("alignleft"), tr("Align left"), Qt::AlignLeft);
    addAlignmentTool(bar, QStringLiteral("aligncentre"), tr("Centre"), Qt::AlignHCenter);
    addAlignmentTool(bar, QStringLiteral("alignright"), tr("Align right"), Qt::AlignRight);
    addAlignmentTool(bar, QStringLiteral("alignjustify"), tr("Justify"), Qt::AlignJustify);
    bar.addSeparator();
    const auto addListTool = [&](const QString &name, const QString &text, QTextListFormat::Style style) {
        QAction *action = addTool(bar, name, text);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, style] {
            toggleList(*m_edit, style);
            showState();
        });
        return action;
    };
    m_bullets = addListTool(QStringLiteral("bullets"), tr("Bullet list"), QTextListFormat::ListDisc);
    m_numbers = addListTool(QStringLiteral("numbers"), tr("Numbered list"), QTextListFormat::ListDecimal);
    connect(addTool(bar, QStringLiteral("outdent"), tr("Decrease indent")), &QAction::triggered, this,
            [this] { changeIndent(*m_edit, -1); });
    connect(addTool(bar, QStringLiteral("indent"), tr("Increase indent")), &QAction::triggered, this,
            [this] { changeIndent(*m_edit, 1); });
}

void TextEditToolBars::addInsertTools(QToolBar &bar)
{
    connect(addTool(bar, QStringLiteral("link"), tr("Insert or change link..."), QStringLiteral("Ctrl+K")),
            &QAction::triggered, this, &TextEditToolBars::editLink);
    connect(addTool(bar, QStringLiteral("image"), tr("Insert image...")), &QAction::triggered, this,
            &TextEditToolBars::insertImage);
}

void TextEditToolBars::addUndoTools(QToolBar &bar)
{
    // The editor has the shortcuts of its own.
    m_undo = addTool(bar, QStringLiteral("undo"), tr("Undo"));
    m_redo = addTool(bar, QStringLiteral("redo"), tr("Redo"));
    connect(m_undo, &QAction::triggered, this, [this] { m_edit->undo(); });
    connect(m_redo, &QAction::triggered, this, [this] { m_edit->redo(); });
}

void TextEditToolBars::drawIcons()
{
    for (QAction *action : std::as_const(m_tools)) {
        action->setIcon(toolIcon(action->objectName(), palette()));
    }
    showColors();
}

void TextEditToolBars::showColors()
{
    const QTextCharFormat format = m_edit == nullptr ? QTextCharFormat() : m_edit->currentCharFormat();
    const auto colorOf = [](const QBrush &brush, const QColor &none) {
        return brush.style() == Qt::NoBrush ? none : brush.color();
    };
    const QColor text = colorOf(format.foreground(), Qt::black);
    const QColor fill = colorOf(format.background(), Qt::white);
    m_textColors->setColor(text);
    m_fillColors->setColor(fill);
    m_textColor->setIcon(toolIcon(m_textColor->objectName(), palette(), text));
    m_fillColor->setIcon(toolIcon(m_fillColor->objectName(), palette(), fill));
}

void TextEditToolBars::showFont()
{
    if (!m_family->lineEdit()->hasFocus()) {
        m_family->setCurrentFont(m_edit->currentFont());
    }
    if (!m_size->lineEdit()->isModified()) {
        const QFont font = m_edit->currentFont();
        m_size->setCurrentText(
            sizeText(font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF()));
    }
}
