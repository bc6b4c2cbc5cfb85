// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/applndialog.h"
#include "richtext/css/stylesheet.h"

#include <QString>

#include <memory>

class TextEdit;
class TextEditHRuler;

namespace Ui {
class BOMTemplateEditor;
}

/// Edits the header and footer of a template, in the template's own look. What the user leaves alone comes
/// back byte for byte.
class BOMTemplateEditor final : public APPLNDIALOG
{
    Q_OBJECT

public:
    /// The texts get the default font of `reportEdit`, which stays its owner's.
    BOMTemplateEditor(TextEdit *reportEdit, QWidget *parent);
    ~BOMTemplateEditor() override;

    /// What run() starts from; header and footer are fragments of XHTML.
    void setCSS(const QString &css);
    void setHeader(const QString &html) { m_header = html; }
    void setFooter(const QString &html) { m_footer = html; }

    /// Shows the dialog until the user closes it; true when accepted.
    [[nodiscard]] bool run();

    /// What the user made of it.
    [[nodiscard]] QString header() const;
    [[nodiscard]] QString footer() const;
    [[nodiscard]] QString css() const;

public Q_SLOTS:
    /// Makes the shown tab's editor the one that the tool bars act on.
    void updateCurrentEdit();

protected:
    [[nodiscard]] bool hasTypedText() const override;

private:
    void setUpEditor(TextEdit &edit, TextEditHRuler &ruler, const QFont &font);
    void load(TextEdit &edit, const QString &fragment, const QString &className) const;
    [[nodiscard]] static QString textOf(const TextEdit &edit, const QString &source);
    [[nodiscard]] QString shownCss(const QString &className) const;
    [[nodiscard]] TextEdit *currentEdit() const;
    void showPaper();
    void movePaperMargins(double left, double right);

    std::unique_ptr<Ui::BOMTemplateEditor> m_ui;
    /// The template's, and as the user changed it.
    QString m_templateCss;
    StyleSheet m_css;
    QString m_header;
    QString m_footer;
};
