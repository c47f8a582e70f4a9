// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <random>

#include "fake/Rig.h"
#include "golden/Consistency.h"
#include "model/Ships.h"
#include "support/Titles.h"

namespace marivox {
namespace {

using fake::keyCode;
using fake::kMenu;
using fake::Rig;

// Random play against the invariants of the whole game state.

std::string markOf(std::int16_t code) {
    const auto ship = shipWithHitCode(code);
    return ship ? std::string(shipInfo(*ship).letter) : code == CellCode::FiredWater ? "M" : " ";
}

// What the fakes were asked during one event, counted from their own records, never from
// the transcript's words: a changed text cannot turn a check off.
struct EventCounts {
    int gridWrites = 0, halAimed = 0;
    std::size_t boxes = 0;
    static EventCounts of(Rig& rig) {
        auto& halDelay = dynamic_cast<fake::FakeTimers::Timer&>(rig.system.screen.tmrHalDelay());
        return {rig.window.board.writes, halDelay.switchedOn, rig.boxes.shown.size()};
    }
};

// What must hold after every event of random play: the game state's own consistency (codes,
// rim, straight fleets, tallies, flags, the computer's hunt), a board showing exactly what the
// player has learnt, a computer aiming only at cells not fired at and whose turn is always on
// its way, and a game under way, not half set up, with no shot in hand.
std::string problemAfter(const EventCounts& before, Rig& rig) {
    GameState& s = rig.state();
    const EventCounts after = EventCounts::of(rig);
    std::string problem = consistencyProblem(s);
    for (int cell = 0; cell < 81 && after.gridWrites != before.gridWrites; ++cell) {
        const int row = cell / 9 + 1, col = cell % 9 + 1;
        if (rig.window.board.textMatrix(row, col) != markOf(s.HalOcean(row, col))) {
            problem += "the board does not show what the player learnt; ";
        }
    }
    const std::int16_t aimed = s.MyOcean(s.HalRow, s.HalCol);
    if (after.halAimed != before.halAimed && (aimed < 1 || aimed > 15)) {
        problem += "the computer aimed at a cell it had fired at; ";
    }
    if (std::any_of(rig.boxes.shown.begin() + before.boxes, rig.boxes.shown.end(), [](auto& box) {
            return box.style == MsgBoxStyle::OkOnly ||
                   (box.style == MsgBoxStyle::Information && box.title == kGameScreenCaption);
        })) {
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
    std::unique_ptr<Rig> rig;
    std::uint64_t games = 0, events = 0, runs = 0;
    const auto scriptTheReaderDialog = [&] {
        rig->dialog.steps = {roll(3) - 2, roll(3) - 2, roll(3) - 2, roll(1)};  // -2: close box
    };
    const char* keys[] = {"Up", "Down", "Left", "Right",  "Enter",   "F2", "Shift",
                          "A",  "F1",   "F3",   "F4",     "F5",      "F6", "E",
                          "5",  "Home", "End",  "PageUp", "PageDown"};
    const std::uint64_t wanted = fromEnvironment("MARIVOX_SOAK_GAMES", 2000);
    // Random play ends a game in about 2,000 events, and has not been seen to need 12,000: a game
    // whose end never comes, or is never asked about, fails here instead of playing on for ever.
    constexpr std::uint64_t kEventsForAGame = 25000;
    std::uint64_t gameBegan = 0;
    while (games < wanted) {
        ASSERT_LT(events - gameBegan, kEventsForAGame)
            << "game " << games + 1 << " has not ended: is its end ever asked about?";
        if (!rig || rig->app.ended || rig->window.closed) {
            rig = std::make_unique<Rig>(random());
            rig->boxes.answerer = [&](std::string_view) {  // mostly play on
                const GameState& s = rig->state();
                const bool gameOver = s.MySunkCount == 6 || s.HalSunkCount == 6;
                games += gameOver;
                gameBegan = gameOver ? events : gameBegan;
                return roll(99) < (gameOver ? 95 : 15) ? MsgBoxAnswer::Yes : MsgBoxAnswer::No;
            };
            const char* stored[] = {"JFW", "WE", "None", ""};  // "": nothing, and the dialog
            rig->settings.stored[Rig::kReaderSetting] = stored[roll(3)];
            std::erase_if(rig->settings.stored, [](auto& entry) { return entry.second.empty(); });
            rig->wav.length = roll(1) * (100 + roll(900));  // half the runs, sounds take time
            scriptTheReaderDialog();
            rig->system.Main();
            ++runs;
        }
        const EventCounts before = EventCounts::of(*rig);
        const int event = roll(999);
        scriptTheReaderDialog();
        if (event < 450) {
            const std::string key = keys[event < 360 ? event % 5 : event % std::size(keys)];
            rig->window.press(keyCode(key));
        } else if (event < 730) {
            rig->timers.advance(1 + roll(2999));
        } else if (event < 890) {
            rig->window.board.playerClicks(1 + roll(8), 1 + roll(8));
        } else if (event == 994) {
            rig->window.unload();
        } else {  // the menu: mostly Options, now and then another command
            const int item = event < 994 ? 5 + event % 10 : event - 995;  // by name: Options 5..14
            (rig->system.screen.*std::next(kMenu.begin(), item)->second)();
        }
        const std::vector<std::string> did = std::exchange(rig->t.lines, {});
        ++events;
        ASSERT_EQ(problemAfter(before, *rig), "")
            << "after event " << events << " (" << event << ") of program run " << runs
            << ", which did " << ::testing::PrintToString(did);
    }
    std::cout << "finished " << games << " games in " << events << " events over " << runs
              << " runs of the program\n";
}

}  // namespace
}  // namespace marivox
