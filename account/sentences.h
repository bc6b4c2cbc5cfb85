// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class BOMPartsDatabase;
struct ComponentAccount;
struct ReplacedLine;

/// "1 part", "7 parts".
[[nodiscard]] QString counted(qsizetype count, const QString &singular, const QString &plural);

/// The references in reference order, runs shortened: "R1-R3,R5".
[[nodiscard]] QString referenceText(const QStringList &references);

/// The forms in which a report is written.
struct ReportForms
{
    /// With a row for each line of the bill.
    bool hasLines = true;
    /// With a row for each part.
    bool hasParts = false;
};

/// What a report in these forms leaves out, mixes or cannot follow, one sentence each.
[[nodiscard]] QStringList reportNotices(const ComponentAccount &components, const BOMPartsDatabase &database,
                                        ReportForms forms);

/// The definitions of BOM-only parts that cannot be followed in full, and BOM-only parts whose reference
/// another part has; one sentence each.
[[nodiscard]] QStringList definedPartProblems(const BOMPartsDatabase &database);

/// Why a line, or part where they are listed one by one, is not in the report: another one begins with a
/// reference that compares equal.
[[nodiscard]] QString replacedLineNotice(const ReplacedLine &replaced, bool grouped);
