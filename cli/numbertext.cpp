// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/numbertext.h"

#include "host/framework/hostui.h"

#include <cmath>

bool isNumberOf(PropType type, const QString &text)
{
    const QLocale locale = HostUi::current().locale();
    const bool isAsked = type == PropType::Int || type == PropType::Float;
    if (isAsked && locale == QLocale::c() && text.contains(u',')) {
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
    if (!isNumber || locale == QLocale::c()) {
        return text;
    }
    QString number = text;
    return number.remove(locale.groupSeparator());
}

QString typeText(PropType type)
{
    switch (type) {
    case PropType::YesNo:
    case PropType::Boolean:
        return QStringLiteral("Yes or No");
    case PropType::HighLow:
        return QStringLiteral("High or Low");
    case PropType::TrueFalse:
        return QStringLiteral("True or False");
    case PropType::Int:
        return QStringLiteral("a whole number");
    case PropType::Float:
        return QStringLiteral("a decimal number");
    case PropType::String:
    case PropType::Text:
        break;
    }
    return QStringLiteral("a text");
}
