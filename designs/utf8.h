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

/// All of the text. QString::fromUtf8() takes a U+FEFF at the beginning for a byte order mark, which only a
/// whole file has.
[[nodiscard]] inline QString fromUtf8(std::string_view text)
{
    QString result = QString::fromUtf8(text.data(), qsizetype(text.size()));
    if (text.starts_with("\xEF\xBB\xBF")) {
        result.prepend(QChar::ByteOrderMark);
    }
    return result;
}

/// The text as it stands in a message: in quotes, on one line, cut after 60 characters.
[[nodiscard]] QString quotedForMessage(std::string_view text);

/// The text of a name. A byte order mark that got in front of it cannot be seen and makes no other name.
[[nodiscard]] inline QString nameFromUtf8(std::string_view name)
{
    return QString::fromUtf8(name.data(), qsizetype(name.size()));
}

/// Whether two names differ in letter case only.
[[nodiscard]] inline bool equalIgnoringCase(std::string_view name, std::string_view other)
{
    return nameFromUtf8(name).compare(nameFromUtf8(other), Qt::CaseInsensitive) == 0;
}

/// The form in which names that differ in letter case only are equal.
[[nodiscard]] inline std::string caseFolded(std::string_view name)
{
    return nameFromUtf8(name).toCaseFolded().toStdString();
}

} // namespace designs
