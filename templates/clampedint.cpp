// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/clampedint.h"

#include <QString>
#include <QVariant>

#include <algorithm>
#include <limits>

namespace {

bool isWholeNumber(QStringView text)
{
    const QStringView digits = text.startsWith(u'-') || text.startsWith(u'+') ? text.sliced(1) : text;
    return !digits.isEmpty() &&
           std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

int clampedInt(const QVariant &value)
{
    const QString text = value.toString().trimmed();
    bool fits = false;
    const int number = text.toInt(&fits);
    if (fits || !isWholeNumber(text)) {
        return fits ? number : value.toInt();
    }
    return text.startsWith(u'-') ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}
