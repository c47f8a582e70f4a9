// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "fake/ScreenRig.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

TEST(HandlerFailures, AnnouncementFailingBeforeItsNextTimerLeavesTheComputersTurnPending) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    const auto water = rig.cellHolding(rig.state().HalOcean, CellCode::OpenWater);
    rig.fireAt(water->first, water->second);
    rig.transcript.failAt("timer tmrTimer1 on");
    rig.timers.advance(10000);
    EXPECT_TRUE(rig.transcript.contains(
        "box 64 \"Marivox\" \"Error: 1234 Injected failure in tmrHalDelay_Timer()\""));
    EXPECT_EQ(rig.state().TurnState, kComputersTurn);
    EXPECT_FALSE(rig.timers.anyPending());
    // Keys are ignored now; a click on the grid still fires.
    rig.transcript.clear();
    rig.press(KeyCode::Return);
    EXPECT_TRUE(rig.transcript.lines().empty());
}

TEST(HandlerFailures, ShotFailingMidwayLeavesShootingSetSoOnlyClicksFire) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.grid().recordColours = true;
    rig.transcript.failAt("grid colours 2,2");
    rig.grid().playerClicks(2, 2);
    EXPECT_EQ(rig.state().Shooting, kTrue);
    rig.state().TurnState = kPlayersTurn;
    rig.grid().playerMovesTo(3, 3);
    rig.transcript.clear();
    rig.press(KeyCode::Return);
    EXPECT_EQ(rig.transcript.linesStartingWith("grid 3,3").size(), 0u);
    rig.grid().playerClicks(3, 3);
    EXPECT_EQ(rig.transcript.linesStartingWith("grid 3,3").size(), 1u);
}

TEST(HandlerFailures, StatusGoesOnWhenOneLineCannotBeSpoken) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.transcript.failAt("speak \" You have sank");
    rig.press(KeyCode::F2);
    EXPECT_TRUE(rig.transcript.contains("box 64 \"Marivox\" \"Injected failure; Speak()\""));
    EXPECT_EQ(rig.transcript.lines().back(), "speak \" I have sank  0 of your ships.  \"");
}

TEST(HandlerFailures, BeginGameFailingAfterSetUpStartsLeavesSettingUpAndNoGame) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.state().GameInProgress = kFalse;
    rig.transcript.failAt("grid 5,5 \" \"");
    rig.screen().BeginGame();
    EXPECT_EQ(rig.state().SettingUp, kTrue);
    EXPECT_EQ(rig.state().GameInProgress, kFalse);
    EXPECT_FALSE(rig.screen().tmrStartDelay().isOn());
}

}  // namespace
}  // namespace marivox
