// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake/ScreenRig.h"
#include "model/CellName.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

// What the computer's shot at (row, col) should sound like on the player's ocean as it
// stands before the shot.
Lines computerShotLines(const GameState& s, int row, int col) {
    const std::int16_t code = s.MyOcean(row, col);
    const std::string cell =
        cellName(static_cast<std::int16_t>(row), static_cast<std::int16_t>(col));
    if (code == CellCode::OpenWater) {
        return {"sound /opt/marivox/shoot.wav", "stop", "speak \"" + cell + " was a miss  \""};
    }
    const ShipInfo& ship = shipInfo(*shipWithIntactCode(code));
    return {"sound /opt/marivox/shoot.wav", "sound /opt/marivox/hit.wav", "stop",
            "speak \"" + cell + std::string(ship.halHitText) + "\""};
}

class TurnCycleTest : public ::testing::Test {
  protected:
    void SetUp() override { rig.startAndSettle(); }

    std::pair<int, int> openWater() {
        return *rig.cellHolding(rig.state().HalOcean, CellCode::OpenWater);
    }

    // Sinks every ship of the computer's but the last cell of its submarine, by clicks.
    std::pair<int, int> leaveOneCellToWin() {
        std::pair<int, int> last{};
        for (int row = 1; row <= 9; ++row) {
            for (int col = 1; col <= 9; ++col) {
                const std::int16_t code = rig.state().HalOcean(row, col);
                if (code == 15 && last.first == 0) {
                    last = {row, col};
                } else if (code >= 10 && code <= 15) {
                    rig.grid().playerClicks(row, col);
                }
            }
        }
        return last;
    }

    // Leaves the player's fleet one cell from sunk and aims the computer there.
    void aimComputerAtLastCell() {
        GameState& s = rig.state();
        bool aimed = false;
        for (int row = 1; row <= 9; ++row) {
            for (int col = 1; col <= 9; ++col) {
                const auto ship = shipWithIntactCode(s.MyOcean(row, col));
                if (!ship) {
                    continue;
                }
                if (!aimed && *ship == ShipType::Submarine) {
                    s.HalRow = static_cast<std::int16_t>(row);
                    s.HalCol = static_cast<std::int16_t>(col);
                    aimed = true;
                    continue;
                }
                s.MyOcean.set(row, col, static_cast<std::int16_t>(s.MyOcean(row, col) + 10));
                ++s.HalHits[*ship];
            }
        }
        for (const ShipInfo& ship : kShips) {
            if (s.HalHits[ship.type] == ship.length) {
                s.HalSunk[ship.type] = kTrue;
                ++s.HalSunkCount;
            }
        }
        ASSERT_EQ(s.HalSunkCount, 5);
        s.TurnState = kComputersTurn;
        rig.screen().tmrTimer1().switchOn();
    }

    fake::ScreenRig rig;
};

TEST_F(TurnCycleTest, AfterAMissTheComputerAnnouncesFiresAndRemindsOnSchedule) {
    const auto [row, col] = openWater();
    rig.grid().playerMovesTo(row, col);
    rig.transcript.clear();
    rig.press(KeyCode::Return);
    const std::string cell =
        cellName(static_cast<std::int16_t>(row), static_cast<std::int16_t>(col));
    EXPECT_EQ(rig.transcript.linesStartingWith("speak"),
              (Lines{"speak \"" + cell + " was a miss  \""}));
    EXPECT_EQ(rig.transcript.lines().back(), "timer tmrHalDelay on");
    const int halRow = rig.state().HalRow;
    const int halCol = rig.state().HalCol;
    const std::string target =
        cellName(static_cast<std::int16_t>(halRow), static_cast<std::int16_t>(halCol));
    const Lines shot = computerShotLines(rig.state(), halRow, halCol);

    rig.transcript.clear();
    rig.timers.advance(1999);
    EXPECT_TRUE(rig.transcript.lines().empty());
    rig.timers.advance(1);  // 2000 ms
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"timer tmrHalDelay tick", "speak \"It is my turn targeting " + target + "\"",
                     "timer tmrTimer1 on", "timer tmrHalDelay off"}));

    rig.transcript.clear();
    rig.timers.advance(2499);
    EXPECT_TRUE(rig.transcript.lines().empty());
    rig.timers.advance(1);  // 4500 ms
    Lines expected{"timer tmrTimer1 tick"};
    expected.insert(expected.end(), shot.begin(), shot.end());
    expected.insert(expected.end(), {"timer tmrTimer2 on", "timer tmrTimer1 off"});
    EXPECT_EQ(rig.transcript.lines(), expected);
    EXPECT_EQ(rig.state().TurnState, kPlayersTurn);

    rig.transcript.clear();
    rig.timers.advance(1999);
    EXPECT_TRUE(rig.transcript.lines().empty());
    rig.timers.advance(1);  // 6500 ms
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"timer tmrTimer2 tick",
                     "speak \"It is your turn and you are located at " + cell + "\"",
                     "timer tmrTimer2 off"}));
}

TEST_F(TurnCycleTest, ShotAtAFiredCellOnlySaysSoAndTheTurnStays) {
    const auto [row, col] = openWater();
    rig.fireAt(row, col);
    rig.timers.advance(4500);
    rig.transcript.clear();
    rig.fireAt(row, col);
    const std::string cell =
        cellName(static_cast<std::int16_t>(row), static_cast<std::int16_t>(col));
    EXPECT_EQ(rig.transcript.linesStartingWith("speak"),
              (Lines{"speak \"" + cell + " was already targeted, and was a miss  \""}));
    EXPECT_EQ(rig.state().TurnState, kPlayersTurn);
    EXPECT_FALSE(rig.timers.anyPending());
}

