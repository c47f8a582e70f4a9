// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "fake/Rig.h"
#include "model/Placement.h"

// What no single game can show: how the random numbers and the ships' places spread.
namespace marivox {
namespace {

TEST(GetRandom, CoversItsRangeEvenlyAndFreshlyWhileTheClockStands) {
    fake::Rig rig(17);
    rig.clock.step = 0;  // every draw within one tick of the clock
    std::map<int, int> seen;
    for (int i = 0; i < 4000; ++i) {
        ++seen[rig.system.random.GetRandom(1, 100)];
    }
    EXPECT_EQ(seen.size(), 100u);
    EXPECT_EQ(seen.begin()->first, 1);
    EXPECT_EQ(seen.rbegin()->first, 100);
    int above = 0;
    for (const auto& [value, count] : seen) {
        above += value > 50 ? count : 0;
    }
    EXPECT_NEAR(above, 2000, 160);  // five standard deviations of a fair coin
    EXPECT_EQ(rig.system.random.GetRandom(5, 5), 5);
}

// Every start and direction that fits on free water is equally likely: a carrier on an
// empty ocean, a destroyer among other ships (chi-square, 0.999 quantile).
TEST(Placement, LandsOnEveryFreePositionWithEqualChance) {
    fake::Rig rig(11);
    Ocean empty, among;
    for (int cell = 0; cell < 81; ++cell) {
        empty.set(cell / 9 + 1, cell % 9 + 1, CellCode::OpenWater);
        among.set(cell / 9 + 1, cell % 9 + 1, cell % 13 == 4 ? 12 : CellCode::OpenWater);
    }
    for (const auto& [start, ship] : {std::pair{empty, kShips[0]}, {among, kShips[2]}}) {
        std::map<std::pair<int, bool>, int> landed;  // first cell and direction
        for (int trial = 0; trial < 10000; ++trial) {
            Ocean ocean = start;
            placeShip(ocean, ship, OverlapTest::AgainstOcean, rig.system.random);
            for (int cell = 0; cell < 81; ++cell) {
                if (ocean(cell / 9 + 1, cell % 9 + 1) == ship.intactCode) {
                    ++landed[{cell, ocean(cell / 9 + 1, cell % 9 + 2) == ship.intactCode}];
                    break;
                }
            }
        }
        int free = 0;
        for (int cell = 0; cell < 162; ++cell) {
            const int row = cell % 81 / 9 + 1, col = cell % 9 + 1, across = cell / 81;
            bool fits = (across ? col : row) + ship.length - 1 <= 9;
            for (int i = 0; fits && i < ship.length; ++i) {
                fits = start(row + (across ? 0 : i), col + (across ? i : 0)) == 1;
            }
            free += fits;
        }
        EXPECT_EQ(static_cast<int>(landed.size()), free);
        double chiSquare = 0, expected = 10000.0 / free, k = free - 1;
        for (const auto& [position, count] : landed) {
            chiSquare += (count - expected) * (count - expected) / expected;
        }
        EXPECT_LT(chiSquare, k * std::pow(1 - 2 / (9 * k) + 3.0902 * std::sqrt(2 / (9 * k)), 3));
    }
}

}  // namespace
}  // namespace marivox
