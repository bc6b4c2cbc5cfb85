// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

#include <memory>

class QTextCharFormat;
class TextEdit;
class TextTools;

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
    void connectFontTools();
    void connectFormatTools();
    void connectParagraphTools();

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
    std::unique_ptr<TextTools> m_tools;
};
