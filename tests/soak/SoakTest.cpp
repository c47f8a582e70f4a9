// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <random>
#include <string>

#include "SoakInvariants.h"

namespace marivox::soak {
namespace {

std::uint64_t fromEnvironment(const char* name, std::uint64_t fallback) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0' ? std::strtoull(value, nullptr, 10) : fallback;
}

// Random play: every input the program can get, in random order and timing, over the real
// game screen on fakes in virtual time. Checked after every event; reproducible from the
// printed seed.
class RandomPlayer {
  public:
    explicit RandomPlayer(std::uint64_t seed) : random_(seed) { restart(); }

    void playUntil(std::uint64_t games) {
        while (finishedGames < games) {
            const std::string event = step();
            events_ += 1;
            const std::vector<std::string> lines = rig_->transcript.lines();
            finishedGames += countWins(lines);
            const std::string problem = invariants_->check(*rig_, lines);
            ASSERT_EQ(problem, "")
                << "after event " << events_ << " (" << event << ") of program run " << runs;
            rig_->transcript.clear();
            if (rig_->application.ended() || rig_->window.closed()) {
                restart();
            }
        }
    }

    std::uint64_t events() const { return events_; }

    std::uint64_t finishedGames = 0;
    std::uint64_t runs = 0;

  private:
    int uniform(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }
    bool chance(double p) { return std::bernoulli_distribution(p)(random_); }

    static std::uint64_t countWins(const std::vector<std::string>& lines) {
        std::uint64_t wins = 0;
        for (const std::string& line : lines) {
            wins += line.find("Congradulations, you win!") != std::string::npos ||
                            line.find("Sorry, I win!") != std::string::npos
                        ? 1
                        : 0;
        }
        return wins;
    }

    void scriptTheReaderDialog() {
        for (int i = 0; i < 3; ++i) {
            if (chance(0.2)) {
                rig_->readerDialog.thenCloseBox();
            } else {
                rig_->readerDialog.thenChoose(uniform(-1, 1));
            }
        }
        rig_->readerDialog.thenChoose(uniform(0, 1));
    }

    void restart() {
        ++runs;
        rig_ = std::make_unique<fake::ScreenRig>(random_());
        invariants_ = std::make_unique<SoakInvariants>();
        rig_->boxes.answerWith([this](std::string_view text, int) {
            // Mostly play on; sometimes leave, or decline a new game.
            const bool playAgain = text.find("play again") != std::string_view::npos;
            return chance(playAgain ? 0.95 : 0.15) ? MsgBoxAnswer::Yes : MsgBoxAnswer::No;
        });
        const int stored = uniform(0, 3);
        if (stored == 0) {
            scriptTheReaderDialog();
        }
        rig_->startAndSettle(stored == 0 ? "" : stored == 1 ? "JFW" : stored == 2 ? "WE" : "None");
    }

    std::string step() {
        fake::ScreenRig& rig = *rig_;
        const int roll = uniform(0, 999);
        if (roll < 200) {
            static constexpr std::int16_t kArrows[] = {KeyCode::Up, KeyCode::Down, KeyCode::Left,
                                                       KeyCode::Right};
            rig.press(kArrows[uniform(0, 3)]);
            return "arrow";
        }
        if (roll < 400) {
            rig.press(KeyCode::Return);
            return "Enter";
        }
        if (roll < 680) {
            rig.timers.advance(uniform(1, 3000));
            return "time";
        }
        if (roll < 840) {
            rig.grid().playerClicks(uniform(1, 9), uniform(1, 9));
            return "click";
        }
        if (roll < 870) {
            rig.press(KeyCode::F2);
            return "F2";
        }
        if (roll < 930) {
            static constexpr std::int16_t kOthers[] = {
                KeyCode::Shift, 'A', KeyCode::Space, KeyCode::Escape, KeyCode::Tab, KeyCode::F1};
            rig.press(kOthers[uniform(0, 5)]);
            return "other key";
        }
        if (roll < 960) {
            rig.screen().mnuOptionsShoot_Click();
            return "Shoot";
        }
        if (roll < 995) {
            rig.screen().mnuOptionsStatus_Click();
            return "Speak Status";
        }
        switch (uniform(0, 6)) {
            case 0:
                rig.screen().mnuGameNew_Click();
                return "New Game";
            case 1:
                rig.screen().mnuGameExit_Click();
                return "Exit";
            case 2:
                rig.window.unload();
                return "close box";
            case 3:
                scriptTheReaderDialog();
                rig.screen().mnuGameReader_Click();
                return "Screen Reader";
            case 4:
                rig.screen().mnuHelpContents_Click();
                return "Help Topics";
            default:
                rig.screen().mnuHelpAbout_Click();
                return "About";
        }
    }

    std::mt19937_64 random_;
    std::unique_ptr<fake::ScreenRig> rig_;
    std::unique_ptr<SoakInvariants> invariants_;
    std::uint64_t events_ = 0;
};

// MARIVOX_SOAK_GAMES sets how many games to finish (a long run: 100000), and
// MARIVOX_SOAK_SEED picks or replays a run.
TEST(Soak, RandomPlayKeepsEveryInvariantGameAfterGame) {
    // A fixed default keeps the test command repeatable; other seeds explore further.
    const std::uint64_t seed = fromEnvironment("MARIVOX_SOAK_SEED", 20261123);
    const std::uint64_t games = fromEnvironment("MARIVOX_SOAK_GAMES", 2000);
    std::cout << "soak seed " << seed << " (MARIVOX_SOAK_SEED=" << seed << " replays it), games "
              << games << std::endl;
    RandomPlayer player(seed);
    player.playUntil(games);
    std::cout << "finished " << player.finishedGames << " games over " << player.runs
              << " runs of the program in " << player.events() << " events" << std::endl;
    EXPECT_GE(player.finishedGames, games);
}

}  // namespace
}  // namespace marivox::soak
