// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/blankingspinbox.h"

#include <QRegularExpression>

#include <limits>

namespace {

/// A sign, digits, a decimal point and noughts.
const QRegularExpression &wholeNumber()
{
    static const QRegularExpression pattern(QStringLiteral("\\A([+-]?[0-9]+)(?:(\\D)(0*))?\\z"));
    return pattern;
}

} // namespace

std::optional<qint64> BlankingSpinBox::value() const
{
    bool isNumber = false;
    const qint64 number = text().toLongLong(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

std::optional<QString> BlankingSpinBox::numberOf(const QString &text) const
{
    const QRegularExpressionMatch match = wholeNumber().match(text);
    const QString point = match.captured(2);
    const bool isOwnPoint = point == decimalPoint();
    // "1.000" is a thousand where the comma is the decimal point.
    const bool mayBeGroup = match.capturedLength(3) == 3 && !isOwnPoint;
    if (!match.hasMatch() || (!point.isEmpty() && !isOwnPoint && point != u'.') || mayBeGroup) {
        return std::nullopt;
    }
    bool isInRange = false;
    const qint64 number = match.capturedView(1).toLongLong(&isInRange);
    return isInRange ? std::optional(QString::number(number)) : std::nullopt;
}

std::optional<QString> BlankingSpinBox::steppedNumber(const QString &number, int steps) const
{
    const qint64 value = number.toLongLong();
    qint64 stepped = 0;
    return __builtin_add_overflow(value, qint64(steps), &stepped) ? std::nullopt
                                                                  : std::optional(QString::number(stepped));
}
