// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/Ships.h"

namespace marivox {

class GridControl;
class Ocean;

// What the player can review without walking the board: a row or a column of the board as
// its marks show it, and the player's own fleet, which no window shows.
namespace review {

// "Row E: miss at 3, hits on the sunk cruiser at 5 and 6, 6 cells not fired at."
// `sunk` tells the computer's ships the player has sunk.
std::string rowOf(const GridControl& board, const PerShip<std::int16_t>& sunk, int row);
// "Column 5: miss at A, 8 cells not fired at."
std::string columnOf(const GridControl& board, const PerShip<std::int16_t>& sunk, int col);
// One sentence per ship, afloat ones first, each group in ship-type order:
// "Your cruiser, E 2 to E 5, hit at E 3."
std::vector<std::string> fleetOf(const Ocean& ocean);

}  // namespace review
}  // namespace marivox
