// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/spreadsheetchange.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

/// What a whole text may look like. Thousands of cells are looked at, and most differ in their first
/// character.
class Form
{
public:
    /// `starts` are the characters, in lower case, with which such a text may begin.
    Form(const QByteArray &pattern, QLatin1String starts)
        : m_whole(QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)),
                  QRegularExpression::CaseInsensitiveOption)
        , m_starts(starts)
    {
    }

    [[nodiscard]] bool matches(const QString &text) const
    {
        // A letter outside of ASCII may be another form of one inside.
        const bool mayMatch = !text.isEmpty() && (text.front().unicode() > 127 ||
                                                  m_starts.contains(text.front(), Qt::CaseInsensitive));
        return mayMatch && m_whole.match(text).hasMatch();
    }

private:
    QRegularExpression m_whole;
    QLatin1String m_starts;
};

constexpr const char *month = "(?:jan|feb|mar|apr|may|mai|jun|jul|aug|sep|oct|okt|nov|dec|dez)[a-z]*";
constexpr QLatin1String digits("0123456789");
constexpr QLatin1String digitsAndMonths("0123456789jfmasond");

bool hasMonth(const QString &text)
{
    static const QRegularExpression pattern(QString::fromLatin1(month),
                                            QRegularExpression::CaseInsensitiveOption);
    return text.contains(pattern);
}

/// "1-2", "10/12", "3.4.", "MAR1", "2-Sep": what spreadsheets take for a date.
bool isTakenForDate(const QString &text)
{
    static const Form numbers("\\d{1,4}[-/.]\\d{1,2}(?:[-/.]\\d{0,4})?", digits);
    static const Form named(QByteArray("(?:\\d{1,4}[-/. ]*)?") + month + "[-/. ]*\\d{0,4}", digitsAndMonths);
    return numbers.matches(text) || named.matches(text);
}

/// A whole date, or day and month by name, or the number of a day from 1982 to 2063.
bool isDate(const QString &text)
{
    static const Form numbers(
        "\\d{1,2}[-/.]\\d{1,2}[-/.]\\d{2,4}|\\d{4}[-/.]\\d{1,2}[-/.]\\d{1,2}(?:[ T]00:00.*)?", digits);
    static const Form named(QByteArray("\\d{1,2}[-/. ]+") + month + "(?:[-/. ]+\\d{2,4})?|" + month +
                                "[-/. ]+\\d{1,4}",
                            digitsAndMonths);
    static const Form day("[3-5]\\d{4}", digits);
    return numbers.matches(text) || named.matches(text) || day.matches(text);
}

bool isExponential(const QString &text)
{
    static const Form form("[-+]?\\d+(?:[.,]\\d*)?e[-+]?\\d+", QLatin1String("-+0123456789"));
    return form.matches(text);
}

bool hasZerosInFront(const QString &text)
{
    static const Form form("[-+]?0+\\d.*", QLatin1String("-+0"));
    return form.matches(text);
}

bool isError(const QString &text)
{
    static const Form form("#(?:NAME\\?|REF!|VALUE!|DIV/0!|N/A|NUM!|NULL!)|Err:\\d+", QLatin1String("#e"));
    return form.matches(text);
}

qsizetype digitsOf(const QString &text)
{
    return std::count_if(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

/// As near as the digits of a cell that is shown with an exponent tell.
bool isAbout(const QString &a, const QString &b, const NumberReader &numbers)
{
    const auto x = numbers.read(a);
    const auto y = x ? numbers.read(b) : std::nullopt;
    return x && y && std::abs(*x - *y) <= 0.01 * std::max(std::abs(*x), std::abs(*y));
}

} // namespace

bool isSameNumber(const QString &a, const QString &b, const NumberReader &numbers)
{
    constexpr qsizetype exactDigits = 15;
    const auto x = numbers.read(a);
    return x && x == numbers.read(b) && digitsOf(a) <= exactDigits && digitsOf(b) <= exactDigits;
}

QString spreadsheetChange(const QString &before, const QString &after, const NumberReader &numbers)
{
    if (hasZerosInFront(before) && !hasZerosInFront(after) && isSameNumber(before, after, numbers)) {
        return QStringLiteral("zeros in front are gone");
    }
    const bool isLong = digitsOf(before) > 11 && isExponential(after);
    if ((isExponential(before) || isLong) && isAbout(before, after, numbers)) {
        return QStringLiteral("it is taken for a number with an exponent");
    }
    if (isTakenForDate(before) && isDate(after) && (!isDate(before) || hasMonth(before) != hasMonth(after))) {
        return QStringLiteral("it is taken for a date");
    }
    if (before.startsWith(u'=') && !after.startsWith(u'=')) {
        return QStringLiteral("it is taken for a formula");
    }
    return isError(after) ? QStringLiteral("it is taken for a formula") : QString();
}
