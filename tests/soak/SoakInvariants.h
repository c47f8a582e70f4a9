// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "fake/ScreenRig.h"

namespace marivox::soak {

// What must hold after every event of random play, beyond the state's own consistency:
// codes only move forward within a game, the board shows exactly what the player has
// learnt, and the computer only ever aims at cells it has not fired at.
class SoakInvariants {
  public:
    // The first problem after an event whose transcript lines are `lines`, or "".
    std::string check(fake::ScreenRig& rig, const std::vector<std::string>& lines);

  private:
    std::string codesMovedForward(const GameState& state) const;
    static std::string gridShowsTheOcean(fake::ScreenRig& rig);

    bool started_ = false;
    Ocean lastHal_;
    Ocean lastMine_;
};

}  // namespace marivox::soak
