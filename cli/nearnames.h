// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// The names that somebody may have meant who typed that one, best first, at most three: those that begin
/// with it, or take the fewest letters that are added, missing, others or changed places with the next one;
/// at most a third of them. Letter case, blanks at the ends and dashes in front do not count.
[[nodiscard]] QStringList nearNames(const QString &typed, const QStringList &known);

/// `; did you mean "a" or "b"?` for the names that are near; empty when none is.
[[nodiscard]] QString didYouMean(const QString &typed, const QStringList &known);
