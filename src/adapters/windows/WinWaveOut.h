// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "adapters/audio/AudioOutput.h"

namespace marivox::windows {

// Streams to the system's wave output device (waveOut): a few short buffers in flight, so a
// sound starts at once and the next follows it without a gap.
audio::AudioConnector waveOutConnector();

}  // namespace marivox::windows
