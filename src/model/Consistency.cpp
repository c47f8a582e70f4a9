// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Consistency.h"

#include <algorithm>
#include <array>

#include "model/GameState.h"

namespace marivox {
namespace {

bool isLegalCode(std::int16_t code) {
    return code == CellCode::FiredWater || code == CellCode::OpenWater ||
           (code >= CellCode::FirstIntact && code <= CellCode::LastIntact) ||
           (code >= CellCode::FirstHit && code <= CellCode::LastHit);
}

bool isFlag(std::int16_t value) {
    return value == kTrue || value == kFalse;
}

// What one pass over an ocean learns of each ship code: how many cells carry it, how many
// of those are hit, and the rows and columns they span.
struct ShipCells {
    int count = 0;
    int hits = 0;
    int minRow = 99, maxRow = -1, minCol = 99, maxCol = -1;
};

struct OceanSurvey {
    std::array<ShipCells, kShips.size()> ships{};
    std::string problem;
};

// Which ship, if any, a code belongs to (intact or hit), by code.
constexpr auto kShipOfCode = [] {
    std::array<int, CellCode::LastHit + 1> ships{};
    ships.fill(-1);
    for (const ShipInfo& ship : kShips) {
        ships[static_cast<std::size_t>(ship.intactCode)] = static_cast<int>(ship.type);
        ships[static_cast<std::size_t>(ship.hitCode)] = static_cast<int>(ship.type);
    }
    return ships;
}();

OceanSurvey survey(const Ocean& ocean, const char* name) {
    OceanSurvey result;
    for (int row = 0; row < Ocean::kExtent; ++row) {
        for (int col = 0; col < Ocean::kExtent; ++col) {
            const std::int16_t code = ocean(row, col);
            if (!isPlayingCell(row, col) && code != 0) {
                result.problem = std::string(name) + " rim cell is not 0";
                return result;
            }
            if (!isLegalCode(code)) {
                result.problem =
                    std::string(name) + " holds an illegal code " + std::to_string(code);
                return result;
            }
            const int ship = kShipOfCode[static_cast<std::size_t>(code)];
            if (ship < 0) {
                continue;
            }
            ShipCells& cells = result.ships[static_cast<std::size_t>(ship)];
            ++cells.count;
            cells.hits += code >= CellCode::FirstHit ? 1 : 0;
            cells.minRow = std::min(cells.minRow, row);
            cells.maxRow = std::max(cells.maxRow, row);
            cells.minCol = std::min(cells.minCol, col);
            cells.maxCol = std::max(cells.maxCol, col);
        }
    }
    for (const ShipInfo& ship : kShips) {
        const ShipCells& cells = result.ships[static_cast<std::size_t>(ship.type)];
        if (cells.count == 0) {
            continue;  // not laid yet
        }
        // Distinct cells in one line, spanning exactly the ship's length, are consecutive.
        const bool straight =
            (cells.minRow == cells.maxRow && cells.maxCol - cells.minCol == ship.length - 1) ||
            (cells.minCol == cells.maxCol && cells.maxRow - cells.minRow == ship.length - 1);
        if (cells.count != ship.length || !straight) {
            result.problem = std::string(name) + " has a ship of code " +
                             std::to_string(ship.intactCode) +
                             " that is not one straight line of its length";
            return result;
        }
    }
    return result;
}

std::string talliesProblem(const OceanSurvey& ocean, const PerShip<std::int16_t>& hits,
                           const PerShip<std::int16_t>& sunk, std::int16_t sunkCount,
                           const char* side) {
    int flagsSet = 0;
    for (const ShipInfo& ship : kShips) {
        if (hits[ship.type] != ocean.ships[static_cast<std::size_t>(ship.type)].hits) {
            return std::string(side) + " hits on code " + std::to_string(ship.intactCode) +
                   " disagree with the ocean";
        }
        if (!isFlag(sunk[ship.type])) {
            return std::string(side) + " sunk flag is neither True nor False";
        }
        const bool full = hits[ship.type] == ship.length;
        if (full != (sunk[ship.type] == kTrue)) {
            return std::string(side) + " sunk flag disagrees with the hits on code " +
                   std::to_string(ship.intactCode);
        }
        flagsSet += sunk[ship.type] == kTrue ? 1 : 0;
    }
    if (sunkCount != flagsSet) {
        return std::string(side) + " sunk count disagrees with the sunk flags";
    }
    return {};
}

std::string huntProblem(const GameState& s) {
    if (!isFlag(s.HalHunting)) {
        return "HalHunting is neither True nor False";
    }
    if (s.HalHunting != kTrue) {
        return {};
    }
    const auto hunted = shipWithIntactCode(s.HalHuntShip);
    if (!hunted) {
        return "hunting with no ship code in HalHuntShip";
    }
    const ShipInfo& ship = shipInfo(*hunted);
    if (s.HalHitCount < 1) {
        return "hunting with no hit counted";
    }
    if (s.HalHitShip != ship.hitCode) {
        return "HalHitShip is not the hunted ship's hit code";
    }
    // The hit count itself may run ahead of the ship's hits: a new game keeps it, and a
    // computer's turn still pending from the old game can start a hunt on the new board.
    if (s.HalHits[ship.type] < 1 || s.HalHits[ship.type] >= ship.length) {
        return "the hunted ship is not hit and afloat";
    }
    if (s.MyOcean(s.HalLastRow, s.HalLastCol) != ship.hitCode) {
        return "the hunt's last hit is not a hit on the hunted ship";
    }
    return {};
}

}  // namespace

std::string consistencyProblem(const GameState& state) {
    const OceanSurvey hal = survey(state.HalOcean, "HalOcean");
    const OceanSurvey mine = survey(state.MyOcean, "MyOcean");
    for (const std::string* problem : {&hal.problem, &mine.problem}) {
        if (!problem->empty()) {
            return *problem;
        }
    }
    if (auto p = talliesProblem(hal, state.MyHits, state.MySunk, state.MySunkCount, "the player's");
        !p.empty()) {
        return p;
    }
    if (auto p = talliesProblem(mine, state.HalHits, state.HalSunk, state.HalSunkCount,
                                "the computer's");
        !p.empty()) {
        return p;
    }
    if (state.TurnState != kPlayersTurn && state.TurnState != kComputersTurn) {
        return "TurnState is neither 0 nor 1";
    }
    if (!isFlag(state.Shooting)) {
        return "Shooting is neither True nor False";
    }
    return huntProblem(state);
}

}  // namespace marivox
