// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class BOMPartsDatabase;
struct ComponentAccount;
struct ReplacedLine;
struct UnreadColumn;
struct UnreadText;

/// The definitions of BOM-only parts that cannot be followed in full, and BOM-only parts whose reference
/// another part has; one sentence each.
[[nodiscard]] QStringList definedPartProblems(const BOMPartsDatabase &database);

/// The BOM-only parts that are not in the bill, by their reasons: "2 BOM-only parts are excluded by BOMSKIP:
/// Q1 BOMPART0".
[[nodiscard]] QStringList leftOutBomPartNotices(const BOMPartsDatabase &database);

/// BOM-only parts whose parent is not fitted: left out with it, or listed like it.
[[nodiscard]] QStringList notFittedParentNotices(const BOMPartsDatabase &database,
                                                 const ComponentAccount &components);

/// That a line, or a part in the report of single parts, is left out, and for which other one.
[[nodiscard]] QString replacedLineNotice(const ReplacedLine &replaced, bool grouped);

/// The categories of the template that can hold no part, one sentence each.
[[nodiscard]] QStringList blockedCategoryNotices(const BOMPartsDatabase &database);

/// What cannot be read in a column, in one sentence with the first texts: "column Price: 2 parts have a text
/// that is no number and counts 0: "1.50 EUR" on R4, "inf" on R5".
[[nodiscard]] QString unreadColumnNotice(const UnreadColumn &column);
/// The same of one text: "Price: "1.50 EUR" on R4,R7 is no number and counts 0".
[[nodiscard]] QString unreadTextNotice(const UnreadColumn &column, const UnreadText &text);
