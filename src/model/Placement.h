// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/Ships.h"
#include "support/Procedures.h"

namespace marivox {

class Guard;
class Ocean;
class RandomSource;
struct GameState;

enum class OverlapTest { None, AgainstOcean };

// Lays one ship at random: the start cell and direction are redrawn until the ship fits on
// the board and, with the overlap test, covers no ship already laid.
void placeShip(Ocean& ocean, const ShipInfo& ship, OverlapTest overlap, RandomSource& random);

// The twelve placement procedures, one per ship and side, over placeShip.
class Placement {
  public:
    Placement(GameState& state, RandomSource& random, Guard& guard)
        : state_(state), random_(random), guard_(guard) {}

    void HalPlaceCarrier();
    void MyPlaceCarrier();
    void HalPlaceBattleship();
    void MyPlaceBattleship();
    void HalPlaceCruiser();
    void MyPlaceCruiser();
    void HalPlaceDestroyer();
    void MyPlaceDestroyer();
    void HalPlacePatrol();
    void MyPlacePatrol();
    void HalPlaceSub();
    void MyPlaceSub();

    // All twelve, the computer's ship of each type before the player's.
    void placeBothFleets();

  private:
    void place(Procedure procedure, Ocean& ocean, ShipType type, OverlapTest overlap);

    GameState& state_;
    RandomSource& random_;
    Guard& guard_;
};

}  // namespace marivox
