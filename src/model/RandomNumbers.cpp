// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/RandomNumbers.h"

#include <cmath>

#include "model/Int16.h"
#include "model/RandomGenerator.h"
#include "support/Guard.h"

namespace marivox {

std::int16_t RandomNumbers::GetRandom(std::int16_t low, std::int16_t high) {
    std::int16_t result = 0;
    guard_.run(Procedure::GetRandom, [&] {
        // Each pass stirs the generator twice, the second time with a number drawn from
        // the first, and only the last pass counts.
        for (int pass = 1; pass <= 100; ++pass) {
            generator_.reseedFromClock();
            const double u1 = generator_.draw();
            const double seedSpan = add16(sub16(1000, low), 1);
            const double seed = std::floor(seedSpan * u1 + low);
            generator_.reseed(seed);
            const double u2 = generator_.draw();
            const double span = add16(sub16(high, low), 1);
            result = toInt16(static_cast<long long>(std::floor(span * u2 + low)));
        }
    });
    return result;
}

}  // namespace marivox
