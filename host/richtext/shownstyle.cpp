// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/richtext/shownstyle.h"

#include "host/richtext/pagegeometry.h"
#include "host/richtext/stylesheet.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace {

constexpr double pointsPerPixel = 0.75;
constexpr double defaultFontSize = 12;
/// What browsers put around the cells of a table.
const QString defaultCellRule = QStringLiteral("td, th { padding: 1px; }\n");

/// The margin above and below a heading, in its font size, as browsers have it.
constexpr std::array<double, 6> headingMargins{0.67, 0.83, 1.0, 1.33, 1.67, 2.33};

bool isBoxProperty(const QString &property)
{
    return property.startsWith(QLatin1String("padding")) || property.startsWith(QLatin1String("border"));
}

/// Absolute lengths in `unit`; others as they are.
QString inUnit(const QString &value, QLatin1String unit, double pointsPerUnit)
{
    static const QRegularExpression length(
        QStringLiteral("(?<![\\w.#-])-?(?:\\d+\\.?\\d*|\\.\\d+)(?:pt|pc|mm|cm|in)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    QString result;
    qsizetype copied = 0;
    for (auto matches = length.globalMatch(value); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const double points = lengthInPoints(match.captured()).value_or(0.0);
        result += QStringView(value).sliced(copied, match.capturedStart() - copied);
        result += QString::number(points / pointsPerUnit, 'f', 2) + unit;
        copied = match.capturedEnd();
    }
    return result + value.mid(copied);
}

QString shownDeclaration(const StyleSheet::Declaration &declaration)
{
    const bool isFont = declaration.property.startsWith(QLatin1String("font"));
    const QString value = isFont ? inUnit(declaration.value, QLatin1String("pt"), 1.0)
                                 : inUnit(declaration.value, QLatin1String("px"), pointsPerPixel);
    return declaration.property + QStringLiteral(": ") + value + QStringLiteral("; ");
}

/// The tag of "p.name" and "h1.name", or of "h1"; empty for other selectors.
QString paragraphTag(const QString &selector)
{
    static const QRegularExpression pattern(QStringLiteral("^(p|h[1-6])(?:\\.[\\w-]+)?$"),
                                            QRegularExpression::CaseInsensitiveOption);
    return pattern.match(selector).captured(1).toLower();
}

double fontSize(const StyleSheet::Rule &rule)
{
    for (const StyleSheet::Declaration &declaration : rule.declarations) {
        if (declaration.property == QLatin1String("font-size")) {
            return lengthInPoints(declaration.value).value_or(defaultFontSize);
        }
    }
    return defaultFontSize;
}

bool setsMargin(const StyleSheet::Rule &rule, QLatin1String side)
{
    return std::any_of(rule.declarations.begin(), rule.declarations.end(), [side](const auto &declaration) {
        return declaration.property == QLatin1String("margin") ||
               declaration.property == QLatin1String("margin-") + side;
    });
}

/// The margin above and below that a heading has where its rule says nothing, in pixels; 0 for paragraphs.
double defaultMargin(const StyleSheet::Rule &rule, const QString &tag)
{
    return tag.size() == 2 ? headingMargins[size_t(tag[1].unicode() - u'1')] * fontSize(rule) / pointsPerPixel
                           : 0;
}

QString defaultMarginDeclarations(double margin)
{
    const QString length = QString::number(margin, 'f', 2) + QStringLiteral("px; ");
    return margin > 0 ? QStringLiteral("margin-top: ") + length + QStringLiteral("margin-bottom: ") + length
                      : QString();
}

/// The margin of the body is that of the page, and no one's inside.
bool isPageMargin(const StyleSheet::Rule &rule, const StyleSheet::Declaration &declaration)
{
    return rule.selector == QLatin1String("body") && declaration.property.startsWith(QLatin1String("margin"));
}

} // namespace

ShownStyle::ShownStyle(const StyleSheet &css)
    : m_css(defaultCellRule)
{
    for (const StyleSheet::Rule &rule : css.rules()) {
        const QString tag = paragraphTag(rule.selector);
        const double defaultMargin = ::defaultMargin(rule, tag);
        QString declarations = defaultMarginDeclarations(defaultMargin);
        QString cellDeclarations;
        bool isBoxed = false;
        for (const StyleSheet::Declaration &declaration : rule.declarations) {
            if (isPageMargin(rule, declaration)) {
                continue;
            }
            const QString shown = shownDeclaration(declaration);
            const bool isBox = isBoxProperty(declaration.property);
            isBoxed = isBoxed || isBox;
            declarations += shown;
            if (isBox || declaration.property == QLatin1String("vertical-align")) {
                cellDeclarations += shown;
            }
        }
        m_css += rule.selector + QStringLiteral(" { ") + declarations + QStringLiteral("}\n");
        if (const qsizetype dot = rule.selector.indexOf(u'.'); !tag.isEmpty() && dot > 0) {
            const QString name = rule.selector.mid(dot + 1);
            if (isBoxed) {
                m_boxes.insert(name);
                m_css += QStringLiteral("td.") + name + QStringLiteral(", th.") + name +
                         QStringLiteral(" { ") + cellDeclarations + QStringLiteral("}\n");
            }
            const QMarginsF margins = marginsInPoints(css, rule.selector) / pointsPerPixel;
            m_marginsAbove.insert(name,
                                  setsMargin(rule, QLatin1String("top")) ? margins.top() : defaultMargin);
            m_marginsBelow.insert(name, setsMargin(rule, QLatin1String("bottom")) ? margins.bottom()
                                                                                  : defaultMargin);
        }
    }
}

double ShownStyle::marginAbove(QStringView className) const
{
    return m_marginsAbove.value(className.toString());
}

double ShownStyle::marginBelow(QStringView className) const
{
    return m_marginsBelow.value(className.toString());
}
