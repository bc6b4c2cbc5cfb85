// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "views/report/csvtext.h"

#include <QByteArray>

class Report;

/// What a row of the CSV report is.
enum class CsvRows
{
    /// A line of the bill, with its quantity.
    Lines,
    /// A single part.
    Parts
};

/// The report as comma-separated text in UTF-8, a row of headings in front, rows ended by line feeds. Double
/// quotes and line breaks are dropped from the cells; cells with a comma stand in double quotes. Another
/// dialect may say another separator.
[[nodiscard]] QByteArray csvReport(const Report &report, CsvRows rows, const CsvDialect &dialect = {});
