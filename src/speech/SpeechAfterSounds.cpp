// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeechAfterSounds.h"

#include <chrono>
#include <utility>

#include "platform/OneShotTimer.h"
#include "platform/WavPlayer.h"

namespace marivox {
namespace {

// Longer than the longest run of sounds the game plays at once (shot, hit, sink).
constexpr auto kLongestWait = std::chrono::milliseconds(5000);

}  // namespace

SpeechAfterSounds::SpeechAfterSounds(Speech& speech, Sounds& sounds, WavPlayer& player,
                                     TimerFactory& timers)
    : speech_(speech),
      sounds_(sounds),
      player_(player),
      bound_(timers.createTimer("tmrSoundsHeard", kLongestWait, [this] { release(); })) {}

SpeechAfterSounds::~SpeechAfterSounds() {
    *alive_ = false;
}

void SpeechAfterSounds::Speak(std::string_view text) {
    if (waiting_) {
        held_.emplace_back(text);
    } else {
        speech_.Speak(text);
    }
}

void SpeechAfterSounds::PlaySound(std::string_view name) {
    sounds_.PlaySound(name);
    const auto sound = ++latestSound_;
    waiting_ = true;
    // Only the notice for the latest sound releases the words: earlier ones are followed
    // by sounds still to begin. The notice may come at once, before this returns.
    player_.whenAcceptedSoundsHeard([this, sound, alive = alive_] {
        if (*alive && sound == latestSound_) {
            release();
        }
    });
    if (waiting_) {
        bound_->switchOff();
        bound_->switchOn();
    }
}

void SpeechAfterSounds::release() {
    if (bound_->isOn()) {
        bound_->switchOff();
    }
    waiting_ = false;
    for (const auto& text : std::exchange(held_, {})) {
        speech_.Speak(text);
    }
}

}  // namespace marivox
