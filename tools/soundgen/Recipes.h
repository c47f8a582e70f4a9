// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Synth.h"

namespace soundgen {

struct Recipe {
    std::string fileName;
    Signal (*make)();
};

// The game's nine effects, by the file names the game asks for.
const std::vector<Recipe>& recipes();

}  // namespace soundgen
