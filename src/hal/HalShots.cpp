// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "hal/HalShots.h"

#include <string>

#include "hal/TargetSelection.h"
#include "model/CellName.h"
#include "model/GameState.h"
#include "model/Int16.h"
#include "model/Ships.h"
#include "speech/SoundFiles.h"
#include "speech/Speech.h"
#include "support/Guard.h"

namespace marivox {

void HalShots::HalShot(std::int16_t row, std::int16_t col) {
    guard_.run(Procedure::HalShot, [&] {
        const std::int16_t code = state_.MyOcean(row, col);
        if (code == CellCode::OpenWater) {
            // A miss leaves the hunt as it is: the next search starts from the same hit.
            HalRegisterHit(CellCode::FiredWater);
            sounds_.PlaySound(Sound::Shoot);
            HalSpeakCell(kMissText);
        } else if (const auto ship = shipWithIntactCode(code)) {
            hit(shipInfo(*ship), row, col);
        }
        // Any other cell has been fired at; target selection never chooses one.
    });
}

void HalShots::hit(const ShipInfo& ship, std::int16_t row, std::int16_t col) {
    state_.HalHunting = kTrue;
    state_.HalHuntShip = ship.intactCode;
    HalRegisterHit(add16(ship.intactCode, CellCode::HitOffset));
    sounds_.PlaySound(Sound::Shoot);
    sounds_.PlaySound(Sound::Hit);
    std::int16_t& hits = state_.HalHits[ship.type];
    hits = add16(hits, 1);
    if (hits == ship.length) {
        state_.HalSunkCount = add16(state_.HalSunkCount, 1);
        sounds_.PlaySound(Sound::Sink);
        state_.HalSunk[ship.type] = kTrue;
        speech_.Speak(ship.halSinkText);
        targeting_.ClearHits();
    } else {
        HalSpeakCell(ship.halHitText);
        state_.HalLastRow = row;
        state_.HalLastCol = col;
    }
}

void HalShots::HalRegisterHit(std::int16_t code) {
    guard_.run(Procedure::HalRegisterHit, [&] {
        state_.MyOcean.set(state_.HalRow, state_.HalCol, code);
        if (code > 0) {
            state_.HalHitShip = code;
            state_.HalHitCount = add16(state_.HalHitCount, 1);
        }
    });
}

void HalShots::HalSpeakCell(std::string_view text) {
    guard_.run(Procedure::HalSpeakCell, [&] {
        speech_.StopSpeech();
        std::string sentence = cellName(state_.HalRow, state_.HalCol);
        sentence += text;
        speech_.Speak(sentence);
    });
}

}  // namespace marivox
