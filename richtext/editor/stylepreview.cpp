// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/stylepreview.h"

#include "richtext/css/cssvalue.h"
#include "richtext/css/stylerule.h"

#include <QPainter>

namespace {

constexpr double defaultSize = 12;

[[nodiscard]] Qt::Alignment horizontal(const QString &value)
{
    return value == QLatin1String("right")     ? Qt::AlignRight
           : value == QLatin1String("center")  ? Qt::AlignHCenter
           : value == QLatin1String("justify") ? Qt::AlignJustify
                                               : Qt::AlignLeft;
}

[[nodiscard]] Qt::PenStyle penStyle(const QString &style)
{
    if (style.isEmpty() || style == QLatin1String("none") || style == QLatin1String("hidden")) {
        return Qt::NoPen;
    }
    return style == QLatin1String("dashed")   ? Qt::DashLine
           : style == QLatin1String("dotted") ? Qt::DotLine
                                              : Qt::SolidLine;
}

} // namespace

StylePreview::StylePreview(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

StylePreview::~StylePreview() = default;

QSize StylePreview::sizeHint() const
{
    return {180, 72};
}

void StylePreview::showRule(const StyleSheet &sheet, const QString &selector, const QString &sample)
{
    m_sample = selector.isEmpty() ? QString() : sample;
    m_text = Qt::black;
    m_background = QColor();
    m_alignment = Qt::AlignLeft;
    m_font = QFont();
    m_font.setPointSizeF(defaultSize);
    readFont(sheet, QStringLiteral("body"));
    readFont(sheet, selector);
    readBox(sheet, selector);
    update();
}

void StylePreview::readFont(const StyleSheet &sheet, const QString &selector)
{
    StyleSheet copy = sheet;
    const StyleRule rule(&copy, selector);
    const auto value = [&](const char *property) {
        return rule.value(QString::fromLatin1(property)).toLower();
    };
    if (const QString names = value("font-family"); !names.isEmpty()) {
        m_font.setFamilies(css::shownFamilies(names).split(QStringLiteral(", ")));
    }
    const double em = m_font.pointSizeF();
    if (const auto size = css::points(value("font-size"), em, em); size && *size > 0) {
        m_font.setPointSizeF(*size);
    }
    if (const QString weight = value("font-weight"); !weight.isEmpty()) {
        m_font.setBold(weight.startsWith(QLatin1String("bold")) || weight.toInt() >= 600);
    }
    if (const QString style = value("font-style"); !style.isEmpty()) {
        m_font.setItalic(style != QLatin1String("normal"));
    }
    if (const QString line = value("text-decoration"); !line.isEmpty()) {
        m_font.setUnderline(line.contains(QLatin1String("underline")));
        m_font.setStrikeOut(line.contains(QLatin1String("line-through")));
    }
    if (const QColor color = css::color(value("color")); color.isValid()) {
        m_text = color;
    }
    if (const QColor color = css::color(value("background-color")); color.isValid()) {
        m_background = color;
    }
    if (const QString align = value("text-align"); !align.isEmpty()) {
        m_alignment = horizontal(align);
    }
}

void StylePreview::readBox(const StyleSheet &sheet, const QString &selector)
{
    using namespace cssbox;
    StyleSheet copy = sheet;
    const StyleRule rule(&copy, selector);
    const double em = m_font.pointSizeF();
    const double dots = logicalDpiY() / 72.0;
    const auto pixels = [&](Family family, Side side) {
        const auto length = css::points(rule.boxValue(family, {Aspect::Width, side}), em, 0);
        return length ? qBound(0.0, *length * dots, 40.0) : 0.0;
    };
    m_padding = QMarginsF(pixels(Family::Padding, Side::Left), pixels(Family::Padding, Side::Top),
                          pixels(Family::Padding, Side::Right), pixels(Family::Padding, Side::Bottom));
    for (const Side side : allSides) {
        Edge &edge = m_edges[int(side)];
        const QString style = rule.boxValue(Family::Border, {Aspect::Style, side}).toLower();
        const QColor color = css::color(rule.boxValue(Family::Border, {Aspect::Color, side}));
        const bool open = rule.boxValue(Family::Border, {Aspect::Width, side}).isEmpty();
        edge.style = penStyle(style);
        edge.twofold = style == QLatin1String("double");
        edge.width = open ? 2.25 * dots : pixels(Family::Border, side);
        edge.color = color.isValid() ? color : m_text;
    }
}

void StylePreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (!m_sample.isEmpty()) {
        const QMarginsF inner = m_padding + QMarginsF(m_edges[3].style == Qt::NoPen ? 0 : m_edges[3].width,
                                                      m_edges[0].style == Qt::NoPen ? 0 : m_edges[0].width,
                                                      m_edges[1].style == Qt::NoPen ? 0 : m_edges[1].width,
                                                      m_edges[2].style == Qt::NoPen ? 0 : m_edges[2].width);
        const double height = QFontMetricsF(m_font, this).height() + inner.top() + inner.bottom();
        QRectF box = QRectF(rect()).adjusted(8, 0, -8, 0);
        box.setTop(qMax(4.0, (rect().height() - height) / 2));
        box.setHeight(height);
        if (m_background.isValid()) {
            painter.fillRect(box, m_background);
        }
        paintEdges(&painter, box);
        painter.setFont(m_font);
        painter.setPen(m_text);
        const QRectF line = box.marginsRemoved(inner);
        const QString text =
            painter.fontMetrics().elidedText(m_sample, Qt::ElideRight, int(line.width()) + 1);
        painter.drawText(line, int(m_alignment | Qt::AlignVCenter) | Qt::TextSingleLine, text);
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void StylePreview::paintEdges(QPainter *painter, const QRectF &box) const
{
    const QPointF corners[] = {box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()};
    const QPointF inward[] = {{0, 1}, {-1, 0}, {0, -1}, {1, 0}};
    for (int side = 0; side < 4; ++side) {
        const Edge &edge = m_edges[side];
        if (edge.style == Qt::NoPen || edge.width <= 0) {
            continue;
        }
        const double line = edge.twofold ? edge.width / 3 : edge.width;
        painter->setPen(QPen(edge.color, line, edge.style, Qt::FlatCap));
        for (const double middle : {line / 2, edge.width - line / 2}) {
            const QPointF shift = inward[side] * middle;
            painter->drawLine(corners[side] + shift, corners[(side + 1) % 4] + shift);
            if (!edge.twofold) {
                break;
            }
        }
    }
}
