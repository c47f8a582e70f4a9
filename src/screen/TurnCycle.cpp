// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/CellName.h"
#include "model/GameState.h"
#include "ports/Application.h"
#include "ports/MessageBoxes.h"
#include "screen/GameScreen.h"
#include "screen/ScreenTexts.h"
#include "speech/SoundFiles.h"
#include "speech/Speech.h"
#include "support/Guard.h"
#include "support/Titles.h"

namespace marivox {

using namespace screen;

void GameScreen::runTimerHandler(Procedure procedure, OneShotTimer& timer,
                                 const std::function<void()>& body) {
    guard_.run(procedure, body, FailureSteps::before([&] { timer.switchOff(); }));
}

// The player's shot, from a click on the grid or the Shoot command. It fires whatever the
// turn: only the keyboard path is bound to the player's turn.
void GameScreen::flex_Click() {
    guard_.run(Procedure::flex_Click, [&] {
        typedRow_.reset();  // a row letter typed before the turn passed names no cell after it
        speech_.StopSpeech();
        state_.Shooting = kTrue;
        state_.MyRow = static_cast<std::int16_t>(flex_.row());
        state_.MyCol = static_cast<std::int16_t>(flex_.col());
        speech_.StopSpeech();
        playerShots_.MyShot();
        flex_.setRow(state_.MyRow);
        flex_.setCol(state_.MyCol);
        flex_.setCellBackColor(flex_.backColor());
        flex_.setCellForeColor(flex_.foreColor());
        state_.Shooting = kFalse;
        if (boards_.GameOver()) {
            sounds_.PlaySound(Sound::YouWin1);
            sounds_.PlaySound(Sound::YouWin2);
            state_.GameInProgress = kFalse;
            askToPlayAgain(kPlayerWins);
        } else if (state_.TurnState == kComputersTurn) {
            // A fresh shot during the computer's turn re-aims it; running timers go on.
            targeting_.chooseTarget();
        }
    });
}

void GameScreen::askToPlayAgain(std::string_view question) {
    const int answer = services_.boxes.show(question, MsgBoxStyle::YesNo + MsgBoxStyle::Question,
                                            kGameScreenCaption);
    if (answer == MsgBoxAnswer::Yes) {
        BeginGame();
        return;
    }
    // Declining ends the program at once: no exit question, no closing sound.
    releaseStartedReader();
    services_.application.endNow();
}

void GameScreen::tmrHalDelay_Timer() {
    runTimerHandler(Procedure::tmrHalDelay_Timer, *tmrHalDelay_, [&] {
        speech_.Speak(std::string(kTargeting) + cellName(state_.HalRow, state_.HalCol));
        tmrTimer1_->switchOn();
        tmrHalDelay_->switchOff();
    });
}

void GameScreen::tmrTimer1_Timer() {
    runTimerHandler(Procedure::tmrTimer1_Timer, *tmrTimer1_, [&] {
        halShots_.HalShot(state_.HalRow, state_.HalCol);
        if (state_.HalSunkCount != 6) {
            state_.TurnState = kPlayersTurn;
            tmrTimer2_->switchOn();
        } else {
            sounds_.PlaySound(Sound::Laugh1);
            state_.GameInProgress = kFalse;
            askToPlayAgain(kComputerWins);
        }
        // Only after the answer, so the timer cannot tick into the open question.
        tmrTimer1_->switchOff();
    });
}

void GameScreen::tmrTimer2_Timer() {
    runTimerHandler(Procedure::tmrTimer2_Timer, *tmrTimer2_, [&] {
        speech_.Speak(turnReminder());
        tmrTimer2_->switchOff();
    });
}

}  // namespace marivox
