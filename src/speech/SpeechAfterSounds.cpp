// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeechAfterSounds.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "ports/Application.h"
#include "ports/OneShotTimer.h"
#include "ports/WavPlayer.h"
#include "support/ErrorReports.h"

namespace marivox {
namespace {

// Longer than the longest run of sounds the game plays at once (shot, hit, sink and the
// fanfare), counted from the last sound asked for.
constexpr auto kLongestWait = std::chrono::milliseconds(5000);

}  // namespace

SpeechAfterSounds::SpeechAfterSounds(Speech& speech, Sounds& sounds, WavPlayer& player,
                                     TimerFactory& timers, Application& application,
                                     ErrorReports& reports)
    : speech_(speech),
      sounds_(sounds),
      player_(player),
      application_(application),
      reports_(reports),
      bound_(
          timers.createTimer("tmrSoundsHeard", kLongestWait, [this] { heardUpTo(requested_); })) {}

SpeechAfterSounds::~SpeechAfterSounds() {
    *alive_ = false;
}

void SpeechAfterSounds::Speak(std::string_view text) {
    if (begun_ < requested_) {
        held_.push_back({std::string(text), requested_, reports_.speakingReport()});
    } else {
        speech_.Speak(text);
    }
}

void SpeechAfterSounds::PlaySound(Sound sound) {
    sounds_.PlaySound(sound);
    const auto number = ++requested_;
    // The notice may come at once, before this returns.
    player_.whenAcceptedSoundsHeard([this, number, alive = alive_] {
        if (*alive) {
            heardUpTo(number);
        }
    });
    if (begun_ < requested_) {
        bound_->switchOff();
        bound_->switchOn();
    }
}

void SpeechAfterSounds::awaitSoundsHeard() {
    if (const auto last = requested_; begun_ < last) {
        application_.waitUntil([this, last] { return begun_ >= last; });
    }
}

void SpeechAfterSounds::heardUpTo(std::uint64_t sound) {
    begun_ = std::max(begun_, sound);
    if (begun_ >= requested_ && bound_->isOn()) {
        bound_->switchOff();
    }
    // Taken off before it is said: saying it may report a failure, whose box waits here too.
    while (!held_.empty() && held_.front().afterSound <= begun_) {
        const Held next = std::move(held_.front());
        held_.pop_front();
        if (next.reportsOwn) {
            reports_.sayAsReport([&] { speech_.Speak(next.text); });
        } else {
            speech_.Speak(next.text);
        }
    }
}

}  // namespace marivox
