// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake/RulesRig.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

// A computer fleet laid by hand: every ship in its own row, starting at column 1.
class PlayerShotsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        rig.boards.InitializeBoards();
        for (const ShipInfo& ship : kShips) {
            const int row = rowOf(ship.type);
            for (int col = 1; col <= ship.length; ++col) {
                rig.state.HalOcean.set(row, col, ship.intactCode);
            }
        }
        rig.state.TurnState = kPlayersTurn;
    }

    static int rowOf(ShipType type) { return static_cast<int>(type) + 1; }

    void fireAt(int row, int col) {
        rig.state.MyRow = static_cast<std::int16_t>(row);
        rig.state.MyCol = static_cast<std::int16_t>(col);
        rig.playerShots.MyShot();
    }

    void sink(ShipType type) {
        for (int col = 1; col <= shipInfo(type).length; ++col) {
            fireAt(rowOf(type), col);
        }
    }

    fake::RulesRig rig;
};

TEST_F(PlayerShotsTest, FreshMissMarksTheCellPassesTheTurnThenSoundsAndSpeaks) {
    fireAt(2, 7);
    EXPECT_EQ(rig.state.HalOcean(2, 7), 0);
    EXPECT_EQ(rig.state.TurnState, kComputersTurn);
    EXPECT_EQ(rig.transcript.lines(), (Lines{"grid 2,7 \"M\"", "sound \\shoot.wav", "stop",
                                             "speak \"B  7 was a miss  \""}));
}

TEST_F(PlayerShotsTest, RepeatedMissOnlySpeaksAndKeepsThePlayersTurn) {
    fireAt(2, 7);
    rig.state.TurnState = kPlayersTurn;
    rig.transcript.clear();
    fireAt(2, 7);
    EXPECT_EQ(rig.state.TurnState, kPlayersTurn);
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"stop", "speak \"B  7 was already targeted, and was a miss  \""}));
}

TEST_F(PlayerShotsTest, CarrierTakesFourHitsThenSinksSilentlyOfItsCellOnTheFifth) {
    for (int col = 1; col <= 4; ++col) {
        rig.transcript.clear();
        fireAt(1, col);
        EXPECT_EQ(rig.transcript.lines(), (Lines{"grid 1," + std::to_string(col) + " \"A\"",
                                                 "sound \\shoot.wav", "sound \\hit.wav", "stop",
                                                 "speak \"A  " + std::to_string(col) +
                                                     " was a hit on my air craft carrier  \""}));
    }
    rig.transcript.clear();
    fireAt(1, 5);
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"grid 1,5 \"A\"", "sound \\shoot.wav", "sound \\hit.wav", "sound \\sink.wav",
                     "speak \" You sank my air craft carrier  \""}));
    EXPECT_EQ(rig.state.MySunk[ShipType::Carrier], kTrue);
    EXPECT_EQ(rig.state.MySunkCount, 1);
    EXPECT_EQ(rig.state.MyHits[ShipType::Carrier], 5);
}

TEST_F(PlayerShotsTest, EachShipSinksOnTheHitThatCompletesItsLength) {
    for (const ShipInfo& ship : kShips) {
        for (int col = 1; col <= ship.length; ++col) {
            rig.transcript.clear();
            fireAt(rowOf(ship.type), col);
            const bool last = col == ship.length;
            EXPECT_EQ(rig.state.MySunk[ship.type], last ? kTrue : kFalse) << ship.letter << col;
            EXPECT_EQ(rig.transcript.contains("sound \\sink.wav"), last) << ship.letter << col;
            EXPECT_EQ(rig.grid.textMatrix(rowOf(ship.type), col), ship.letter);
        }
    }
}

TEST_F(PlayerShotsTest, BattleshipIsSpelledApartWhenFreshAndTogetherWhenRepeated) {
    const int row = rowOf(ShipType::Battleship);
    fireAt(row, 1);
    EXPECT_EQ(rig.transcript.lines().back(), "speak \"D  1 was a hit on my Battle ship  \"");
    fireAt(row, 1);
    EXPECT_EQ(rig.transcript.lines().back(),
              "speak \"D  1 was already targeted, and was a hit on my battle ship  \"");
    sink(ShipType::Battleship);
    EXPECT_EQ(rig.transcript.lines().back(), "speak \" You sank my Battle ship  \"");
}

TEST_F(PlayerShotsTest, ShotAtAHitCellChangesNothing) {
    const int row = rowOf(ShipType::Cruiser);
    fireAt(row, 2);
    EXPECT_EQ(rig.state.HalOcean(row, 2), 22);
    rig.state.TurnState = kPlayersTurn;
    const GameState before = rig.state;
    rig.transcript.clear();
    fireAt(row, 2);
    EXPECT_EQ(rig.state, before);
    EXPECT_EQ(
        rig.transcript.lines(),
        (Lines{"stop", "speak \"B  2 was already targeted, and was a hit on my cruiser  \""}));
}

TEST_F(PlayerShotsTest, SixthSinkingEndsTheGameWithoutAnnouncingIt) {
    for (const ShipType type : kShipTypes) {
        EXPECT_FALSE(rig.boards.GameOver());
        sink(type);
    }
    EXPECT_EQ(rig.state.MySunkCount, 6);
    EXPECT_TRUE(rig.boards.GameOver());
    EXPECT_EQ(rig.transcript.lines().back(), "speak \" You sank my submarine  \"");
    EXPECT_TRUE(rig.transcript.linesStartingWith("box").empty());
}

TEST_F(PlayerShotsTest, CellHoldingACodeNoRuleKnowsIsLeftAlone) {
    rig.state.HalOcean.set(9, 9, 5);
    fireAt(9, 9);
    EXPECT_EQ(rig.state.HalOcean(9, 9), 5);
    EXPECT_TRUE(rig.transcript.lines().empty());
}

}  // namespace
}  // namespace marivox
