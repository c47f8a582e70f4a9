// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

namespace marivox {

// A mark the board shows, with its two names side by side: the legend under the board spells
// them one way, the game's words another, and each must stay as it is.
struct MarkNames {
    std::string_view letter;
    std::string_view legend;
    std::string_view spoken;
};

// The ships in the order of the model's ship types, then the miss.
inline constexpr MarkNames kCarrierNames{"A", "Aircraft Carrier", "air craft carrier"};
inline constexpr MarkNames kCruiserNames{"C", "Cruiser", "cruiser"};
inline constexpr MarkNames kDestroyerNames{"D", "Destroyer", "destroyer"};
inline constexpr MarkNames kBattleshipNames{"B", "Battleship", "battleship"};
inline constexpr MarkNames kPatrolBoatNames{"P", "Patrol Boat", "patrol boat"};
inline constexpr MarkNames kSubmarineNames{"S", "Submarine", "submarine"};
inline constexpr MarkNames kMissNames{"M", "Miss", "miss"};

inline constexpr std::array kMarks{kCarrierNames,    kCruiserNames,    kDestroyerNames,
                                   kBattleshipNames, kPatrolBoatNames, kSubmarineNames,
                                   kMissNames};

}  // namespace marivox
