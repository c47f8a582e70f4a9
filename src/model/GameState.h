// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "model/Ocean.h"
#include "model/Ships.h"
#include "support/Flags.h"

namespace marivox {

// TurnState values.
inline constexpr std::int16_t kPlayersTurn = 1;
inline constexpr std::int16_t kComputersTurn = 0;

// The state of the one game under way. One instance serves the whole run of the program;
// it is owned by whoever wires the program together and handed to the rules by reference.
// Fields carry the names the rules speak of: "My" is the player's side, "Hal" the
// computer's.
struct GameState {
    Ocean HalOcean;  // the computer's fleet, fired at by the player
    Ocean MyOcean;   // the player's fleet, fired at by the computer

    std::int16_t MySunkCount = 0;
    PerShip<std::int16_t> MyHits;
    PerShip<std::int16_t> MySunk;
    std::int16_t HalSunkCount = 0;
    PerShip<std::int16_t> HalHits;
    PerShip<std::int16_t> HalSunk;

    std::int16_t MyRow = 0;
    std::int16_t MyCol = 0;
    std::int16_t HalRow = 0;
    std::int16_t HalCol = 0;
    std::int16_t TurnState = 0;
    std::int16_t Shooting = kFalse;

    // The game screen's two flags: a game is under way; a game is being set up.
    std::int16_t GameInProgress = kFalse;
    std::int16_t SettingUp = kFalse;

    // The computer's hunt of a ship it has hit.
    std::int16_t HalHitCount = 0;
    std::int16_t HalHunting = kFalse;
    std::int16_t HalHuntShip = 0;
    std::int16_t HalLastRow = 0;
    std::int16_t HalLastCol = 0;
    std::int16_t HalHitShip = 0;

    friend bool operator==(const GameState&, const GameState&) = default;
};

}  // namespace marivox
