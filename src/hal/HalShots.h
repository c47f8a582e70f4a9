// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace marivox {

class Guard;
class Sounds;
class Speech;
class TargetSelection;
struct GameState;
struct ShipInfo;

// The computer's shot at the player's ocean, and the hunt memory it feeds.
class HalShots {
  public:
    HalShots(GameState& state, Guard& guard, Speech& speech, Sounds& sounds,
             TargetSelection& targeting)
        : state_(state), guard_(guard), speech_(speech), sounds_(sounds), targeting_(targeting) {}

    void HalShot(std::int16_t row, std::int16_t col);
    // Marks (HalRow, HalCol) with code and, on a hit, counts it in the hunt memory.
    void HalRegisterHit(std::int16_t code);
    void HalSpeakCell(std::string_view text);

  private:
    void hit(const ShipInfo& ship, std::int16_t row, std::int16_t col);

    GameState& state_;
    Guard& guard_;
    Speech& speech_;
    Sounds& sounds_;
    TargetSelection& targeting_;
};

}  // namespace marivox
