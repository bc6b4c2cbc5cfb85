// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/dnpchoice.h"

#include <QString>
#include <QStringList>

#include <vector>

class LoadedDesign;

namespace designs {
struct Component;
}

/// Where the symbols of a design stay: drawn = power + further units + components. They are counted
/// twice, in what was read and in the text of the files.
struct SymbolAccount
{
    qsizetype drawn = 0;
    qsizetype power = 0;
    qsizetype mergedUnits = 0;
    qsizetype components = 0;
    /// What does not agree, one sentence each.
    QStringList disagreements;

    bool operator==(const SymbolAccount &) const = default;
};

/// A reference that several components have.
struct RepeatedReference
{
    QString reference;
    /// Where they stand, "FILE:LINE", in design order.
    QStringList places;
    /// How many of them are in the bill.
    qsizetype listed = 0;
    /// How many of them are excluded from it by a mark.
    qsizetype excluded = 0;

    /// Whether it may be a mistake: not when all of them are excluded on purpose.
    [[nodiscard]] bool isDoubtful() const { return excluded < places.size(); }
    /// "FILE:LINE: R1 occurs 3 times, also at FILE:LINE, FILE:LINE; 1 of them is in the bill"; of many places
    /// only the first are named.
    [[nodiscard]] QString message() const;

    bool operator==(const RepeatedReference &) const = default;
};

/// A component whose reference is empty or has no number yet.
struct NotAnnotated
{
    QString reference;
    /// "FILE:LINE".
    QString place;

    /// "FILE:LINE: R? is not annotated".
    [[nodiscard]] QString message() const;

    bool operator==(const NotAnnotated &) const = default;
};

/// Where the components of a design stay: in the bill of materials, or why not. Components are counted as in
/// LoadedDesign::components().
struct ComponentAccount
{
    /// What was chosen for components that are not fitted.
    DnpChoice choice = DnpChoice::Exclude;
    qsizetype components = 0;
    /// What neither a mark nor the choice leaves out.
    qsizetype listed = 0;
    /// What a mark excludes from the bill, whatever the choice; and how many of these are not fitted either.
    qsizetype excluded = 0;
    qsizetype excludedNotFitted = 0;
    /// What would be listed if the choice did not leave it out.
    qsizetype leftOutByChoice = 0;
    qsizetype notFitted = 0;
    /// The references of components that are left out by the choice, and define BOM-only parts.
    QStringList leftOutParents;
    /// The references of listed components that are not fitted.
    QStringList listedNotFitted;
    /// References that occur more than once, skipped components included, in the order of first occurrence.
    std::vector<RepeatedReference> repeated;
    /// Skipped components included.
    std::vector<NotAnnotated> notAnnotated;

    bool operator==(const ComponentAccount &) const = default;
};

/// Reads the files of the design once more, to count their symbols.
[[nodiscard]] SymbolAccount symbolAccountOf(const LoadedDesign &design);

[[nodiscard]] ComponentAccount componentAccountOf(const LoadedDesign &design);

/// Components that are left out for the same reason, in design order.
struct SkippedComponents
{
    QString reason;
    QStringList references;

    bool operator==(const SkippedComponents &) const = default;
};

/// The components that are not in the bill by their reasons, in the order of the first component of each.
[[nodiscard]] std::vector<SkippedComponents> skippedComponents(const LoadedDesign &design);

/// Why a component is not in the bill, such as "excluded on sheet /Power" or "not fitted: marked on the
/// symbol"; empty for a listed one.
[[nodiscard]] QString skipReason(const LoadedDesign &design, const designs::Component &component);

/// Whether a reference is empty or ends in the question mark of one that has no number yet.
[[nodiscard]] bool isNotAnnotated(QStringView reference);

/// The references of the listed components with a text that still holds a variable "${...}".
[[nodiscard]] QStringList withUnresolvedVariables(const LoadedDesign &design);
