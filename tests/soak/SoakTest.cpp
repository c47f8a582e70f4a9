// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <iostream>
#include <random>

#include "fake/Rig.h"
#include "model/Consistency.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

bool any(const Lines& lines, const std::string& start) {
    return std::any_of(lines.begin(), lines.end(), [&](auto& l) { return l.starts_with(start); });
}

std::string markOf(std::int16_t code) {
    const auto ship = shipWithHitCode(code);
    return ship ? std::string(shipInfo(*ship).letter) : code == CellCode::FiredWater ? "M" : " ";
}

// What must hold of the whole game state after every event of random play: its own
// consistency (codes, rim, straight fleets, tallies, flags, the computer's hunt), a board showing
// what the player has learnt with each new mark at the player's target, a computer that aims only
// at cells not fired at and whose turn is always on its way, and between events a game under way,
// not half set up, with no shot in hand.
std::string problemAfter(const Lines& lines, fake::Rig& rig) {
    GameState& s = rig.state();
    const bool newGame = any(lines, "sound /opt/marivox/begin.wav");
    std::string problem = consistencyProblem(s);
    for (int cell = 0; cell < 81 && (newGame || any(lines, "grid ")); ++cell) {
        const int row = cell / 9 + 1, col = cell % 9 + 1;
        if (rig.window.board.textMatrix(row, col) != markOf(s.HalOcean(row, col))) {
            problem += "the board does not show what the player learnt; ";
        }
    }
    if (!newGame && any(lines, "grid ") &&
        !any(lines, "grid " + std::to_string(s.MyRow) + "," + std::to_string(s.MyCol) + " ")) {
        problem += "a mark was written away from the player's target; ";
    }
    const std::int16_t aimed = s.MyOcean(s.HalRow, s.HalCol);
    if (any(lines, "timer tmrHalDelay on") && (aimed < 1 || aimed > 15)) {
        problem += "the computer aimed at a cell it had fired at; ";
    }
    if (any(lines, "box 64 \"Marivox\"") || any(lines, "box 0")) {
        problem += "a failure was reported in normal play; ";
    }
    GameScreen& screen = rig.system.screen;
    if (!rig.app.ended && s.TurnState == kComputersTurn && !screen.tmrHalDelay().isOn() &&
        !screen.tmrTimer1().isOn()) {
        problem += "the computer's turn is not on its way; ";
    }
    if (!rig.app.ended && (s.GameInProgress != kTrue || s.SettingUp || s.Shooting)) {
        problem += "between events no game is under way, or it is half set up or shooting";
    }
    return problem;
}

std::uint64_t fromEnvironment(const char* name, std::uint64_t fallback) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0' ? std::strtoull(value, nullptr, 10) : fallback;
}

// Every input the program can get, in random order and timing: keys, clicks, virtual time,
// every menu command, every answer to every box and dialog; over the real game screen,
// checked after every event. MARIVOX_SOAK_GAMES sets how many games to finish (a long run:
// 100000), MARIVOX_SOAK_SEED picks or replays a run.
TEST(Soak, RandomPlayKeepsEveryInvariantGameAfterGame) {
    const std::uint64_t seed = fromEnvironment("MARIVOX_SOAK_SEED", 20261123);
    std::cout << "soak seed " << seed << " (MARIVOX_SOAK_SEED=" << seed << " replays it)\n";
    std::mt19937_64 random(seed);
    const auto roll = [&](int high) { return std::uniform_int_distribution(0, high)(random); };
    std::unique_ptr<fake::Rig> rig;
    std::uint64_t games = 0, events = 0, runs = 0;
    const auto scriptTheReaderDialog = [&] {
        rig->dialog.steps = {roll(3) - 2, roll(3) - 2, roll(3) - 2, roll(1)};  // -2: close box
    };
    static constexpr std::int16_t kKeys[] = {
        KeyCode::Up, KeyCode::Down,  KeyCode::Left, KeyCode::Right, KeyCode::Return,
        KeyCode::F2, KeyCode::Shift, 'A',           KeyCode::F1};
    static constexpr void (GameScreenEvents::*kMenu[])() = {
        &GameScreenEvents::mnuOptionsShoot_Click, &GameScreenEvents::mnuOptionsStatus_Click,
        &GameScreenEvents::mnuGameNew_Click,      &GameScreenEvents::mnuGameExit_Click,
        &GameScreenEvents::mnuGameReader_Click,   &GameScreenEvents::mnuHelpContents_Click,
        &GameScreenEvents::mnuHelpAbout_Click};
    while (games < fromEnvironment("MARIVOX_SOAK_GAMES", 2000)) {
        if (!rig || rig->app.ended || rig->window.closed) {
            rig = std::make_unique<fake::Rig>(random());
            rig->boxes.answerer = [&](std::string_view text) {  // mostly play on
                return roll(99) < (text.find("play again") != text.npos ? 95 : 15) ? 6 : 7;
            };
            const char* stored[] = {"JFW", "WE", "None", ""};  // "": nothing, and the dialog
            rig->settings.stored[fake::Rig::kReaderSetting] = stored[roll(3)];
            std::erase_if(rig->settings.stored, [](auto& entry) { return entry.second.empty(); });
            scriptTheReaderDialog();
            rig->system.Main();
            rig->t.lines.clear();
            ++runs;
        }
        const int event = roll(999);
        scriptTheReaderDialog();
        if (event < 450) {
            rig->window.press(kKeys[event < 360 ? event % 5 : event % 9]);
        } else if (event < 730) {
            rig->timers.advance(1 + roll(2999));
        } else if (event < 890) {
            rig->window.board.playerClicks(1 + roll(8), 1 + roll(8));
        } else if (event < 994) {
            (rig->system.screen.*kMenu[event % 2])();
        } else {
            event == 994 ? rig->window.unload() : (rig->system.screen.*kMenu[event - 993])();
        }
        const Lines lines = std::exchange(rig->t.lines, {});
        games += std::count_if(lines.begin(), lines.end(), [](auto& line) {
            return line.find("play again?") != std::string::npos;
        });
        ++events;
        ASSERT_EQ(problemAfter(lines, *rig), "")
            << "after event " << events << " (" << event << ") of program run " << runs
            << ", which did " << ::testing::PrintToString(lines);
    }
    std::cout << "finished " << games << " games over " << runs << " runs of the program\n";
}

}  // namespace
}  // namespace marivox
