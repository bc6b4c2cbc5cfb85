// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/numberreader.h"

#include <QString>

/// What a spreadsheet has made of a text by itself, for a message: "zeros in front are gone". Empty for a
/// change that somebody must have typed.
[[nodiscard]] QString spreadsheetChange(const QString &before, const QString &after,
                                        const NumberReader &numbers);

/// Whether a spreadsheet program may have read the text as that number, which a cell now holds instead: in
/// its own locale, with a sign of a currency, or with more digits than it calculates with.
[[nodiscard]] bool isTakenForNumber(const QString &text, double number);

/// Whether both are the same number: "3.90" and "3.9". False for numbers with more digits than can be
/// compared.
[[nodiscard]] bool isSameNumber(const QString &a, const QString &b, const NumberReader &numbers);

/// Whether the second is the first one with no more digits than a spreadsheet shows.
[[nodiscard]] bool isNearNumber(const QString &before, const QString &after, const NumberReader &numbers);
