// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/RandomGenerator.h"

#include <bit>
#include <cstring>

#include "ports/Clock.h"

namespace marivox {
namespace {

constexpr std::uint64_t kGolden = 0x9E3779B97F4A7C15ULL;

// The SplitMix64 finaliser: a bijection that spreads every input bit over the output.
constexpr std::uint64_t mix(std::uint64_t z) {
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

// Clock readings and numbers are folded with different tags so that a number equal to a
// clock reading does not stir the state the same way.
constexpr std::uint64_t kClockTag = 0xC10C'C10C'C10C'C10CULL;
constexpr std::uint64_t kNumberTag = 0x5EED'5EED'5EED'5EEDULL;

}  // namespace

void RandomGenerator::fold(std::uint64_t input) {
    state_ = mix(state_ + kGolden) ^ mix(input);
}

void RandomGenerator::reseedFromClock() {
    fold(clock_.ticks() ^ kClockTag);
}

void RandomGenerator::reseed(double number) {
    fold(std::bit_cast<std::uint64_t>(number) ^ kNumberTag);
}

double RandomGenerator::draw() {
    state_ += kGolden;
    return static_cast<double>(mix(state_) >> 11) * 0x1.0p-53;
}

}  // namespace marivox
