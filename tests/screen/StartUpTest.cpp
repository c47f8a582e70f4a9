// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "fake/ScreenRig.h"
#include "model/Consistency.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

Lines between(const Lines& lines, const std::string& from, const std::string& to) {
    const auto first = std::find(lines.begin(), lines.end(), from);
    const auto last = std::find(first, lines.end(), to);
    return Lines(first, last);
}

bool anySpeech(const Lines& lines) {
    return std::any_of(lines.begin(), lines.end(), [](const std::string& line) {
        return line.starts_with("speak") || line == "stop";
    });
}

TEST(StartUp, FirstStartAsksForTheReaderThenBeginsAndPromptsOnce) {
    fake::ScreenRig rig;
    rig.readerDialog.thenChoose(0);
    rig.system.Main();
    const Lines& lines = rig.transcript.lines();
    const Lines opening{"window load", "window show", "setting get Marivox/StartUp/Reader",
                        "reader dialog open"};
    ASSERT_TRUE(std::equal(opening.begin(), opening.end(), lines.begin()));
    EXPECT_TRUE(rig.transcript.contains("setting save Marivox/StartUp/Reader \"JFW\""));
    EXPECT_EQ(rig.transcript.linesStartingWith("sound"),
              (Lines{"sound /opt/marivox/begin.wav", "sound /opt/marivox/sonar.wav"}));
    EXPECT_EQ(lines.back(), "timer tmrStartDelay on");
    EXPECT_EQ(rig.application.helpFile(), "/opt/marivox\\marvox.hlp");
    EXPECT_EQ(rig.application.title(), "Marivox");

    rig.transcript.clear();
    rig.timers.advance(99);
    EXPECT_TRUE(rig.transcript.lines().empty());
    rig.timers.advance(1);
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"timer tmrStartDelay tick", "stop", "speak \" press f 1 for help  \"",
                     "speak \" press f 2 for status  \"",
                     "speak \" it is your turn, and you are located at A 1 \"",
                     "timer tmrStartDelay off"}));
    rig.transcript.clear();
    rig.timers.advance(60000);
    EXPECT_TRUE(rig.transcript.lines().empty());
}

TEST(StartUp, BeginGameLeavesABlankBoardFleetsLaidAndThePlayersTurn) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    for (int row = 1; row <= 9; ++row) {
        for (int col = 1; col <= 9; ++col) {
            ASSERT_EQ(rig.grid().textMatrix(row, col), " ");
        }
    }
    EXPECT_EQ(rig.grid().row(), 1);
    EXPECT_EQ(rig.grid().col(), 1);
    EXPECT_EQ(rig.state().TurnState, kPlayersTurn);
    EXPECT_EQ(rig.state().GameInProgress, kTrue);
    EXPECT_EQ(rig.state().SettingUp, kFalse);
    EXPECT_EQ(consistencyProblem(rig.state()), "");
    EXPECT_TRUE(rig.cellHolding(rig.state().HalOcean, 15).has_value());
    EXPECT_TRUE(rig.cellHolding(rig.state().MyOcean, 10).has_value());
}

TEST(NewGame, DoesNothingWhenNoGameIsUnderWay) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.state().GameInProgress = kFalse;
    rig.screen().mnuGameNew_Click();
    EXPECT_TRUE(rig.transcript.lines().empty());
}

TEST(NewGame, AnsweredNoChangesNothingAndRemindsWhereTheCursorIs) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.fireAt(3, 7);
    rig.grid().playerMovesTo(3, 7);
    const GameState before = rig.state();
    const std::string mark = rig.grid().textMatrix(3, 7);
    rig.transcript.clear();
    rig.boxes.answerNext(MsgBoxAnswer::No);
    rig.screen().mnuGameNew_Click();
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"box 36 \"Marivox\" \"There is already a game in progress.\\r\\nAre you "
                     "sure you want to start a new game?\\r\\n\"",
                     "answer 7", "speak \"It is your turn and you are located at C  7\""}));
    EXPECT_EQ(rig.state(), before);
    EXPECT_EQ(rig.grid().textMatrix(3, 7), mark);
}

