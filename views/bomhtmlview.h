// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "views/bomview.h"

#include <QByteArray>
#include <QString>

class BOMTemplate;
class BOMTemplateEditor;
class QPainter;
class TextEdit;
class TextStyleEditor;

/// The bill of materials as an XHTML document in the template's style, shown in a rich-text editor.
class BOMHTMLView final : public BOMView
{
    Q_OBJECT

public:
    explicit BOMHTMLView(QWidget *parent = nullptr);
    ~BOMHTMLView() override;

    /// The whole document; empty without a database. Needs no window.
    [[nodiscard]] QString html();

    /// The document as a PDF file, with the project notes where the template appends them; empty without a
    /// database.
    [[nodiscard]] QByteArray pdf();

    /// What shows the document, made at the first request.
    [[nodiscard]] TextEdit *textEdit();

    /// Cells hold XHTML. The references can be wrapped after every comma.
    [[nodiscard]] QList<QStringList> categoryRows(const QString &category, bool grouped, int width,
                                                  int lines) const override;

    /// Escaped for XHTML; with `allowMarkup` tidied markup, where it can be tidied.
    [[nodiscard]] static QString htmlText(const QString &text, bool allowMarkup);

Q_SIGNALS:
    void currentTemplateModified(bool modified);

public Q_SLOTS:
    /// Asks for a file, writes the PDF and hands it to the desktop.
    void generatePDF();
    void print();
    /// Asks for the paper; another one becomes the template's.
    void setPageSize();
    /// Asks for a file, writes the document and hands it to the desktop. The user is told when it cannot be
    /// written; the old file then stays.
    void saveHTML();
    /// Makes the document anew and shows it.
    void handleBOMDataUpdate() override;
    /// Edits the template's style sheet, with the report as preview.
    void editStyleTemplate();
    /// Edits the template's custom header and footer.
    void editTemplate();
    /// Puts the default style sheet into the style editor.
    void resetCSS();
    /// Opens a link of the report.
    void onLinkActivated(const QString &link);

protected:
    [[nodiscard]] QString cellText(const Part &part, const ReportColumn &column,
                                   bool formatted) const override;
    [[nodiscard]] QString formatCell(const QString &value, const ReportColumn &column) const override;

private:
    [[nodiscard]] QString headerTable() const;
    void appendCategories(QString &html) const;
    void appendCategory(QString &html, const QString &category, const QString &headingRow) const;
    void appendRows(QString &html, const QString &category) const;
    void appendTotals(QString &html) const;
    [[nodiscard]] QStringList headings() const;
    [[nodiscard]] QString headingRow() const;
    [[nodiscard]] QList<int> manualWidths() const;
    [[nodiscard]] QString referencesCell(const QString &references) const;
    [[nodiscard]] QString documentTitle() const;
    /// An old template's HTML file becomes its header and footer, once.
    void upgradeTemplate();
    /// Takes the changed template as the working one, marked modified.
    void takeTemplate(const BOMTemplate &changed);
    void prepareOutput();
    void appendProjectNotes(QPainter &painter) const;

    TextEdit *m_textEdit = nullptr;
    TextStyleEditor *m_styleEditor = nullptr;
    BOMTemplateEditor *m_templateEditor = nullptr;
    QString m_referenceSeparator;
};
