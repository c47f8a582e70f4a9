// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "screen/BoardReview.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "model/CellName.h"
#include "model/Ocean.h"
#include "model/PlayerShots.h"
#include "model/Ships.h"
#include "ports/GridControl.h"
#include "support/Flags.h"

namespace marivox::review {
namespace {

std::string listed(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        text += (i == 0 ? "" : i + 1 == names.size() ? " and " : ", ") + names[i];
    }
    return text;
}

// The line's marks grouped, each group where its first mark stands ("misses at 1 and 7,
// hit on the cruiser at 5"), then how many cells are left; `place` names a cell by its
// index along the line.
std::string lineOf(std::string heading, const PerShip<std::int16_t>& sunk,
                   const std::function<std::string(int)>& markAt,
                   const std::function<std::string(int)>& place) {
    std::vector<std::pair<std::string, std::vector<std::string>>> groups;
    int blanks = 0;
    for (int i = kFirstLine; i <= kLastLine; ++i) {
        const std::string mark = markAt(i);
        if (mark != kMissMark && !shipWithLetter(mark)) {
            ++blanks;
            continue;
        }
        auto group = std::find_if(groups.begin(), groups.end(),
                                  [&](const auto& g) { return g.first == mark; });
        if (group == groups.end()) {
            group = groups.insert(group, {mark, {}});
        }
        group->second.push_back(place(i));
    }
    std::vector<std::string> parts;
    for (const auto& [mark, places] : groups) {
        const bool one = places.size() == 1;
        const auto ship = shipWithLetter(mark);
        parts.push_back((ship ? (one ? "hit on the " : "hits on the ") +
                                    std::string(sunk[*ship] == kTrue ? "sunk " : "") +
                                    std::string(shipInfo(*ship).name)
                              : std::string(one ? "miss" : "misses")) +
                        " at " + listed(places));
    }
    if (blanks > 0) {
        parts.push_back(std::to_string(blanks) + (blanks == 1 ? " cell" : " cells") +
                        " not fired at");
    }
    std::string text = std::move(heading) + ":";
    for (std::size_t i = 0; i < parts.size(); ++i) {
        text += (i == 0 ? " " : ", ") + parts[i];
    }
    return text + ".";
}

}  // namespace

std::string rowOf(const GridControl& board, const PerShip<std::int16_t>& sunk, int row) {
    return lineOf(
        "Row " + rowLetter(static_cast<std::int16_t>(row)), sunk,
        [&](int col) { return board.textMatrix(row, col); },
        [](int col) { return std::to_string(col); });
}

std::string columnOf(const GridControl& board, const PerShip<std::int16_t>& sunk, int col) {
    return lineOf(
        "Column " + std::to_string(col), sunk, [&](int row) { return board.textMatrix(row, col); },
        [](int row) { return rowLetter(static_cast<std::int16_t>(row)); });
}

std::vector<std::string> fleetOf(const Ocean& ocean) {
    std::vector<std::string> afloat, sunk;
    for (const ShipInfo& ship : kShips) {
        std::vector<std::string> cells, hits;
        for (int row = kFirstLine; row <= kLastLine; ++row) {
            for (int col = kFirstLine; col <= kLastLine; ++col) {
                const std::int16_t code = ocean(row, col);
                if (code == ship.intactCode || code == ship.hitCode) {
                    cells.push_back(shortCellName(row, col));
                    if (code == ship.hitCode) {
                        hits.push_back(cells.back());
                    }
                }
            }
        }
        if (cells.empty()) {
            continue;
        }
        std::string text =
            "Your " + std::string(ship.name) + ", " + cells.front() + " to " + cells.back() + ", ";
        if (hits.size() == cells.size()) {
            sunk.push_back(text + "sunk.");
        } else {
            afloat.push_back(text + (hits.empty() ? "not hit." : "hit at " + listed(hits) + "."));
        }
    }
    afloat.insert(afloat.end(), sunk.begin(), sunk.end());
    return afloat;
}

}  // namespace marivox::review
