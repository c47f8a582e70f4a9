// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/Speech.h"

namespace marivox {

class Application;
class Guard;
class Sleeper;
class WavPlayer;

// PlaySound: plays one of the program folder's sounds through the game screen's WAV player,
// asking again while the output is busy so that sounds are heard in the order requested.
class WavSounds : public Sounds {
  public:
    WavSounds(WavPlayer& player, Application& application, Sleeper& sleeper, Guard& guard)
        : player_(player), application_(application), sleeper_(sleeper), guard_(guard) {}

    void PlaySound(Sound sound) override;

  private:
    WavPlayer& player_;
    Application& application_;
    Sleeper& sleeper_;
    Guard& guard_;
};

}  // namespace marivox
