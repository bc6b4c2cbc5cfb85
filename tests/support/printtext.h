// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <ostream>

/// Failures show Qt's texts and lists readably.
inline std::ostream &operator<<(std::ostream &out, const QString &text)
{
    return out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << text;
}

inline void PrintTo(const QStringList &texts, std::ostream *out)
{
    *out << '[' << texts.join(QLatin1String(" | ")).toStdString() << ']';
}
