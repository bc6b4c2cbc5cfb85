// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class Report;

/// The report as UTF-8 text in columns of the widths that the template gives, for printing and mail; a title
/// and what the design says of itself stand above it, totals are left out.
[[nodiscard]] QByteArray asciiReport(const Report &report);
