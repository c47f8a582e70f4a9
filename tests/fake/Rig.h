// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include "fake/FakeServices.h"
#include "ports/Commands.h"
#include "ports/KeyCodes.h"
#include "screen/System.h"
#include "support/FaultInjector.h"

namespace marivox::fake {

// Lets a failure be armed at a guarded procedure as it begins (`enter <name>`, written down
// only if it fails), for the procedures that call no port through which one could come.
struct FaultPlan : FaultInjector, Recorder {
    using Recorder::Recorder;
    void enter(Procedure p) override {
        t.record("enter " + std::string(procedureInfo(p).name), false);
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

// The rig driven by names, as scenes and random play drive it.
// Every command of the game screen by its menu item's name.
inline const std::map<std::string, void (GameScreenEvents::*)()> kMenu = [] {
    std::map<std::string, void (GameScreenEvents::*)()> menu;
    commands::forEach([&](const commands::Command& c) { menu[c.name] = c.handler; });
    return menu;
}();

// clang-format off
inline const std::map<std::string, std::int16_t> kKeys{
    {"Enter", KeyCode::Return},      {"F1", KeyCode::F1},           {"F2", KeyCode::F2},
    {"F3", KeyCode::F3},             {"F4", KeyCode::F4},           {"F5", KeyCode::F5},
    {"F6", KeyCode::F6},             {"Up", KeyCode::Up},           {"Down", KeyCode::Down},
    {"Left", KeyCode::Left},         {"Right", KeyCode::Right},     {"Home", KeyCode::Home},
    {"End", KeyCode::End},           {"PageUp", KeyCode::PageUp},   {"PageDown", KeyCode::PageDown},
    {"Shift", KeyCode::Shift},       {"Escape", KeyCode::Escape},   {"Add", KeyCode::Add},
    {"Subtract", KeyCode::Subtract}};
// clang-format on

// A key by its name: one of the above, "Pad" and a keypad digit, or a letter or digit.
inline std::int16_t keyCode(const std::string& name) {
    return kKeys.contains(name)      ? kKeys.at(name)
           : name.starts_with("Pad") ? static_cast<std::int16_t>(KeyCode::Numpad0 + name[3] - '0')
                                     : name.at(0);
}

}  // namespace marivox::fake
