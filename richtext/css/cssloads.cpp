// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/cssloads.h"

#include "richtext/css/csstokenreader.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace css {
namespace {

constexpr double largestNumber = 9999;
constexpr double largestPercentage = 1000;

bool isNameCharacter(QChar c)
{
    return c.isLetterOrNumber() || c == u'-' || c == u'_' || c == u'\\' || c.unicode() >= 0x80;
}

bool isHexDigit(QChar c)
{
    const char16_t unit = c.toLower().unicode();
    return (unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'f');
}

/// A name as it stands in a text.
struct Name
{
    /// In lower case, escapes resolved.
    QString text;
    qsizetype end = 0;
};

/// The character of the escape at `at`, which is moved behind it: a backslash with up to six hexadecimal
/// digits and a blank, or with any other character.
QChar unescaped(QStringView text, qsizetype &at)
{
    constexpr qsizetype mostDigits = 6;
    qsizetype end = ++at;
    while (end < text.size() && end - at < mostDigits && isHexDigit(text[end])) {
        ++end;
    }
    if (end == at) {
        return at < text.size() ? text[at++] : QChar();
    }
    const uint code = text.sliced(at, end - at).toUInt(nullptr, 16);
    at = end < text.size() && text[end].isSpace() ? end + 1 : end;
    // Only names of ASCII letters are looked for.
    return code < 0x80 ? QChar(code) : QChar(QChar::ReplacementCharacter);
}

Name nameAt(QStringView text, qsizetype at)
{
    Name name;
    while (at < text.size() && isNameCharacter(text[at])) {
        if (text[at] == u'\\') {
            name.text += unescaped(text, at).toLower();
        } else {
            name.text += text[at++].toLower();
        }
    }
    name.end = at;
    return name;
}

bool fetches(const QString &function)
{
    static const QStringList functions{QStringLiteral("url"),        QStringLiteral("url-prefix"),
                                       QStringLiteral("src"),        QStringLiteral("image"),
                                       QStringLiteral("image-set"),  QStringLiteral("-webkit-image-set"),
                                       QStringLiteral("expression"), QStringLiteral("element")};
    return functions.contains(function);
}

/// Whether a function is nothing but an image that stands in its address.
bool isImage(QStringView function)
{
    static const QRegularExpression image(
        QStringLiteral("^url\\(\\s*(?:\"data:image/[^\"\\\\\\n]*\"|'data:image/[^'\\\\\\n]*'|"
                       "data:image/[^\\s\"'()\\\\]*)\\s*\\)$"),
        QRegularExpression::CaseInsensitiveOption);
    return image.match(function).hasMatch();
}

/// With the letters and digits that escapes stand for: "\\69nf" is "inf" to Qt.
QString withPlainLetters(const QString &value)
{
    if (!value.contains(u'\\')) {
        return value;
    }
    QString result;
    for (qsizetype at = 0; at < value.size();) {
        const qsizetype begin = at;
        const bool isEscape = value[at] == u'\\';
        const QChar character = isEscape ? unescaped(value, at) : value[at++];
        const bool isPlain = character.unicode() < 0x80 && character.isLetterOrNumber();
        result += isPlain ? QStringView(&character, 1) : QStringView(value).sliced(begin, at - begin);
    }
    return result;
}

/// Qt takes "inf" and "nan" for lengths, and lays out such cells for ever.
QString withoutEndlessNumbers(const QString &value)
{
    static const QRegularExpression endless(
        QStringLiteral("(?<![\\w#.-])(?:inf|infinity|nan)(?=(?:px|pt|pc|mm|cm|in|em|ex|rem)?(?![\\w-]))"),
        QRegularExpression::CaseInsensitiveOption);
    QString result = value;
    return result.replace(endless, QStringLiteral("0"));
}

/// Copies a style sheet piece by piece. It looks for names, because an escape can stand for any letter of
/// one.
class Copier final
{
public:
    explicit Copier(QStringView text)
        : m_reader(text)
    {
    }

