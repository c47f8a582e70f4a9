// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "ports/MarkNames.h"

namespace marivox {

// In the order of the tallies and of the spoken score; the cell codes run in another order.
enum class ShipType : std::uint8_t {
    Carrier,
    Cruiser,
    Destroyer,
    Battleship,
    PatrolBoat,
    Submarine
};

inline constexpr std::array kShipTypes{ShipType::Carrier,    ShipType::Cruiser,
                                       ShipType::Destroyer,  ShipType::Battleship,
                                       ShipType::PatrolBoat, ShipType::Submarine};

// Everything that differs between the six ship types, and every text spoken about them.
// "my" ships are the computer's, "your" ships are the player's: the computer speaks.
struct ShipInfo {
    ShipType type;
    std::int16_t length;
    std::int16_t intactCode;
    std::int16_t hitCode;
    std::string_view letter;  // the grid mark of a hit on this ship, as the legend lists it
    // The player's shots at the computer's fleet.
    std::string_view playerHitText;     // after the cell's name
    std::string_view playerSinkText;    // spoken alone
    std::string_view playerRepeatText;  // after the cell's name, cell hit before
    // The computer's shots at the player's fleet.
    std::string_view halHitText;   // after the cell's name
    std::string_view halSinkText;  // spoken alone
    // The cursor cell showing this ship's letter.
    std::string_view cursorText;
    // The score: the computer's ship sunk by the player, the player's sunk by the computer.
    std::string_view statusHalShipText;
    std::string_view statusMyShipText;
    // The ship's name in the board and fleet reviews.
    std::string_view name;
};

inline constexpr std::array<ShipInfo, 6> kShips{{
    {ShipType::Carrier, 5, 10, 20, kCarrierNames.letter, " was a hit on my air craft carrier  ",
     " You sank my air craft carrier  ",
     " was already targeted, and was a hit on my air craft carrier  ",
     " was a hit on your air craft carrier  ", " I sank your air craft carrier  ",
     " hit air craft carrier  ", " my air craft carrier ", " your air craft carrier ",
     kCarrierNames.spoken},
    {ShipType::Cruiser, 4, 12, 22, kCruiserNames.letter, " was a hit on my cruiser  ",
     " You sank my cruiser  ", " was already targeted, and was a hit on my cruiser  ",
     " was a hit on your cruiser  ", " I sank your cruiser  ", " hit cruiser  ", " my cruiser ",
     " your cruiser ", kCruiserNames.spoken},
    {ShipType::Destroyer, 4, 13, 23, kDestroyerNames.letter, " was a hit on my destroyer  ",
     " You sank my destroyer  ", " was already targeted, and was a hit on my destroyer  ",
     " was a hit on your destroyer  ", " I sank your destroyer  ", " hit destroyer  ",
     " my destroyer ", " your destroyer ", kDestroyerNames.spoken},
    {ShipType::Battleship, 4, 11, 21, kBattleshipNames.letter, " was a hit on my Battle ship  ",
     " You sank my Battle ship  ", " was already targeted, and was a hit on my battle ship  ",
     " was a hit on your Battle ship  ", " I sank your Battle ship  ", " hit battleship  ",
     " my battleship ", " your battleship ", kBattleshipNames.spoken},
    {ShipType::PatrolBoat, 3, 14, 24, kPatrolBoatNames.letter, " was a hit on my patrol boat  ",
     " You sank my patrol boat  ", " was already targeted, and was a hit on my patrol boat  ",
     " was a hit on your patrol boat  ", " I sank your patrol boat  ", " hit patrol boat  ",
     " my patrol boat ", " your patrol boat ", kPatrolBoatNames.spoken},
    {ShipType::Submarine, 2, 15, 25, kSubmarineNames.letter, " was a hit on my submarine  ",
     " You sank my submarine  ", " was already targeted, and was a hit on my submarine  ",
     " was a hit on your submarine  ", " I sank your submarine  ", " hit submarine  ",
     " my submarine ", " your submarine ", kSubmarineNames.spoken},
}};

// Either side's shot into open water, after the cell's name.
inline constexpr std::string_view kMissText = " was a miss  ";

constexpr const ShipInfo& shipInfo(ShipType type) {
    return kShips[static_cast<std::size_t>(type)];
}

constexpr std::optional<ShipType> shipWithIntactCode(std::int16_t code) {
    for (const ShipInfo& ship : kShips) {
        if (ship.intactCode == code) {
            return ship.type;
        }
    }
    return std::nullopt;
}

constexpr std::optional<ShipType> shipWithHitCode(std::int16_t code) {
    for (const ShipInfo& ship : kShips) {
        if (ship.hitCode == code) {
            return ship.type;
        }
    }
    return std::nullopt;
}

constexpr std::optional<ShipType> shipWithLetter(std::string_view letter) {
    for (const ShipInfo& ship : kShips) {
        if (ship.letter == letter) {
            return ship.type;
        }
    }
    return std::nullopt;
}

// One value per ship type, indexed by the type.
template <class T>
struct PerShip {
    std::array<T, kShips.size()> values{};

    T& operator[](ShipType type) { return values[static_cast<std::size_t>(type)]; }
    const T& operator[](ShipType type) const { return values[static_cast<std::size_t>(type)]; }
    void fill(const T& value) { values.fill(value); }
    friend bool operator==(const PerShip&, const PerShip&) = default;
};

}  // namespace marivox
