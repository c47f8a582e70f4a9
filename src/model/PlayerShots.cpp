// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/PlayerShots.h"

#include <string>

#include "model/CellName.h"
#include "model/GameState.h"
#include "model/Int16.h"
#include "model/Ships.h"
#include "ports/GridControl.h"
#include "speech/SoundFiles.h"
#include "speech/Speech.h"
#include "support/Guard.h"

namespace marivox {
namespace {

constexpr std::string_view kRepeatMissText = " was already targeted, and was a miss  ";

}  // namespace

void PlayerShots::MyShot() {
    guard_.run(Procedure::MyShot, [&] {
        const std::int16_t code = state_.HalOcean(state_.MyRow, state_.MyCol);
        if (code == CellCode::FiredWater) {
            SpeakCell(kRepeatMissText);
        } else if (code == CellCode::OpenWater) {
            RegisterHit(CellCode::FiredWater);
            sounds_.PlaySound(Sound::Shoot);
            SpeakCell(kMissText);
        } else if (const auto ship = shipWithIntactCode(code)) {
            freshHit(shipInfo(*ship));
        } else if (const auto hitShip = shipWithHitCode(code)) {
            SpeakCell(shipInfo(*hitShip).playerRepeatText);
        }
    });
}

void PlayerShots::freshHit(const ShipInfo& ship) {
    RegisterHit(add16(ship.intactCode, CellCode::HitOffset));
    sounds_.PlaySound(Sound::Shoot);
    sounds_.PlaySound(Sound::Hit);
    std::int16_t& hits = state_.MyHits[ship.type];
    hits = add16(hits, 1);
    // Compared after the count is raised: the hit that completes the length sinks the ship.
    if (hits == ship.length) {
        state_.MySunk[ship.type] = kTrue;
        state_.MySunkCount = add16(state_.MySunkCount, 1);
        sounds_.PlaySound(Sound::Sink);
        speech_.Speak(ship.playerSinkText);
    } else {
        SpeakCell(ship.playerHitText);
    }
}

void PlayerShots::RegisterHit(std::int16_t code) {
    guard_.run(Procedure::RegisterHit, [&] {
        state_.HalOcean.set(state_.MyRow, state_.MyCol, code);
        if (code == CellCode::FiredWater) {
            grid_.setTextMatrix(state_.MyRow, state_.MyCol, kMissMark);
        } else if (const auto ship = shipWithHitCode(code)) {
            grid_.setTextMatrix(state_.MyRow, state_.MyCol, shipInfo(*ship).letter);
        }
        state_.TurnState = kComputersTurn;
    });
}

void PlayerShots::SpeakCell(std::string_view text) {
    guard_.run(Procedure::SpeakCell, [&] {
        speech_.StopSpeech();
        std::string sentence = cellName(state_.MyRow, state_.MyCol);
        sentence += text;
        speech_.Speak(sentence);
    });
}

}  // namespace marivox
