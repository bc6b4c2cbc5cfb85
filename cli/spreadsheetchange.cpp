// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/spreadsheetchange.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

bool matches(const QString &text, const char *pattern)
{
    const QRegularExpression whole(QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)),
                                   QRegularExpression::CaseInsensitiveOption);
    return whole.match(text).hasMatch();
}

constexpr const char *month = "(?:jan|feb|mar|apr|may|mai|jun|jul|aug|sep|oct|okt|nov|dec|dez)[a-z]*";

bool hasMonth(const QString &text)
{
    return text.contains(
        QRegularExpression(QString::fromLatin1(month), QRegularExpression::CaseInsensitiveOption));
}

/// "1-2", "10/12", "3.4.", "MAR1", "2-Sep": what spreadsheets take for a date.
bool isTakenForDate(const QString &text)
{
    static const QByteArray named = QByteArray("(?:\\d{1,4}[-/. ]*)?") + month + "[-/. ]*\\d{0,4}";
    return matches(text, "\\d{1,4}[-/.]\\d{1,2}(?:[-/.]\\d{0,4})?") || matches(text, named.constData());
}

/// A whole date, or day and month by name, or the number of a day from 1982 to 2063.
bool isDate(const QString &text)
{
    static const QByteArray named =
        QByteArray("\\d{1,2}[-/. ]+") + month + "(?:[-/. ]+\\d{2,4})?|" + month + "[-/. ]+\\d{1,4}";
    return matches(text,
                   "\\d{1,2}[-/.]\\d{1,2}[-/.]\\d{2,4}|\\d{4}[-/.]\\d{1,2}[-/.]\\d{1,2}(?:[ T]00:00.*)?") ||
           matches(text, named.constData()) || matches(text, "[3-5]\\d{4}");
}

bool isExponential(const QString &text)
{
    return matches(text, "[-+]?\\d+(?:[.,]\\d*)?e[-+]?\\d+");
}

qsizetype digitsOf(const QString &text)
{
    return std::count_if(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

/// As near as the digits of a cell that is shown with an exponent tell.
bool isAbout(const QString &a, const QString &b, const NumberReader &numbers)
{
    const auto x = numbers.read(a);
    const auto y = numbers.read(b);
    return x && y && std::abs(*x - *y) <= 0.01 * std::max(std::abs(*x), std::abs(*y));
}

} // namespace

bool isSameNumber(const QString &a, const QString &b, const NumberReader &numbers)
{
    constexpr qsizetype exactDigits = 15;
    const auto x = numbers.read(a);
    const auto y = numbers.read(b);
    return x && x == y && digitsOf(a) <= exactDigits && digitsOf(b) <= exactDigits;
}

QString spreadsheetChange(const QString &before, const QString &after, const NumberReader &numbers)
{
    const bool hasZeros = matches(before, "[-+]?0+\\d.*");
    if (hasZeros && !matches(after, "[-+]?0+\\d.*") && isSameNumber(before, after, numbers)) {
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
    return matches(after, "#(?:NAME\\?|REF!|VALUE!|DIV/0!|N/A|NUM!|NULL!)|Err:\\d+")
               ? QStringLiteral("it is taken for a formula")
               : QString();
}
