// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/pagegeometry.h"

#include "richtext/css/cssbox.h"
#include "richtext/css/cssvalue.h"
#include "richtext/css/stylesheet.h"

#include <QPageSize>
#include <QRectF>
#include <QSizeF>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// In points.
constexpr double shortestPaper = 72;
constexpr double longestPaper = 14400;
constexpr double smallestDifference = 0.5;
constexpr double usualFontSize = 12;
const QString body = QStringLiteral("body");

QSizeF a4Points()
{
    return QPageSize::definitionSize(QPageSize::A4) * (72.0 / 25.4);
}

/// Relative lengths make no paper.
double paperLength(const StyleSheet &css, const QString &property, double fallback)
{
    const double length =
        css::points(css::withoutImportant(css.value(body, property)), 0, 0).value_or(fallback);
    return length >= shortestPaper && length <= longestPaper ? length : fallback;
}

bool differ(double a, double b)
{
    return std::abs(a - b) > smallestDifference;
}

QString pointsText(double points)
{
    return QString::number(points, 'f', 1) + QStringLiteral("pt");
}

} // namespace

QPageLayout pageLayout(const StyleSheet &css)
{
    const QSizeF a4 = a4Points();
    const double width = paperLength(css, QStringLiteral("paper-width"), a4.width());
    const double height = paperLength(css, QStringLiteral("paper-height"), a4.height());
    const bool isLandscape = width > height;
    const QSizeF upright(std::min(width, height), std::max(width, height));
    const QPageSize size(upright, QPageSize::Point, QString(), QPageSize::FuzzyMatch);
    QMarginsF margins = pageMargins(css);
    // A third of the page at least stays for the text.
    const double most = upright.width() / 3;
    margins = {std::min(margins.left(), most), std::min(margins.top(), most), std::min(margins.right(), most),
               std::min(margins.bottom(), most)};
    return {size, isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait, margins, QPageLayout::Point};
}

void setPageLayout(StyleSheet &css, const QPageLayout &layout)
{
    const QPageLayout old = pageLayout(css);
    const QSizeF size = layout.fullRect(QPageLayout::Point).size();
    const QSizeF oldSize = old.fullRect(QPageLayout::Point).size();
    if (differ(size.width(), oldSize.width()) || differ(size.height(), oldSize.height())) {
        css.setValue(body, QStringLiteral("paper-width"), pointsText(size.width()));
        css.setValue(body, QStringLiteral("paper-height"), pointsText(size.height()));
    }
    const QMarginsF margins = layout.margins(QPageLayout::Point);
    const QMarginsF oldMargins = old.margins(QPageLayout::Point);
    if (differ(margins.left(), oldMargins.left()) || differ(margins.top(), oldMargins.top()) ||
        differ(margins.right(), oldMargins.right()) || differ(margins.bottom(), oldMargins.bottom())) {
        for (const char *side : {"top", "right", "bottom", "left"}) {
            css.setValue(body, QStringLiteral("margin-") + QLatin1String(side), {});
        }
        css.setValue(body, QStringLiteral("margin"),
                     pointsText(margins.top()) + u' ' + pointsText(margins.right()) + u' ' +
                         pointsText(margins.bottom()) + u' ' + pointsText(margins.left()));
    }
}

QMarginsF pageMargins(const StyleSheet &css)
{
    const double em = css::points(css.value(body, QStringLiteral("font-size")), usualFontSize, usualFontSize)
                          .value_or(usualFontSize);
    const double width = paperLength(css, QStringLiteral("paper-width"), a4Points().width());
    std::array<double, 4> found{0, 0, 0, 0};
    for (const StyleSheet::Rule &rule : css.rules()) {
        if (rule.selector == body) {
            const cssbox::Lengths lengths = cssbox::lengths(cssbox::Family::Margin, rule, em, width);
            for (size_t side = 0; side < found.size(); ++side) {
                found[side] = std::max(lengths[side].value_or(found[side]), 0.0);
            }
        }
    }
    return {found[3], found[0], found[1], found[2]};
}
