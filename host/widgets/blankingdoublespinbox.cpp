// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/blankingdoublespinbox.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

/// Longer ones have no step: their digits would not fit a whole number.
constexpr qsizetype mostSteppedDigits = 17;

/// Sign, digits, decimals, exponent.
const QRegularExpression &decimal()
{
    static const QRegularExpression pattern(
        QStringLiteral("\\A([+-]?)([0-9]*)(?:\\.([0-9]*))?([eE][+-]?[0-9]+)?\\z"));
    return pattern;
}

} // namespace

std::optional<double> BlankingDoubleSpinBox::value() const
{
    bool isNumber = false;
    const double number = withPoint(text()).toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

void BlankingDoubleSpinBox::setValue(double value)
{
    QString text = QString::number(value, 'g', QLocale::FloatingPointShortest);
    setText(text.replace(u'.', decimalPoint()));
}

std::optional<QString> BlankingDoubleSpinBox::numberOf(const QString &text) const
{
    const QRegularExpressionMatch match = decimal().match(withPoint(text));
    const QString digits = match.captured(2);
    const QString decimals = match.captured(3);
    if (!match.hasMatch() || (digits.isEmpty() && decimals.isEmpty())) {
        return std::nullopt;
    }
    QString number = match.captured(1) == u'-' ? QStringLiteral("-") : QString();
    number += digits.isEmpty() ? QStringLiteral("0") : digits;
    if (!decimals.isEmpty()) {
        number += u'.' + decimals;
    }
    number += match.captured(4);
    bool isNumber = false;
    return std::isfinite(number.toDouble(&isNumber)) && isNumber ? std::optional(number) : std::nullopt;
}

std::optional<QString> BlankingDoubleSpinBox::steppedNumber(const QString &number, int steps) const
{
    const QRegularExpressionMatch match = decimal().match(number);
    const qsizetype decimals = match.capturedLength(3);
    const QString digits = match.captured(2) + match.captured(3);
    if (!match.hasMatch() || digits.size() > mostSteppedDigits) {
        return std::nullopt;
    }
    const qint64 stepped = (match.captured(1) + digits).toLongLong() + steps;
    QString text = QString::number(std::abs(stepped)).rightJustified(decimals + 1, u'0');
    if (decimals > 0) {
        text.insert(text.size() - decimals, u'.');
    }
    return (stepped < 0 ? QStringLiteral("-") : QString()) + text + match.captured(4);
}
