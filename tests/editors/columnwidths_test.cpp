// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/columnwidths.h"

#include "support/randominputs.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

/// A column as a spin box would hold it.
class Box
{
public:
    Box(int value, int columns)
        : m_most(std::max(2, 100 - 2 * (columns - 1)))
    {
        set(value);
    }
    void set(int value) { m_value = value < 2 ? 2 : value > m_most ? m_most : value; }
    [[nodiscard]] int value() const { return m_value; }

private:
    int m_most;
    int m_value = 2;
};

int total(const std::vector<Box> &boxes)
{
    int sum = 0;
    for (const Box &box : boxes) {
        sum += box.value();
    }
    return sum;
}

/// The rule step by step, one box after the other.
void balanceStepByStep(std::vector<Box> &boxes, int k)
{
    const int n = int(boxes.size());
    const int remainder = 100 - total(boxes);
    if (remainder == 0) {
        return;
    }
    if (total(boxes) > 100) {
        int room = 0;
        for (int i = k + 1; i < n; ++i) {
            room += boxes[i].value() - 2;
        }
        const int excess = total(boxes) - 100;
        if (room < excess) {
            boxes[k].set(boxes[k].value() - (excess - room));
        }
    }
    int running = 0;
    int share = 0;
    for (int i = 0; i < n; ++i) {
        if (i == k && n - k - 1 != 0) {
            share = remainder / (n - k - 1);
        }
        if (i == n - 1) {
            boxes[i].set(100 - running);
        } else if (i > k) {
            boxes[i].set(boxes[i].value() + share);
        }
        running += boxes[i].value();
    }
    int excess = total(boxes) - 100;
    for (int i = k + 1; i < n && excess > 0; ++i) {
        const int before = boxes[i].value();
        boxes[i].set(before - std::min(excess, before - 2));
        excess -= before - boxes[i].value();
    }
}

TEST(ColumnWidths, FollowTheRuleForAnyInput)
{
    RandomInputs random(7);
    for (int round = 0; round < 50'000; ++round) {
        const int columns = 2 + random.below(60);
        std::vector<Box> boxes;
        QList<int> widths;
        const int widest = 3 + random.below(120);
        for (int i = 0; i < columns; ++i) {
            boxes.emplace_back(random.below(widest), columns);
            widths.append(boxes.back().value());
        }
        const int changed = random.below(columns);
        balanceStepByStep(boxes, changed);
        QList<int> expected;
        for (const Box &box : boxes) {
            expected.append(box.value());
        }
        ASSERT_EQ(balancedWidths(widths, changed), expected)
            << "column " << changed << " of " << testing::PrintToString(widths);
    }
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
            widths = balancedWidths(widths, changed);
            ASSERT_EQ(std::accumulate(widths.begin(), widths.end(), 0), 100) << columns << ' ' << changed;
            ASSERT_TRUE(changed == columns - 1 || widths[changed] == wanted) << "what was typed stays";
        }
    }
}

TEST(ColumnWidths, NamedCases)
{
    // Quantity, References and three fields as they come.
    EXPECT_EQ(balancedWidths({6, 15, 12, 12, 12}, 0), QList<int>({6, 25, 22, 22, 25}));
    EXPECT_EQ(balancedWidths({20, 20, 20, 20, 25}, 4), QList<int>({20, 20, 20, 20, 20}));
    EXPECT_EQ(balancedWidths({16, 20, 20, 20, 20}, 0), QList<int>({16, 21, 21, 21, 21}));
    EXPECT_EQ(balancedWidths({92, 2, 2, 2, 92}, 0), QList<int>({92, 2, 2, 2, 2}));
    EXPECT_EQ(balancedWidths({90, 2, 2, 30, 20}, 2), QList<int>({90, 2, 2, 4, 2}));
    EXPECT_EQ(columnWidthRange(5).most, 92);
    EXPECT_EQ(columnWidthRange(60).most, 2);
}

} // namespace
