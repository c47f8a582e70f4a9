// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake/RulesRig.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

class HalShotsTest : public ::testing::Test {
  protected:
    void SetUp() override { rig.boards.InitializeBoards(); }

    void lay(int row, int firstCol, ShipType type) {
        for (int i = 0; i < shipInfo(type).length; ++i) {
            rig.state.MyOcean.set(row, firstCol + i, shipInfo(type).intactCode);
        }
    }

    void fireAt(int row, int col) {
        rig.state.HalRow = static_cast<std::int16_t>(row);
        rig.state.HalCol = static_cast<std::int16_t>(col);
        rig.halShots.HalShot(rig.state.HalRow, rig.state.HalCol);
    }

    fake::RulesRig rig;
    GameState& s = rig.state;
};

TEST_F(HalShotsTest, MissMarksTheCellSoundsOnceAndLeavesTheHuntAlone) {
    lay(2, 1, ShipType::PatrolBoat);
    fireAt(2, 1);
    rig.transcript.clear();
    fireAt(5, 7);
    EXPECT_EQ(s.MyOcean(5, 7), 0);
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"sound \\shoot.wav", "stop", "speak \"E  7 was a miss  \""}));
    EXPECT_EQ(s.HalHunting, kTrue);
    EXPECT_EQ(s.HalHitCount, 1);
    EXPECT_EQ(s.HalLastRow, 2);
    EXPECT_EQ(s.HalLastCol, 1);
}

TEST_F(HalShotsTest, FirstHitStartsTheHuntFromTheHitCell) {
    lay(4, 3, ShipType::PatrolBoat);
    fireAt(4, 4);
    EXPECT_EQ(s.MyOcean(4, 4), 24);
    EXPECT_EQ(s.HalHits[ShipType::PatrolBoat], 1);
    EXPECT_EQ(s.HalHunting, kTrue);
    EXPECT_EQ(s.HalHuntShip, 14);
    EXPECT_EQ(s.HalHitCount, 1);
    EXPECT_EQ(s.HalHitShip, 24);
    EXPECT_EQ(s.HalLastRow, 4);
    EXPECT_EQ(s.HalLastCol, 4);
    EXPECT_EQ(rig.transcript.lines(), (Lines{"sound \\shoot.wav", "sound \\hit.wav", "stop",
                                             "speak \"D  4 was a hit on your patrol boat  \""}));
}

TEST_F(HalShotsTest, SinkingSpeaksWithoutTheCellAndForgetsTheHunt) {
    lay(9, 8, ShipType::Submarine);
    fireAt(9, 8);
    rig.transcript.clear();
    fireAt(9, 9);
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"sound \\shoot.wav", "sound \\hit.wav", "sound \\sink.wav",
                     "speak \" I sank your submarine  \""}));
    EXPECT_EQ(s.HalSunkCount, 1);
    EXPECT_EQ(s.HalSunk[ShipType::Submarine], kTrue);
    for (const std::int16_t field :
         {s.HalHitCount, s.HalHunting, s.HalHuntShip, s.HalHitShip, s.HalLastRow, s.HalLastCol}) {
        EXPECT_EQ(field, 0);
    }
}

TEST_F(HalShotsTest, EachShipNeedsAsManyHitsAsItIsLong) {
    int row = 1;
    for (const ShipInfo& ship : kShips) {
        lay(row, 1, ship.type);
        for (int col = 1; col <= ship.length; ++col) {
            EXPECT_EQ(s.HalSunk[ship.type], kFalse) << ship.letter;
            fireAt(row, col);
        }
        EXPECT_EQ(s.HalSunk[ship.type], kTrue) << ship.letter;
        EXPECT_EQ(rig.transcript.lines().back(), "speak \"" + std::string(ship.halSinkText) + "\"");
        ++row;
    }
    EXPECT_EQ(s.HalSunkCount, 6);
    EXPECT_EQ(rig.transcript.linesStartingWith("speak \"A  1 was a hit on your air craft carrier"),
              (Lines{"speak \"A  1 was a hit on your air craft carrier  \""}));
    EXPECT_EQ(rig.transcript.linesStartingWith("speak \"D  1").front(),
              "speak \"D  1 was a hit on your Battle ship  \"");
}

TEST_F(HalShotsTest, ShotAtACellFiredAtBeforeDoesNothing) {
    lay(3, 3, ShipType::Cruiser);
    fireAt(3, 3);
    fireAt(1, 1);
    const GameState before = s;
    rig.transcript.clear();
    fireAt(3, 3);
    fireAt(1, 1);
    EXPECT_EQ(s, before);
    EXPECT_TRUE(rig.transcript.lines().empty());
}

}  // namespace
}  // namespace marivox
