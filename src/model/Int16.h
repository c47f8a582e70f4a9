// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <limits>

#include "ports/Failure.h"

namespace marivox {

// The game's counters and codes are 16-bit; arithmetic that leaves that range is a
// failure of the procedure doing it, never a silent wrap.
inline std::int16_t toInt16(long long value) {
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max()) {
        throw Failure(FailureNumber::Overflow, "Overflow of a 16-bit value");
    }
    return static_cast<std::int16_t>(value);
}

inline std::int16_t add16(std::int16_t a, std::int16_t b) {
    return toInt16(static_cast<long long>(a) + b);
}

inline std::int16_t sub16(std::int16_t a, std::int16_t b) {
    return toInt16(static_cast<long long>(a) - b);
}

}  // namespace marivox
