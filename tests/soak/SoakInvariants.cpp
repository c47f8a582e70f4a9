// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "SoakInvariants.h"

#include <algorithm>

#include "model/Consistency.h"

namespace marivox::soak {
namespace {

bool contains(const std::vector<std::string>& lines, std::string_view wanted) {
    return std::any_of(lines.begin(), lines.end(),
                       [&](const std::string& line) { return line.starts_with(wanted); });
}

// A cell may stay as it is, turn from open water to a miss, or from intact to hit.
bool movedForward(std::int16_t before, std::int16_t after) {
    return after == before || (before == CellCode::OpenWater && after == CellCode::FiredWater) ||
           (before >= CellCode::FirstIntact && before <= CellCode::LastIntact &&
            after == before + CellCode::HitOffset);
}

std::string expectedMark(std::int16_t code) {
    if (code == CellCode::FiredWater) {
        return "M";
    }
    if (const auto ship = shipWithHitCode(code)) {
        return std::string(shipInfo(*ship).letter);
    }
    return " ";
}

}  // namespace

std::string SoakInvariants::codesMovedForward(const GameState& state) const {
    for (int row = 0; row < Ocean::kExtent; ++row) {
        for (int col = 0; col < Ocean::kExtent; ++col) {
            if (!movedForward(lastHal_(row, col), state.HalOcean(row, col)) ||
                !movedForward(lastMine_(row, col), state.MyOcean(row, col))) {
                return "a cell's code went backwards at " + std::to_string(row) + "," +
                       std::to_string(col);
            }
        }
    }
    return {};
}

std::string SoakInvariants::gridShowsTheOcean(fake::ScreenRig& rig) {
    for (int row = 1; row <= 9; ++row) {
        for (int col = 1; col <= 9; ++col) {
            if (rig.grid().textMatrix(row, col) != expectedMark(rig.state().HalOcean(row, col))) {
                return "the grid's mark at " + std::to_string(row) + "," + std::to_string(col) +
                       " is not what the player learnt";
            }
        }
    }
    return {};
}

std::string SoakInvariants::check(fake::ScreenRig& rig, const std::vector<std::string>& lines) {
    const GameState& state = rig.state();
    if (std::string problem = consistencyProblem(state); !problem.empty()) {
        return problem;
    }
    if (contains(lines, "box 64 \"Marivox\" \"Error:") || contains(lines, "FAILED")) {
        return "a failure was reported in normal play";
    }
    const bool newGame = contains(lines, "sound /opt/marivox/begin.wav");
    if (started_ && !newGame) {
        if (std::string problem = codesMovedForward(state); !problem.empty()) {
            return problem;
        }
    }
    started_ = started_ || newGame;
    lastHal_ = state.HalOcean;
    lastMine_ = state.MyOcean;
    if (!started_ || rig.state().SettingUp == kTrue) {
        return {};
    }
    // The marks change only when the grid is written to.
    if (newGame || contains(lines, "grid ")) {
        if (std::string problem = gridShowsTheOcean(rig); !problem.empty()) {
            return problem;
        }
    }
    // A target is chosen only by a shot of the player's, in the same event; the computer
    // fires at it later, so now it must still be untouched.
    if (contains(lines, "timer tmrHalDelay on")) {
        const std::int16_t code = state.MyOcean(state.HalRow, state.HalCol);
        if (code < CellCode::OpenWater || code > CellCode::LastIntact) {
            return "the computer aimed at a cell it had fired at";
        }
    }
    return {};
}

}  // namespace marivox::soak
