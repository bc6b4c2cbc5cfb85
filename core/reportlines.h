// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/groupedlines.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

class PartStore;

/// A line that a report leaves out: its first reference compares equal to that of a later one.
struct ReplacedLine
{
    QString category;
    /// The references that the report does not show.
    QStringList references;
    /// The first reference of the line that stands in its place.
    QString replacedBy;

    bool operator==(const ReplacedLine &) const = default;
};

/// The lines of one category as a report lists them: by their first references. Valid until the next change
/// of the database.
struct ReportLines
{
    std::vector<BomLine> lines;
    /// What was left out, without the category.
    QList<ReplacedLine> replaced;
};

/// All lines of a category, or its parts one by one.
[[nodiscard]] ReportLines makeReportLines(const GroupedLines &lines, const PartStore &store, bool grouped);

/// The references of a line.
[[nodiscard]] QStringList referencesOf(BomLine line);
