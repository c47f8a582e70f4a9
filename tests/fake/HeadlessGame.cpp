// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fake/HeadlessGame.h"

#include <memory>
#include <stdexcept>

namespace marivox::fake {

Winner playHeadlessGame(RulesRig& rig, const PlayerAim& aim, int maxShots) {
    GameState& state = rig.state;
    for (int shot = 0; shot < maxShots; ++shot) {
        aim(state);
        rig.playerShots.MyShot();
        if (rig.boards.GameOver()) {
            return Winner::Player;
        }
        if (state.TurnState != kComputersTurn) {
            continue;
        }
        rig.targeting.chooseTarget();
        if (!rig.halDelay->isOn()) {
            throw std::logic_error("the computer chose no target");
        }
        rig.halDelay->switchOff();
        rig.halShots.HalShot(state.HalRow, state.HalCol);
        if (state.HalSunkCount == 6) {
            return Winner::Computer;
        }
        state.TurnState = kPlayersTurn;
    }
    throw std::logic_error("the game did not end");
}

PlayerAim randomAim(std::uint64_t seed) {
    // A small generator of the test's own, so the player's choices do not disturb the
    // game's random draws.
    auto state = std::make_shared<std::uint64_t>(seed);
    return [state](GameState& game) {
        auto next = [&] {
            *state = *state * 6364136223846793005ULL + 1442695040888963407ULL;
            return static_cast<std::int16_t>(1 + ((*state >> 33) % 9));
        };
        game.MyRow = next();
        game.MyCol = next();
    };
}

}  // namespace marivox::fake