TEST(NewGame, AnsweredYesBeginsAgainSilentlyThenPrompts) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.fireAt(5, 5);
    rig.transcript.clear();
    rig.boxes.answerNext(MsgBoxAnswer::Yes);
    rig.screen().mnuGameNew_Click();
    const Lines setUp = between(rig.transcript.lines(), "answer 6", "timer tmrStartDelay on");
    EXPECT_FALSE(anySpeech(setUp));  // cursor moves while setting up are silent
    EXPECT_EQ(rig.transcript.linesStartingWith("sound"),
              (Lines{"sound /opt/marivox/begin.wav", "sound /opt/marivox/sonar.wav"}));
    EXPECT_EQ(rig.grid().textMatrix(5, 5), " ");
    EXPECT_EQ(rig.grid().row(), 1);
    EXPECT_EQ(rig.grid().col(), 1);
    rig.transcript.clear();
    rig.timers.advance(100);
    EXPECT_TRUE(rig.transcript.contains("speak \" press f 1 for help  \""));
}

TEST(NewGame, ComputersPendingTurnIsPlayedOnTheNewBoard) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    const auto water = rig.cellHolding(rig.state().HalOcean, CellCode::OpenWater);
    rig.fireAt(water->first, water->second);
    const int row = rig.state().HalRow;
    const int col = rig.state().HalCol;
    rig.boxes.answerNext(MsgBoxAnswer::Yes);
    rig.screen().mnuGameNew_Click();
    rig.transcript.clear();
    rig.timers.advance(4500);
    EXPECT_TRUE(rig.transcript.contains("timer tmrTimer1 tick"));
    EXPECT_NE(rig.state().MyOcean(row, col), CellCode::OpenWater);
    EXPECT_EQ(rig.state().TurnState, kPlayersTurn);
}

TEST(Exit, AnsweredNoKeepsTheWindowAndRemindsEvenInTheComputersTurn) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.state().TurnState = kComputersTurn;
    rig.grid().playerMovesTo(9, 2);
    const GameState before = rig.state();
    rig.transcript.clear();
    rig.screen().mnuGameExit_Click();
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"window unload",
                     "box 36 \"Marivox\" \"There is a game in progress.\\r\\nAre you sure you "
                     "want to exit the program?\\r\\n\"",
                     "answer 7", "speak \"It is your turn and you are located at I  2\""}));
    EXPECT_FALSE(rig.window.closed());
    EXPECT_EQ(rig.state(), before);
}

TEST(Exit, AnsweredYesClosesOtherWindowsPlaysTheEndSoundAndCloses) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.boxes.answerNext(MsgBoxAnswer::Yes);
    rig.screen().mnuGameExit_Click();
    const Lines& lines = rig.transcript.lines();
    EXPECT_EQ(Lines(lines.end() - 3, lines.end()),
              (Lines{"unload other windows", "sound /opt/marivox/end.wav", "window closed"}));
    EXPECT_FALSE(rig.application.ended());
}

TEST(Exit, WithNoGameUnderWayAsksNothing) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.state().GameInProgress = kFalse;
    rig.screen().mnuGameExit_Click();
    EXPECT_EQ(rig.transcript.lines(), (Lines{"window unload", "unload other windows",
                                             "sound /opt/marivox/end.wav", "window closed"}));
}

TEST(Exit, ReleasesTheWindowEyesObjectOnlyWhenItIsTheChoice) {
    for (const std::string stored : {"WE", " WE ", "JFW", "we"}) {
        fake::ScreenRig rig;
        rig.startAndSettle(stored);
        rig.state().GameInProgress = kFalse;
        rig.screen().mnuGameExit_Click();
        const bool windowEyes = stored == "WE" || stored == " WE ";
        EXPECT_EQ(rig.transcript.contains("we released"), windowEyes) << stored;
        EXPECT_EQ(rig.system.reader.WESpeech == nullptr, true) << stored;
    }
}

}  // namespace
}  // namespace marivox
