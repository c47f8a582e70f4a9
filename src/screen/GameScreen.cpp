// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "screen/GameScreen.h"

#include "model/CellName.h"
#include "model/GameState.h"
#include "ports/Application.h"
#include "ports/MessageBoxes.h"
#include "screen/ScreenTexts.h"
#include "speech/ScreenReaderChoice.h"
#include "speech/ScreenReaderState.h"
#include "speech/SoundFiles.h"
#include "speech/Speech.h"
#include "support/Guard.h"
#include "support/HelpCommands.h"
#include "support/Titles.h"

namespace marivox {
namespace {

using namespace std::chrono_literals;

// The pace of a game; none of the four ever changes.
constexpr auto kStartDelay = 100ms;  // before the opening prompt
constexpr auto kHalDelay = 2000ms;   // before the computer names its target
constexpr auto kTimer1 = 2500ms;     // before the computer fires
constexpr auto kTimer2 = 2000ms;     // before reminding the player of the turn

}  // namespace

using namespace screen;

GameScreen::GameScreen(const GameScreenServices& s)
    : services_(s),
      state_(s.state),
      guard_(s.guard),
      speech_(s.speech),
      sounds_(s.sounds),
      flex_(s.window.grid()),
      tmrStartDelay_(
          s.timers.createTimer("tmrStartDelay", kStartDelay, [this] { tmrStartDelay_Timer(); })),
      tmrHalDelay_(s.timers.createTimer("tmrHalDelay", kHalDelay, [this] { tmrHalDelay_Timer(); })),
      tmrTimer1_(s.timers.createTimer("tmrTimer1", kTimer1, [this] { tmrTimer1_Timer(); })),
      tmrTimer2_(s.timers.createTimer("tmrTimer2", kTimer2, [this] { tmrTimer2_Timer(); })),
      boards_(s.state, s.guard),
      placement_(s.state, s.random, s.guard),
      playerShots_(s.state, s.guard, s.speech, s.sounds, flex_),
      targeting_(s.state, s.guard, s.random, *tmrHalDelay_),
      halShots_(s.state, s.guard, s.speech, s.sounds, targeting_) {
    flex_.setListener(this);
    flex_.setCellDescriber(&GameScreen::describeCell);
    flex_.setMovesVoiced([&reader = s.reader] { return reader.chosen() != nullptr; });
}

void GameScreen::Form_Load() {
    Application& application = services_.application;
    application.setHelpFile(application.programFolder() + std::string(kHelpFileName));
    application.setTitle(std::string(kApplicationTitle));
    state_.GameInProgress = kFalse;
}

void GameScreen::BeginGame() {
    guard_.run(Procedure::BeginGame, [&] {
        sounds_.PlaySound(Sound::Begin);
        sounds_.PlaySound(Sound::Sonar);
        state_.SettingUp = kTrue;
        LoadGrid();
        boards_.InitializeBoards();
        placement_.placeBothFleets();
        for (int row = 1; row <= 9; ++row) {
            for (int col = 1; col <= 9; ++col) {
                flex_.setTextMatrix(row, col, " ");
            }
        }
        state_.SettingUp = kFalse;
        state_.TurnState = kPlayersTurn;
        state_.GameInProgress = kTrue;
        // Speech is left alone: the opening prompt cuts in a moment later.
        tmrStartDelay_->switchOn();
    });
}

void GameScreen::tmrStartDelay_Timer() {
    guard_.run(
        Procedure::tmrStartDelay_Timer,
        [&] {
            speech_.StopSpeech();
            for (const std::string_view line : kOpeningPrompt) {
                speech_.Speak(line);
            }
            tmrStartDelay_->switchOff();
        },
        FailureSteps::before([&] { tmrStartDelay_->switchOff(); }));
}

std::string GameScreen::cursorCellName() {
    return cellName(static_cast<std::int16_t>(flex_.row()), static_cast<std::int16_t>(flex_.col()));
}

std::string GameScreen::turnReminder() {
    return std::string(kTurnReminder) + cursorCellName();
}

void GameScreen::mnuGameNew_Click() {
    guard_.run(Procedure::mnuGameNew_Click, [&] {
        if (state_.GameInProgress != kTrue) {
            return;
        }
        const int answer = services_.boxes.show(
            kNewGameQuestion, MsgBoxStyle::YesNo + MsgBoxStyle::Question, kGameScreenCaption);
        if (answer == MsgBoxAnswer::Yes) {
            BeginGame();
        } else {
            speech_.Speak(turnReminder());
        }
    });
}

void GameScreen::mnuGameExit_Click() {
    guard_.run(Procedure::mnuGameExit_Click, [&] { services_.window.unload(); });
}

void GameScreen::Form_Unload(std::int16_t& cancel) {
    guard_.run(
        Procedure::GameScreen_Form_Unload,
        [&] {
            if (state_.GameInProgress == kTrue) {
                const int answer = services_.boxes.show(
                    kExitQuestion, MsgBoxStyle::YesNo + MsgBoxStyle::Question, kGameScreenCaption);
                if (answer != MsgBoxAnswer::Yes) {
                    cancel = kTrue;
                    speech_.Speak(turnReminder());
                    return;
                }
            }
            services_.window.unloadOtherWindows();
            sounds_.PlaySound(Sound::End);
            releaseStartedReader();
        },
        FailureSteps::after([&] { services_.application.endNow(); }));
}

void GameScreen::releaseStartedReader() {
    auto& voices = services_.reader.voices;
    if (const ReaderRow* reader = services_.reader.chosen();
        reader != nullptr && reader->startedOnChoice && voices.contains(reader->stored)) {
        voices.erase(voices.find(reader->stored));
    }
}

void GameScreen::mnuGameReader_Click() {
    guard_.run(Procedure::mnuGameReader_Click, [&] { services_.readerChoice.chooseAgain(); });
}

void GameScreen::mnuHelpContents_Click() {
    guard_.run(Procedure::mnuHelpContents_Click, [&] { services_.help.showHelpContents(); });
}

// The help file is the application's, so the platform's help key opens it; no procedure of
// the game screen handles F1, and a failure is reported as the help routine reports it.
void GameScreen::helpKey() {
    const std::string helpFile = services_.application.helpFile();
    if (!helpFile.empty()) {
        services_.help.RunHelp(helpFile);
    }
}

void GameScreen::mnuHelpAbout_Click() {
    guard_.run(Procedure::mnuHelpAbout_Click, [&] { services_.about.show(); });
}

}  // namespace marivox
