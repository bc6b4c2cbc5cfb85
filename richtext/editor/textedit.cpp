// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textedit.h"

#include "host/framework/hostui.h"
#include "host/framework/reportfile.h"
#include "richtext/css/pagegeometry.h"
#include "richtext/css/stylesheet.h"
#include "richtext/editor/grownselection.h"
#include "richtext/editor/textcommands.h"
#include "richtext/paper/pdfoutput.h"
#include "richtext/paper/printui.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QPrinter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextList>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// Fine enough for paper, see PdfOutput.
constexpr int printerResolution = 600;

/// Paper is white, whatever the desktop's colours: documents bring colours that are made for it.
QPalette paperPalette(QPalette palette)
{
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

bool hasAnchor(const QTextDocument &document, const QString &name)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            if (at.fragment().charFormat().anchorNames().contains(name)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

TextEdit::TextEdit(QWidget *parent)
    : PasteSafeTextEdit(parent)
    , m_document(new TextDocument(this))
{
    setDocument(m_document);
    setPalette(paperPalette(palette()));
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setAccessibleName(tr("Document"));
    m_layoutLater.setSingleShot(true);
    m_layoutLater.setInterval(150);
    connect(&m_layoutLater, &QTimer::timeout, this, [this] { keepTop([this] { layOut(); }); });
    connect(m_document, &TextDocument::aboutToMakeContent, this,
            [this] { m_place = verticalScrollBar()->value(); });
    connect(m_document, &TextDocument::contentMade, this, &TextEdit::showPlace);
    connect(this, &QTextEdit::selectionChanged, this, &TextEdit::completeSelection);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int maximum) {
        if (m_followsEnd) {
            verticalScrollBar()->setValue(maximum);
        }
    });
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, [this] { m_followsEnd = false; });
    // Tables are laid out a fraction of a pixel too wide, for which nobody wants a bar.
    connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int maximum) {
        constexpr int hardlyAnything = 2;
        setHorizontalScrollBarPolicy(maximum > hardlyAnything ? Qt::ScrollBarAsNeeded
                                                              : Qt::ScrollBarAlwaysOff);
    });
}

TextEdit::~TextEdit() = default;

void TextEdit::loadDocument(const QString &xhtml)
{
    m_document->setSource(xhtml);
    m_document->setGrows(isReadOnly());
    m_followsEnd = false;
    if (isVisible()) {
        m_document->show();
    }
}

void TextEdit::showPlace()
{
    if (m_document->textWidth() != layoutWidth()) {
        // The paper or the columns are other ones.
        setLayoutWidth(false);
    }
    moveCursor(QTextCursor::Start);
    if (!m_document->isComplete()) {
        // Rows that follow are not to be selected because all was.
        QTextCursor cursor = textCursor();
        cursor.setKeepPositionOnInsert(true);
        setTextCursor(cursor);
        if (m_place > verticalScrollBar()->maximum()) {
            m_document->complete(m_place + viewport()->height());
            scrollTo(m_place);
            return;
        }
    }
    verticalScrollBar()->setValue(m_place);
}

void TextEdit::scrollTo(int place)
{
    const int last = int(m_document->size().height()) - viewport()->height();
    verticalScrollBar()->setMaximum(std::max(0, last));
    verticalScrollBar()->setValue(place);
}

void TextEdit::completeSelection()
{
    const QTextCursor cursor = textCursor();
    const int end = m_document->characterCount() - 1;
    if (!m_document->isComplete() && cursor.selectionStart() == 0 && cursor.selectionEnd() == end) {
        m_document->complete();
        selectAll();
    }
}

void TextEdit::setPaperMargins(double left, double right)
{
    m_paperMargins = QMarginsF(left, 0, right, 0);
    // On the right the lines just end.
    setViewportMargins(qRound(left), 0, 0, 0);
}

void TextEdit::goToTop()
{
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
}

void TextEdit::goToAnchor(const QString &name)
{
    if (!hasAnchor(*m_document, name)) {
        m_document->complete();
    }
    scrollToAnchor(name);
}

void TextEdit::showWithSurroundings()
{
    const QRect selection = cursorRect();
    const int height = viewport()->height();
    const int edge = std::min(height / 4, 3 * selection.height());
    if (selection.top() < edge || selection.bottom() > height - edge) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + selection.center().y() - height / 3);
    }
}

void TextEdit::setZoom(double factor)
{
    keepTop([&] {
        m_zoom = factor;
        m_document->setZoom(factor);
        setLayoutWidth(true);
    });
}

