// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <string>
#include <string_view>

namespace designs {

/// Whether the bytes are well-formed UTF-8 (RFC 3629).
[[nodiscard]] bool isUtf8(std::string_view text);

[[nodiscard]] inline QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

/// The text as it stands in a message: in quotes, on one line, cut after 60 characters.
[[nodiscard]] QString quotedForMessage(std::string_view text);

/// Whether two texts differ in letter case only.
[[nodiscard]] inline bool equalIgnoringCase(std::string_view text, std::string_view other)
{
    return fromUtf8(text).compare(fromUtf8(other), Qt::CaseInsensitive) == 0;
}

/// The form in which names that differ in letter case only are equal.
[[nodiscard]] inline std::string caseFolded(std::string_view name)
{
    return fromUtf8(name).toCaseFolded().toStdString();
}

} // namespace designs
