// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/richtext/pagegeometry.h"

#include "host/richtext/stylesheet.h"

#include <QPageSize>
#include <QRectF>
#include <QRegularExpression>
#include <QSizeF>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// In points.
constexpr double shortestPaper = 72;
constexpr double longestPaper = 14400;
constexpr double smallestDifference = 0.5;
const QString body = QStringLiteral("body");

struct Unit
{
    QLatin1String name;
    double points;
};

constexpr std::array<Unit, 6> units{{{QLatin1String("pt"), 1.0},
                                     {QLatin1String("px"), 0.75},
                                     {QLatin1String("pc"), 12.0},
                                     {QLatin1String("in"), 72.0},
                                     {QLatin1String("cm"), 72.0 / 2.54},
                                     {QLatin1String("mm"), 72.0 / 25.4}}};

double paperLength(const StyleSheet &css, const QString &property, double fallback)
{
    const double length = lengthInPoints(css.value(body, property)).value_or(fallback);
    return length >= shortestPaper && length <= longestPaper ? length : fallback;
}

/// The sides that a shorthand of one to four lengths gives: top, right, bottom, left.
std::array<double, 4> sides(const QString &shorthand)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    const QStringList parts = shorthand.split(blanks, Qt::SkipEmptyParts);
    const auto length = [&parts](qsizetype index) {
        return lengthInPoints(parts.value(index)).value_or(0.0);
    };
    switch (parts.size()) {
    case 0:
        return {0, 0, 0, 0};
    case 1:
        return {length(0), length(0), length(0), length(0)};
    case 2:
        return {length(0), length(1), length(0), length(1)};
    case 3:
        return {length(0), length(1), length(2), length(1)};
    default:
        return {length(0), length(1), length(2), length(3)};
    }
}

QMarginsF withoutNegatives(const std::array<double, 4> &sides)
{
    return {std::max(sides[3], 0.0), std::max(sides[0], 0.0), std::max(sides[1], 0.0),
            std::max(sides[2], 0.0)};
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

std::optional<double> lengthInPoints(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*([+-]?(?:\\d+\\.?\\d*|\\.\\d+))([a-z]*)\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const double number = match.captured(1).toDouble();
    const QString name = match.captured(2).toLower();
    if (name.isEmpty()) {
        return number == 0 ? std::optional(0.0) : std::nullopt;
    }
    const auto unit = std::find_if(units.begin(), units.end(),
                                   [&name](const Unit &candidate) { return candidate.name == name; });
    return unit == units.end() ? std::nullopt : std::optional(number * unit->points);
}

QPageLayout pageLayout(const StyleSheet &css)
{
    const QSizeF a4 = QPageSize::definitionSize(QPageSize::A4);
    const QSizeF a4Points = a4 * (72.0 / 25.4);
    const double width = paperLength(css, QStringLiteral("paper-width"), a4Points.width());
    const double height = paperLength(css, QStringLiteral("paper-height"), a4Points.height());
    const bool isLandscape = width > height;
    const QSizeF upright(std::min(width, height), std::max(width, height));
    const QPageSize size(upright, QPageSize::Point, QString(), QPageSize::FuzzyMatch);
    QMarginsF margins = marginsInPoints(css, body);
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

QMarginsF marginsInPoints(const StyleSheet &css, const QString &selector)
{
    std::array<double, 4> found{0, 0, 0, 0};
    static const std::array<QString, 4> names{QStringLiteral("margin-top"), QStringLiteral("margin-right"),
                                              QStringLiteral("margin-bottom"), QStringLiteral("margin-left")};
    for (const StyleSheet::Rule &rule : css.rules()) {
        if (rule.selector != selector) {
            continue;
        }
        for (const StyleSheet::Declaration &declaration : rule.declarations) {
            if (declaration.property == QLatin1String("margin")) {
                found = sides(declaration.value);
            }
            const auto *name = std::find(names.begin(), names.end(), declaration.property);
            if (name != names.end()) {
                found[size_t(name - names.begin())] = lengthInPoints(declaration.value).value_or(0.0);
            }
        }
    }
    return withoutNegatives(found);
}
