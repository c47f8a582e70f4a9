// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "model/GameState.h"
#include "model/RandomGenerator.h"
#include "model/RandomNumbers.h"
#include "screen/GameScreen.h"
#include "speech/ModalsAfterSounds.h"
#include "speech/ScreenReaderChoice.h"
#include "speech/ScreenReaderSpeech.h"
#include "speech/ScreenReaderState.h"
#include "speech/SpeechAfterSounds.h"
#include "speech/SpokenHistory.h"
#include "speech/WavSounds.h"
#include "support/ErrorReports.h"
#include "support/Guard.h"
#include "support/HelpCommands.h"

namespace marivox {

class Clock;
class ReaderDrivers;
class SettingsStore;
class Shell;
class Sleeper;
class WavPlayer;

// Everything outside the system that the game uses.
struct PlatformPorts {
    GameWindow& window;
    TimerFactory& timers;
    MessageBoxes& boxes;
    Application& application;
    SettingsStore& settings;
    Shell& shell;
    WavPlayer& wavPlayer;
    ReaderDrivers& readers;
    ReaderDialog& readerDialog;
    AboutBox& aboutBox;
    Clock& clock;
    Sleeper& sleeper;
};

// The whole system wired together over a platform: one game state, one screen-reader
// choice, one game screen, for the whole run of the program.
class System {
  public:
    // `seed` is the random generator's initial state; the clock stirs it at every draw.
    System(const PlatformPorts& ports, std::uint64_t seed);

    // Start-up: load and show the game screen, settle the screen reader, begin a game.
    void Main();

    PlatformPorts ports;
    GameState state;
    ScreenReaderState reader;
    // The modal windows as the game opens them: after the sounds and words before them.
    BoxesAfterSounds boxes;
    ReaderDialogAfterSounds readerDialog;
    AboutBoxAfterSounds aboutBox;
    ErrorReports reports;
    Guard guard;
    RandomGenerator generator;
    RandomNumbers random;
    ScreenReaderSpeech speech;
    WavSounds sounds;
    SpeechAfterSounds heard;  // the speech and sounds the rules use
    SpokenHistory spoken;     // the rules' speech, kept for the player to hear again
    ScreenReaderChoice readerChoice;
    HelpCommands help;
    AboutForm about;
    GameScreen screen;
};

}  // namespace marivox
