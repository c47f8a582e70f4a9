// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "fake/FakeDesktop.h"
#include "fake/FakePlatform.h"
#include "fake/FakeServices.h"
#include "fake/FakeTimers.h"
#include "fake/Transcript.h"
#include "platform/KeyCodes.h"
#include "screen/System.h"

namespace marivox::fake {

// The whole system over fakes, with virtual time: what the program does, heard and seen
// as a transcript.
struct ScreenRig {
    explicit ScreenRig(std::uint64_t seed = 1) : clock(seed, 7919), system(ports(), seed) {
        system.guard.setFaultInjector(&faults);
    }

    // Starts the program with `stored` as the stored screen-reader choice (nothing stored
    // when empty), lets the opening prompt be spoken and clears the transcript.
    void startAndSettle(const std::string& stored = "JFW") {
        if (!stored.empty()) {
            settings.stored["Marivox/StartUp/Reader"] = stored;
        }
        system.Main();
        timers.advance(100);
        transcript.clear();
    }

    GameScreen& screen() { return system.screen; }
    GameState& state() { return system.state; }
    FakeGrid& grid() { return window.fakeGrid(); }

    void press(std::int16_t keyCode) { window.pressKey(keyCode); }

    // A cell of the computer's ocean holding `code`, searched in reading order.
    std::optional<std::pair<int, int>> cellHolding(const Ocean& ocean, std::int16_t code) const {
        for (int row = 1; row <= 9; ++row) {
            for (int col = 1; col <= 9; ++col) {
                if (ocean(row, col) == code) {
                    return std::pair{row, col};
                }
            }
        }
        return std::nullopt;
    }

    // The player moves to (row, col) and presses Enter.
    void fireAt(int row, int col) {
        grid().playerMovesTo(row, col);
        press(KeyCode::Return);
    }

    Transcript transcript;
    FakeTimers timers{transcript};
    FakeGameWindow window{transcript};
    FakeMessageBoxes boxes{transcript};
    FakeApplication application{transcript};
    FakeSettings settings{transcript};
    FakeShell shell{transcript};
    FakeWavPlayer wav{transcript};
    FakeJaws jaws{transcript};
    FakeAutomation automation{transcript};
    FakeReaderDialog readerDialog{transcript};
    FakeAboutBox aboutBox{transcript};
    FakeClock clock;
    FakeSleeper sleeper;
    FaultPlan faults;
    System system;

  private:
    PlatformPorts ports() {
        return {window, timers,     boxes,        application, settings, shell,  wav,
                jaws,   automation, readerDialog, aboutBox,    clock,    sleeper};
    }
};

}  // namespace marivox::fake
