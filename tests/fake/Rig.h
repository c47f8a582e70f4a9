// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fake/Fakes.h"
#include "screen/System.h"
#include "support/FaultInjector.h"

namespace marivox::fake {

// Lets a failure be armed at a guarded procedure as it begins (`enter <name>`, written down
// only if it fails), for the procedures that call no port through which one could come.
struct FaultPlan : FaultInjector, Recorder {
    using Recorder::Recorder;
    void enter(Procedure p) override {
        const std::string unit = p == Procedure::frmReader_Form_Unload ? "frmReader." : "";
        t.record("enter " + unit + std::string(procedureInfo(p).name), false);
    }
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
        return {window, timers,  boxes,  app,   settings, shell,
                wav,    readers, dialog, about, clock,    sleeper};
    }

    Transcript t;
    FakeTimers timers{t};
    FakeWindow window{t, timers};
    FakeBoxes boxes{t};
    FakeApplication app{t, timers};
    FakeSettings settings{t};
    FakeShell shell{t};
    FakeSleeper sleeper;
    FakeWavPlayer wav{t, sleeper, timers};
    FakeReaders readers{t};
    FakeReaderDialog dialog{t};
    FakeAboutBox about{t};
    FakeClock clock;
    FaultPlan faults{t};
    System system;
};

}  // namespace marivox::fake
