// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

namespace marivox {

// Holds the calling thread for a while.
class Sleeper {
  public:
    virtual ~Sleeper() = default;
    virtual void sleepFor(std::chrono::milliseconds duration) = 0;
};

}  // namespace marivox
