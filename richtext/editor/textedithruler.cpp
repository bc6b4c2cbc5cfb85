// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textedithruler.h"

#include "richtext/editor/rulerpainter.h"
#include "richtext/editor/textedit.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double pixelsPerPoint = 96.0 / 72.0;
constexpr int rulerHeight = 24;
// In pixels: how near to a mark it is grabbed, and the width that margins leave for the text.
constexpr double reach = 5;
constexpr double narrowestText = 20;
/// Marks stop at whole millimetres.
constexpr double snap = 96.0 / 25.4;

} // namespace

TextEditHRuler::TextEditHRuler(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(tr("Ruler"));
    setToolTip(tr("Drag the marks to move the paragraph's margins and the paper's."));
}

TextEditHRuler::~TextEditHRuler() = default;

void TextEditHRuler::setTextEdit(TextEdit *edit)
{
    if (m_edit != nullptr) {
        m_edit->disconnect(this);
        m_edit->horizontalScrollBar()->disconnect(this);
        m_edit->viewport()->removeEventFilter(this);
    }
    m_edit = edit;
    m_drag.reset();
    if (edit != nullptr) {
        const auto repaint = [this] { update(); };
        connect(edit, &QTextEdit::cursorPositionChanged, this, repaint);
        connect(edit, &QTextEdit::textChanged, this, repaint);
        connect(edit->horizontalScrollBar(), &QScrollBar::valueChanged, this, repaint);
        edit->viewport()->installEventFilter(this);
    }
    update();
}

void TextEditHRuler::setPaperWidth(double points)
{
    m_paperWidth = std::max(0.0, points);
    update();
}

void TextEditHRuler::setHasTabStops(bool has)
{
    m_hasTabStops = has;
    update();
}

bool TextEditHRuler::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
        update();
    }
    return QWidget::eventFilter(watched, event);
}

QTextBlockFormat TextEditHRuler::format() const
{
    return m_edit->textCursor().blockFormat();
}

double TextEditHRuler::originX() const
{
    const int viewport = mapFromGlobal(m_edit->viewport()->mapToGlobal(QPoint(0, 0))).x();
    return viewport - m_edit->horizontalScrollBar()->value();
}

double TextEditHRuler::linesWidth() const
{
    const QMarginsF margins = m_edit->paperMargins();
    return m_paperWidth > 0 ? m_paperWidth * pixelsPerPoint - margins.left() - margins.right()
                            : m_edit->viewport()->width();
}

double TextEditHRuler::place(Mark mark) const
{
    switch (mark) {
    case Mark::FirstLine:
        return format().leftMargin() + format().textIndent();
    case Mark::Left:
        return format().leftMargin();
    case Mark::Right:
        return linesWidth() - format().rightMargin();
    case Mark::PaperRight:
        return linesWidth();
    default:
        return 0;
    }
}

QList<double> TextEditHRuler::tabs() const
{
    QList<double> places;
    if (m_hasTabStops) {
        for (const QTextOption::Tab &tab : format().tabPositions()) {
            places.append(tab.position);
        }
    }
    return places;
}

std::optional<TextEditHRuler::Drag> TextEditHRuler::markAt(const QPoint &point) const
{
    const double at = point.x() - originX();
    const bool isUpper = point.y() < height() / 2;
    // Marks of the paragraph lie before those of the paper, which stick out on the paper's margins.
    const std::array marks{isUpper ? Mark::FirstLine : Mark::Left, Mark::Right};
    for (const Mark mark : marks) {
        if (std::abs(at - place(mark)) <= reach) {
            return Drag{mark, place(mark), place(mark)};
        }
    }
    if (at < 0 && at >= -3 * reach) {
        return Drag{Mark::PaperLeft, 0, 0};
    }
    if (at > linesWidth() && at <= linesWidth() + 3 * reach) {
        return Drag{Mark::PaperRight, linesWidth(), linesWidth()};
    }
    for (const double tab : tabs()) {
        if (std::abs(at - tab) <= reach) {
            return Drag{Mark::Tab, tab, tab};
        }
    }
    if (m_hasTabStops && at > 0 && at < linesWidth()) {
        return Drag{Mark::Tab, snapped(at), -1};
    }
    return {};
}

double TextEditHRuler::snapped(double place) const
{
    return std::round(place / snap) * snap;
}

