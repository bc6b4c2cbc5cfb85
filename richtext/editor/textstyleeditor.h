// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/css/stylesheet.h"
#include "richtext/editor/colorfield.h"

#include <QDialog>
#include <QTimer>

#include <memory>

namespace Ui {
class TextStyleEditor;
}

/// The dialog in which a style sheet is edited, rule by rule with controls or as text.
class TextStyleEditor : public QDialog
{
    Q_OBJECT

public:
    explicit TextStyleEditor(QWidget *parent = nullptr);
    ~TextStyleEditor() override;

    /// Lists only the rules that a comment names ("_H" and the name). The others stay in the text.
    void hideUserStyles();

    /// Shows a style sheet. While the dialog runs this is an edit, which Cancel undoes.
    void loadCSS(const QString &css);
    /// The style sheet as it was edited and accepted; the one loaded after Cancel.
    [[nodiscard]] QString getCSS() const;

    /// Lets the user edit; true when the result is accepted.
    [[nodiscard]] bool run();

    /// What asks for colours in place of the colour dialog.
    void setColorChooser(const ColorChooser &chooser);

public Q_SLOTS:
    void accept() override;

Q_SIGNALS:
    /// The user changed the style sheet.
    void currentStyleChanged(const QString &css);
    /// The same with `preview` true; once more with false when a change is accepted. Cancel after a change
    /// previews the style sheet from before.
    void currentStyleChanged(const QString &css, bool preview);
    /// Another rule is worked on; empty when the dialog ends.
    void currentSelectorChanged(const QString &selector);
    /// The user wants the default styles: to be answered with loadCSS().
    void resetCSS();

private:
    void setUp();
    /// Makes a changed style sheet the present one and announces it.
    void take(const QString &css);
    void announce();
    /// Takes in what was typed on the text tab.
    void readText();
    [[nodiscard]] QString shownText() const;
    void showText();
    void showTextOfRule();
    void tabChanged();

    void showSheet();
    void fillList();
    void filterList();
    void showRule();
    void showFault();
    [[nodiscard]] QString currentSelector() const;

    std::unique_ptr<Ui::TextStyleEditor> m_ui;
    QTimer m_pause;
    StyleSheet m_sheet;
    QString m_original;
    /// The style sheet that was announced last.
    QString m_announced;
    QString m_selector;
    bool m_hidesUserStyles = false;
    bool m_running = false;
    /// Whether text was typed that is not read yet.
    bool m_typed = false;
};
