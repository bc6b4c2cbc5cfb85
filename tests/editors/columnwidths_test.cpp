// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/columnwidths.h"

#include "support/randominputs.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

TEST(ColumnWidths, NamedCases)
{
    struct Case
    {
        const char *name;
        QList<int> widths;
        int changed;
        QList<int> expected;
    };
    const Case cases[] = {
        {"quantity, references and three fields as they come", {6, 15, 12, 12, 12}, 0, {6, 25, 22, 22, 25}},
        {"a table that is full stays", {16, 24, 20, 20, 20}, 2, {16, 24, 20, 20, 20}},
        {"the last column gives back alone", {20, 20, 20, 20, 25}, 4, {20, 20, 20, 20, 20}},
        {"shares are equal", {16, 20, 20, 20, 20}, 0, {16, 21, 21, 21, 21}},
        {"the last takes the rest of a share", {50, 30, 30, 10}, 0, {50, 24, 24, 2}},
        {"a column keeps its least width", {60, 5, 30, 30}, 0, {60, 2, 22, 16}},
        {"what it could not give others give", {70, 3, 3, 30, 3}, 0, {70, 2, 2, 24, 2}},
        {"columns on the left stay", {90, 2, 2, 30, 20}, 2, {90, 2, 2, 4, 2}},
        {"the changed one gives back what the right has not", {92, 2, 50, 2, 2}, 2, {92, 2, 2, 2, 2}},
        {"the widest last one", {92, 2, 2, 2, 92}, 0, {92, 2, 2, 2, 2}},
    };
    for (const Case &example : cases) {
        EXPECT_EQ(balancedWidths(example.widths, example.changed), example.expected) << example.name;
    }
    EXPECT_EQ(columnWidthRange(5).most, 92);
    EXPECT_EQ(columnWidthRange(60).most, 2);
}

TEST(ColumnWidths, FillTheTableAfterAnyChangeOnceTheyDid)
{
    RandomInputs random(8);
    for (int columns = 2; columns <= 50; ++columns) {
        const WidthRange range = columnWidthRange(columns);
        QList<int> widths(columns, range.least);
        widths.last() = range.most;
        for (int round = 0; round < 200; ++round) {
            const int changed = random.below(columns);
            const int room = std::accumulate(widths.begin() + changed, widths.end(), 0) -
                             range.least * (columns - changed - 1);
            widths[changed] = range.least + random.below(range.most - range.least + 1);
            const int wanted = std::min(widths[changed], room);
            const QList<int> left = widths.first(changed);
            widths = balancedWidths(widths, changed);
            ASSERT_EQ(std::accumulate(widths.begin(), widths.end(), 0), 100) << columns << ' ' << changed;
            ASSERT_EQ(widths.first(changed), left);
            ASSERT_TRUE(changed == columns - 1 || widths[changed] == wanted) << "what was typed stays";
        }
    }
}

} // namespace