double TextEditHRuler::shownPlace(Mark mark) const
{
    return m_drag && m_drag->mark == mark ? m_drag->place : place(mark);
}

QList<double> TextEditHRuler::shownTabs() const
{
    QList<double> stops = tabs();
    if (m_drag && m_drag->mark == Mark::Tab) {
        stops.removeOne(m_drag->placeBefore);
        if (!m_drag->isOff) {
            stops.append(m_drag->place);
        }
    }
    return stops;
}

QSize TextEditHRuler::sizeHint() const
{
    return {0, rulerHeight};
}

QSize TextEditHRuler::minimumSizeHint() const
{
    return sizeHint();
}

void TextEditHRuler::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    if (m_edit == nullptr) {
        return;
    }
    const QMarginsF paper = m_edit->paperMargins();
    RulerContent content;
    content.origin = originX();
    content.linesWidth = linesWidth();
    content.paperLeftMargin = paper.left();
    content.paperRightMargin = paper.right();
    content.paperLeft = shownPlace(Mark::PaperLeft);
    content.paperRight = shownPlace(Mark::PaperRight);
    content.firstLine = shownPlace(Mark::FirstLine);
    content.left = shownPlace(Mark::Left);
    content.right = shownPlace(Mark::Right);
    content.tabStops = shownTabs();
    RulerPainter(painter, *this, content).paint();
}

void TextEditHRuler::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_edit != nullptr) {
        m_drag = markAt(event->position().toPoint());
        update();
    }
}

void TextEditHRuler::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_drag || m_edit == nullptr) {
        return;
    }
    const double at = snapped(event->position().x() - originX());
    const QMarginsF paper = m_edit->paperMargins();
    switch (m_drag->mark) {
    case Mark::Right:
        m_drag->place =
            std::clamp(at, std::min(place(Mark::Left) + narrowestText, linesWidth()), linesWidth());
        break;
    case Mark::PaperLeft:
        m_drag->place = std::clamp(at, -paper.left(), std::max(0.0, linesWidth() - narrowestText));
        break;
    case Mark::PaperRight:
        m_drag->place = std::clamp(at, std::min(narrowestText, linesWidth()), linesWidth() + paper.right());
        break;
    default:
        m_drag->place = std::clamp(at, 0.0, std::max(0.0, place(Mark::Right) - narrowestText));
        m_drag->isOff =
            m_drag->mark == Mark::Tab &&
            !rect().adjusted(-width(), -height(), width(), height()).contains(event->position().toPoint());
    }
    update();
}

void TextEditHRuler::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_drag || m_edit == nullptr) {
        return;
    }
    const Drag drag = *m_drag;
    m_drag.reset();
    if (drag.place != drag.placeBefore || drag.isOff) {
        apply(drag);
    }
    update();
}

void TextEditHRuler::apply(const Drag &drag)
{
    if (drag.mark == Mark::PaperLeft || drag.mark == Mark::PaperRight) {
        applyToPaper(drag);
    } else {
        applyToParagraphs(drag);
    }
}

void TextEditHRuler::applyToPaper(const Drag &drag)
{
    const QMarginsF paper = m_edit->paperMargins();
    const bool isLeft = drag.mark == Mark::PaperLeft;
    const double left = paper.left() + (isLeft ? drag.place : 0);
    const double right = paper.right() + (isLeft ? 0 : linesWidth() - drag.place);
    Q_EMIT paperMarginsChanged(left / pixelsPerPoint, right / pixelsPerPoint);
}

void TextEditHRuler::applyToParagraphs(const Drag &drag)
{
    QTextBlockFormat change;
    switch (drag.mark) {
    case Mark::FirstLine:
        change.setTextIndent(drag.place - format().leftMargin());
        break;
    case Mark::Left:
        change.setLeftMargin(drag.place);
        break;
    case Mark::Right:
        change.setRightMargin(linesWidth() - drag.place);
        break;
    default: {
        QList<QTextOption::Tab> stops = format().tabPositions();
        stops.removeIf([&](const QTextOption::Tab &stop) { return stop.position == drag.placeBefore; });
        if (!drag.isOff) {
            stops.append(QTextOption::Tab(drag.place, QTextOption::LeftTab));
        }
        std::sort(stops.begin(), stops.end(),
                  [](const auto &one, const auto &other) { return one.position < other.position; });
        change.setTabPositions(stops);
    }
    }
    m_edit->textCursor().mergeBlockFormat(change);
}
