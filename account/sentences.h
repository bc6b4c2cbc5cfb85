// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// "1 part", "7 parts".
[[nodiscard]] QString counted(qsizetype count, const QString &singular, const QString &plural);

/// The sentence for one thing or the one for several.
[[nodiscard]] inline QString oneOrMany(qsizetype count, const QString &one, const QString &many)
{
    return count == 1 ? one : many;
}

/// The references in reference order, runs shortened: "R1-R3,R5".
[[nodiscard]] QString referenceText(const QStringList &references);
