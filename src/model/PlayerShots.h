// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

#include "ports/MarkNames.h"

namespace marivox {

// The board's mark of a cell where the player's shot missed.
inline constexpr std::string_view kMissMark = kMissNames.letter;

class GridControl;
class Guard;
class Sounds;
class Speech;
struct GameState;
struct ShipInfo;

// One shot of the player's at the computer's ocean, at (MyRow, MyCol).
class PlayerShots {
  public:
    PlayerShots(GameState& state, Guard& guard, Speech& speech, Sounds& sounds, GridControl& grid)
        : state_(state), guard_(guard), speech_(speech), sounds_(sounds), grid_(grid) {}

    void MyShot();
    // Records a fresh result: the ocean's code, the grid's mark, and the turn passing.
    void RegisterHit(std::int16_t code);
    // Speaks the target cell's name followed by text, cutting off what is being said.
    void SpeakCell(std::string_view text);

  private:
    void freshHit(const ShipInfo& ship);

    GameState& state_;
    Guard& guard_;
    Speech& speech_;
    Sounds& sounds_;
    GridControl& grid_;
};

}  // namespace marivox
