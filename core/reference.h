// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QStringView>

/// A reference such as R12, cut into the letters in front and the number behind.
struct SplitReference
{
    /// Part of the text that was split, and valid as long as that.
    QStringView prefix;
    int number = 0;
    bool hasNumber = false;

    bool operator==(const SplitReference &) const = default;
};

/// Cuts the decimal digits off the end. The first character always belongs to the prefix. Digits that make no
/// 32-bit number stay in the prefix, and the reference then has no number.
[[nodiscard]] SplitReference splitReference(QStringView reference);

/// What stands in front of the first decimal digit: the prefix by which a category is chosen.
[[nodiscard]] QStringView categoryPrefix(QStringView reference);

/// Negative, 0 or positive: by prefix, character by character, then by number; a reference without a number
/// counts as 0.
[[nodiscard]] int compareReferences(const SplitReference &left, const SplitReference &right);
[[nodiscard]] int compareReferences(QStringView left, QStringView right);

/// Sorts by reference order; references that compare equal keep their order.
void sortReferences(QStringList &references);
