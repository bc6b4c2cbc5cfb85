// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/numberformat.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr int mostDecimals = 15;

/// In double quotes; those of the text itself stand between, behind a backslash.
QString literal(const QString &text)
{
    QStringList pieces = text.split(u'"');
    for (QString &piece : pieces) {
        if (!piece.isEmpty()) {
            piece = u'"' + piece + u'"';
        }
    }
    return pieces.join(QLatin1String("\\\""));
}

} // namespace

QString numberFormat(const BOMField &field)
{
    const int decimals = std::min(field.precision, mostDecimals);
    const QString digits =
        decimals < 1 ? QStringLiteral("General") : QStringLiteral("0.") + QString(decimals, u'0');
    const QString prefix = literal(field.prefix);
    const QString positive = prefix + digits + literal(field.suffix);
    const QString affixes = field.prefix + field.suffix;
    if (affixes.contains(u'"')) {
        // Some programs lose count of the quotes, and then take a semicolon for the end of a section.
        return affixes.contains(u';') ? QString() : positive;
    }
    // Left alone, a spreadsheet puts the minus sign in front of the prefix.
    return prefix.isEmpty() ? positive : positive + u';' + prefix + u'-' + digits + literal(field.suffix);
}
