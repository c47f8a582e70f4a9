// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake/ScreenRig.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

TEST(Status, AtTheStartSpeaksOnlyTheTwoCounts) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.press(KeyCode::F2);
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"stop", "stop", "speak \" You have sank  0 of my ships.  \"",
                     "speak \" I have sank  0 of your ships.  \""}));
}

TEST(Status, NamesSunkShipsInShipTypeOrderNotSinkingOrder) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    GameState& s = rig.state();
    s.MySunk[ShipType::Submarine] = kTrue;
    s.MySunk[ShipType::Carrier] = kTrue;
    s.MySunkCount = 2;
    s.HalSunk[ShipType::PatrolBoat] = kTrue;
    s.HalSunk[ShipType::Cruiser] = kTrue;
    s.HalSunk[ShipType::Battleship] = 1;  // not True: only -1 counts
    s.HalSunkCount = 2;
    rig.screen().mnuOptionsStatus_Click();
    EXPECT_EQ(
        rig.transcript.linesStartingWith("speak"),
        (Lines{"speak \" You have sank  2 of my ships.  \"", "speak \" my air craft carrier \"",
               "speak \" my submarine \"", "speak \" I have sank  2 of your ships.  \"",
               "speak \" your cruiser \"", "speak \" your patrol boat \""}));
}

TEST(Keys, EnterFiresAtTheCursorCell) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.grid().playerMovesTo(4, 2);
    rig.press(KeyCode::Return);
    EXPECT_NE(rig.grid().textMatrix(4, 2), " ");
    EXPECT_EQ(rig.state().TurnState, kComputersTurn);
}

TEST(Shoot, WhileAShotIsBeingProcessedOnlyStopsSpeech) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.state().Shooting = kTrue;
    rig.screen().mnuOptionsShoot_Click();
    EXPECT_EQ(rig.transcript.lines(), (Lines{"stop"}));
    EXPECT_EQ(rig.state().TurnState, kPlayersTurn);
}

TEST(Shoot, FromTheMenuFiresEvenInTheComputersTurn) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.state().TurnState = kComputersTurn;
    rig.grid().playerMovesTo(9, 9);
    rig.screen().mnuOptionsShoot_Click();
    EXPECT_NE(rig.grid().textMatrix(9, 9), " ");
}

TEST(Menus, NewGameWorksInTheComputersTurn) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.state().TurnState = kComputersTurn;
    rig.boxes.answerNext(MsgBoxAnswer::Yes);
    rig.screen().mnuGameNew_Click();
    EXPECT_EQ(rig.state().TurnState, kPlayersTurn);
    EXPECT_TRUE(rig.screen().tmrStartDelay().isOn());
}

}  // namespace
}  // namespace marivox
