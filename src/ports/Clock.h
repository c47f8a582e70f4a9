// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace marivox {

// A fine-grained reading of the system clock, used only to stir the random generator.
class Clock {
  public:
    virtual ~Clock() = default;
    virtual std::uint64_t ticks() = 0;
};

}  // namespace marivox
