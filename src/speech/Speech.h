// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "speech/SoundFiles.h"

namespace marivox {

// The one way the game speaks. Speak queues after what is being said; StopSpeech silences.
class Speech {
  public:
    virtual ~Speech() = default;
    virtual void Speak(std::string_view text) = 0;
    virtual void StopSpeech() = 0;
    // Drops what waits to be said behind sounds not yet heard. The player's key silences it,
    // as it silences speech; the game's own StopSpeech silences only what is being said, so
    // an announcement never swallows a result still waiting for its sounds.
    virtual void SilenceWaiting() {}
};

// The one way the game plays a sound effect.
class Sounds {
  public:
    virtual ~Sounds() = default;
    virtual void PlaySound(Sound sound) = 0;
};

}  // namespace marivox
