// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/columnwidths.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int wholeTable = 100;
constexpr int leastWidth = WidthRange().least;

int sumOf(const QList<int> &widths)
{
    return std::accumulate(widths.cbegin(), widths.cend(), 0);
}

/// What the columns right of `changed` can give.
int roomRightOf(const QList<int> &widths, qsizetype changed)
{
    return std::accumulate(widths.cbegin() + changed + 1, widths.cend(), 0,
                           [](int room, int width) { return room + width - leastWidth; });
}

/// Gives every column right of `changed` its share and the last one the rest.
void share(QList<int> &widths, qsizetype changed, int remainder, WidthRange range)
{
    const qsizetype last = widths.size() - 1;
    const auto clamped = [range](int width) { return std::clamp(width, range.least, range.most); };
    const int each = changed < last ? remainder / int(last - changed) : 0;
    for (qsizetype i = changed + 1; i < last; ++i) {
        widths[i] = clamped(widths[i] + each);
    }
    const int before = sumOf(widths) - widths[last];
    widths[last] = clamped(wholeTable - before);
}

/// The clamping can leave more than the table has.
void takeExcess(QList<int> &widths, qsizetype changed)
{
    int excess = sumOf(widths) - wholeTable;
    for (qsizetype i = changed + 1; i < widths.size() && excess > 0; ++i) {
        const int given = std::min(excess, widths[i] - leastWidth);
        widths[i] -= given;
        excess -= given;
    }
}

} // namespace

WidthRange columnWidthRange(qsizetype columns)
{
    const qsizetype most = wholeTable - leastWidth * (columns - 1);
    return {leastWidth, int(std::max<qsizetype>(leastWidth, most))};
}

QList<int> balancedWidths(QList<int> widths, qsizetype changed)
{
    const int remainder = wholeTable - sumOf(widths);
    if (remainder == 0) {
        return widths;
    }
    const WidthRange range = columnWidthRange(widths.size());
    const int missing = -remainder - roomRightOf(widths, changed);
    if (remainder < 0 && missing > 0) {
        widths[changed] = std::max(range.least, widths[changed] - missing);
    }
    share(widths, changed, remainder, range);
    takeExcess(widths, changed);
    return widths;
}
