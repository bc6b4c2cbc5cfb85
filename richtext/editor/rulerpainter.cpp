// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/rulerpainter.h"

#include "host/framework/hostui.h"

#include <QPainter>
#include <QWidget>

namespace {

constexpr double pixelsPerInch = 96;
constexpr double pixelsPerCentimetre = pixelsPerInch / 2.54;
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

/// A triangle whose tip is at (x, y), opening downwards, or upwards for a negative height.
QPolygonF triangle(double x, double y, double height)
{
    return QPolygonF({{x, y}, {x - markWidth, y + height}, {x + markWidth, y + height}});
}

} // namespace

RulerPainter::RulerPainter(QPainter &painter, const QWidget &ruler, const RulerContent &content)
    : m_painter(painter)
    , m_ruler(ruler)
    , m_content(content)
{
}

void RulerPainter::paint()
{
    m_painter.setRenderHint(QPainter::Antialiasing);
    paintPaper();
    paintScale();
    paintMarks();
}

void RulerPainter::paintPaper()
{
    constexpr int inset = 4;
    const double height = m_ruler.height() - 2 * inset;
    const RulerContent &at = m_content;
    const QRectF paper(at.origin - at.paperLeftMargin, inset,
                       at.linesWidth + at.paperLeftMargin + at.paperRightMargin, height);
    m_painter.fillRect(paper, m_ruler.palette().mid());
    m_painter.fillRect(QRectF(at.origin + at.paperLeft, inset, at.paperRight - at.paperLeft, height),
                       m_ruler.palette().base());
}

void RulerPainter::paintScale()
{
    const QLocale locale = HostUi::current().locale();
    const Scale scale = scaleOf(locale);
    QFont small = m_ruler.font();
    constexpr int fontHeight = 9;
    small.setPixelSize(fontHeight);
    m_painter.setFont(small);
    m_painter.setPen(m_ruler.palette().color(QPalette::Text));
    const double step = scale.unit / scale.parts;
    const int steps = int(m_content.linesWidth / step);
    const double middle = m_ruler.height() / 2.0;
    for (int i = 1; i <= steps; ++i) {
        const double x = m_content.origin + i * step;
        if (i % scale.parts == 0) {
            const QRectF place(x - scale.unit / 2, 0, scale.unit, m_ruler.height());
            m_painter.drawText(place, Qt::AlignCenter, locale.toString(i / scale.parts));
        } else {
            m_painter.drawLine(QPointF(x, middle - 1.5), QPointF(x, middle + 1.5));
        }
    }
}

void RulerPainter::paintMarks()
{
    const double origin = m_content.origin;
    const double middle = m_ruler.height() / 2.0;
    const double foot = m_ruler.height() - 5.0;
    const double markHeight = middle - 3;
    m_painter.setPen(m_ruler.palette().color(QPalette::Text));
    for (const double stop : m_content.tabStops) {
        const double x = origin + stop;
        m_painter.drawPolyline(QPolygonF({{x, middle}, {x, foot}, {x + markWidth, foot}}));
    }
    m_painter.setBrush(m_ruler.palette().button());
    m_painter.drawPolygon(triangle(origin + m_content.firstLine, middle - 1, -markHeight));
    m_painter.drawPolygon(triangle(origin + m_content.left, middle + 1, markHeight));
    m_painter.drawPolygon(triangle(origin + m_content.right, middle + 1, markHeight));
}
