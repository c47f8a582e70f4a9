// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Boards.h"

#include "model/GameState.h"
#include "support/Guard.h"

namespace marivox {

void Boards::InitializeBoards() {
    guard_.run(Procedure::InitializeBoards, [&] {
        // The rest of the hunt memory may keep the last game's values: the first random
        // shot of the new game clears it before drawing.
        state_.HalHuntShip = 0;
        state_.HalHunting = kFalse;
        state_.Shooting = kFalse;
        state_.MySunk.fill(kFalse);
        state_.HalSunk.fill(kFalse);
        state_.MySunkCount = 0;
        state_.MyHits.fill(0);
        state_.HalSunkCount = 0;
        state_.HalHits.fill(0);
        for (int row = kFirstLine; row <= kLastLine; ++row) {
            for (int col = kFirstLine; col <= kLastLine; ++col) {
                state_.HalOcean.set(row, col, CellCode::OpenWater);
                state_.MyOcean.set(row, col, CellCode::OpenWater);
            }
        }
    });
}

bool Boards::GameOver() {
    bool over = false;
    guard_.run(Procedure::GameOver, [&] { over = state_.MySunkCount == 6; });
    return over;
}

}  // namespace marivox
