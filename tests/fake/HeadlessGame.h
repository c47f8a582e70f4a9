// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>

#include "fake/RulesRig.h"

namespace marivox::fake {

enum class Winner { Player, Computer };

// Chooses the player's next target; it may aim at cells fired at before.
using PlayerAim = std::function<void(GameState& state)>;

// Plays one game by the rules, without a screen: the player fires where `aim` says, the
// computer answers each fresh shot, and the first to sink six ships wins. The hal delay
// timer stands in for the pause before the computer fires.
Winner playHeadlessGame(RulesRig& rig, const PlayerAim& aim, int maxShots = 10000);

// A player who fires at a random cell each time, repeats included.
PlayerAim randomAim(std::uint64_t seed);

}  // namespace marivox::fake
