// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <thread>

#include "platform/Clock.h"
#include "platform/Sleeper.h"

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

class RealSleeper : public Sleeper {
  public:
    void sleepFor(std::chrono::milliseconds duration) override {
        std::this_thread::sleep_for(duration);
    }
};

}  // namespace marivox
