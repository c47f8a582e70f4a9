#include "model/Consistency.h"

#include <algorithm>
#include <vector>

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

struct Cell {
    int row;
    int col;
};

std::string oceanProblem(const Ocean& ocean, const char* name) {
    for (int row = 0; row < Ocean::kExtent; ++row) {
        for (int col = 0; col < Ocean::kExtent; ++col) {
            const std::int16_t code = ocean(row, col);
            if (!isPlayingCell(row, col) && code != 0) {
                return std::string(name) + " rim cell is not 0";
            }
            if (!isLegalCode(code)) {
                return std::string(name) + " holds an illegal code " + std::to_string(code);
            }
        }
    }
    for (const ShipInfo& ship : kShips) {
        std::vector<Cell> cells;
        for (int row = kFirstLine; row <= kLastLine; ++row) {
            for (int col = kFirstLine; col <= kLastLine; ++col) {
                const std::int16_t code = ocean(row, col);
                if (code == ship.intactCode || code == ship.hitCode) {
                    cells.push_back({row, col});
                }
            }
        }
        if (cells.empty()) {
            continue;  // not laid yet
        }
        const auto size = static_cast<int>(cells.size());
        const bool sameRow = std::all_of(cells.begin(), cells.end(),
                                         [&](Cell c) { return c.row == cells.front().row; });
        const bool sameCol = std::all_of(cells.begin(), cells.end(),
                                         [&](Cell c) { return c.col == cells.front().col; });
        const bool straight = (sameRow && cells.back().col - cells.front().col == size - 1) ||
                              (sameCol && cells.back().row - cells.front().row == size - 1);
        if (size != ship.length || !straight) {
            return std::string(name) + " has a ship of code " + std::to_string(ship.intactCode) +
                   " that is not one straight line of its length";
        }
    }
    return {};
}

int hitCells(const Ocean& ocean, const ShipInfo& ship) {
    int count = 0;
    for (int row = kFirstLine; row <= kLastLine; ++row) {
        for (int col = kFirstLine; col <= kLastLine; ++col) {
            count += ocean(row, col) == ship.hitCode ? 1 : 0;
        }
    }
    return count;
}

std::string talliesProblem(const Ocean& ocean, const PerShip<std::int16_t>& hits,
                           const PerShip<std::int16_t>& sunk, std::int16_t sunkCount,
                           const char* side) {
    int flagsSet = 0;
    for (const ShipInfo& ship : kShips) {
        if (hits[ship.type] != hitCells(ocean, ship)) {
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
    if (s.HalHits[ship.type] < s.HalHitCount || s.HalHits[ship.type] >= ship.length) {
        return "the hunted ship's hits do not match the hunt";
    }
    if (s.MyOcean(s.HalLastRow, s.HalLastCol) != ship.hitCode) {
        return "the hunt's last hit is not a hit on the hunted ship";
    }
    return {};
}

}  // namespace

std::string consistencyProblem(const GameState& state) {
    for (const auto& problem :
         {oceanProblem(state.HalOcean, "HalOcean"), oceanProblem(state.MyOcean, "MyOcean")}) {
        if (!problem.empty()) {
            return problem;
        }
    }
    if (auto p = talliesProblem(state.HalOcean, state.MyHits, state.MySunk, state.MySunkCount,
                                "the player's");
        !p.empty()) {
        return p;
    }
    if (auto p = talliesProblem(state.MyOcean, state.HalHits, state.HalSunk, state.HalSunkCount,
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
