// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace marivox {

// Flags kept as 16-bit integers are exactly one of these two values.
inline constexpr std::int16_t kTrue = -1;
inline constexpr std::int16_t kFalse = 0;

}  // namespace marivox
