// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

class Report;
struct ReportDesign;

/// The report as UTF-8 text in columns of the widths that the template gives, for printing and mail; a title
/// and what the design says of itself stand above it, totals are left out.
[[nodiscard]] QByteArray asciiReport(const Report &report);

/// Its pieces: the title; what the design says of itself, with a blank line behind it; the headings.
[[nodiscard]] QString asciiTitle();
[[nodiscard]] QString asciiInformation(const ReportDesign &design);
[[nodiscard]] QStringList asciiHeadings(const Report &report);
/// The widths of quantity, references and each column that the template gives.
[[nodiscard]] QList<int> asciiWidths(const Report &report);

/// The text without line breaks and other control characters, which would tear columns apart.
[[nodiscard]] QString inOneLine(const QString &text);
