// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/windowcolumns.h"

#include <gmock/gmock.h>

using testing::DoubleNear;
using testing::ElementsAre;

namespace {

TEST(WindowShares, GiveWordsTheRoomThatOthersDoNotNeed)
{
    const auto near = [](double share) { return DoubleNear(share, 1e-9); };
    // Paper of 200 pixels: a word that just fits into its half, and a column with room to spare.
    std::vector<ColumnRoom> columns{{100, 100, 50}, {30, 40, 50}};
    EXPECT_THAT(windowShares(columns, 200, 200), ElementsAre(near(50), near(50)));
    EXPECT_THAT(windowShares(columns, 400, 200), ElementsAre(near(50), near(50)));
    EXPECT_THAT(windowShares(columns, 160, 200), ElementsAre(near(62.5), near(37.5)));
    // In a small size the letters of the same word are wider.
    columns.front() = {110, 110, 50, 1.1};
    EXPECT_THAT(windowShares(columns, 200, 200), ElementsAre(near(55), near(45)));
    // A word that is broken on paper is broken here, too.
    columns.front() = {150, 150, 50};
    EXPECT_THAT(windowShares(columns, 200, 200), ElementsAre(near(50), near(50)));
}

} // namespace
