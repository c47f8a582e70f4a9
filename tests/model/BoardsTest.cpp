// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "fake/RulesRig.h"
#include "model/CellName.h"

namespace marivox {
namespace {

TEST(InitializeBoards, EmptiesBothOceansAndTalliesButLeavesTurnAndShotFields) {
    fake::RulesRig rig;
    GameState& s = rig.state;
    rig.newGame();
    s.HalOcean.set(3, 3, 20);
    s.MyHits[ShipType::Carrier] = 3;
    s.MySunk[ShipType::Cruiser] = kTrue;
    s.MySunkCount = 2;
    s.HalSunk[ShipType::Submarine] = kTrue;
    s.HalSunkCount = 5;
    s.HalHits[ShipType::PatrolBoat] = 2;
    s.HalHunting = kTrue;
    s.HalHuntShip = 14;
    s.Shooting = kTrue;
    s.TurnState = kComputersTurn;
    s.MyRow = 4;
    s.HalRow = 6;
    s.HalHitCount = 2;
    s.HalLastRow = 5;
    s.HalHitShip = 24;

    rig.boards.InitializeBoards();

    for (int row = 0; row <= 10; ++row) {
        for (int col = 0; col <= 10; ++col) {
            const int expected = isPlayingCell(row, col) ? 1 : 0;
            ASSERT_EQ(s.HalOcean(row, col), expected) << row << "," << col;
            ASSERT_EQ(s.MyOcean(row, col), expected) << row << "," << col;
        }
    }
    EXPECT_EQ(s.MySunkCount, 0);
    EXPECT_EQ(s.HalSunkCount, 0);
    for (const ShipType type : kShipTypes) {
        EXPECT_EQ(s.MyHits[type], 0);
        EXPECT_EQ(s.HalHits[type], 0);
        EXPECT_EQ(s.MySunk[type], kFalse);
        EXPECT_EQ(s.HalSunk[type], kFalse);
    }
    EXPECT_EQ(s.HalHunting, kFalse);
    EXPECT_EQ(s.HalHuntShip, 0);
    EXPECT_EQ(s.Shooting, kFalse);
    // Left for the first random shot of the new game to clear.
    EXPECT_EQ(s.TurnState, kComputersTurn);
    EXPECT_EQ(s.MyRow, 4);
    EXPECT_EQ(s.HalRow, 6);
    EXPECT_EQ(s.HalHitCount, 2);
    EXPECT_EQ(s.HalLastRow, 5);
    EXPECT_EQ(s.HalHitShip, 24);
}

TEST(GameOver, IsTheSixthSinkingOfTheComputersFleetOnly) {
    fake::RulesRig rig;
    for (std::int16_t count = 0; count <= 5; ++count) {
        rig.state.MySunkCount = count;
        EXPECT_FALSE(rig.boards.GameOver()) << count;
    }
    rig.state.HalSunkCount = 6;
    EXPECT_FALSE(rig.boards.GameOver());
    rig.state.MySunkCount = 6;
    EXPECT_TRUE(rig.boards.GameOver());
}

TEST(Ocean, RimReadsAsFiredWaterAndIndexesPastItFail) {
    Ocean ocean;
    EXPECT_EQ(ocean(0, 5), 0);
    EXPECT_EQ(ocean(10, 10), 0);
    for (const auto& [row, col] : {std::pair{11, 1}, {1, 11}, {-1, 4}, {4, -1}}) {
        try {
            ocean.set(row, col, 1);
            ADD_FAILURE() << "no failure at " << row << "," << col;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), static_cast<int>(FailureNumber::IndexOutOfRange));
        }
    }
    EXPECT_EQ(ocean, Ocean{});
}

TEST(CellName, PutsTwoBlanksBetweenLetterAndNumber) {
    EXPECT_EQ(cellName(1, 5), "A  5");
    EXPECT_EQ(cellName(9, 9), "I  9");
    EXPECT_EQ(cellName(3, 4), "C  4");
    EXPECT_EQ(numberText(0), " 0");
    EXPECT_EQ(numberText(-3), "-3");
    EXPECT_THROW(rowLetter(32767), Failure);
}

}  // namespace
}  // namespace marivox
