// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

namespace designs {

/// UTF-8 text of a part list as it stands in a message: in quotes, on one line, cut after 60 characters.
[[nodiscard]] inline QString inMessage(std::string_view text)
{
    constexpr qsizetype longest = 60;
    QString shown = QString::fromUtf8(text.data(), qMin(qsizetype(text.size()), 4 * longest)).simplified();
    if (shown.size() > longest) {
        shown = shown.left(longest) + QStringLiteral("…");
    }
    return u'"' + shown + u'"';
}

} // namespace designs