void TextEdit::keepTop(const std::function<void()> &layOutAnew)
{
    const QTextBlock top = cursorForPosition({0, 0}).block();
    const int before = verticalScrollBar()->value();
    const auto rectOf = [this](const QTextBlock &block) {
        return m_document->documentLayout()->blockBoundingRect(block);
    };
    const QRectF old = rectOf(top);
    {
        const QScopedValueRollback layingOut(m_isLayingOut, true);
        layOutAnew();
    }
    const QRectF now = rectOf(top);
    if (before > 0 && m_document->isShown() && now != old) {
        const double ratio = old.height() > 0 ? now.height() / old.height() : 1;
        scrollTo(qRound(now.top() + (before - old.top()) * ratio));
    }
}

void TextEdit::setPageFragments(const QString &header, const QString &footer, const QString &subject)
{
    m_pageHeader = header;
    m_pageFooter = footer;
    m_pageSubject = subject;
}

void TextEdit::pageSetup()
{
    StyleSheet css(m_document->getCss());
    QPageLayout layout = pageLayout(css);
    if (PrintUi::current().choosePaper(this, layout)) {
        setPageLayout(css, layout);
        m_document->loadCss(css.text(), false);
    }
}

bool TextEdit::print(QPainter &painter)
{
    // A preview shows pages that the printer holds: a second one that opens meanwhile has a printer of its
    // own.
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setResolution(printerResolution);
    printer->setPageLayout(pageLayout(StyleSheet(m_document->getCss())));
    printer->setDocName(pagedText().title);
    const auto preview = [this](QPrinter &target) {
        QPainter previewPainter(&target);
        paintDocument(previewPainter, target);
        Q_EMIT previewPainted(&previewPainter);
    };
    if (!PrintUi::current().choosePrinter(this, *printer, preview)) {
        return false;
    }
    m_printer = std::move(printer);
    if (!painter.begin(m_printer.get())) {
        HostUi::current().warning(this, tr("Print Failed"), tr("The printer cannot be used."));
        return false;
    }
    paintDocument(painter, *m_printer, m_printer->pageRanges());
    return true;
}

bool TextEdit::printToPdf(const QString &suggestedName, bool asksForFile, bool opensFile, QPainter &painter)
{
    m_pdfPath = suggestedName;
    if (asksForFile) {
        m_pdfPath = HostUi::current().saveFileName(this, tr("PDF file to save"), suggestedName,
                                                   tr("PDF documents (*.pdf)"));
    }
    if (m_pdfPath.isEmpty()) {
        return false;
    }
    m_opensPdf = opensFile;
    m_pdf = std::make_unique<PdfOutput>(pageLayout(StyleSheet(m_document->getCss())), pagedText().title);
    painter.begin(&m_pdf->device());
    paintDocument(painter, m_pdf->device());
    return true;
}

QString TextEdit::finishPdf()
{
    if (!m_pdf) {
        return {};
    }
    const QByteArray bytes = std::exchange(m_pdf, nullptr)->bytes();
    QString reason;
    HostUi &ui = HostUi::current();
    const ReportFileResult result = writeReportFile(m_pdfPath, bytes, &reason);
    if (result != ReportFileResult::Written) {
        ui.warning(this, tr("Output Failed"), reportFileMessage(result, m_pdfPath, reason));
        return {};
    }
    if (m_opensPdf) {
        ui.showWrittenFile(m_pdfPath);
    }
    return m_pdfPath;
}

QMimeData *TextEdit::createMimeDataFromSelection() const
{
    return m_document->isGrown() ? new GrownSelection(textCursor().selection())
                                 : QTextEdit::createMimeDataFromSelection();
}

void TextEdit::resizeEvent(QResizeEvent *event)
{
    if (m_isLayingOut) {
        // By a scroll bar that came or went.
        setLayoutWidth(false);
        QTextEdit::resizeEvent(event);
        return;
    }
    // A large document would hold up whoever drags the frame; it follows when they pause.
    constexpr qint64 unnoticed = 30;
    keepTop([&] {
        if (m_layoutTime > unnoticed) {
            m_layoutLater.start();
        } else {
            layOut();
        }
        QTextEdit::resizeEvent(event);
    });
}

void TextEdit::layOut()
{
    QElapsedTimer time;
    time.start();
    setLayoutWidth(false);
    m_layoutTime = time.elapsed();
}

double TextEdit::layoutWidth() const
{
    constexpr double pixelsPerPoint = 4.0 / 3;
    const double width = std::max<double>(viewport()->width(), std::ceil(m_document->leastWidth()));
    if (m_zoom <= 1) {
        return width;
    }
    const QPageLayout paper = pageLayout(StyleSheet(m_document->getCss()));
    return std::max(width,
                    m_zoom * std::min(width, paper.fullRect(QPageLayout::Point).width() * pixelsPerPoint));
}

/// A scroll bar that comes or goes by it resizes the viewport and so leads here again.
void TextEdit::setLayoutWidth(bool isZoomed)
{
    const double width = layoutWidth();
    m_document->alignColumns(width);
    const bool wasWide = std::exchange(m_isWide, m_zoom > 1 || width > viewport()->width());
    if (m_isWide) {
        if (isZoomed || !wasWide || lineWrapColumnOrWidth() != qRound(width)) {
            setLineWrapColumnOrWidth(qRound(width));
        }
        setLineWrapMode(FixedPixelWidth);
    } else if (wasWide) {
        setLineWrapMode(WidgetWidth);
    } else if (isZoomed) {
        m_document->setPageSize(m_document->pageSize());
    }
}

