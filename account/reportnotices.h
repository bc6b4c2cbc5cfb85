// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class BOMPartsDatabase;
struct ComponentAccount;

/// The forms in which a report is written.
struct ReportForms
{
    /// With a row for each line of the bill.
    bool hasLines = true;
    /// With a row for each part.
    bool hasParts = false;
};

/// What a report in these forms leaves out, does not count, cannot read or cannot follow, one sentence each.
[[nodiscard]] QStringList reportNotices(const ComponentAccount &components, const BOMPartsDatabase &database,
                                        ReportForms forms);
