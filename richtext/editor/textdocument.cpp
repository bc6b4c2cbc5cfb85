// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textdocument.h"

#include "richtext/css/pagegeometry.h"
#include "richtext/css/stylesheet.h"
#include "richtext/editor/growingtable.h"
#include "richtext/editor/windowcolumns.h"
#include "richtext/xhtml/qthtmlwriter.h"
#include "richtext/xhtml/qtstylesheet.h"
#include "richtext/xhtml/xhtmlparts.h"
#include "richtext/xhtml/xhtmlwriter.h"
#include "richtext/xhtml/xmltext.h"

#include <QAbstractTextDocumentLayout>
#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextFrameFormat>
#include <QTextLayout>

namespace {

constexpr double pointsPerPixel = 0.75;

// In ms.
constexpr int noticeableEffort = 300;
constexpr int pauseBetweenChanges = 250;
/// While QTextDocument lays out what is there.
constexpr int pauseForLayout = 20;

/// QTextDocument leaves the margins of the body to its root frame.
void applyBodyMargins(QTextDocument &document, const StyleSheet &css)
{
    const QMarginsF margins = pageMargins(css) / pointsPerPixel;
    QTextFrameFormat format = document.rootFrame()->frameFormat();
    format.setLeftMargin(margins.left());
    format.setTopMargin(margins.top());
    format.setRightMargin(margins.right());
    format.setBottomMargin(margins.bottom());
    document.rootFrame()->setFrameFormat(format);
}

} // namespace

TextDocument::TextDocument(QObject *parent)
    : SelfContainedDocument(parent)
{
    setDocumentMargin(0);
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseBetweenChanges);
    connect(&m_pause, &QTimer::timeout, this, &TextDocument::makeContent);
    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, &TextDocument::grow);
}

TextDocument::~TextDocument() = default;

void TextDocument::setSource(const QString &xhtml)
{
    m_source = xhtml;
    m_css = splitXhtml(xhtml).css;
    m_shownCss = m_css;
    m_title.clear();
    forgetImages();
    suspend();
    setModified(false);
}

void TextDocument::show()
{
    if (!m_isShown) {
        makeContent();
    }
}

void TextDocument::suspend()
{
    m_isShown = false;
    m_pause.stop();
    m_idle.stop();
}

void TextDocument::setZoom(double factor)
{
    constexpr double metresPerInch = 0.0254;
    m_zoom = factor;
    QImage screen(1, 1, QImage::Format_RGB32);
    const double dotsPerMetre = screen.logicalDpiY() * factor / metresPerInch;
    screen.setDotsPerMeterX(qRound(dotsPerMetre));
    screen.setDotsPerMeterY(qRound(dotsPerMetre));
    m_zoomedScreen = factor == 1.0 ? QImage() : screen;
    documentLayout()->setPaintDevice(m_zoomedScreen.isNull() ? nullptr : &m_zoomedScreen);
}

void TextDocument::setTitle(const QString &title)
{
    m_title = title;
    setMetaInformation(DocumentTitle, title);
}

QString TextDocument::getHtml() const
{
    const XhtmlParts parts = splitXhtml(m_source);
    if (!isModified()) {
        return parts.css == m_css ? m_source : joinXhtml(parts, m_css, bodyOf(parts.tail));
    }
    const QString shownLook = QtStyleSheet(StyleSheet(m_shownCss)).text();
    return joinXhtml(parts, m_css, toXhtml(*this, m_paragraphClass, shownLook));
}

void TextDocument::beginPlainParagraph(QTextCursor cursor) const
{
    TextDocument sample;
    sample.setDefaultFont(defaultFont());
    sample.setSource(QStringLiteral("<html><head><style type=\"text/css\">") + styleElementText(m_shownCss) +
                     QStringLiteral("</style></head><body><p") +
                     xmlAttribute(QStringLiteral("class"), m_paragraphClass) +
                     QStringLiteral(">x</p></body></html>"));
    sample.show();
    const QTextCursor found = sample.find(QStringLiteral("x"));
    cursor.insertBlock(found.blockFormat(), found.charFormat());
}

