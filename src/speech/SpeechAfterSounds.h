// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "speech/Speech.h"

namespace marivox {

class OneShotTimer;
class TimerFactory;
class WavPlayer;

// The game's speech and sounds as the player hears them: words spoken after sounds wait
// until the last of those sounds has begun, so a shot's result never talks over the shot.
// Nothing blocks meanwhile; the player's key drops the words still waiting, as it silences
// those being said. A device that never starts a sound holds the words a few seconds at most.
class SpeechAfterSounds : public Speech, public Sounds {
  public:
    SpeechAfterSounds(Speech& speech, Sounds& sounds, WavPlayer& player, TimerFactory& timers);
    ~SpeechAfterSounds() override;

    void Speak(std::string_view text) override;
    void StopSpeech() override { speech_.StopSpeech(); }
    void SilenceWaiting() override { held_.clear(); }
    void PlaySound(std::string_view name) override;

  private:
    void release();

    Speech& speech_;
    Sounds& sounds_;
    WavPlayer& player_;
    std::unique_ptr<OneShotTimer> bound_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    std::vector<std::string> held_;
    std::uint64_t latestSound_ = 0;
    bool waiting_ = false;
};

}  // namespace marivox
