// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace marivox {

struct GameState;

// Checks what must hold of the game state between any two events: legal codes, a rim of
// zeros, fleets of straight ships, tallies that agree with the hit cells, flags that are
// exactly True or False, and the computer's hunt memory. Returns the first problem found,
// or the empty text when there is none.
std::string consistencyProblem(const GameState& state);

}  // namespace marivox
