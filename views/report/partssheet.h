// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class Report;
class Spreadsheet;

/// The sheet of a spreadsheet that has a row per part and can be applied to the design.
[[nodiscard]] inline QString partsSheetName()
{
    return QStringLiteral("Parts");
}

/// The headings of its columns: references, then the names of the properties that the report shows.
[[nodiscard]] QStringList partsSheetHeadings(const Report &report);

/// Writes the sheet: the properties of each part with the texts as they are stored, all of them cells of
/// texts. False when the parts are more than a sheet can hold, which then gets none.
[[nodiscard]] bool writePartsSheet(const Report &report, Spreadsheet &spreadsheet);
