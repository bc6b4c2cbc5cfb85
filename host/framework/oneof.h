// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>
#include <QStringView>

#include <algorithm>
#include <initializer_list>

/// Whether a text is one of those, in whatever letters.
[[nodiscard]] inline bool isOneOf(QStringView text, std::initializer_list<QLatin1String> known)
{
    return std::any_of(known.begin(), known.end(), [text](QLatin1String candidate) {
        return text.compare(candidate, Qt::CaseInsensitive) == 0;
    });
}
