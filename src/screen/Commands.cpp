// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ports/Commands.h"

#include "model/CellName.h"
#include "model/GameState.h"
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
        const commands::Command* command =
            commands::commandFor(commands::KeyKind::PlayersTurn, keyCode, shift);
        if (command != &commands::kRepeat) {
            services_.spoken.restartRepeats();
        }
        if (command != nullptr) {
            (this->*command->handler)();
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
