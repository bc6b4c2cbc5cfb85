// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/texttools.h"

#include "richtext/editor/colormenu.h"

#include <QAction>
#include <QComboBox>
#include <QFontComboBox>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
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

constexpr int drawnSide = 24;
constexpr int barHeight = 4;

QPixmap tinted(const QIcon &icon, const QColor &colour, const QColor &bar, int scale)
{
    QPixmap pixmap = icon.pixmap(QSize(drawnSide, drawnSide) * scale, 1.0);
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), colour);
    if (bar.isValid()) {
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        const int height = barHeight * scale;
        painter.fillRect(scale, pixmap.height() - height, pixmap.width() - 2 * scale, height, bar);
    }
    painter.end();
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

/// A resource's icon in the colour of a palette's button text. With a valid colour a bar in it is drawn at
/// the bottom.
QIcon toolIcon(const QString &name, const QPalette &palette, const QColor &bar = {})
{
    const QIcon source(QStringLiteral(":/richtext/icons/") + name + QStringLiteral(".svg"));
    QIcon icon;
    for (const int scale : {1, 2}) {
        icon.addPixmap(tinted(source, palette.color(QPalette::Active, QPalette::ButtonText), bar, scale),
                       QIcon::Normal);
        icon.addPixmap(tinted(source, palette.color(QPalette::Disabled, QPalette::ButtonText), bar, scale),
                       QIcon::Disabled);
    }
    return icon;
}

} // namespace

TextTools::TextTools(QWidget &widget)
{
    QToolBar *text = newBar(tr("Text"));
    addFontTools(*text);
    addFormatTools(*text, widget);
    QToolBar *paragraph = newBar(tr("Paragraph"));
    addParagraphTools(*paragraph);
    paragraph->addSeparator();
    link =
        addTool(*paragraph, QStringLiteral("link"), tr("Insert or change link..."), QStringLiteral("Ctrl+K"));
    image = addTool(*paragraph, QStringLiteral("image"), tr("Insert image..."));
    paragraph->addSeparator();
    // Without shortcuts: the editor has its own.
    undo = addTool(*paragraph, QStringLiteral("undo"), tr("Undo"));
    redo = addTool(*paragraph, QStringLiteral("redo"), tr("Redo"));

    auto *layout = new QVBoxLayout(&widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(text);
    layout->addWidget(paragraph);
}

void TextTools::addFontTools(QToolBar &bar)
{
    family = new QFontComboBox;
    family->setObjectName(QStringLiteral("fontFamily"));
    family->setAccessibleName(tr("Font"));
    family->setToolTip(tr("Font"));
    constexpr int familyWidth = 150;
    family->setMinimumWidth(familyWidth);
    family->setMaximumWidth(2 * familyWidth);
    bar.addWidget(family);

    size = new QComboBox;
    size->setObjectName(QStringLiteral("fontSize"));
    size->setAccessibleName(tr("Font size in points"));
    size->setToolTip(tr("Font size in points"));
    size->setEditable(true);
    size->setInsertPolicy(QComboBox::NoInsert);
    bar.addWidget(size);
}

void TextTools::addFormatTools(QToolBar &bar, QWidget &owner)
{
    bold = addSwitch(bar, QStringLiteral("bold"), tr("Bold"), QStringLiteral("Ctrl+B"));
    italic = addSwitch(bar, QStringLiteral("italic"), tr("Italic"), QStringLiteral("Ctrl+I"));
    underline = addSwitch(bar, QStringLiteral("underline"), tr("Underline"), QStringLiteral("Ctrl+U"));
    textColors = new ColorMenu(QString(), &owner);
    m_textColor = addColorTool(bar, QStringLiteral("textcolour"), tr("Text colour"), textColors);
    fillColors = new ColorMenu(tr("No Background"), &owner);
    m_fillColor = addColorTool(bar, QStringLiteral("fillcolour"), tr("Background colour"), fillColors);
}

void TextTools::addParagraphTools(QToolBar &bar)
{
    const auto addAlignment = [&](const QString &name, const QString &text, Qt::Alignment alignment) {
        alignments.append(addSwitch(bar, name, text));
        alignments.last()->setData(int(alignment));
    };
    addAlignment(QStringLiteral("alignleft"), tr("Align left"), Qt::AlignLeft);
    addAlignment(QStringLiteral("aligncentre"), tr("Centre"), Qt::AlignHCenter);
    addAlignment(QStringLiteral("alignright"), tr("Align right"), Qt::AlignRight);
    addAlignment(QStringLiteral("alignjustify"), tr("Justify"), Qt::AlignJustify);
    bar.addSeparator();
    bullets = addSwitch(bar, QStringLiteral("bullets"), tr("Bullet list"));
    numbers = addSwitch(bar, QStringLiteral("numbers"), tr("Numbered list"));
    outdent = addTool(bar, QStringLiteral("outdent"), tr("Decrease indent"));
    indent = addTool(bar, QStringLiteral("indent"), tr("Increase indent"));
}

QAction *TextTools::addTool(QToolBar &bar, const QString &name, const QString &text, const QString &keys)
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
    m_actions.append(action);
    return action;
}

QAction *TextTools::addSwitch(QToolBar &bar, const QString &name, const QString &text, const QString &keys)
{
    QAction *action = addTool(bar, name, text, keys);
    action->setCheckable(true);
    return action;
}

QToolButton *TextTools::addColorTool(QToolBar &bar, const QString &name, const QString &text, ColorMenu *menu)
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

void TextTools::drawIcons(const QPalette &palette)
{
    for (QAction *action : std::as_const(m_actions)) {
        action->setIcon(toolIcon(action->objectName(), palette));
    }
}

void TextTools::showColors(const QPalette &palette, const QColor &text, const QColor &fill)
{
    textColors->setColor(text);
    fillColors->setColor(fill);
    m_textColor->setIcon(toolIcon(m_textColor->objectName(), palette, text));
    m_fillColor->setIcon(toolIcon(m_fillColor->objectName(), palette, fill));
}
