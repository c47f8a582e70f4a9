// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/WavSounds.h"

#include <chrono>
#include <string>

#include "ports/Application.h"
#include "ports/NativePath.h"
#include "ports/Sleeper.h"
#include "ports/WavPlayer.h"
#include "support/Guard.h"

namespace marivox {
namespace {

// A busy output delays a sound; if it stays busy this long (another program holding the
// device for good) the sound is given up silently rather than freezing the game.
constexpr auto kRetryPause = std::chrono::milliseconds(5);
constexpr int kMaxRetries = 600;

}  // namespace

void WavSounds::PlaySound(Sound sound) {
    guard_.run(Procedure::PlaySound, [&] {
        std::string path = application_.programFolder();
        path += sound::name(sound);
        player_.open(nativePath(path));
        player_.play(0, -1, true);
        for (int retry = 0; player_.status() == WavPlayer::kDeviceBusy && retry < kMaxRetries;
             ++retry) {
            sleeper_.sleepFor(kRetryPause);
            player_.play(0, -1, true);
        }
        player_.closeSound();
    });
}

}  // namespace marivox