void TextDocument::loadCss(const QString &css, bool preview)
{
    const bool isSame = css == m_shownCss;
    if (isModified()) {
        m_source = getHtml();
    }
    m_shownCss = css;
    if (!preview) {
        m_css = css;
    }
    if (!isSame) {
        changeLook();
    }
}

void TextDocument::highlightSelector(const QString &selector)
{
    const bool isSame = selector == m_highlighted;
    if (isModified()) {
        m_source = getHtml();
    }
    m_highlighted = selector;
    if (!isSame) {
        changeLook();
    }
}

void TextDocument::changeLook()
{
    if (!m_isShown) {
        return;
    }
    if (m_effort < noticeableEffort) {
        makeContent();
    } else {
        m_pause.start();
    }
}

void TextDocument::makeContent()
{
    QElapsedTimer effort;
    effort.start();
    if (isModified()) {
        m_source = getHtml();
    }
    Q_EMIT aboutToMakeContent();
    m_isShown = true;
    const StyleSheet css(m_shownCss);
    const bool keepsUndo = isUndoRedoEnabled();
    setUndoRedoEnabled(false);
    fill(css);
    setUndoRedoEnabled(keepsUndo);
    if (!m_title.isEmpty()) {
        setMetaInformation(DocumentTitle, m_title);
    }
    setModified(false);
    Q_EMIT contentMade();
    m_effort = effort.elapsed();
}

void TextDocument::fill(const StyleSheet &css)
{
    m_idle.stop();
    m_growing.reset();
    m_columns.reset();
    if (m_grows && startGrowing(css)) {
        return;
    }
    // In one go, so that a document that is shown is laid out once.
    setLayoutEnabled(false);
    QTextCursor cursor(this);
    cursor.beginEditBlock();
    setQtHtml(*this, toQtHtml(m_source, css, Medium::Window, m_highlighted));
    applyBodyMargins(*this, css);
    cursor.endEditBlock();
    if (m_grows) {
        m_columns = std::make_unique<WindowColumns>(*this, css);
        alignColumns(textWidth());
    }
    setLayoutEnabled(true);
    setPageSize(pageSize());
}

bool TextDocument::startGrowing(const StyleSheet &css)
{
    setLayoutEnabled(false);
    m_growing = GrowingTable::begin(*this, m_source, css, m_highlighted);
    if (m_growing) {
        applyBodyMargins(*this, css);
        m_growing->alignColumns(textWidth());
    }
    setLayoutEnabled(true);
    if (m_growing) {
        setPageSize(pageSize());
        m_idle.start(0);
    }
    return m_growing != nullptr;
}

bool TextDocument::isComplete() const
{
    return !m_growing || m_growing->isComplete();
}

void TextDocument::complete(double height)
{
    if (isComplete() || !m_isShown) {
        return;
    }
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (height == HUGE_VAL) {
        m_growing->appendAll();
    }
    while (!isComplete() && size().height() < height) {
        m_growing->append();
    }
    setModified(false);
    QGuiApplication::restoreOverrideCursor();
}

/// One piece. QTextDocument may still be about to lay out what is there, after another width; a piece more
/// would make it do so at once.
void TextDocument::grow()
{
    const bool isLaidOut = lastBlock().layout()->lineCount() > 0;
    if (isLaidOut) {
        m_growing->append();
        setModified(false);
    }
    if (!isComplete()) {
        m_idle.start(isLaidOut ? 0 : pauseForLayout);
    }
}

double TextDocument::leastWidth() const
{
    if (m_growing) {
        return m_zoom * m_growing->leastWidth();
    }
    return m_columns ? m_zoom * m_columns->leastWidth(m_zoom) : 0;
}

void TextDocument::alignColumns(double width)
{
    if (m_growing) {
        m_growing->alignColumns(width);
        setModified(false);
    } else if (m_columns && m_columns->fit(width / m_zoom, m_zoom)) {
        setModified(false);
    }
}
