// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/spreadsheetchange.h"

#include "cli/texts.h"

#include <QHash>
#include <QList>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>

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

constexpr const char *month =
    "(?:jan|feb|mar|m\\x{e4}r|mrz|apr|may|mai|jun|jul|aug|sep|oct|okt|nov|dec|dez)[a-z]*";
/// Spreadsheets calculate with so many digits; those behind become zeros.
constexpr qsizetype exactDigits = 15;
/// The share of a number that they make up.
constexpr double lastExactDigit = 1e-14;

constexpr QLatin1String digits("0123456789");
constexpr QLatin1String digitsAndMonths("0123456789jfmasond");

/// "1-2", "10/12", "3.4.", "MAR1", "2-Sep": what spreadsheets take for a date.
bool isTakenForDate(const QString &text)
{
    static const Form numbers("\\d{1,4}[-/.]\\d{1,2}(?:[-/.]\\d{0,4})?", digits);
    static const Form named(QByteArray("(?:\\d{1,4}[-/., ]*)?") + month +
                                "[-/., ]*\\d{0,4}(?:[-/., ]+\\d{2,4})?",
                            digitsAndMonths);
    return numbers.matches(text) || named.matches(text);
}

/// A whole date, or day and month by name, or the number of a day from 1982 to 2063.
bool isDate(const QString &text)
{
    static const Form numbers(
        "\\d{1,2}[-/.]\\d{1,2}[-/.]\\d{2,4}|\\d{4}[-/.]\\d{1,2}[-/.]\\d{1,2}(?:[ T]00:00.*)?", digits);
    static const Form named(QByteArray("\\d{1,2}[-/. ]+") + month + "(?:[-/., ]+\\d{2,4})?|" + month +
                                "[-/. ]+\\d{1,4}(?:[-/., ]+\\d{2,4})?",
                            digitsAndMonths);
    static const Form day("[3-5]\\d{4}", digits);
    return numbers.matches(text) || named.matches(text) || day.matches(text);
}

/// The first letters of the month in English: "Dez" and "December" are "dec".
QString monthOf(const QString &text)
{
    static const QRegularExpression pattern(QString::fromLatin1(month),
                                            QRegularExpression::CaseInsensitiveOption);
    const QString name = pattern.match(text).captured().left(3).toLower();
    static const QHash<QString, QString> english = {{QStringLiteral("m\u00e4r"), QStringLiteral("mar")},
                                                    {QStringLiteral("mrz"), QStringLiteral("mar")},
                                                    {QStringLiteral("mai"), QStringLiteral("may")},
                                                    {QStringLiteral("okt"), QStringLiteral("oct")},
                                                    {QStringLiteral("dez"), QStringLiteral("dec")}};
    return english.value(name, name);
}

/// The numbers of a date, years without their century.
QList<int> dateNumbers(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("\\d+"));
    QList<int> numbers;
    for (auto found = number.globalMatch(text); found.hasNext();) {
        numbers.append(found.next().captured().toInt() % 100);
    }
    return numbers;
}

/// Whether a date in words was only written in another way, perhaps with a year: "Jan 5", "05. Jan",
/// "5-Jan-26".
bool isSameNamedDate(const QString &before, const QString &after)
{
    const QList<int> told = dateNumbers(before);
    const QList<int> shown = dateNumbers(after);
    const QString name = monthOf(before);
    return !name.isEmpty() && name == monthOf(after) && !told.isEmpty() &&
           std::all_of(told.begin(), told.end(), [&shown](int number) { return shown.contains(number); });
}

constexpr qint64 millisecondsOfDay = 24 * 60 * 60 * 1000;

/// Of a time such as "1:1", "12:30:00" or "1:01 PM"; a ratio reads as one, too.
std::optional<qint64> millisecondsOf(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d{1,4}):(\\d{1,4})(?::(\\d{1,2}(?:[.,]\\d+)?))?(?: ?([ap])m)?$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = text.contains(u':') ? form.match(text) : QRegularExpressionMatch();
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const QString half = match.captured(4).toLower();
    const qint64 hours =
        half.isEmpty() ? match.captured(1).toInt() : match.captured(1).toInt() % 12 + (half == u'p' ? 12 : 0);
    const double seconds = match.captured(3).replace(u',', u'.').toDouble();
    return (hours * 60 + match.captured(2).toInt()) * 60 * 1000 + std::llround(seconds * 1000);
}

/// Whether a time, or a ratio that was taken for one, was written in another way or as a part of a day.
bool isSameTime(const QString &before, const QString &after, const NumberReader &numbers)
{
    const auto told = millisecondsOf(before);
    if (!told) {
        return false;
    }
    if (const auto shown = millisecondsOf(after)) {
        return *told % millisecondsOfDay == *shown % millisecondsOfDay;
    }
    constexpr double leastDigit = 5e-6;
    const auto day = numbers.read(after);
    return day && std::abs(*day - double(*told) / millisecondsOfDay) <= leastDigit;
}

