// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/reference.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace {

std::optional<int> numberOf(QStringView digits)
{
    constexpr qint64 largest = std::numeric_limits<int>::max();
    qint64 number = 0;
    for (const QChar digit : digits) {
        if (digit < u'0' || digit > u'9') {
            return std::nullopt;
        }
        number = number * 10 + (digit.unicode() - u'0');
        if (number > largest) {
            return std::nullopt;
        }
    }
    return int(number);
}

} // namespace

SplitReference splitReference(QStringView reference)
{
    qsizetype end = reference.size();
    while (end > 1 && reference[end - 1].isDigit()) {
        --end;
    }
    if (end == reference.size()) {
        return {reference, 0, false};
    }
    const auto number = numberOf(reference.sliced(end));
    if (!number) {
        return {reference, 0, false};
    }
    return {reference.first(end), *number, true};
}

QStringView categoryPrefix(QStringView reference)
{
    const auto digit =
        std::find_if(reference.begin(), reference.end(), [](QChar character) { return character.isDigit(); });
    return reference.first(digit - reference.begin());
}

int compareReferences(const SplitReference &left, const SplitReference &right)
{
    const int order = left.prefix.compare(right.prefix);
    if (order != 0) {
        return order;
    }
    return left.number < right.number ? -1 : int(left.number > right.number);
}

int compareReferences(QStringView left, QStringView right)
{
    return compareReferences(splitReference(left), splitReference(right));
}

void sortReferences(QStringList &references)
{
    std::vector<std::pair<SplitReference, QString>> split;
    split.reserve(size_t(references.size()));
    for (const QString &reference : std::as_const(references)) {
        split.emplace_back(splitReference(reference), reference);
    }
    const auto isLess = [](const auto &left, const auto &right) {
        return compareReferences(left.first, right.first) < 0;
    };
    if (std::is_sorted(split.cbegin(), split.cend(), isLess)) {
        return;
    }
    std::stable_sort(split.begin(), split.end(), isLess);
    std::transform(split.begin(), split.end(), references.begin(),
                   [](auto &entry) { return std::move(entry.second); });
}
