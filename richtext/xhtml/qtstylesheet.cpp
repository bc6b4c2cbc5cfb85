// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/qtstylesheet.h"

#include "richtext/css/cssbox.h"
#include "richtext/css/cssloads.h"
#include "richtext/css/cssvalue.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

QColor usualLinkColor()
{
    return Qt::blue;
}

namespace {

constexpr double pointsPerPixel = 0.75;
constexpr double defaultFontSize = 12;
/// The margin above and below a heading, in its font size, as browsers have it.
constexpr std::array<double, 6> headingMargins{0.67, 0.83, 1.0, 1.33, 1.67, 2.33};
/// The sizes of headings, in the font size of the body.
constexpr std::array<double, 6> headingSizes{2.0, 1.5, 1.17, 1.0, 0.83, 0.67};

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
        const double points = css::points(match.captured(), 0, 0).value_or(0.0);
        result += QStringView(value).sliced(copied, match.capturedStart() - copied);
        result += QString::number(points / pointsPerUnit, 'f', 2) + unit;
        copied = match.capturedEnd();
    }
    return result + value.mid(copied);
}

/// What elements have for themselves, in pixels: others inside do not take it over.
bool isOfElementOnly(const QString &property)
{
    return isBoxProperty(property) || property.startsWith(QLatin1String("margin"));
}

/// A class that few elements have, such as that of headers, may have large boxes in large documents too, as
/// long as all of these classes together fill no more than so many pixels.
class LargeBoxes final
{
public:
    explicit LargeBoxes(const LargestLengths &largest)
        : m_largest(largest)
    {
    }

    /// The largest length of the boxes that a rule gives.
    [[nodiscard]] double largestOf(const QString &selector)
    {
        static const QRegularExpression pattern(QStringLiteral("^\\w*\\.([\\w-]+)$"));
        constexpr double most = LargestLengths().box;
        const QString name = m_largest.box < most ? pattern.match(selector).captured(1) : QString();
        if (name.isEmpty() || m_largest.body.isEmpty() || hasHiddenNames()) {
            return m_largest.box;
        }
        // Text that is no class counts as well; there is no harm in that.
        const double pixels = double(m_largest.body.count(name, Qt::CaseInsensitive) + 1) * most;
        if (pixels > m_left) {
            return m_largest.box;
        }
        m_left -= pixels;
        return most;
    }

private:
    /// Whether a class is written with character references, so that its name is not found.
    [[nodiscard]] bool hasHiddenNames()
    {
        static const QRegularExpression hidden(QStringLiteral("\\bclass\\s*=\\s*(\"[^\"&]*&|'[^'&]*&)"),
                                               QRegularExpression::CaseInsensitiveOption);
        if (!m_knowsHiddenNames) {
            m_knowsHiddenNames = true;
            m_hasHiddenNames = hidden.match(m_largest.body).hasMatch();
        }
        return m_hasHiddenNames;
    }

    LargestLengths m_largest;
    bool m_knowsHiddenNames = false;
    bool m_hasHiddenNames = false;
    double m_left = 100'000;
};

QString translated(const StyleSheet::Declaration &declaration, const LargestLengths &largest)
{
    const bool isFont = declaration.property.startsWith(QLatin1String("font"));
    const QString sensible = css::withSensibleNumbers(declaration.value);
    const QString value = isFont ? inUnit(sensible, QLatin1String("pt"), 1.0)
                                 : inUnit(sensible, QLatin1String("px"), pointsPerPixel);
    return declaration.property + QStringLiteral(": ") +
           css::withLengthsUpTo(value, isFont ? largest.font : largest.box) + QStringLiteral("; ");
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
            return css::points(css::withoutImportant(declaration.value), defaultFontSize, defaultFontSize)
                .value_or(defaultFontSize);
        }
    }
    return defaultFontSize;
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

/// The sizes of headings, which QTextDocument gives up once the body has a font size.
QString headingRules(const StyleSheet &css)
{
    const QString bodySize =
        css::withoutImportant(css.value(QStringLiteral("body"), QStringLiteral("font-size")));
    const std::optional<double> points = css::points(bodySize, defaultFontSize, defaultFontSize);
    QString rules;
    for (size_t i = 0; points && i < headingSizes.size(); ++i) {
        const double size = *points * headingSizes[i];
        rules += QStringLiteral("h") + QString::number(i + 1) + QStringLiteral(" { font-size: ") +
                 css::inPoints(size) + QStringLiteral("; ") +
                 defaultMarginDeclarations(size * headingMargins[i] / pointsPerPixel) + QStringLiteral("}\n");
    }
    return rules;
}

/// The margin of the body is that of the page; QTextDocument would indent every paragraph by it.
bool isPageMargin(const StyleSheet::Rule &rule, const StyleSheet::Declaration &declaration)
{
    return rule.selector == QLatin1String("body") && declaration.property.startsWith(QLatin1String("margin"));
}

/// What a rule declares, and the part of it that goes to the cells of its paragraphs.
struct Declarations
{
    QString all;
    QString ofCell;
    bool hasBox = false;
};

