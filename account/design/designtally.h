// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class LoadedDesign;

/// The sum of a design's symbols: drawn = power + merged units + components. It is drawn up twice, from what
/// was read and from the text of the files.
struct DesignTally
{
    qsizetype drawn = 0;
    qsizetype power = 0;
    qsizetype mergedUnits = 0;
    qsizetype components = 0;
    /// What does not agree, one sentence each.
    QStringList disagreements;

    bool operator==(const DesignTally &) const = default;
};

[[nodiscard]] DesignTally tallyOf(const LoadedDesign &design);
