// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <exception>
#include <functional>
#include <memory>
#include <thread>

#include "adapters/audio/AudioOutput.h"
#include "adapters/audio/SoundCache.h"
#include "ports/WavPlayer.h"

namespace marivox::audio {

struct PlayerLimits {
    // More sound than this already waiting makes play() report the output busy, so a flood
    // of requests delays sounds instead of piling them up.
    std::chrono::milliseconds busyAbove{4000};
    // A device that takes nothing for this long is given up on: what waits is dropped
    // rather than holding the game in its busy retries.
    std::chrono::milliseconds stallAfter{2000};
    // After failing to reach a device, sounds are dropped for this long before the next
    // attempt, so a missing server costs nothing per shot.
    std::chrono::milliseconds retryAfter{2000};
    // An idle stream keeps the desktop's sound device awake; it is closed after this long.
    std::chrono::milliseconds closeIdleAfter{20000};
};

// Plays the game's sounds one after another, each whole, on one long-lived stream that a
// worker thread feeds from a queue. play() only enqueues, so speech that follows a sound is
// never held up by it, and sounds requested back to back are heard back to back. Without a
// device the sounds are dropped and the game goes on in silence.
class StreamWavPlayer final : public WavPlayer {
  public:
    // Told, on the worker thread, of a failure of the player's own while it played.
    using FailureHandler = std::function<void(const std::exception&)>;
    // Hands a call over to the user-interface thread, to run after `delay`; without one,
    // calls run on the worker at once.
    using Poster = std::function<void(std::chrono::microseconds delay, std::function<void()>)>;

    explicit StreamWavPlayer(AudioConnector connector, PlayerLimits limits = {},
                             FailureHandler onFailure = {}, Poster post = {});
    ~StreamWavPlayer() override;
    StreamWavPlayer(const StreamWavPlayer&) = delete;
    StreamWavPlayer& operator=(const StreamWavPlayer&) = delete;

    void open(std::string_view path) override;
    void play(std::int32_t from, std::int32_t to, bool wait) override;
    std::int32_t status() override { return status_; }
    void closeSound() override { current_.reset(); }
    void whenAcceptedSoundsHeard(std::function<void()> then) override;

    // Waits until everything queued has been heard or `limit` has passed, then stops the
    // stream; later requests are accepted and not played. For the program's close, so the
    // closing sound is heard whole.
    void drainBeforeExit(std::chrono::milliseconds limit);

    struct Shared;

  private:
    void stopWorker(std::chrono::milliseconds limit, bool playWhatWaits);

    std::shared_ptr<Shared> shared_;
    std::thread worker_;
    SoundCache cache_;
    std::shared_ptr<const Samples> current_;
    std::int32_t status_ = 0;
};

}  // namespace marivox::audio
