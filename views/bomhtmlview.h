// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "views/bomview.h"

#include <QString>

class BOMPartsDatabase;
class BOMTemplate;
class BOMTemplateEditor;
class FindBar;
class QAction;
class QPoint;
class ReportActions;
class TextEdit;
class TextStyleEditor;

/// The bill of materials as an XHTML document in the template's style, shown in a rich-text editor.
class BOMHTMLView final : public BOMView
{
    Q_OBJECT

public:
    explicit BOMHTMLView(QWidget *parent = nullptr);

    /// What is shown stays; what is put out next is of this database.
    void setPartsDatabase(BOMPartsDatabase *database) override;

    /// The whole document; empty without a database.
    [[nodiscard]] QString html();

    /// What shows the document, made at the first request.
    [[nodiscard]] TextEdit *textEdit();

    /// What looks for a text in the report; each for a menu. "findInReport" is to bring the view to the front
    /// when it is not shown, "findNext" and "findPrevious" are enabled while it is.
    [[nodiscard]] QList<QAction *> findActions() const;
    /// "zoomIn", "zoomOut" and "resetZoom", enabled while the view is shown. Outputs stay as they are.
    [[nodiscard]] QList<QAction *> zoomActions() const;

    /// Cells hold XHTML. The references can be wrapped after every comma.
    [[nodiscard]] QList<QStringList> categoryRows(const QString &category, bool grouped, int width,
                                                  int lines) const override;
    /// A formatted value is XHTML, with the link of the part where the field shows links.
    [[nodiscard]] QString fieldValue(const QString &reference, const QString &fieldName,
                                     bool formatted) const override;
    /// Cut to the field's width, as XHTML.
    [[nodiscard]] QString formatFieldValue(const QString &value, const QString &fieldName) const override;

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
    /// Makes the document anew and shows it, from its top on when it is that of another design.
    void handleBOMDataUpdate() override;
    /// Edits the template's style sheet, with the report as preview.
    void editStyleTemplate();
    /// Edits the template's custom header and footer.
    void editTemplate();
    /// Puts the default style sheet into the style editor.
    void resetCSS();
    /// Opens a link of the report.
    void onLinkActivated(const QString &link);

private:
    void makeTextEdit();
    void makeFindBar();
    [[nodiscard]] FindBar *findBar();
    void connectActions();
    void showZoom();
    void showMenu(const QPoint &place);
    void makeStyleEditor();
    /// Makes the document if none has been made of this database.
    void ensureReport();
    void prepareOutput();
    /// Says what of the template's markup the report does not show, once until that changes.
    void tellMissingMarkup();
    /// Takes the changed template as the working one, marked modified.
    void takeTemplate(const BOMTemplate &changed);

    QStringList m_toldNotices;
    /// The file of the design that is shown.
    QString m_shownDesign;
    ReportActions *m_actions;
    TextEdit *m_textEdit = nullptr;
    FindBar *m_findBar = nullptr;
    bool m_hasReport = false;
    TextStyleEditor *m_styleEditor = nullptr;
    BOMTemplateEditor *m_templateEditor = nullptr;
};
