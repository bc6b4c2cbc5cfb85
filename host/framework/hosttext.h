// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// Text crosses the host boundary as UTF-8, on every platform. All of it: QString::fromUtf8() takes a U+FEFF
/// at the beginning for a byte order mark, which only a whole file has.
[[nodiscard]] inline QString fromHostText(QByteArrayView text)
{
    QString result = QString::fromUtf8(text);
    if (text.startsWith("\xEF\xBB\xBF")) {
        result.prepend(QChar::ByteOrderMark);
    }
    return result;
}

[[nodiscard]] inline QByteArray toHostText(QStringView text)
{
    return text.toUtf8();
}
