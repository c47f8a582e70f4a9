// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/CellName.h"
#include "model/GameState.h"
#include "platform/KeyCodes.h"
#include "screen/GameScreen.h"
#include "speech/Speech.h"
#include "speech/SpokenHistory.h"
#include "support/Guard.h"

namespace marivox {

// Sees every key before the grid does and never swallows it: arrows still move the cursor.
void GameScreen::Form_KeyDown(std::int16_t keyCode, std::int16_t shift) {
    guard_.run(Procedure::Form_KeyDown, [&] {
        if (state_.TurnState != kPlayersTurn) {
            return;
        }
        speech_.SilenceWaiting();
        speech_.StopSpeech();
        // Any key drops the pending reminder that it is the player's turn.
        if (tmrTimer2_->isOn()) {
            tmrTimer2_->switchOff();
        }
        typeCellName(keyCode, shift);
        // The review keys are plain keys: with Alt or Ctrl they are the desktop's (Alt+F4
        // closes the window) or nobody's.
        const bool plain = (shift & (ShiftState::Control | ShiftState::Alt)) == 0;
        if (keyCode != KeyCode::F5 || !plain) {
            services_.spoken.restartRepeats();
        }
        if (keyCode == KeyCode::Return) {
            mnuOptionsShoot_Click();
        } else if (keyCode == KeyCode::F2) {
            mnuOptionsStatus_Click();
        } else if (!plain) {
            return;
        } else if (keyCode == KeyCode::F3) {
            mnuOptionsRow_Click();
        } else if (keyCode == KeyCode::F4) {
            mnuOptionsColumn_Click();
        } else if (keyCode == KeyCode::F5) {
            mnuOptionsRepeat_Click();
        } else if (keyCode == KeyCode::F6) {
            mnuOptionsFleet_Click();
        }
    });
}

void GameScreen::mnuOptionsShoot_Click() {
    guard_.run(Procedure::mnuOptionsShoot_Click, [&] {
        speech_.StopSpeech();
        if (state_.Shooting == kFalse) {
            flex_Click();
        }
    });
}

void GameScreen::mnuOptionsStatus_Click() {
    guard_.run(Procedure::mnuOptionsStatus_Click, [&] {
        speech_.StopSpeech();
        const SpokenHistory::OneThingSaid score(services_.spoken);
        SpeakStatus();
    });
}

// The score, in ship-type order rather than the order of sinking. Its caller stops speech.
void GameScreen::SpeakStatus() {
    guard_.run(Procedure::SpeakStatus, [&] {
        speech_.Speak(" You have sank " + numberText(state_.MySunkCount) + " of my ships.  ");
        for (const ShipInfo& ship : kShips) {
            if (state_.MySunk[ship.type] == kTrue) {
                speech_.Speak(ship.statusHalShipText);
            }
        }
        speech_.Speak(" I have sank " + numberText(state_.HalSunkCount) + " of your ships.  ");
        for (const ShipInfo& ship : kShips) {
            if (state_.HalSunk[ship.type] == kTrue) {
                speech_.Speak(ship.statusMyShipText);
            }
        }
    });
}

}  // namespace marivox
