// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

/// How the references of a line are listed.
struct ReferenceStyle
{
    /// R1-R3 instead of R1,R2,R3.
    bool ranges = true;
    /// Characters in a text line; less than 1 for no limits at all.
    int width = 0;
    /// Text lines, parted by line feeds; what does not fit into them ends in "...".
    int lines = 1;
};

/// The references as one text, sorted by reference order. Without ranges and with less than two text lines,
/// and without limits, they are joined as they come, whatever the width.
[[nodiscard]] QString formatReferences(const QStringList &references, const ReferenceStyle &style);

/// The same for references that stand in reference order already.
[[nodiscard]] QString formatSortedReferences(const QList<QStringView> &references,
                                             const ReferenceStyle &style);