TEST_F(TurnCycleTest, WinningShotPlaysTheFanfareAndYesBeginsANewGame) {
    const auto [row, col] = leaveOneCellToWin();
    rig.transcript.clear();
    rig.boxes.answerNext(MsgBoxAnswer::Yes);
    rig.grid().playerClicks(row, col);
    const Lines& lines = rig.transcript.lines();
    const auto sink = std::find(lines.begin(), lines.end(), "speak \" You sank my submarine  \"");
    ASSERT_NE(sink, lines.end());
    EXPECT_EQ(Lines(sink + 1, sink + 5),
              (Lines{"sound /opt/marivox/youwin1.wav", "sound /opt/marivox/youwin2.wav",
                     "box 36 \"Marivox\" \"Congradulations, you win!\\r\\nDo you want to play "
                     "again?\\r\\n\"",
                     "answer 6"}));
    EXPECT_EQ(*(sink + 5), "sound /opt/marivox/begin.wav");
    EXPECT_EQ(rig.state().MySunkCount, 0);
    EXPECT_EQ(rig.state().GameInProgress, kTrue);
}

TEST_F(TurnCycleTest, DecliningToPlayAgainEndsAtOnceWithoutTheExitSteps) {
    const auto [row, col] = leaveOneCellToWin();
    rig.transcript.clear();
    rig.boxes.answerNext(MsgBoxAnswer::No);
    rig.grid().playerClicks(row, col);
    EXPECT_EQ(rig.transcript.lines().back(), "end program");
    EXPECT_FALSE(rig.transcript.contains("window unload"));
    EXPECT_FALSE(rig.transcript.contains("sound /opt/marivox/end.wav"));
    EXPECT_EQ(rig.state().GameInProgress, kFalse);
}

TEST_F(TurnCycleTest, ComputersWinningShotLaughsAsksAndKeepsTheTurn) {
    aimComputerAtLastCell();
    rig.transcript.clear();
    rig.boxes.answerNext(MsgBoxAnswer::No);
    rig.timers.advance(2500);
    const Lines& lines = rig.transcript.lines();
    const auto sink = std::find(lines.begin(), lines.end(), "speak \" I sank your submarine  \"");
    ASSERT_NE(sink, lines.end());
    EXPECT_EQ(Lines(sink + 1, lines.end()),
              (Lines{"sound /opt/marivox/laugh1.wav",
                     "box 36 \"Marivox\" \"Sorry, I win!\\r\\nDo you want to play again?\\r\\n\"",
                     "answer 7", "end program", "timer tmrTimer1 off"}));
    EXPECT_EQ(rig.state().TurnState, kComputersTurn);
    EXPECT_FALSE(rig.screen().tmrTimer2().isOn());
}

TEST_F(TurnCycleTest, ComputersWinAnsweredYesBeginsAgainAndThenStopsItsTimer) {
    aimComputerAtLastCell();
    rig.transcript.clear();
    rig.boxes.answerNext(MsgBoxAnswer::Yes);
    rig.timers.advance(2500);
    const Lines& lines = rig.transcript.lines();
    EXPECT_EQ(Lines(lines.end() - 2, lines.end()),
              (Lines{"timer tmrStartDelay on", "timer tmrTimer1 off"}));
    EXPECT_EQ(rig.state().HalSunkCount, 0);
    EXPECT_EQ(rig.state().TurnState, kPlayersTurn);
}

TEST_F(TurnCycleTest, KeyInTheReminderWindowStopsSpeechAndDropsTheReminder) {
    const auto [row, col] = openWater();
    rig.fireAt(row, col);
    rig.timers.advance(4500 + 1000);
    rig.transcript.clear();
    rig.press(KeyCode::Shift);
    EXPECT_EQ(rig.transcript.lines(), (Lines{"stop", "timer tmrTimer2 off"}));
    rig.timers.advance(5000);
    EXPECT_FALSE(rig.transcript.contains("timer tmrTimer2 tick"));
}

TEST_F(TurnCycleTest, EnterAndF2DoNothingInTheComputersTurnButArrowsStillMove) {
    const auto [row, col] = openWater();
    rig.fireAt(row, col);
    rig.transcript.clear();
    rig.press(KeyCode::Return);
    rig.press(KeyCode::F2);
    EXPECT_TRUE(rig.transcript.lines().empty());
    const int before = rig.grid().row();
    rig.press(before == 9 ? KeyCode::Up : KeyCode::Down);
    EXPECT_NE(rig.grid().row(), before);
    EXPECT_TRUE(rig.transcript.lines().empty());
}

TEST_F(TurnCycleTest, ClickInTheComputersTurnFiresAndReaimsWithoutRestartingTheDelay) {
    const auto [row, col] = openWater();
    rig.fireAt(row, col);
    rig.timers.advance(1000);
    const int shotsBefore = rig.state().HalOcean(row, col);
    // Another cell not fired at yet, by click: a fresh shot even in the computer's turn.
    std::pair<int, int> other{};
    for (int r = 1; r <= 9 && other.first == 0; ++r) {
        for (int c = 1; c <= 9; ++c) {
            const std::int16_t code = rig.state().HalOcean(r, c);
            if ((r != row || c != col) && code >= 1 && code <= 15) {
                other = {r, c};
                break;
            }
        }
    }
    rig.grid().playerClicks(other.first, other.second);
    EXPECT_EQ(shotsBefore, 0);
    EXPECT_NE(rig.grid().textMatrix(other.first, other.second), " ");
    const std::string newTarget = cellName(rig.state().HalRow, rig.state().HalCol);
    rig.transcript.clear();
    rig.timers.advance(1000);  // 2000 ms after the first shot, not after the click
    EXPECT_TRUE(rig.transcript.contains("speak \"It is my turn targeting " + newTarget + "\""));
}

}  // namespace
}  // namespace marivox
