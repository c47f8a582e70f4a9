// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>

#include "speech/Speech.h"

namespace marivox {

class Application;
class ErrorReports;
class OneShotTimer;
class TimerFactory;
class WavPlayer;

// The game's speech and sounds as the player hears them: words spoken after sounds wait
// until the sounds asked for before them have begun, so a shot's result never talks over the
// shot, and sounds asked for later never hold them back. Nothing blocks meanwhile; the
// player's key drops the words still waiting, as it silences those being said. A device that
// never starts a sound holds the words a few seconds at most.
class SpeechAfterSounds : public Speech, public Sounds {
  public:
    SpeechAfterSounds(Speech& speech, Sounds& sounds, WavPlayer& player, TimerFactory& timers,
                      Application& application, ErrorReports& reports);
    ~SpeechAfterSounds() override;

    void Speak(std::string_view text) override;
    void StopSpeech() override { speech_.StopSpeech(); }
    void SilenceWaiting() override { held_.clear(); }
    void PlaySound(Sound sound) override;

    // Holds the caller, without taking the player's input, until every sound asked for so far
    // has begun and the words behind them have been said (or the bound has passed). A modal
    // window waits so before it opens: the screen reader reads a window as it appears.
    void awaitSoundsHeard();

  private:
    struct Held {
        std::string text;
        std::uint64_t afterSound;  // the number of the last sound asked for before it
        bool reportsOwn;           // a failure report's own words
    };
    void heardUpTo(std::uint64_t sound);

    Speech& speech_;
    Sounds& sounds_;
    WavPlayer& player_;
    Application& application_;
    ErrorReports& reports_;
    std::unique_ptr<OneShotTimer> bound_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    std::deque<Held> held_;
    std::uint64_t requested_ = 0;  // sounds asked for, counted
    std::uint64_t begun_ = 0;      // of those, the last known to have begun
};

}  // namespace marivox
