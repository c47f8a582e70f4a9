// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace marivox {

class Guard;
struct GameState;

// Emptying both oceans for a new game, and the player's win.
class Boards {
  public:
    Boards(GameState& state, Guard& guard) : state_(state), guard_(guard) {}

    void InitializeBoards();
    bool GameOver();

  private:
    GameState& state_;
    Guard& guard_;
};

}  // namespace marivox
