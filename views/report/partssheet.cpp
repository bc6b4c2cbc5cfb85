// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/partssheet.h"

#include "core/part.h"
#include "views/report/report.h"
#include "views/report/spreadsheet.h"

#include <QSet>

#include <algorithm>
#include <vector>

namespace {

/// One of each property: two fields may show the same one.
std::vector<const ReportColumn *> distinctColumns(const Report &report)
{
    std::vector<const ReportColumn *> columns;
    QSet<QString> met;
    for (const ReportColumn &column : report.columns()) {
        const QString name = column.field.propertyName.toCaseFolded();
        if (!met.contains(name)) {
            met.insert(name);
            columns.push_back(&column);
        }
    }
    return columns;
}

/// Old programs do not show longer texts of the text format.
QString formatFor(const QString &text)
{
    constexpr qsizetype longestTyped = 255;
    return text.size() <= longestTyped ? Spreadsheet::textFormat() : QString();
}

} // namespace

QStringList partsSheetHeadings(const Report &report)
{
    QStringList headings{QStringLiteral("Reference")};
    for (const ReportColumn *column : distinctColumns(report)) {
        headings << column->field.propertyName;
    }
    return headings;
}

bool writePartsSheet(const Report &report, Spreadsheet &spreadsheet)
{
    const std::vector<const ReportColumn *> columns = distinctColumns(report);
    qsizetype parts = 0;
    for (const QString &category : report.categories()) {
        const Report::Quantity count = report.partCount(category);
        parts += count.counted + count.notFitted;
    }
    if (parts >= Spreadsheet::MostRows) {
        return false;
    }
    spreadsheet.beginSheet(partsSheetName());
    int at = 0;
    for (const QString &heading : partsSheetHeadings(report)) {
        spreadsheet.text(at++, heading, CellLook::Heading);
    }
    for (const QString &category : report.categories()) {
        const ReportLines listed = report.lines(category, false);
        for (const BomLine line : listed.lines) {
            const Part &part = *line.front();
            spreadsheet.nextRow();
            spreadsheet.text(0, part.reference(), CellLook::Cell, Spreadsheet::textFormat());
            for (int i = 0; i < int(columns.size()); ++i) {
                const QString text = part.storedProperty(columns[size_t(i)]->property);
                spreadsheet.text(i + 1, text, CellLook::Cell, formatFor(text));
            }
        }
    }
    spreadsheet.freezeRow(0, int(columns.size()), spreadsheet.row());
    return true;
}
