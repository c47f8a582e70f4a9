// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "fake/RulesRig.h"
#include "fake/ScriptedRandom.h"

namespace marivox {
namespace {

class TargetSelectionTest : public ::testing::Test {
  protected:
    void SetUp() override { rig.boards.InitializeBoards(); }

    void lay(int row, int col, ShipType type, bool horizontal = true) {
        for (int i = 0; i < shipInfo(type).length; ++i) {
            rig.state.MyOcean.set(horizontal ? row : row + i, horizontal ? col + i : col,
                                  shipInfo(type).intactCode);
        }
    }

    // The computer's turn as the game plays it: choose, then fire where it chose.
    std::pair<int, int> computerTurn() {
        rig.halDelay->switchOff();
        rig.targeting.chooseTarget();
        EXPECT_TRUE(rig.halDelay->isOn());
        const std::pair<int, int> target{s.HalRow, s.HalCol};
        rig.halShots.HalShot(s.HalRow, s.HalCol);
        return target;
    }

    void hitAt(int row, int col) {
        s.HalRow = static_cast<std::int16_t>(row);
        s.HalCol = static_cast<std::int16_t>(col);
        rig.halShots.HalShot(s.HalRow, s.HalCol);
    }

    fake::RulesRig rig;
    GameState& s = rig.state;
};

TEST_F(TargetSelectionTest, RandomShotsOnlyChooseCellsNotFiredAt) {
    // Everything fired at except a handful of cells of water and ship.
    const std::set<std::pair<int, int>> open{{1, 1}, {5, 5}, {9, 9}, {3, 7}, {7, 2}};
    for (int row = 1; row <= 9; ++row) {
        for (int col = 1; col <= 9; ++col) {
            s.MyOcean.set(row, col, (row + col) % 2 == 0 ? 0 : 23);
        }
    }
    s.MyOcean.set(1, 1, 1);
    s.MyOcean.set(5, 5, 1);
    s.MyOcean.set(9, 9, 15);
    s.MyOcean.set(3, 7, 10);
    s.MyOcean.set(7, 2, 1);
    std::set<std::pair<int, int>> chosen;
    for (int i = 0; i < 300; ++i) {
        rig.halDelay->switchOff();
        rig.targeting.HalRandomShot();
        ASSERT_TRUE(open.contains({s.HalRow, s.HalCol})) << s.HalRow << "," << s.HalCol;
        EXPECT_TRUE(rig.halDelay->isOn());
        chosen.insert({s.HalRow, s.HalCol});
    }
    EXPECT_EQ(chosen, open);
}

TEST_F(TargetSelectionTest, RandomShotClearsTheHuntMemoryEvenWhenNotHunting) {
    s.HalHitCount = 3;
    s.HalHuntShip = 12;
    s.HalHitShip = 22;
    s.HalLastRow = 4;
    s.HalLastCol = 6;
    fake::ScriptedRandom draws{2, 3};
    TargetSelection targeting(s, rig.guard, draws, *rig.halDelay);
    targeting.chooseTarget();
    EXPECT_EQ(s.HalRow, 2);
    EXPECT_EQ(s.HalCol, 3);
    for (const std::int16_t field :
         {s.HalHitCount, s.HalHunting, s.HalHuntShip, s.HalHitShip, s.HalLastRow, s.HalLastCol}) {
        EXPECT_EQ(field, 0);
    }
}

TEST_F(TargetSelectionTest, RandomShotRedrawsRowAndColumnUntilTheCellIsNew) {
    s.MyOcean.set(4, 4, 0);
    s.MyOcean.set(6, 1, 21);
    fake::ScriptedRandom draws{4, 4, 6, 1, 8, 2};
    TargetSelection targeting(s, rig.guard, draws, *rig.halDelay);
    targeting.HalRandomShot();
    EXPECT_TRUE(draws.exhausted());
    EXPECT_EQ(s.HalRow, 8);
    EXPECT_EQ(s.HalCol, 2);
}

TEST_F(TargetSelectionTest, AfterAHitAtE5ItTriesD5ThenAfterAMissThereF5) {
    lay(5, 5, ShipType::Cruiser, /*horizontal=*/false);  // E5 to H5
    hitAt(5, 5);
    EXPECT_EQ(computerTurn(), std::make_pair(4, 5));  // D5: open water, a miss
    EXPECT_EQ(s.MyOcean(4, 5), 0);
    EXPECT_EQ(s.HalHitCount, 1);
    EXPECT_EQ(computerTurn(), std::make_pair(6, 5));  // F5: the cruiser
    EXPECT_EQ(s.HalHitCount, 2);
}

TEST_F(TargetSelectionTest, HitOnRowASkipsUpwardAndTriesRowB) {
    lay(1, 3, ShipType::Destroyer);  // A3 to A6
    hitAt(1, 4);
    EXPECT_EQ(computerTurn(), std::make_pair(2, 4));
}

TEST_F(TargetSelectionTest, AnotherShipNextToTheHitEndsThatDirection) {
    lay(5, 5, ShipType::Submarine);   // E5, E6
    lay(4, 5, ShipType::PatrolBoat);  // D5 to D7, above the submarine
    lay(6, 4, ShipType::Battleship);  // F4 to F7, below it
    s.MyOcean.set(6, 5, 21);          // ...with F5 already hit
    s.HalHits[ShipType::Battleship] = 1;
    hitAt(5, 5);
    // Up is the patrol boat, down a hit on the battleship: both end at once. Left is water.
    EXPECT_EQ(computerTurn(), std::make_pair(5, 4));
    EXPECT_EQ(computerTurn(), std::make_pair(5, 6));
    EXPECT_EQ(s.HalSunk[ShipType::Submarine], kTrue);
    EXPECT_EQ(s.MyOcean(4, 5), 14);
}

TEST_F(TargetSelectionTest, TwoHitsOnARowShipLeadToTheLowestIntactCellsInTurn) {
    lay(5, 3, ShipType::Destroyer);  // E3 to E6
    hitAt(5, 5);
    hitAt(5, 4);
    EXPECT_EQ(computerTurn(), std::make_pair(5, 3));
    EXPECT_EQ(s.HalSunk[ShipType::Destroyer], kFalse);
    EXPECT_EQ(computerTurn(), std::make_pair(5, 6));
    EXPECT_EQ(s.HalSunk[ShipType::Destroyer], kTrue);
    EXPECT_EQ(s.HalHunting, kFalse);
}

TEST_F(TargetSelectionTest, SubmarineIsFinishedByTheNeighbourSearchThenShotsTurnRandom) {
    lay(3, 3, ShipType::Submarine, /*horizontal=*/false);  // C3, D3
    hitAt(4, 3);
    EXPECT_EQ(computerTurn(), std::make_pair(3, 3));
    EXPECT_EQ(s.HalSunk[ShipType::Submarine], kTrue);
    EXPECT_EQ(s.HalHunting, kFalse);
    s.HalHitCount = 7;  // a random turn clears whatever is left
    computerTurn();
    EXPECT_EQ(s.HalHitCount, 0);
}

TEST_F(TargetSelectionTest, NoTargetMeansNoTimer) {
    s.HalHunting = kTrue;
    s.HalHitCount = 2;
    s.HalHuntShip = 13;  // no destroyer cell on the board
    s.HalRow = 7;
    s.HalCol = 8;
    rig.targeting.HalFindShot();
    EXPECT_FALSE(rig.halDelay->isOn());
    EXPECT_EQ(s.HalRow, 7);
    EXPECT_EQ(s.HalCol, 8);
}

}  // namespace
}  // namespace marivox