    QString run()
    {
        while (!m_reader.atEnd()) {
            const qsizetype begin = m_reader.pos();
            const QChar first = m_reader.text()[begin];
            if (first == u'@') {
                atRule(begin);
            } else if (isNameCharacter(first)) {
                name(begin);
            } else {
                (void)m_reader.next();
                copy(begin);
            }
        }
        return m_result;
    }

private:
    void copy(qsizetype begin) { m_result += m_reader.text().sliced(begin, m_reader.pos() - begin); }

    void atRule(qsizetype begin)
    {
        const Name rule = nameAt(m_reader.text(), begin + 1);
        m_reader.goTo(rule.end);
        if (rule.text != QLatin1String("import")) {
            copy(begin);
            return;
        }
        while (!m_reader.atEnd()) {
            (void)m_reader.next();
            if (m_reader.character() == u';' || m_reader.character() == u'}') {
                break;
            }
        }
    }

    void name(qsizetype begin)
    {
        const QStringView text = m_reader.text();
        const Name name = nameAt(text, begin);
        m_reader.goTo(name.end);
        const bool isFunction = name.end < text.size() && text[name.end] == u'(';
        if (!isFunction || !fetches(name.text)) {
            copy(begin);
            return;
        }
        passOverBrackets();
        if (isImage(text.sliced(begin, m_reader.pos() - begin))) {
            copy(begin);
        } else {
            m_result += QStringLiteral("none");
        }
    }

    /// From an opening bracket to behind the one that closes it.
    void passOverBrackets()
    {
        int depth = 0;
        while (!m_reader.atEnd()) {
            (void)m_reader.next();
            depth += m_reader.character() == u'(' ? 1 : m_reader.character() == u')' ? -1 : 0;
            if (depth == 0) {
                return;
            }
        }
    }

    TokenReader m_reader;
    QString m_result;
};

} // namespace

QString withoutLoads(const QString &text)
{
    const bool isPlain =
        std::none_of(text.begin(), text.end(), [](QChar c) { return c == u'(' || c == u'@' || c == u'\\'; });
    if (isPlain) {
        return text;
    }
    // A carriage return ends a line as well, and with it a string.
    QString lines = text;
    if (text.contains(u'\r')) {
        lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    }
    const QString result = Copier(lines).run();
    return result == lines ? text : result;
}

QString withSensibleNumbers(const QString &text)
{
    const QString value = withoutEndlessNumbers(withPlainLetters(text));
    static const QRegularExpression number(QStringLiteral("(?<![\\w#.])\\d+(?:\\.\\d*)?(?:e\\+?\\d+)?"),
                                           QRegularExpression::CaseInsensitiveOption);
    QString result;
    qsizetype copied = 0;
    for (auto matches = number.globalMatch(value); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        if (match.captured().toDouble() <= largestNumber) {
            continue;
        }
        result += QStringView(value).sliced(copied, match.capturedStart() - copied);
        result += QString::number(largestNumber);
        copied = match.capturedEnd();
    }
    return copied == 0 ? value : result + value.mid(copied);
}

QString withLengthsUpTo(const QString &declarations, double largest)
{
    static const QRegularExpression length(
        QStringLiteral("(?<![\\w#.])((?:\\d+\\.?\\d*|\\.\\d+)(?:e\\+?\\d+)?)(px|pt|pc|mm|cm|in|rem|em|ex|%)"),
        QRegularExpression::CaseInsensitiveOption);
    const QHash<QString, double> sizes{
        {QStringLiteral("pc"), 16},  {QStringLiteral("mm"), 3.8},
        {QStringLiteral("cm"), 38},  {QStringLiteral("in"), 96},
        {QStringLiteral("rem"), 16}, {QStringLiteral("em"), 16},
        {QStringLiteral("ex"), 16},  {QStringLiteral("%"), largest / largestPercentage}};
    QString result;
    qsizetype copied = 0;
    for (auto matches = length.globalMatch(declarations); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const double most = largest / sizes.value(match.captured(2).toLower(), 1);
        if (match.captured(1).toDouble() <= most) {
            continue;
        }
        result += QStringView(declarations).sliced(copied, match.capturedStart() - copied);
        result += QString::number(most, 'f', 0) + match.captured(2);
        copied = match.capturedEnd();
    }
    return copied == 0 ? declarations : result + declarations.mid(copied);
}

} // namespace css
