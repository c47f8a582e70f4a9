// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace marivox {

// A number as the game writes it inside sentences: one leading blank in the place of the
// sign for a non-negative number ("5" becomes " 5"), the minus sign otherwise.
std::string numberText(long long value);

// The letter of a row: the character whose code is 64 + row, "A" for row 1.
std::string rowLetter(std::int16_t row);

// A cell's spoken name: the row letter, one blank, and the column as numberText, so that
// two blanks stand between letter and digit ("B  7").
std::string cellName(std::int16_t row, std::int16_t col);

// A cell named as a player writes it, "E 3": what the board tells assistive technology and
// what the review lists, where a second blank only slows a reader down.
std::string shortCellName(int row, int col);

}  // namespace marivox
