// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fake/Fakes.h"
#include "screen/System.h"
#include "support/FaultInjector.h"

namespace marivox::fake {

// Makes a guarded procedure fail as it begins, on its n-th entry: for the procedures that
// call no port of their own through which a failure could come.
struct FaultPlan : FaultInjector {
    void enter(Procedure procedure) override {
        if (armed.contains(procedure) && --armed[procedure] == 0) {
            armed.erase(procedure);
            throw Failure(1234, "Injected failure");
        }
    }
    std::map<Procedure, int> armed;  // entries left until each failure
};

// The whole system over the fakes, in virtual time, with "JFW" the stored choice.
struct Rig {
    static constexpr const char* kReaderSetting = "Marivox/StartUp/Reader";

    explicit Rig(std::uint64_t seed = 1) : clock(seed, 7919), system(ports(), seed) {
        system.guard.setFaultInjector(&faults);
        settings.stored[kReaderSetting] = "JFW";
    }
    GameState& state() { return system.state; }
    PlatformPorts ports() {
        return {window, timers,     boxes,  app,   settings, shell,  wav,
                jaws,   automation, dialog, about, clock,    sleeper};
    }

    Transcript t;
    FakeTimers timers{t};
    FakeWindow window{t, timers};
    FakeBoxes boxes{t};
    FakeApplication app{t, timers};
    FakeSettings settings{t};
    FakeShell shell{t};
    FakeSleeper sleeper;
    FakeWavPlayer wav{t, sleeper};
    FakeJaws jaws{t};
    FakeAutomation automation{t};
    FakeReaderDialog dialog{t};
    FakeAboutBox about{t};
    FakeClock clock;
    FaultPlan faults;
    System system;
};

}  // namespace marivox::fake
