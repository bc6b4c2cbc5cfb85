// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/pastesafeedits.h"
#include "richtext/editor/textdocument.h"
#include "richtext/paper/pagepainter.h"

#include <QMarginsF>
#include <QPageRanges>
#include <QTimer>

#include <functional>
#include <memory>

class PdfOutput;
class QPrinter;

/// Shows and edits a rich-text document, prints it and makes PDF files of it.
class TextEdit : public PasteSafeTextEdit
{
    Q_OBJECT

public:
    explicit TextEdit(QWidget *parent = nullptr);
    ~TextEdit() override;

    /// Takes an XHTML document. It is laid out when the widget is, or becomes, visible. What was shown before
    /// is gone; the place that the view was scrolled to stays. Of a long table in a document that cannot be
    /// edited the first rows are shown at once, the others follow by and by; all that is done with the
    /// document is done with the whole.
    void loadDocument(const QString &xhtml);

    /// White beside the lines, in pixels, that is none of the document: moving it is no step for undo.
    void setPaperMargins(double left, double right);
    [[nodiscard]] QMarginsF paperMargins() const { return m_paperMargins; }

    /// Scrolls back, for a document that is not the old one made anew.
    void goToTop();
    /// Scrolls to the anchor of that name, if there is one.
    void goToAnchor(const QString &name);
    /// Scrolls the selection, if it stands at the edge of what is shown, to where its surroundings are seen.
    void showWithSurroundings();
    /// Shows the document that many times as large; what stood at the top stays there. Print and PDF stay. A
    /// document made larger is laid out as if the window were no narrower than its paper.
    void setZoom(double factor);

    /// The document shown, never null; owned by the widget.
    [[nodiscard]] TextDocument *document() const { return m_document; }

    /// Fragments for the top and bottom of printed pages, see PagedText.
    void setPageFragments(const QString &header, const QString &footer, const QString &subject);

    /// Lets the user choose the paper, which the document's style sheet then names.
    void pageSetup();

    /// Lets the user choose a printer and prints the document; false when cancelled. The painter, inactive
    /// before, stays on the printer's last page so that more can follow; end it before the next printing.
    bool print(QPainter &painter);

    /// Makes a PDF file of the document under a name that the user is asked for, or `suggestedName` when not
    /// `asksForFile`; false when cancelled. The painter stays as after print(); the file is written by
    /// finishPdf() after its end, which opens it too when `opensFile`.
    bool printToPdf(const QString &suggestedName, bool asksForFile, bool opensFile, QPainter &painter);

    /// Writes the file that printToPdf() has begun. Its name, or empty, after a message, when it cannot be
    /// written; the old file then stays.
    QString finishPdf();

Q_SIGNALS:
    /// A link was clicked, or opened with the keyboard.
    void linkActivated(const QString &link);
    /// The preview of a print shows the document; what the print appends is to be painted after it.
    void previewPainted(QPainter *painter);
    /// The wheel was turned with Ctrl over a document that cannot be edited: steps forward, or backward below
    /// 0.
    void zoomTurned(int steps);

protected:
    [[nodiscard]] QMimeData *createMimeDataFromSelection() const override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showPlace();
    /// The width that the window and the zoom ask for.
    [[nodiscard]] double layoutWidth() const;
    /// Lays the document out in that width, if it has another one or was zoomed.
    void setLayoutWidth(bool isZoomed);
    /// Lets the text that stands at the top stay there while something lays out the document anew.
    void keepTop(const std::function<void()> &layOutAnew);
    /// Follows the window's width.
    void layOut();
    /// Scrolls to a place that the bar may not know of yet.
    void scrollTo(int place);
    /// Selects the whole document when all of it that is there yet is selected.
    void completeSelection();
    /// What Return does: no look is lost, but a heading and a list end.
    void beginParagraph();
    [[nodiscard]] PagedText pagedText() const;
    void paintDocument(QPainter &painter, QPagedPaintDevice &device, const QPageRanges &pages = {}) const;

    TextDocument *m_document = nullptr;
    /// Where the view was scrolled to before the content changed.
    int m_place = 0;
    /// Whether the end of a document that grows is shown, wherever it is.
    bool m_followsEnd = false;
    double m_zoom = 1;
    bool m_isLayingOut = false;
    /// Whether the document has a width of its own, for which the view may have to scroll.
    bool m_isWide = false;
    QTimer m_layoutLater;
    /// How long it took to follow the window's width last time, in milliseconds.
    qint64 m_layoutTime = 0;
    /// What the wheel has turned with Ctrl, less than a step, in eighths of a degree.
    int m_turned = 0;
    QMarginsF m_paperMargins;
    QString m_pageHeader;
    QString m_pageFooter;
    QString m_pageSubject;
    QString m_pressedLink;
    std::unique_ptr<QPrinter> m_printer;
    std::unique_ptr<PdfOutput> m_pdf;
    QString m_pdfPath;
    bool m_opensPdf = false;
};
