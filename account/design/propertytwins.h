// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class LoadedDesign;

/// Property names that mean the same to a report but are stored apart.
struct PropertyTwins
{
    /// The names as stored, in the order of first sight: they differ in letter case only, or one is what the
    /// alias of another says (PACKAGE and the footprint).
    QStringList names;
    /// How many components have each.
    QList<qsizetype> counts;
    /// The components that have several of them with different texts, so that one hides the other.
    QStringList hiding;
};

/// The twins among the names that components use, in the order of first sight.
[[nodiscard]] std::vector<PropertyTwins> propertyTwins(const LoadedDesign &design);
