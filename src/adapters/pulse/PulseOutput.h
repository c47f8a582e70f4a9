// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "adapters/audio/AudioOutput.h"
#include "adapters/audio/StreamWavPlayer.h"

namespace marivox::pulse {

// Streams to PulseAudio, the sound server of Debian's desktops (or the one PULSE_SERVER
// names), through its simple blocking API.
audio::AudioConnector pulseConnector();

// The game's WAV player on the desktop's sound server.
std::unique_ptr<audio::StreamWavPlayer> makePulseWavPlayer(
    audio::StreamWavPlayer::FailureHandler onFailure = {},
    audio::StreamWavPlayer::Poster post = {});

}  // namespace marivox::pulse
