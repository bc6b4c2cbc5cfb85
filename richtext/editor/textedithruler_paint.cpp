// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textedithruler.h"

#include "host/framework/hostui.h"
#include "richtext/editor/textedit.h"

#include <QPainter>
#include <QTextFrame>

#include <cmath>

namespace {

constexpr double pixelsPerInch = 96;
constexpr double pixelsPerCentimetre = pixelsPerInch / 2.54;
constexpr int rulerHeight = 24;
constexpr int markWidth = 5;

/// A unit in pixels and the parts into which it is divided.
struct Scale
{
    double unit;
    int parts;
};

Scale scaleOf(const QLocale &locale)
{
    return locale.measurementSystem() == QLocale::MetricSystem ? Scale{pixelsPerCentimetre, 2}
                                                               : Scale{pixelsPerInch, 8};
}

/// A triangle whose tip is at (x, y), opening upwards or downwards.
QPolygonF triangle(double x, double y, double height)
{
    return QPolygonF({{x, y}, {x - markWidth, y + height}, {x + markWidth, y + height}});
}

} // namespace

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
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().window());
    if (m_edit == nullptr) {
        return;
    }
    const QTextFrameFormat paper = m_edit->document()->rootFrame()->frameFormat();
    const double origin = originX();
    constexpr int inset = 4;
    const QRectF sheet(origin - paper.leftMargin(), inset,
                       linesWidth() + paper.leftMargin() + paper.rightMargin(), height() - 2 * inset);
    painter.fillRect(sheet, palette().mid());
    const double left = origin + shownPlace(Mark::PaperLeft);
    const double right = origin + shownPlace(Mark::PaperRight);
    painter.fillRect(QRectF(left, inset, right - left, height() - 2 * inset), palette().base());
    paintScale(painter);
    paintMarks(painter);
}

void TextEditHRuler::paintScale(QPainter &painter) const
{
    const QLocale locale = HostUi::current().locale();
    const Scale scale = scaleOf(locale);
    const double origin = originX();
    QFont small = font();
    constexpr int fontHeight = 9;
    small.setPixelSize(fontHeight);
    painter.setFont(small);
    painter.setPen(palette().color(QPalette::Text));
    const double step = scale.unit / scale.parts;
    const int steps = int(linesWidth() / step);
    const double middle = height() / 2.0;
    for (int i = 1; i <= steps; ++i) {
        const double x = origin + i * step;
        if (i % scale.parts == 0) {
            const QRectF place(x - scale.unit / 2, 0, scale.unit, height());
            painter.drawText(place, Qt::AlignCenter, locale.toString(i / scale.parts));
        } else {
            painter.drawLine(QPointF(x, middle - 1.5), QPointF(x, middle + 1.5));
        }
    }
}

void TextEditHRuler::paintMarks(QPainter &painter) const
{
    const double origin = originX();
    const double middle = height() / 2.0;
    const double markHeight = middle - 3;
    painter.setPen(palette().color(QPalette::Text));
    QList<double> stops = tabs();
    if (m_drag && m_drag->mark == Mark::Tab) {
        stops.removeOne(m_drag->placeBefore);
        if (!m_drag->isOff) {
            stops.append(m_drag->place);
        }
    }
    for (const double stop : std::as_const(stops)) {
        const double x = origin + stop;
        painter.drawPolyline(QPolygonF({{x, middle}, {x, height() - 5.0}, {x + markWidth, height() - 5.0}}));
    }
    painter.setBrush(palette().button());
    painter.drawPolygon(triangle(origin + shownPlace(Mark::FirstLine), middle - 1, -markHeight));
    painter.drawPolygon(triangle(origin + shownPlace(Mark::Left), middle + 1, markHeight));
    painter.drawPolygon(triangle(origin + shownPlace(Mark::Right), middle + 1, markHeight));
}
