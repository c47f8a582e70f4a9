// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "ports/Failure.h"

namespace marivox {

// What an ocean cell holds.
namespace CellCode {
inline constexpr std::int16_t FiredWater = 0;  // a miss; also every rim cell
inline constexpr std::int16_t OpenWater = 1;
inline constexpr std::int16_t FirstIntact = 10;
inline constexpr std::int16_t LastIntact = 15;
inline constexpr std::int16_t FirstHit = 20;
inline constexpr std::int16_t LastHit = 25;
inline constexpr std::int16_t HitOffset = 10;  // a hit turns an intact code into code + 10
}  // namespace CellCode

inline constexpr int kFirstLine = 1;  // playing rows and columns are 1..9
inline constexpr int kLastLine = 9;

// A 9 by 9 ocean with a rim of zeros around it, indexed 0..10 both ways. The rim lets a
// neighbour one step past the edge read as water already fired at.
class Ocean {
  public:
    static constexpr int kExtent = 11;

    std::int16_t operator()(int row, int col) const { return cells_[index(row, col)]; }
    void set(int row, int col, std::int16_t code) { cells_[index(row, col)] = code; }

    friend bool operator==(const Ocean&, const Ocean&) = default;

  private:
    static std::size_t index(int row, int col) {
        if (row < 0 || row >= kExtent || col < 0 || col >= kExtent) {
            throw Failure(FailureNumber::IndexOutOfRange, "Ocean index out of range");
        }
        return static_cast<std::size_t>(row * kExtent + col);
    }

    std::array<std::int16_t, kExtent * kExtent> cells_{};
};

inline bool isPlayingCell(int row, int col) {
    return row >= kFirstLine && row <= kLastLine && col >= kFirstLine && col <= kLastLine;
}

}  // namespace marivox
