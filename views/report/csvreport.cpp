// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/csvreport.h"

#include "core/part.h"
#include "templates/bomtemplate.h"
#include "views/report/report.h"

QByteArray csvReport(const Report &report, CsvRows rows, const CsvDialect &dialect)
{
    const bool isGrouped = rows == CsvRows::Lines;
    const bool quotesReferences = report.settings().alwaysQuoteRefs();
    CsvText csv(dialect);
    for (const QString &heading : report.headings(isGrouped)) {
        csv.addCell(heading);
    }
    csv.endRow();
    for (const QString &category : report.categories()) {
        const ReportLines listed = report.lines(category, isGrouped);
        for (const BomLine line : listed.lines) {
            const Part &first = *line.front();
            csv.addCell(category);
            if (isGrouped) {
                csv.addCell(QString::number(Report::quantity(line).counted));
            }
            csv.addCell(isGrouped ? report.references(line) : first.reference(), quotesReferences);
            for (const ReportColumn &column : report.columns()) {
                csv.addCell(report.text(first, column));
            }
            csv.endRow();
        }
    }
    return csv.bytes();
}
