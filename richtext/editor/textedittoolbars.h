// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

class ColorMenu;
class QAction;
class QComboBox;
class QFontComboBox;
class QTextCharFormat;
class QTextCursor;
class QToolBar;
class QToolButton;
class TextEdit;

/// Tool bars that act on one editor and show what its cursor stands in. Without an editor they are disabled.
class TextEditToolBars : public QWidget
{
    Q_OBJECT

public:
    explicit TextEditToolBars(QWidget *parent = nullptr);
    ~TextEditToolBars() override;

    /// The editor stays its owner's; null for none.
    void setTextEdit(TextEdit *edit);
    [[nodiscard]] TextEdit *textEdit() const;

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addFontTools(QToolBar &bar);
    void addStyleTools(QToolBar &bar);
    void addParagraphTools(QToolBar &bar);
    void addInsertTools(QToolBar &bar);
    void addUndoTools(QToolBar &bar);
    QAction *addTool(QToolBar &bar, const QString &name, const QString &text, const QString &keys = {});
    QAction *addFormatTool(QToolBar &bar, const QString &name, const QString &text, const QString &keys,
                           void (*set)(QTextCharFormat &, bool));
    void addAlignmentTool(QToolBar &bar, const QString &name, const QString &text, Qt::Alignment alignment);
    QToolButton *addColorTool(QToolBar &bar, const QString &name, const QString &text, ColorMenu *menu);

    void applyFamily(const QString &family);
    void applySize(const QString &text);
    void applyTextColor(const QColor &color);
    void applyFillColor(const QColor &color);
    void mergeFormat(const QTextCharFormat &format);
    void editLink();
    void insertImage();

    void showState();
    void showFont();
    void showColors();
    void drawIcons();

    QPointer<TextEdit> m_edit;
    QFontComboBox *m_family = nullptr;
    QComboBox *m_size = nullptr;
    QToolButton *m_textColor = nullptr;
    QToolButton *m_fillColor = nullptr;
    ColorMenu *m_textColors = nullptr;
    ColorMenu *m_fillColors = nullptr;
    QAction *m_bold = nullptr;
    QAction *m_italic = nullptr;
    QAction *m_underline = nullptr;
    QAction *m_bullets = nullptr;
    QAction *m_numbers = nullptr;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QList<QAction *> m_alignments;
    QList<QAction *> m_tools;
};
