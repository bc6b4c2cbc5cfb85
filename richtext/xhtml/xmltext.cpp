// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/xmltext.h"

#include "richtext/css/cssloads.h"

namespace {

constexpr char16_t firstPrintable = 0x20;
constexpr char16_t firstSurrogate = 0xD800;
constexpr char16_t lastSurrogate = 0xDFFF;
constexpr char16_t firstNoncharacter = 0xFFFE;

bool isMarkup(char16_t unit)
{
    return unit == u'<' || unit == u'>' || unit == u'&' || unit == u'"';
}

bool isSurrogate(char16_t unit)
{
    return unit >= firstSurrogate && unit <= lastSurrogate;
}

/// Whether XML lacks the character that a unit outside of pairs stands for.
bool isMissing(char16_t unit)
{
    return (unit < firstPrintable && unit != u'\t' && unit != u'\n' && unit != u'\r') || isSurrogate(unit) ||
           unit >= firstNoncharacter;
}

bool isPairAt(const QString &text, qsizetype at)
{
    return text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
}

/// The first place that has to be changed; the text's size when there is none.
qsizetype firstUnclean(const QString &text, bool escapes)
{
    const QStringView units(text);
    for (qsizetype i = 0; i < units.size(); ++i) {
        const char16_t unit = units[i].unicode();
        if (isSurrogate(unit) && isPairAt(text, i)) {
            ++i;
        } else if (isMissing(unit) || (escapes && isMarkup(unit))) {
            return i;
        }
    }
    return text.size();
}

void appendEscaped(QString &result, QChar unit)
{
    switch (unit.unicode()) {
    case u'<':
        result += QLatin1String("&lt;");
        break;
    case u'>':
        result += QLatin1String("&gt;");
        break;
    case u'&':
        result += QLatin1String("&amp;");
        break;
    case u'"':
        result += QLatin1String("&quot;");
        break;
    default:
        result += unit;
    }
}

QString convert(const QString &text, bool escapes)
{
    const qsizetype clean = firstUnclean(text, escapes);
    if (clean == text.size()) {
        return text;
    }
    QString result = text.first(clean);
    result.reserve(text.size() + text.size() / 8);
    for (qsizetype i = clean; i < text.size(); ++i) {
        if (isPairAt(text, i)) {
            result += text[i];
            result += text[++i];
        } else if (isMissing(text[i].unicode())) {
            result += QChar(QChar::ReplacementCharacter);
        } else if (escapes) {
            appendEscaped(result, text[i]);
        } else {
            result += text[i];
        }
    }
    return result;
}

} // namespace

QString xmlText(const QString &text)
{
    return convert(text, false);
}

QString escapedXmlText(const QString &text)
{
    return convert(text, true);
}

QString xmlAttribute(const QString &name, const QString &value)
{
    return value.isEmpty() ? QString()
                           : QStringLiteral(" ") + name + QStringLiteral("=\"") + escapedXmlText(value) +
                                 QStringLiteral("\"");
}

QString styleElementText(const QString &css)
{
    QString text = css::withoutLoads(xmlText(css));
    // Old pages hide the sheet from browsers without styles like that; a parser of XML would take it for a
    // comment.
    text.remove(QLatin1String("<!--"));
    text.replace(u'<', QLatin1String("\\3C "));
    text.replace(u'&', QLatin1String("\\26 "));
    text.replace(QLatin1String("]]>"), QLatin1String("]]\\3E "));
    return text;
}
