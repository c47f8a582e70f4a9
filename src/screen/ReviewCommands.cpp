// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <utility>

#include "model/GameState.h"
#include "ports/KeyCodes.h"
#include "screen/BoardReview.h"
#include "screen/GameScreen.h"
#include "speech/SpokenHistory.h"
#include "support/Guard.h"

// The player's review of the game without moving over the board. Like the score, each
// command stops what is being said; the keys act only in the player's turn, the menu
// commands at any time.
namespace marivox {

void GameScreen::mnuOptionsRow_Click() {
    guard_.run(Procedure::mnuOptionsRow_Click, [&] {
        speech_.StopSpeech();
        speech_.Speak(review::rowOf(flex_, state_.MySunk, flex_.row()));
    });
}

void GameScreen::mnuOptionsColumn_Click() {
    guard_.run(Procedure::mnuOptionsColumn_Click, [&] {
        speech_.StopSpeech();
        speech_.Speak(review::columnOf(flex_, state_.MySunk, flex_.col()));
    });
}

void GameScreen::mnuOptionsRepeat_Click() {
    guard_.run(Procedure::mnuOptionsRepeat_Click, [&] {
        speech_.StopSpeech();
        services_.spoken.repeatOneBack();
    });
}

void GameScreen::mnuOptionsFleet_Click() {
    guard_.run(Procedure::mnuOptionsFleet_Click, [&] {
        speech_.StopSpeech();
        const SpokenHistory::OneThingSaid report(services_.spoken);
        for (const std::string& ship : review::fleetOf(state_.MyOcean)) {
            speech_.Speak(ship);
        }
    });
}

void GameScreen::typeCellName(std::int16_t keyCode, std::int16_t shift) {
    // Shift held for a capital letter keeps the letter waiting.
    if (keyCode == KeyCode::Shift || keyCode == KeyCode::Control || keyCode == KeyCode::Menu) {
        return;
    }
    const std::optional<int> typedRow = std::exchange(typedRow_, std::nullopt);
    // Alt+H opens the Help menu, and Ctrl or Alt with a digit is nobody's cell name.
    if ((shift & (ShiftState::Control | ShiftState::Alt)) != 0) {
        return;
    }
    int digit = 0;
    if (keyCode > '0' && keyCode <= '9') {
        digit = keyCode - '0';
    } else if (keyCode > KeyCode::Numpad0 && keyCode <= KeyCode::Numpad0 + 9) {
        digit = keyCode - KeyCode::Numpad0;
    }
    if (keyCode >= 'A' && keyCode <= 'I') {
        typedRow_ = keyCode - 'A' + 1;
    } else if (typedRow && digit > 0) {
        jumpTo(*typedRow, digit);
    }
}

// Spoken as any move is, once: not the row's step and then the column's.
void GameScreen::jumpTo(int row, int col) {
    struct Quiet {
        bool& quiet;
        explicit Quiet(bool& q) : quiet(q) { quiet = true; }
        ~Quiet() { quiet = false; }
    };
    {
        const Quiet quiet(quietMoves_);
        flex_.setRow(row);
        flex_.setCol(col);
    }
    flex_RowColChange();
}

}  // namespace marivox
