// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/numberreader.h"

#include <cmath>

NumberReader::NumberReader(const QLocale &locale)
    : m_locale(locale)
{
    m_locale.setNumberOptions(QLocale::RejectGroupSeparator);
}

std::optional<double> NumberReader::read(const QString &text) const
{
    // Only "inf" and "nan", which do not count, begin so; most texts that are no numbers do.
    if (!text.isEmpty() && text.front().unicode() < 128 && text.front().isLetter()) {
        return std::nullopt;
    }
    bool isNumber = false;
    double number = m_locale.toDouble(text, &isNumber);
    if (!isNumber) {
        // QString knows no marks between thousands.
        number = text.toDouble(&isNumber);
    }
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}
