// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace marivox {

// The one way the game speaks. Speak queues after what is being said; StopSpeech silences.
class Speech {
  public:
    virtual ~Speech() = default;
    virtual void Speak(std::string_view text) = 0;
    virtual void StopSpeech() = 0;
};

// The one way the game plays a sound effect, named by its file-name text ("\shoot.wav").
class Sounds {
  public:
    virtual ~Sounds() = default;
    virtual void PlaySound(std::string_view name) = 0;
};

}  // namespace marivox
