// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <vector>

#include "fake/RulesRig.h"
#include "fake/ScriptedRandom.h"
#include "model/Consistency.h"

namespace marivox {
namespace {

struct Position {
    int row;
    int col;
    bool horizontal;
    auto operator<=>(const Position&) const = default;
};

// Where a ship of `length` could lie on `ocean`: on the board and over open water only.
std::vector<Position> freePositions(const Ocean& ocean, int length) {
    std::vector<Position> positions;
    for (const bool horizontal : {false, true}) {
        for (int row = 1; row <= 9; ++row) {
            for (int col = 1; col <= 9; ++col) {
                bool fits = (horizontal ? col : row) + length - 1 <= 9;
                for (int i = 0; fits && i < length; ++i) {
                    fits = (horizontal ? ocean(row, col + i) : ocean(row + i, col)) == 1;
                }
                if (fits) {
                    positions.push_back({row, col, horizontal});
                }
            }
        }
    }
    return positions;
}

Position whereShipLies(const Ocean& ocean, std::int16_t code) {
    for (int row = 1; row <= 9; ++row) {
        for (int col = 1; col <= 9; ++col) {
            if (ocean(row, col) == code) {
                return {row, col, ocean(row, col + 1) == code};
            }
        }
    }
    ADD_FAILURE() << "ship " << code << " not found";
    return {};
}

// Upper 0.999 quantile of the chi-square distribution (Wilson and Hilferty).
double chiSquareBound(int degrees) {
    const double k = degrees;
    const double z = 3.0902;
    return k * std::pow(1.0 - 2.0 / (9.0 * k) + z * std::sqrt(2.0 / (9.0 * k)), 3.0);
}

// Places the ship `trials` times on copies of `start` and checks each landing spot is a free
// position and all free positions are equally likely.
void expectUniformPlacement(const Ocean& start, ShipType type, OverlapTest overlap,
                            std::uint64_t seed) {
    fake::RulesRig rig(seed);
    const ShipInfo& ship = shipInfo(type);
    const std::vector<Position> allowed = freePositions(start, ship.length);
    std::map<Position, int> counts;
    for (const Position& p : allowed) {
        counts[p] = 0;
    }
    constexpr int kTrials = 10000;
    for (int i = 0; i < kTrials; ++i) {
        Ocean ocean = start;
        placeShip(ocean, ship, overlap, rig.random);
        const Position placed = whereShipLies(ocean, ship.intactCode);
        ASSERT_TRUE(counts.contains(placed)) << placed.row << "," << placed.col;
        ++counts[placed];
    }
    const double expected = static_cast<double>(kTrials) / static_cast<double>(allowed.size());
    double chiSquare = 0;
    for (const auto& [position, count] : counts) {
        chiSquare += (count - expected) * (count - expected) / expected;
    }
    EXPECT_LT(chiSquare, chiSquareBound(static_cast<int>(allowed.size()) - 1))
        << "over " << allowed.size() << " positions";
}

Ocean openOcean() {
    Ocean ocean;
    for (int row = 1; row <= 9; ++row) {
        for (int col = 1; col <= 9; ++col) {
            ocean.set(row, col, CellCode::OpenWater);
        }
    }
    return ocean;
}

TEST(Placement, EveryFleetHasTwentyTwoShipCellsInStraightLinesOffTheRim) {
    fake::RulesRig rig(2024);
    const std::map<std::int16_t, int> expectedCells{{1, 59}, {10, 5}, {11, 4}, {12, 4},
                                                    {13, 4}, {14, 3}, {15, 2}};
    for (int fleet = 0; fleet < 10000; ++fleet) {
        rig.boards.InitializeBoards();
        rig.placement.placeBothFleets();
        for (const Ocean* ocean : {&rig.state.HalOcean, &rig.state.MyOcean}) {
            std::map<std::int16_t, int> cells;
            for (int row = 1; row <= 9; ++row) {
                for (int col = 1; col <= 9; ++col) {
                    ++cells[(*ocean)(row, col)];
                }
            }
            ASSERT_EQ(cells, expectedCells) << "fleet " << fleet;
        }
        // Straight consecutive lines of the right length, and a rim of zeros.
        ASSERT_EQ(consistencyProblem(rig.state), "") << "fleet " << fleet;
    }
    EXPECT_TRUE(rig.transcript.lines().empty());
}

TEST(Placement, CarrierLandsOnEveryFittingPositionWithEqualChance) {
    expectUniformPlacement(openOcean(), ShipType::Carrier, OverlapTest::None, 11);
}

TEST(Placement, ShipAmongOthersLandsOnEveryFreePositionWithEqualChance) {
    Ocean ocean = openOcean();
    for (int col = 2; col <= 6; ++col) {
        ocean.set(5, col, 10);
    }
    for (int row = 1; row <= 4; ++row) {
        ocean.set(row, 8, 12);
    }
    ocean.set(8, 3, 15);
    ocean.set(9, 3, 15);
    expectUniformPlacement(ocean, ShipType::Destroyer, OverlapTest::AgainstOcean, 12);
}

TEST(Placement, DrawsRowColumnTurnAndRedrawsAllThreeWhenTheShipRunsOffTheBoard) {
    fake::ScriptedRandom draws{3, 7, 51,   // horizontal carrier from column 7: off the board
                               3, 5, 51};  // horizontal from column 5: fits exactly
    Ocean ocean = openOcean();
    placeShip(ocean, shipInfo(ShipType::Carrier), OverlapTest::None, draws);
    EXPECT_TRUE(draws.exhausted());
    for (int col = 5; col <= 9; ++col) {
        EXPECT_EQ(ocean(3, col), 10) << col;
    }
    EXPECT_EQ(ocean(3, 10), 0);
}

TEST(Placement, TurnOfFiftyIsVerticalAndAStartInColumnNineIsOnlyVertical) {
    fake::ScriptedRandom draws{6, 2, 50,  // vertical carrier from row 6 runs past row 9
                               5, 9, 100, 5, 9, 50};
    Ocean ocean = openOcean();
    placeShip(ocean, shipInfo(ShipType::Carrier), OverlapTest::None, draws);
    EXPECT_TRUE(draws.exhausted());
    for (int row = 5; row <= 9; ++row) {
        EXPECT_EQ(ocean(row, 9), 10) << row;
    }
}

TEST(Placement, NeverCoversAShipButMayLieAlongsideOne) {
    Ocean ocean = openOcean();
    ocean.set(4, 4, 13);
    fake::ScriptedRandom draws{4, 3, 51,   // would cover the destroyer's cell at D4
                               3, 2, 51};  // the row above, touching it
    placeShip(ocean, shipInfo(ShipType::Submarine), OverlapTest::AgainstOcean, draws);
    EXPECT_TRUE(draws.exhausted());
    EXPECT_EQ(ocean(4, 4), 13);
    EXPECT_EQ(ocean(3, 2), 15);
    EXPECT_EQ(ocean(3, 3), 15);
}

TEST(Placement, CarrierIsLaidWithoutLookingAtTheOcean) {
    Ocean ocean = openOcean();
    ocean.set(2, 2, 14);
    fake::ScriptedRandom draws{2, 1, 51};
    placeShip(ocean, shipInfo(ShipType::Carrier), OverlapTest::None, draws);
    EXPECT_EQ(ocean(2, 2), 10);
}

TEST(Placement, FleetsOfTheTwoSidesAreDrawnIndependently) {
    fake::RulesRig rig(5);
    int sameFleets = 0;
    for (int i = 0; i < 50; ++i) {
        rig.newGame();
        sameFleets += rig.state.HalOcean == rig.state.MyOcean ? 1 : 0;
    }
    EXPECT_EQ(sameFleets, 0);
}

}  // namespace
}  // namespace marivox