void TextEdit::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange && m_document->isGrown()) {
        m_document->alignColumns(m_document->textWidth());
        m_document->setPageSize(m_document->pageSize());
    }
}

void TextEdit::showEvent(QShowEvent *event)
{
    m_document->show();
    // Qt scrolls to the cursor, in a viewport that may not have its size yet: the title would be out of
    // sight.
    const int place = verticalScrollBar()->value();
    QTextEdit::showEvent(event);
    verticalScrollBar()->setValue(place);
}

void TextEdit::mouseMoveEvent(QMouseEvent *event)
{
    QTextEdit::mouseMoveEvent(event);
    if (isReadOnly()) {
        const bool isOnLink = !anchorAt(event->pos()).isEmpty();
        viewport()->setCursor(isOnLink ? Qt::PointingHandCursor : Qt::IBeamCursor);
    }
}

void TextEdit::mousePressEvent(QMouseEvent *event)
{
    m_pressedLink = isReadOnly() && event->button() == Qt::LeftButton ? anchorAt(event->pos()) : QString();
    QTextEdit::mousePressEvent(event);
}

void TextEdit::mouseReleaseEvent(QMouseEvent *event)
{
    QTextEdit::mouseReleaseEvent(event);
    const QString pressed = std::exchange(m_pressedLink, QString());
    if (event->button() == Qt::LeftButton && !pressed.isEmpty() && !textCursor().hasSelection() &&
        anchorAt(event->pos()) == pressed) {
        Q_EMIT linkActivated(pressed);
    }
}

void TextEdit::wheelEvent(QWheelEvent *event)
{
    constexpr int step = 120;
    if (!isReadOnly() || !(event->modifiers() & Qt::ControlModifier)) {
        QTextEdit::wheelEvent(event);
        return;
    }
    m_turned += event->angleDelta().y();
    if (const int steps = m_turned / step) {
        m_turned -= steps * step;
        Q_EMIT zoomTurned(steps);
    }
    event->accept();
}

void TextEdit::beginParagraph()
{
    QTextCursor cursor = textCursor();
    const bool isEmptyItem = cursor.currentList() && cursor.block().length() == 1 && !cursor.hasSelection();
    if (isEmptyItem) {
        changeIndent(*this, -1);
    } else if (cursor.blockFormat().headingLevel() > 0 && cursor.atBlockEnd() && !cursor.hasSelection()) {
        m_document->beginPlainParagraph(cursor);
    } else {
        cursor.insertBlock();
    }
    ensureCursorVisible();
}

void TextEdit::keyPressEvent(QKeyEvent *event)
{
    if (!isReadOnly() && event->matches(QKeySequence::InsertParagraphSeparator)) {
        beginParagraph();
        return;
    }
    // Qt moves the cursor only, and that not in texts that are not edited.
    if (isReadOnly() && event->modifiers() == Qt::ControlModifier &&
        (event->key() == Qt::Key_Home || event->key() == Qt::Key_End)) {
        QKeyEvent plain(QEvent::KeyPress, event->key(), Qt::NoModifier);
        keyPressEvent(&plain);
        return;
    }
    const bool opens = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QString link = isReadOnly() && opens ? textCursor().charFormat().anchorHref() : QString();
    if (link.isEmpty()) {
        QTextEdit::keyPressEvent(event);
        m_followsEnd = event->key() == Qt::Key_End && !m_document->isComplete();
    } else {
        Q_EMIT linkActivated(link);
    }
}

PagedText TextEdit::pagedText() const
{
    PagedText text;
    text.xhtml = m_document->getHtml();
    text.title = m_document->metaInformation(QTextDocument::DocumentTitle);
    text.subject = m_pageSubject;
    text.header = m_pageHeader;
    text.footer = m_pageFooter;
    return text;
}

void TextEdit::paintDocument(QPainter &painter, QPagedPaintDevice &device, const QPageRanges &pages) const
{
    PagePainter document(pagedText());
    const int count = document.layOut(device);
    QList<QPageRanges::Range> ranges = pages.toRangeList();
    ranges.removeIf([count](const QPageRanges::Range &range) { return range.from > count; });
    if (ranges.isEmpty()) {
        ranges = {{pages.isEmpty() ? 1 : count, count}};
    }
    for (qsizetype i = 0; i < ranges.size(); ++i) {
        const int last = std::min(ranges[i].to, count);
        if ((i > 0 && !device.newPage()) || !document.paint(painter, std::max(ranges[i].from, 1), last)) {
            return;
        }
    }
}
