// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class OpenDesign;
struct ReplacedLine;

/// What a report leaves out or mixes because of the not-fitted choice, one sentence each.
[[nodiscard]] QStringList notFittedNotices(OpenDesign &design);

/// How many parts a mark excludes from every report, and how many symbols are not annotated; one sentence
/// each.
[[nodiscard]] QStringList markNotices(OpenDesign &design);

/// The definitions of BOM-only parts that make none, or not as said, and BOM-only parts whose reference is
/// another part's; one sentence each.
[[nodiscard]] QStringList definedPartProblems(OpenDesign &design);

/// How many of these there are, in one sentence; nothing when there are none.
[[nodiscard]] QStringList definedPartNotices(OpenDesign &design);

/// Why a line, or part where they are listed one by one, is not in the report: another one begins with a
/// reference that compares equal, as R01 and R1 do.
[[nodiscard]] QString replacedLineNotice(const ReplacedLine &replaced, bool grouped);

/// One sentence for each of them.
[[nodiscard]] QStringList replacedLineNotices(OpenDesign &design, bool grouped);
