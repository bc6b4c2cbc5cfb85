// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/numbertext.h"

#include "cli/texts.h"
#include "host/framework/hostui.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

/// "0.125" with marks between thousands: nobody groups the digits of a number so.
bool isGroupedBehindZero(const QString &text, const QLocale &locale)
{
    const QString front = text.left(text.indexOf(locale.groupSeparator()));
    const auto isDigit = [](QChar c) { return c.isDigit(); };
    const auto digit = std::find_if(front.begin(), front.end(), isDigit);
    return front.size() < text.size() && digit != front.end() && digit->digitValue() == 0;
}

} // namespace

bool isNumberOf(PropType type, const QString &text)
{
    const QLocale locale = HostUi::current().locale();
    const bool isAsked = type == PropType::Int || type == PropType::Float;
    const bool isGrouped = locale == QLocale::c() ? text.contains(u',') : isGroupedBehindZero(text, locale);
    if (isAsked && isGrouped) {
        return false;
    }
    bool isNumber = true;
    if (type == PropType::Int) {
        (void)locale.toLongLong(text, &isNumber);
    } else if (type == PropType::Float) {
        isNumber = std::isfinite(locale.toDouble(text, &isNumber)) && isNumber;
    }
    return isNumber;
}

QString withoutThousands(const QString &text)
{
    const QLocale locale = HostUi::current().locale();
    bool isNumber = false;
    (void)locale.toDouble(text, &isNumber);
    // In the C locale a comma may be meant as the decimal point.
    if (!isNumber || locale == QLocale::c() || isGroupedBehindZero(text, locale)) {
        return text;
    }
    QString number = text;
    return number.remove(locale.groupSeparator());
}

QStringList clearForms(const QString &text)
{
    const QLocale locale = HostUi::current().locale();
    const QString mark = locale.groupSeparator();
    bool isNumber = false;
    (void)locale.toDouble(text, &isNumber);
    const bool mayBeDecimal = mark == u'.' || mark == u',';
    if (!isNumber || !mayBeDecimal || locale == QLocale::c() || text.count(mark) != 1 ||
        text.contains(locale.decimalPoint())) {
        return {};
    }
    const QString trimmed = text.trimmed();
    const QString decimal = QString(trimmed).replace(mark, locale.decimalPoint());
    return isGroupedBehindZero(text, locale) ? QStringList{decimal}
                                             : QStringList{QString(trimmed).remove(mark), decimal};
}

QString typeText(PropType type)
{
    switch (type) {
    case PropType::YesNo:
    case PropType::Boolean:
        return CommandLine::tr("Yes or No");
    case PropType::HighLow:
        return CommandLine::tr("High or Low");
    case PropType::TrueFalse:
        return CommandLine::tr("True or False");
    case PropType::Int:
        return CommandLine::tr("a whole number");
    case PropType::Float:
        return CommandLine::tr("a decimal number");
    case PropType::String:
    case PropType::Text:
        break;
    }
    return CommandLine::tr("a text");
}
