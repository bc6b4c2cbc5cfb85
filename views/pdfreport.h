// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class BOMTemplate;
class QPainter;
class Report;

/// The report as a PDF file: the pages of the HTML report, behind them the project notes where the template
/// appends them. Needs an application with a platform, for its fonts.
[[nodiscard]] QByteArray pdfReport(const Report &report);

/// Paints the project notes behind what an active painter has painted, where the template appends them.
void appendProjectNotes(QPainter &painter, const BOMTemplate &settings);
