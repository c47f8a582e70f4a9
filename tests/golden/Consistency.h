// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What must hold of the game state between any two events of random play: legal codes, a rim
// of zeros, fleets of straight ships of their lengths, tallies that agree with the hit cells,
// flags that are exactly True or False, and the computer's hunt memory.

#include <algorithm>
#include <array>
#include <string>

#include "model/GameState.h"
#include "model/Ships.h"

namespace marivox {

// One ocean against the tallies of the side that fires at it.
inline std::string oceanProblem(const Ocean& ocean, const PerShip<std::int16_t>& hits,
                                const PerShip<std::int16_t>& sunk, std::int16_t sunkCount,
                                const std::string& side) {
    struct Cells {
        int count = 0, hits = 0, top = 99, bottom = -1, left = 99, right = -1;
    };
    std::array<Cells, kShips.size()> ships{};
    for (int row = 0; row < Ocean::kExtent; ++row) {
        for (int col = 0; col < Ocean::kExtent; ++col) {
            const std::int16_t code = ocean(row, col);
            const bool water = code == CellCode::FiredWater || code == CellCode::OpenWater;
            const auto ship =
                shipWithIntactCode(code) ? shipWithIntactCode(code) : shipWithHitCode(code);
            if ((!water && !ship) || (code != 0 && !isPlayingCell(row, col))) {
                return side + " ocean holds code " + std::to_string(code) + " at " +
                       std::to_string(row) + "," + std::to_string(col) + "; ";
            }
            if (ship) {
                Cells& c = ships[static_cast<std::size_t>(*ship)];
                c = {c.count + 1,           c.hits + (code >= CellCode::FirstHit),
                     std::min(c.top, row),  std::max(c.bottom, row),
                     std::min(c.left, col), std::max(c.right, col)};
            }
        }
    }
    int sunkFlags = 0;
    for (const ShipInfo& ship : kShips) {
        const Cells& c = ships[static_cast<std::size_t>(ship.type)];
        const std::string name = side + " " + std::string(ship.name);
        // Distinct cells in one line, spanning exactly the ship's length, are consecutive.
        const bool straight = (c.top == c.bottom && c.right - c.left == ship.length - 1) ||
                              (c.left == c.right && c.bottom - c.top == ship.length - 1);
        if (c.count != 0 && (c.count != ship.length || !straight)) {  // 0: not laid yet
            return name + " is not one straight line of its length; ";
        }
        if (hits[ship.type] != c.hits) {
            return name + ": its hits disagree with the ocean; ";
        }
        if ((sunk[ship.type] != kTrue && sunk[ship.type] != kFalse) ||
            (sunk[ship.type] == kTrue) != (c.hits == ship.length)) {
            return name + ": its sunk flag disagrees with its hits; ";
        }
        sunkFlags += sunk[ship.type] == kTrue;
    }
    return sunkCount == sunkFlags ? "" : side + " sunk count disagrees with the sunk flags; ";
}

inline std::string huntProblem(const GameState& s) {
    const auto hunted = shipWithIntactCode(s.HalHuntShip);
    if (s.HalHunting == kFalse) {
        return "";
    }
    if (s.HalHunting != kTrue || !hunted || s.HalHitCount < 1) {
        return "HalHunting is not a flag, or hunts no ship, or with no hit counted; ";
    }
    const ShipInfo& ship = shipInfo(*hunted);
    // The hit count itself may run ahead of the ship's hits: a new game keeps it, and a
    // computer's turn still pending from the old game can start a hunt on the new board.
    const bool afloatAndRemembered = s.HalHitShip == ship.hitCode && s.HalHits[ship.type] >= 1 &&
                                     s.HalHits[ship.type] < ship.length &&
                                     s.MyOcean(s.HalLastRow, s.HalLastCol) == ship.hitCode;
    return afloatAndRemembered
               ? ""
               : "the hunt is not after a ship hit and afloat, nor remembers where it hit last; ";
}

// Every problem found, each followed by "; ", or the empty text.
inline std::string consistencyProblem(const GameState& s) {
    return oceanProblem(s.HalOcean, s.MyHits, s.MySunk, s.MySunkCount, "the computer's") +
           oceanProblem(s.MyOcean, s.HalHits, s.HalSunk, s.HalSunkCount, "the player's") +
           (s.TurnState == kPlayersTurn || s.TurnState == kComputersTurn
                ? ""
                : "TurnState is neither 0 nor 1; ") +
           (s.Shooting == kTrue || s.Shooting == kFalse ? "" : "Shooting is no flag; ") +
           huntProblem(s);
}

}  // namespace marivox
