// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Marivox: builds the desktop, the speech service and the sound device, and starts the game.
#include <chrono>

#include "adapters/probe/LatencyLog.h"
#include "adapters/pulse/PulseOutput.h"
#include "adapters/qt/Desktop.h"
#include "adapters/qt/Dialogs.h"
#include "adapters/qt/GameWindowQt.h"
#include "adapters/qt/OrcaSettings.h"
#include "adapters/qt/QtApplication.h"
#include "adapters/qt/QtMessageBoxes.h"
#include "adapters/qt/QtSettingsStore.h"
#include "adapters/qt/QtTimers.h"
#include "adapters/qt/help/QtShell.h"
#include "adapters/speechd/SpeechdReaders.h"
#include "adapters/system/SystemClock.h"
#include "app/linux/LinuxReaders.h"
#include "ports/ProgramName.h"
#include "screen/System.h"

int main(int argc, char** argv) {
    using namespace marivox;
    qt::Desktop desktop(argc, argv);
    QApplication::setApplicationName(kProgramName);

    const auto latency = probe::LatencyLog::fromEnvironment();
    qt::QtApplication application;
    qt::QtShell shell(application.programFolder());
    qt::GameWindowQt window(application, latency.get());
    qt::QtTimerFactory timers;
    qt::QtMessageBoxes boxes;
    qt::QtSettingsStore settings;
    const auto player = pulse::makePulseWavPlayer(
        [](const std::exception& failure) {
            qt::Desktop::escapedOnAnyThread("PlaySound", failure);
        },
        qt::Desktop::post);
    const auto onUserInterface = [](std::function<void()> call) {
        qt::Desktop::post(std::chrono::microseconds(0), std::move(call));
    };
    // Whenever the game speaks through speech-dispatcher itself, in the player's Orca voice.
    qt::OrcaSettings orca;
    speechd::SpeechdReaderDrivers speechd(latency.get(), onUserInterface,
                                          [&orca] { return orca.voice(); });
    LinuxReaders readers(speechd, window);
    qt::ReaderDialogQt readerDialog;
    qt::AboutBoxQt aboutBox([&window] { return &window; });
    RealClock realClock;
    CountingClock countingClock;
    const auto replay = replaySeed();
    Clock& clock = replay ? static_cast<Clock&>(countingClock) : realClock;
    RealSleeper sleeper;

    System system({window, timers, boxes, application, settings, shell, *player, readers,
                   readerDialog, aboutBox, clock, sleeper},
                  replay.value_or(realClock.ticks()));
    desktop.setEscapedFailureHandler(
        [&system](std::string_view where, const std::exception& failure) {
            system.guard.reportEscaped(where, failure);
        });
    system.Main();
    const int result = application.isEnding() ? 0 : QApplication::exec();
    // The closing sound is heard whole before the program goes, even behind a full queue.
    player->drainBeforeExit(std::chrono::seconds(6));
    return result;
}
