// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "fake/HeadlessGame.h"
#include "model/Consistency.h"

namespace marivox {
namespace {

std::string oceanText(const Ocean& ocean) {
    std::ostringstream out;
    for (int row = 1; row <= 9; ++row) {
        for (int col = 1; col <= 9; ++col) {
            out << (col == 1 ? "" : " ") << (ocean(row, col) < 10 ? " " : "") << ocean(row, col);
        }
        out << '\n';
    }
    return out.str();
}

std::string stateText(const GameState& s) {
    std::ostringstream out;
    out << "HalOcean\n" << oceanText(s.HalOcean) << "MyOcean\n" << oceanText(s.MyOcean);
    out << "MySunkCount " << s.MySunkCount << " HalSunkCount " << s.HalSunkCount << '\n';
    for (const ShipInfo& ship : kShips) {
        out << ship.letter << " MyHits " << s.MyHits[ship.type] << " MySunk " << s.MySunk[ship.type]
            << " HalHits " << s.HalHits[ship.type] << " HalSunk " << s.HalSunk[ship.type] << '\n';
    }
    out << "TurnState " << s.TurnState << " HalHunting " << s.HalHunting << " HalHitCount "
        << s.HalHitCount << '\n';
    return out.str();
}

// A player who reads the computer's ocean and fires at its ships in reading order, so the
// record holds the player's win as well as the computer's.
fake::PlayerAim knowingAim() {
    return [](GameState& s) {
        for (std::int16_t row = 1; row <= 9; ++row) {
            for (std::int16_t col = 1; col <= 9; ++col) {
                if (shipWithIntactCode(s.HalOcean(row, col))) {
                    s.MyRow = row;
                    s.MyCol = col;
                    return;
                }
            }
        }
    };
}

std::string playAndRecord(std::uint64_t seed, const fake::PlayerAim& aim, const char* title) {
    fake::RulesRig rig(seed);
    rig.newGame();
    std::string record = std::string("== ") + title + "\n" + stateText(rig.state);
    const fake::Winner winner = fake::playHeadlessGame(rig, aim);
    EXPECT_EQ(consistencyProblem(rig.state), "");
    record += rig.transcript.text();
    record += winner == fake::Winner::Player ? "winner player\n" : "winner computer\n";
    record += stateText(rig.state);
    return record;
}

// A seeded game's every word, sound, grid mark and final state, compared with the stored
// record: any change of behaviour shows as a diff. Set MARIVOX_UPDATE_GOLDEN=1 to rewrite
// the record after a deliberate change.
TEST(GoldenGame, SeededGamesReplayTheirStoredTranscript) {
    const std::string actual =
        playAndRecord(20261123, fake::randomAim(7), "random player, seed 20261123") +
        playAndRecord(31337, knowingAim(), "knowing player, seed 31337");
    const std::string path = std::string(MARIVOX_GOLDEN_DIR) + "/headless-games.txt";
    if (std::getenv("MARIVOX_UPDATE_GOLDEN") != nullptr) {
        std::ofstream(path, std::ios::binary) << actual;
        GTEST_SKIP() << "rewrote " << path;
    }
    std::ifstream file(path, std::ios::binary);
    ASSERT_TRUE(file) << "missing " << path;
    const std::string expected{std::istreambuf_iterator<char>(file), {}};
    if (expected == actual) {
        return;
    }
    std::istringstream want(expected);
    std::istringstream got(actual);
    std::string wantLine;
    std::string gotLine;
    for (int line = 1;; ++line) {
        const bool moreWanted = static_cast<bool>(std::getline(want, wantLine));
        const bool moreGot = static_cast<bool>(std::getline(got, gotLine));
        if (!moreWanted && !moreGot) {
            break;
        }
        ASSERT_EQ(moreWanted ? wantLine : "<end>", moreGot ? gotLine : "<end>")
            << "first difference at line " << line << " of " << path;
    }
}

}  // namespace
}  // namespace marivox
