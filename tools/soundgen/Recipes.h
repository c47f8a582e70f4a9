// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "Synth.h"

namespace soundgen {

struct Recipe {
    std::string fileName;
    Signal (*make)();
};

// How to make the sound effect of that file name; null if we have no recipe for it.
const Recipe* recipeFor(std::string_view fileName);

}  // namespace soundgen
