// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/xhtmlstyle.h"

#include "richtext/css/cssvalue.h"

#include <QStringList>

#include <array>

namespace {

constexpr double pixelsPerIndent = 40;
constexpr double fullLine = 100;

QString declaration(const char *property, const QString &value)
{
    return QLatin1String(property) + QStringLiteral(":") + value + QStringLiteral("; ");
}

/// Parsers of margins take whole pixels only.
QString wholePixels(double value)
{
    return QString::number(qRound(value)) + QStringLiteral("px");
}

QString pixels(double value)
{
    return css::numberText(value) + QStringLiteral("px");
}

QString backgroundStyle(const QBrush &background, const QBrush &usual)
{
    const QString wanted = isVisible(background) ? cssColour(background.color()) : QString();
    const QString there = isVisible(usual) ? cssColour(usual.color()) : QString();
    if (wanted == there) {
        return {};
    }
    return declaration("background-color", wanted.isEmpty() ? QStringLiteral("transparent") : wanted);
}

QString alignment(const QTextBlockFormat &format)
{
    const Qt::Alignment horizontal = format.alignment() & Qt::AlignHorizontal_Mask;
    if (horizontal & Qt::AlignHCenter) {
        return QStringLiteral("center");
    }
    if (horizontal & Qt::AlignJustify) {
        return QStringLiteral("justify");
    }
    return (horizontal & Qt::AlignRight) ? QStringLiteral("right") : QStringLiteral("left");
}

double leftMargin(const QTextBlockFormat &format)
{
    // Within a list the indent is the list's.
    const bool isInList = format.objectIndex() >= 0;
    return format.leftMargin() + (isInList ? 0 : format.indent() * pixelsPerIndent);
}

QString lineHeight(const QTextBlockFormat &format)
{
    const bool isProportional = format.lineHeightType() == QTextBlockFormat::ProportionalHeight;
    return css::numberText(isProportional ? format.lineHeight() : fullLine) + QStringLiteral("%");
}

QString family(const QTextCharFormat &format, const QFont &font)
{
    QStringList families = format.fontFamilies().toStringList();
    if (families.isEmpty()) {
        families = font.families();
    }
    for (QString &name : families) {
        name.remove(u'\'').remove(u'"').remove(u'\\');
        name = QStringLiteral("'") + name + QStringLiteral("'");
    }
    return families.join(u',');
}

QString fontSize(const QFont &font)
{
    return font.pointSizeF() > 0 ? css::numberText(font.pointSizeF()) + QStringLiteral("pt")
                                 : pixels(font.pixelSize());
}

QString fontSize(const QTextCharFormat &format, const QFont &font)
{
    static constexpr std::array names{"small", "medium", "large", "x-large", "xx-large"};
    if (format.fontPointSize() > 0) {
        return css::numberText(format.fontPointSize()) + QStringLiteral("pt");
    }
    const int adjustment = format.intProperty(QTextFormat::FontSizeAdjustment);
    if (adjustment != 0) {
        return QLatin1String(names.at(size_t(qBound(0, adjustment + 1, 4))));
    }
    const double inPixels = format.doubleProperty(QTextFormat::FontPixelSize);
    return inPixels > 0 ? pixels(inPixels) : fontSize(font);
}

QString weight(const QTextCharFormat &format, const QFont &font)
{
    return QString::number(format.hasProperty(QTextFormat::FontWeight) ? format.fontWeight() : font.weight());
}

QString slant(const QTextCharFormat &format)
{
    return format.fontItalic() ? QStringLiteral("italic") : QStringLiteral("normal");
}

QString decoration(const QTextCharFormat &format)
{
    QStringList lines;
    if (isUnderlined(format)) {
        lines += QStringLiteral("underline");
    }
    if (format.fontOverline()) {
        lines += QStringLiteral("overline");
    }
    if (format.fontStrikeOut()) {
        lines += QStringLiteral("line-through");
    }
    return lines.isEmpty() ? QStringLiteral("none") : lines.join(u' ');
}

QString colour(const QTextCharFormat &format)
{
    return cssColour(format.foreground().style() == Qt::SolidPattern ? format.foreground().color()
                                                                     : QColor(Qt::black));
}

QString verticalAlignment(const QTextCharFormat &format)
{
    switch (format.verticalAlignment()) {
    case QTextCharFormat::AlignSuperScript:
        return QStringLiteral("super");
    case QTextCharFormat::AlignSubScript:
        return QStringLiteral("sub");
    default:
        return QStringLiteral("baseline");
    }
}

void addWhereOther(QString &style, const char *property, const QString &value, const QString &usual)
{
    if (value != usual) {
        style += declaration(property, value);
    }
}

} // namespace

