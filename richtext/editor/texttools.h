// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QList>

class ColorMenu;
class QAction;
class QComboBox;
class QFontComboBox;
class QColor;
class QPalette;
class QToolBar;
class QToolButton;
class QWidget;

/// The tools of the text tool bars, like the class of a form: what there is, what it is called and how it
/// looks. TextEditToolBars connects them with what they do.
class TextTools final
{
    Q_DECLARE_TR_FUNCTIONS(TextTools)

public:
    /// Lays the tool bars out in `widget`, which owns all of them.
    explicit TextTools(QWidget &widget);

    /// Draws the icons in the colour of the palette's button text.
    void drawIcons(const QPalette &palette);
    /// Shows the colours of the text at the cursor in the icons of the colour tools.
    void showColors(const QPalette &palette, const QColor &text, const QColor &fill);

    QFontComboBox *family = nullptr;
    QComboBox *size = nullptr;
    QAction *bold = nullptr;
    QAction *italic = nullptr;
    QAction *underline = nullptr;
    ColorMenu *textColors = nullptr;
    ColorMenu *fillColors = nullptr;
    /// The data of each is its Qt::Alignment.
    QList<QAction *> alignments;
    QAction *bullets = nullptr;
    QAction *numbers = nullptr;
    QAction *outdent = nullptr;
    QAction *indent = nullptr;
    QAction *link = nullptr;
    QAction *image = nullptr;
    QAction *undo = nullptr;
    QAction *redo = nullptr;

private:
    void addFontTools(QToolBar &bar);
    void addFormatTools(QToolBar &bar, QWidget &owner);
    void addParagraphTools(QToolBar &bar);
    QAction *addTool(QToolBar &bar, const QString &name, const QString &text, const QString &keys = {});
    QAction *addSwitch(QToolBar &bar, const QString &name, const QString &text, const QString &keys = {});
    static QToolButton *addColorTool(QToolBar &bar, const QString &name, const QString &text,
                                     ColorMenu *menu);

    QToolButton *m_textColor = nullptr;
    QToolButton *m_fillColor = nullptr;
    QList<QAction *> m_actions;
};
