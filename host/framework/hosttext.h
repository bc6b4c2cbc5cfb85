// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// Text crosses the host boundary as UTF-8, on every platform.
[[nodiscard]] inline QString fromHostText(QByteArrayView text)
{
    return QString::fromUtf8(text);
}

[[nodiscard]] inline QByteArray toHostText(QStringView text)
{
    return text.toUtf8();
}
