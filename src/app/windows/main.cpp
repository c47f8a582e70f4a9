// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Marivox on Windows: builds the native desktop, the screen readers' interfaces and the wave
// output, and starts the game.
#include <windows.h>
// After windows.h, which they need.
#include <commctrl.h>
#include <objbase.h>

#include <chrono>

#include "adapters/audio/StreamWavPlayer.h"
#include "adapters/system/SystemClock.h"
#include "adapters/windows/WinApplication.h"
#include "adapters/windows/WinDesktop.h"
#include "adapters/windows/WinDialogs.h"
#include "adapters/windows/WinGameWindow.h"
#include "adapters/windows/WinMessageBoxes.h"
#include "adapters/windows/WinSettingsStore.h"
#include "adapters/windows/WinTimers.h"
#include "adapters/windows/WinWaveOut.h"
#include "adapters/windows/WindowsReaders.h"
#include "adapters/windows/WindowsShell.h"
#include "screen/System.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    using namespace marivox;
    // The Window-Eyes object is an apartment-threaded COM object, called on this thread.
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
    windows::Desktop desktop(instance);
    windows::WinApplication application;
    windows::WindowsShell shell;
    windows::WinGameWindow window(application);
    windows::WinTimerFactory timers;
    windows::WinMessageBoxes boxes;
    windows::WinSettingsStore settings;
    audio::StreamWavPlayer player(
        windows::waveOutConnector(), audio::PlayerLimits{},
        [](const std::exception& failure) {
            windows::Desktop::escapedOnAnyThread("PlaySound", failure);
        },
        windows::Desktop::post);
    windows::WindowsReaderDrivers readers;
    windows::WinReaderDialog readerDialog;
    windows::WinAboutBox aboutBox([&window] { return window.handle(); });
    RealClock realClock;
    CountingClock countingClock;
    const auto replay = replaySeed();
    Clock& clock = replay ? static_cast<Clock&>(countingClock) : realClock;
    RealSleeper sleeper;

    System system({window, timers, boxes, application, settings, shell, player, readers,
                   readerDialog, aboutBox, clock, sleeper},
                  replay.value_or(realClock.ticks()));
    desktop.setEscapedFailureHandler(
        [&system](std::string_view where, const std::exception& failure) {
            system.guard.reportEscaped(where, failure);
        });
    desktop.setPreview([&window](MSG& message) { return window.preview(message); });
    system.Main();
    const int result = application.isEnding() ? 0 : desktop.run();
    // The closing sound is heard whole before the program goes, even behind a full queue.
    player.drainBeforeExit(std::chrono::seconds(6));
    CoUninitialize();
    return result;
}