/// Whether "true" or "false" became the word of the spreadsheet's language.
bool isSameTruth(const QString &before, const QString &after)
{
    static const QSet<QString> yes = {QStringLiteral("TRUE"),       QStringLiteral("WAHR"),
                                      QStringLiteral("VRAI"),       QStringLiteral("VERDADERO"),
                                      QStringLiteral("VERDADEIRO"), QStringLiteral("VERO"),
                                      QStringLiteral("WAAR"),       QStringLiteral("PRAWDA")};
    static const QSet<QString> no = {QStringLiteral("FALSE"),  QStringLiteral("FALSCH"),
                                     QStringLiteral("FAUX"),   QStringLiteral("FALSO"),
                                     QStringLiteral("ONWAAR"), QStringLiteral("FA\u0141SZ")};
    const QString told = before.toUpper();
    return (yes.contains(told) && yes.contains(after)) || (no.contains(told) && no.contains(after));
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

/// Whether only letters and signs that an encoding lacks have become others: a question mark, or what looks
/// like them.
bool isRecoded(const QString &before, const QString &after)
{
    const QList<uint> told = before.toUcs4();
    const QList<uint> shown = after.toUcs4();
    return told.size() == shown.size() &&
           std::equal(told.begin(), told.end(), shown.begin(), [](uint character, uint other) {
               constexpr uint lastOfAscii = 127;
               const QString plain = QString::fromUcs4(reinterpret_cast<const char32_t *>(&character), 1)
                                         .normalized(QString::NormalizationForm_KC);
               return character == other ||
                      (character > lastOfAscii &&
                       (other == u'?' || (other <= lastOfAscii && plain == QChar(char16_t(other)))));
           });
}

qsizetype digitsOf(const QString &text)
{
    return std::count_if(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

/// The digits of a number from the first to the last that is no zero.
qsizetype significantDigits(const QString &text)
{
    qsizetype count = 0;
    qsizetype last = 0;
    for (const QChar c : text) {
        count += c.isDigit() && (c != u'0' || count > 0) ? 1 : 0;
        last = c.isDigit() && c != u'0' ? count : last;
    }
    return last;
}

/// As near as the digits of a cell that is shown with an exponent tell.
bool isAbout(const QString &a, const QString &b, const NumberReader &numbers, double share = 0.01)
{
    const auto x = numbers.read(a);
    const auto y = x ? numbers.read(b) : std::nullopt;
    return x && y && std::abs(*x - *y) <= share * std::max(std::abs(*x), std::abs(*y));
}

} // namespace

bool isSameNumber(const QString &a, const QString &b, const NumberReader &numbers)
{
    const auto x = numbers.read(a);
    return x && x == numbers.read(b) && digitsOf(a) <= exactDigits && digitsOf(b) <= exactDigits;
}

bool isNearNumber(const QString &before, const QString &after, const NumberReader &numbers)
{
    return significantDigits(after) <= exactDigits && isAbout(before, after, numbers, lastExactDigit);
}

bool isTakenForNumber(const QString &text, double number)
{
    QString plain;
    std::copy_if(text.begin(), text.end(), std::back_inserter(plain), [](QChar c) {
        return c.category() != QChar::Symbol_Currency && !c.isSpace() && c != u'"' && c != u'\'';
    });
    const QString withPoints = QString(plain).replace(u',', u'.');
    const QString withoutCommas = QString(plain).remove(u',');
    const QString withoutPoints = QString(plain).remove(u'.').replace(u',', u'.');
    const QStringList readings = {plain, withPoints, withoutCommas, withoutPoints};
    return std::any_of(readings.begin(), readings.end(), [number](const QString &reading) {
        bool isNumber = false;
        const double read = reading.toDouble(&isNumber);
        const bool isLargest = std::isinf(read) && std::abs(number) >= std::numeric_limits<double>::max();
        return isLargest || (isNumber && std::abs(read - number) <= lastExactDigit * std::abs(number));
    });
}

QString spreadsheetChange(const QString &before, const QString &after, const NumberReader &numbers)
{
    if (before == after) {
        return {};
    }
    if (hasZerosInFront(before) && !hasZerosInFront(after) && isSameNumber(before, after, numbers)) {
        return CommandLine::tr("zeros in front are gone");
    }
    const bool isLong = digitsOf(before) > 11 && isExponential(after);
    if ((isExponential(before) || isLong) && isAbout(before, after, numbers)) {
        return CommandLine::tr("it is taken for a number with an exponent");
    }
    if (significantDigits(before) > exactDigits && significantDigits(after) <= exactDigits &&
        isAbout(before, after, numbers, lastExactDigit)) {
        return CommandLine::tr("digits behind the 15th are gone");
    }
    if (isSameTime(before, after, numbers)) {
        return CommandLine::tr("it is taken for a time");
    }
    if (isSameTruth(before, after)) {
        return CommandLine::tr("it is taken for true or false");
    }
    if (isTakenForDate(before) && isDate(after) &&
        (!isDate(before) || monthOf(before).isEmpty() != monthOf(after).isEmpty() ||
         isSameNamedDate(before, after))) {
        return CommandLine::tr("it is taken for a date");
    }
    if (before.startsWith(u'=') && !after.startsWith(u'=')) {
        return CommandLine::tr("it is taken for a formula");
    }
    if (isRecoded(before, after)) {
        return CommandLine::tr("characters are gone that its encoding lacks");
    }
    if (before.contains(u'\t') && after == QString(before).remove(u'\t')) {
        return CommandLine::tr("tabs are gone");
    }
    return isError(after) ? CommandLine::tr("it is taken for a formula") : QString();
}
