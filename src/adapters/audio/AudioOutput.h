// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace marivox::audio {

// One open stream to a sound device, 16-bit mono at kOutputRate. Only the player's worker
// thread uses it, so its calls may block.
class AudioStream {
  public:
    virtual ~AudioStream() = default;
    // Hands samples over, waiting while the device's buffer is full. False once the device
    // is gone; the stream is then useless.
    virtual bool write(std::span<const std::int16_t> samples) = 0;
    // Nothing more follows for now: whatever was written must be heard even if it is too
    // short to start the device on its own.
    virtual bool endOfSounds() = 0;
    // Waits until everything written has been heard.
    virtual bool drain() = 0;
    // How long until a sample written now is heard: what the device still holds, and its
    // own delay.
    virtual std::chrono::microseconds untilHeard() { return {}; }
};

// Opens a stream, or returns null when no device can be reached. Called on the worker
// thread, so it may take its time.
using AudioConnector = std::function<std::unique_ptr<AudioStream>()>;

}  // namespace marivox::audio
