// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <memory>

#include "fake/FakeGrid.h"
#include "fake/FakePlatform.h"
#include "fake/FakeSpeech.h"
#include "fake/FakeTimers.h"
#include "fake/Transcript.h"
#include "hal/HalShots.h"
#include "hal/TargetSelection.h"
#include "model/Boards.h"
#include "model/GameState.h"
#include "model/Placement.h"
#include "model/PlayerShots.h"
#include "model/RandomGenerator.h"
#include "model/RandomNumbers.h"
#include "support/ErrorReports.h"
#include "support/Guard.h"

namespace marivox::fake {

// The rules of the game wired to fakes, for tests that exercise them without a screen.
struct RulesRig {
    explicit RulesRig(std::uint64_t seed = 1) : clock(seed, 7919), generator(clock, seed) {
        reports.speakThrough([this](std::string_view text) { speech.Speak(text); });
        guard.setFaultInjector(&faults);
        grid.setRows(10);
        grid.setCols(10);
    }

    // Lays the fleets the way a new game does and clears the transcript.
    void newGame() {
        boards.InitializeBoards();
        placement.placeBothFleets();
        state.TurnState = kPlayersTurn;
        transcript.clear();
    }

    Transcript transcript;
    FakeSpeech speech{transcript};
    FakeSounds sounds{transcript};
    FakeGrid grid{transcript};
    FakeTimers timers{transcript};
    FakeMessageBoxes boxes{transcript};
    FakeApplication application{transcript};
    FakeClock clock;
    FaultPlan faults;
    RandomGenerator generator;
    GameState state;
    ErrorReports reports{boxes, application};
    Guard guard{reports};
    RandomNumbers random{generator, guard};
    std::unique_ptr<OneShotTimer> halDelay =
        timers.createTimer("tmrHalDelay", std::chrono::milliseconds(2000), [] {});
    Boards boards{state, guard};
    Placement placement{state, random, guard};
    PlayerShots playerShots{state, guard, speech, sounds, grid};
    TargetSelection targeting{state, guard, random, *halDelay};
    HalShots halShots{state, guard, speech, sounds, targeting};
};

}  // namespace marivox::fake
