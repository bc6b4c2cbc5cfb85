// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/referencenumbers.h"

#include <algorithm>
#include <limits>

void ReferenceNumbers::note(QStringView reference)
{
    // More digits make no 32-bit number, except with many zeros in front, which nobody writes.
    constexpr int mostDigits = 18;
    qint64 number = 0;
    qint64 weight = 1;
    qsizetype start = reference.size();
    for (int digits = 0; digits < mostDigits && start > 0; ++digits, weight *= 10) {
        const char16_t digit = reference[--start].unicode();
        number += (digit - u'0') * weight;
        if (digit < u'0' || digit > u'9' || number > std::numeric_limits<int>::max()) {
            return;
        }
        const quint32 prefix = m_prefixes.number(reference.first(start));
        m_highest.resize(m_prefixes.size());
        m_highest[prefix] = std::max(m_highest[prefix], int(number));
    }
}

int ReferenceNumbers::highest(QStringView prefix)
{
    const quint32 number = m_prefixes.number(prefix);
    m_highest.resize(m_prefixes.size());
    return m_highest[number];
}