Declarations translatedDeclarations(const StyleSheet::Rule &rule, const LargestLengths &largest,
                                    double largestBox)
{
    Declarations result;
    for (const StyleSheet::Declaration &declaration : rule.declarations) {
        const bool breaksPage = declaration.property.startsWith(QLatin1String("page-break")) ||
                                declaration.property.contains(u'\\');
        if (isPageMargin(rule, declaration) || (breaksPage && largestBox < LargestLengths().box)) {
            continue;
        }
        const QString text = translated(
            declaration, {isOfElementOnly(declaration.property) ? largestBox : largest.box, largest.font});
        const bool isBox = isBoxProperty(declaration.property);
        result.hasBox = result.hasBox || isBox;
        result.all += text;
        if (isBox || declaration.property == QLatin1String("vertical-align")) {
            result.ofCell += text;
        }
    }
    return result;
}

/// QTextDocument reads no further than to a selector such as "td:has(p)".
bool isForBrowsersOnly(const QString &selector)
{
    return selector.contains(u'(');
}

/// The first rules, as many as QTextDocument can deal with: it compares every element with every selector,
/// takes over every declaration that fits, and reads the text again for the top and bottom of every page.
QList<StyleSheet::Rule> firstRules(const QList<StyleSheet::Rule> &rules)
{
    constexpr qsizetype mostParts = 2000;
    constexpr qsizetype charactersOfPart = 200;
    qsizetype parts = 0;
    qsizetype count = 0;
    while (count < rules.size() && parts <= mostParts) {
        const StyleSheet::Rule &rule = rules[count];
        qsizetype characters = rule.selector.size();
        for (const StyleSheet::Declaration &declaration : rule.declarations) {
            characters += declaration.value.size();
        }
        parts += 1 + rule.selector.count(u',') + rule.selector.count(u' ') + rule.declarations.size() +
                 characters / charactersOfPart;
        count += parts <= mostParts ? 1 : 0;
    }
    return rules.first(count);
}

/// The colour of links where the style sheet has none, as a rule, which would go before that of a plain "a".
QString linkRule(const StyleSheet &css)
{
    static const QRegularExpression ofLinks(QStringLiteral("(?:^|[\\s>,])a(?:[.:][^\\s>,]*)?\\s*(?:,|$)"),
                                            QRegularExpression::CaseInsensitiveOption);
    for (const StyleSheet::Rule &rule : firstRules(css.rules())) {
        const bool hasColor = std::ranges::any_of(rule.declarations, [](const auto &declaration) {
            return declaration.property == QLatin1String("color");
        });
        if (hasColor && ofLinks.match(rule.selector).hasMatch()) {
            return {};
        }
    }
    return QStringLiteral("a:link { color: ") + usualLinkColor().name() + QStringLiteral("; }\n");
}

} // namespace

LargestLengths largestLengths(QStringView body)
{
    // In pixels: what all boxes of a document may take together, and in pixels of area what its text may.
    constexpr double allBoxes = 1.5e6;
    constexpr double allText = 4e9;
    const double tags = double(body.count(u'<')) + 1;
    const double characters = double(body.size()) + 1;
    return {std::clamp(allBoxes / tags, 20.0, 1000.0),
            std::clamp(std::sqrt(allText / characters), 32.0, 400.0), body};
}

QtStyleSheet::QtStyleSheet(const StyleSheet &css, const LargestLengths &largest)
    : m_largest{largest.box, largest.font}
    , m_text(linkRule(css) + headingRules(css))
{
    LargeBoxes boxes(largest);
    QSet<QString> known;
    for (const StyleSheet::Rule &rule : firstRules(css.rules())) {
        if (isForBrowsersOnly(rule.selector)) {
            continue;
        }
        const QString tag = paragraphTag(rule.selector);
        const bool isFirst = !known.contains(rule.selector);
        known.insert(rule.selector);
        const double margin = isFirst ? defaultMargin(rule, tag) : 0;
        const double largestBox = boxes.largestOf(rule.selector);
        const Declarations declarations = translatedDeclarations(rule, largest, largestBox);
        m_text += rule.selector + QStringLiteral(" { ") + defaultMarginDeclarations(margin) +
                  declarations.all + QStringLiteral("}\n");
        const qsizetype dot = rule.selector.indexOf(u'.');
        if (tag.isEmpty() || dot < 0) {
            continue;
        }
        const QString name = rule.selector.mid(dot + 1);
        if (declarations.hasBox) {
            m_boxes.insert(name);
            m_text += QStringLiteral("td.") + name + QStringLiteral(", th.") + name + QStringLiteral(" { ") +
                      declarations.ofCell + QStringLiteral("}\n");
        }
        if (isFirst) {
            m_marginsAbove.insert(name, margin);
            m_marginsBelow.insert(name, margin);
        }
        readMargins(rule, name, largestBox);
    }
}

bool QtStyleSheet::holds(const StyleSheet &css)
{
    const QList<StyleSheet::Rule> rules = css.rules();
    return firstRules(rules).size() == rules.size();
}

void QtStyleSheet::readMargins(const StyleSheet::Rule &rule, const QString &name, double largest)
{
    using cssbox::Side;
    const cssbox::Lengths lengths = cssbox::lengths(cssbox::Family::Margin, rule, fontSize(rule), 0);
    if (const std::optional<double> above = lengths[size_t(Side::Top)]) {
        m_marginsAbove.insert(name, std::clamp(*above / pointsPerPixel, 0.0, largest));
    }
    if (const std::optional<double> below = lengths[size_t(Side::Bottom)]) {
        m_marginsBelow.insert(name, std::clamp(*below / pointsPerPixel, 0.0, largest));
    }
}

double QtStyleSheet::marginAbove(QStringView className) const
{
    return m_marginsAbove.value(className.toString());
}

double QtStyleSheet::marginBelow(QStringView className) const
{
    return m_marginsBelow.value(className.toString());
}
