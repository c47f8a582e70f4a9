// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "hal/TargetSelection.h"

#include <array>

#include "model/GameState.h"
#include "model/RandomNumbers.h"
#include "ports/OneShotTimer.h"
#include "support/Guard.h"

namespace marivox {

void TargetSelection::chooseTarget() {
    if (state_.HalHunting == kTrue) {
        HalFindShot();
    } else {
        HalRandomShot();
    }
}

void TargetSelection::ClearHits() {
    guard_.run(Procedure::ClearHits, [&] {
        state_.HalHitCount = 0;
        state_.HalHunting = kFalse;
        state_.HalHuntShip = 0;
        state_.HalHitShip = 0;
        state_.HalLastRow = 0;
        state_.HalLastCol = 0;
    });
}

void TargetSelection::HalRandomShot() {
    ClearHits();
    for (;;) {
        const std::int16_t row = random_.GetRandom(1, 9);
        const std::int16_t col = random_.GetRandom(1, 9);
        const std::int16_t code = state_.MyOcean(row, col);
        // 0 and 16 and above have been fired at.
        if (code > CellCode::FiredWater && code < 16) {
            aimAt({row, col});
            return;
        }
    }
}

void TargetSelection::HalFindShot() {
    guard_.run(Procedure::HalFindShot, [&] {
        const std::optional<Cell> target =
            state_.HalHitCount == 1 ? searchNeighbours() : scanForHuntedShip();
        // With no target no shot is scheduled; the hunt's invariants make that unreachable.
        if (target) {
            aimAt(*target);
        }
    });
}

// After a single hit: the four directions in a fixed order, each from the hit, stepping
// over hits on the hunted ship and stopping at a miss or at any other ship.
std::optional<TargetSelection::Cell> TargetSelection::searchNeighbours() const {
    struct Step {
        int rows;
        int cols;
    };
    constexpr std::array<Step, 4> kDirections{{{-1, 0}, {1, 0}, {0, -1}, {0, 1}}};
    for (const Step step : kDirections) {
        int row = state_.HalLastRow + step.rows;
        int col = state_.HalLastCol + step.cols;
        while (row >= kFirstLine && row <= kLastLine && col >= kFirstLine && col <= kLastLine) {
            const std::int16_t code = state_.MyOcean(row, col);
            if (code == CellCode::OpenWater || code == state_.HalHuntShip) {
                return Cell{static_cast<std::int16_t>(row), static_cast<std::int16_t>(col)};
            }
            if (code != state_.HalHitShip) {
                break;
            }
            row += step.rows;
            col += step.cols;
        }
    }
    return std::nullopt;
}

// After two or more hits: the hunted ship's intact cell in the lowest row, then column.
std::optional<TargetSelection::Cell> TargetSelection::scanForHuntedShip() const {
    for (std::int16_t row = kFirstLine; row <= kLastLine; ++row) {
        for (std::int16_t col = kFirstLine; col <= kLastLine; ++col) {
            if (state_.MyOcean(row, col) == state_.HalHuntShip) {
                return Cell{row, col};
            }
        }
    }
    return std::nullopt;
}

void TargetSelection::aimAt(Cell cell) {
    state_.HalRow = cell.row;
    state_.HalCol = cell.col;
    halDelay_.switchOn();
}

}  // namespace marivox
