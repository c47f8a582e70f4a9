// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace marivox {

class Clock;

// The game's pseudo-random generator: 64 bits of state, stirred by the clock or by a
// number. Stirring folds the input into the current state instead of restarting a fixed
// sequence, so stirring twice with the same input still leads to fresh draws.
class RandomGenerator {
  public:
    RandomGenerator(Clock& clock, std::uint64_t initialState)
        : clock_(clock), state_(initialState) {}

    void reseedFromClock();
    void reseed(double number);
    // Uniform in [0, 1).
    double draw();

    std::uint64_t state() const { return state_; }

  private:
    void fold(std::uint64_t input);

    Clock& clock_;
    std::uint64_t state_;
};

}  // namespace marivox
