// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

namespace marivox {

class Guard;
class OneShotTimer;
class RandomSource;
struct GameState;

// Chooses the cell of the player's ocean the computer fires at next, stores it in
// HalRow/HalCol and starts the delay before the computer announces it. The hunt reads the
// player's hidden ocean: that is how this opponent plays.
class TargetSelection {
  public:
    TargetSelection(GameState& state, Guard& guard, RandomSource& random, OneShotTimer& halDelay)
        : state_(state), guard_(guard), random_(random), halDelay_(halDelay) {}

    // Hunts a damaged ship if there is one, else draws at random.
    void chooseTarget();

    void ClearHits();
    // Unguarded: it runs inside the player's shot, whose handler reports for it.
    void HalRandomShot();
    void HalFindShot();

  private:
    struct Cell {
        std::int16_t row;
        std::int16_t col;
    };
    std::optional<Cell> searchNeighbours() const;
    std::optional<Cell> scanForHuntedShip() const;
    void aimAt(Cell cell);

    GameState& state_;
    Guard& guard_;
    RandomSource& random_;
    OneShotTimer& halDelay_;
};

}  // namespace marivox