bool isVisible(const QBrush &brush)
{
    return brush.style() == Qt::SolidPattern && brush.color().alpha() > 0;
}

bool isUnderlined(const QTextCharFormat &format)
{
    return format.fontUnderline() || format.underlineStyle() == QTextCharFormat::SingleUnderline;
}

QString cssColour(const QColor &colour)
{
    constexpr int opaque = 255;
    if (colour.alpha() == opaque) {
        return colour.name();
    }
    // QTextDocument multiplies by 255 and drops the fraction.
    const double share = colour.alpha() == 0 ? 0 : (colour.alpha() + 0.5) / opaque;
    return QStringLiteral("rgba(%1,%2,%3,%4)")
        .arg(QString::number(colour.red()), QString::number(colour.green()), QString::number(colour.blue()),
             QString::number(share, 'f', 4));
}

QString blockStyle(const QTextBlockFormat &format, const UsualLook &usual, const Surroundings &cell)
{
    const QTextBlockFormat &there = usual.block;
    QString style;
    addWhereOther(style, "text-align", alignment(format), alignment(there));
    addWhereOther(style, "margin-top", wholePixels(format.topMargin()), wholePixels(there.topMargin()));
    addWhereOther(style, "margin-bottom", wholePixels(format.bottomMargin()),
                  wholePixels(there.bottomMargin()));
    addWhereOther(style, "margin-left", wholePixels(leftMargin(format)), wholePixels(leftMargin(there)));
    addWhereOther(style, "margin-right", wholePixels(format.rightMargin()), wholePixels(there.rightMargin()));
    addWhereOther(style, "text-indent", pixels(format.textIndent()), pixels(there.textIndent()));
    addWhereOther(style, "line-height", lineHeight(format), lineHeight(there));
    if (format.pageBreakPolicy().testFlag(QTextFormat::PageBreak_AlwaysBefore)) {
        style += declaration("page-break-before", QStringLiteral("always"));
    }
    if (format.pageBreakPolicy().testFlag(QTextFormat::PageBreak_AlwaysAfter)) {
        style += declaration("page-break-after", QStringLiteral("always"));
    }
    // What shows through from the cell is not the block's own.
    if (isVisible(format.background()) || !isVisible(cell.background)) {
        style += backgroundStyle(format.background(),
                                 isVisible(there.background()) ? there.background() : cell.background);
    }
    return style.trimmed();
}

QString textStyle(const QTextCharFormat &format, const UsualLook &usual, const Surroundings &block)
{
    const bool isLink = format.isAnchor() && !format.anchorHref().isEmpty();
    QTextCharFormat there = isLink ? usual.link : usual.text;
    if (isLink && !isUnderlined(format)) {
        there.setUnderlineStyle(QTextCharFormat::NoUnderline);
        there.setFontUnderline(false);
    }
    const QFont &font = usual.font;
    QString style;
    addWhereOther(style, "font-family", family(format, font), family(there, font));
    addWhereOther(style, "font-size", fontSize(format, font), fontSize(there, font));
    addWhereOther(style, "font-weight", weight(format, font), weight(there, font));
    addWhereOther(style, "font-style", slant(format), slant(there));
    addWhereOther(style, "text-decoration", decoration(format), decoration(there));
    addWhereOther(style, "color", colour(format), colour(there));
    addWhereOther(style, "vertical-align", verticalAlignment(format), verticalAlignment(there));
    if (isVisible(format.background()) || !isVisible(block.background)) {
        style += backgroundStyle(format.background(),
                                 isVisible(block.background) ? block.background : there.background());
    }
    return style.trimmed();
}
