// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Marivox: builds the desktop, the speech service and the sound device, and starts the game.
#include <QApplication>
#include <chrono>

#include "app/RealClock.h"
#include "platform/qt/Dialogs.h"
#include "platform/qt/GameWindowQt.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtMessageBoxes.h"
#include "platform/qt/QtSettingsStore.h"
#include "platform/qt/QtTimers.h"
#include "platform/qt/audio/PulseOutput.h"
#include "platform/qt/help/QtShell.h"
#include "platform/speechd/SpeechdReaders.h"
#include "screen/System.h"

int main(int argc, char** argv) {
    using namespace marivox;
    QApplication desktop(argc, argv);
    QApplication::setApplicationName("Marivox");

    qt::QtApplication application;
    qt::QtShell shell(application.programFolder());
    qt::GameWindowQt window(application, [&] {
        // The platform's help key opens the application's help file, as the menu does.
        if (!application.helpFile().empty()) {
            shell.ShellExecute(0, nullptr, application.helpFile(), nullptr, "", 1);
        }
    });
    qt::QtTimerFactory timers;
    qt::QtMessageBoxes boxes;
    qt::QtSettingsStore settings;
    const auto player = audio::makePulseWavPlayer();
    speechd::SpeechdJawsApi jaws;
    speechd::SpeechdAutomationObjects automation;
    qt::ReaderDialogQt readerDialog;
    qt::AboutBoxQt aboutBox([&window] { return &window; });
    RealClock clock;
    RealSleeper sleeper;

    System system({window, timers, boxes, application, settings, shell, *player, jaws, automation,
                   readerDialog, aboutBox, clock, sleeper},
                  clock.ticks());
    system.Main();
    const int result = application.isEnding() ? 0 : QApplication::exec();
    // The closing sound is heard whole before the program goes, even behind a full queue.
    player->drainBeforeExit(std::chrono::seconds(6));
    return result;
}
