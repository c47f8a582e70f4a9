// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace marivox {

class Guard;
class RandomGenerator;

// Where placement and random targeting get their whole numbers.
class RandomSource {
  public:
    virtual ~RandomSource() = default;
    // A whole number in low..high inclusive.
    virtual std::int16_t GetRandom(std::int16_t low, std::int16_t high) = 0;
};

// GetRandom: the game's one source of random whole numbers.
class RandomNumbers final : public RandomSource {
  public:
    RandomNumbers(RandomGenerator& generator, Guard& guard)
        : generator_(generator), guard_(guard) {}

    std::int16_t GetRandom(std::int16_t low, std::int16_t high) override;

  private:
    RandomGenerator& generator_;
    Guard& guard_;
};

}  // namespace marivox
