// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdlib>
#include <optional>
#include <thread>

#include "ports/Clock.h"
#include "ports/Sleeper.h"

namespace marivox {

// The clock and sleeping of the C++ standard library, the same on every platform.

// The system clock, read at the finest grain it offers, to stir the random generator.
class RealClock : public Clock {
  public:
    std::uint64_t ticks() override {
        return static_cast<std::uint64_t>(
            std::chrono::high_resolution_clock::now().time_since_epoch().count());
    }
};

// For a test that replays a game: MARIVOX_SEED in the environment is the random generator's
// first state, and the clock that stirs it counts instead of telling the time, so one seed
// deals the same fleets and draws the same shots every run.
class CountingClock : public Clock {
  public:
    std::uint64_t ticks() override { return ++count_; }

  private:
    std::uint64_t count_ = 0;
};

inline std::optional<std::uint64_t> replaySeed() {
    const char* seed = std::getenv("MARIVOX_SEED");
    return seed != nullptr && *seed != '\0' ? std::optional(std::strtoull(seed, nullptr, 10))
                                            : std::nullopt;
}

class RealSleeper : public Sleeper {
  public:
    void sleepFor(std::chrono::milliseconds duration) override {
        std::this_thread::sleep_for(duration);
    }
};

}  // namespace marivox
