// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/bomfields.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class Report;

struct SpreadsheetReport
{
    /// The whole .xlsx file; empty when it cannot be made.
    QByteArray file;
    /// Why it cannot be made; empty when it could.
    QString problem;
    /// What the file lacks of the report, one sentence each.
    QStringList notices;

    bool operator==(const SpreadsheetReport &) const = default;
};

/// The report as a spreadsheet: a row per line below the heading of its category, numbers as numbers, totals
/// as formulas; the user's notes on a sheet of their own.
[[nodiscard]] SpreadsheetReport spreadsheetReport(const Report &report);

/// The number format with which a spreadsheet shows numbers of the field as the report does: decimal places,
/// prefix and suffix. Empty when there is none that every program understands.
[[nodiscard]] QString numberFormat(const BOMField &field);
