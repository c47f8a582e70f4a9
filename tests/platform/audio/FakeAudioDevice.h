// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <limits>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/audio/AudioOutput.h"

namespace marivox::test {

// A sound device in memory: what each connection was given, in order. A closed gate holds
// writes as a full device buffer would. Its state is shared with the streams, so a player's
// worker left behind after its exit limit never outlives it.
class FakeAudioDevice {
  public:
    struct State {
        std::mutex mutex;
        std::condition_variable changed;
        bool available = true;
        bool gateOpen = true;
        // Samples after which the current connection breaks, as a dying server does.
        std::size_t breakAfter = std::numeric_limits<std::size_t>::max();
        int attempts = 0;
        int writes = 0;  // calls begun, whether the gate let them through or not
        int closes = 0;
        int drains = 0;
        int ends = 0;
        std::vector<std::vector<std::int16_t>> connections;  // what each one received
    };

    FakeAudioDevice() : state_(std::make_shared<State>()) {}
    ~FakeAudioDevice() {
        change([](State& s) { s.gateOpen = true; });
    }

    audio::AudioConnector connector();

    void change(const std::function<void(State&)>& edit) {
        std::lock_guard lock(state_->mutex);
        edit(*state_);
        state_->changed.notify_all();
    }
    // Waits, at most a few seconds, until `done` holds; returns whether it did.
    bool waitUntil(const std::function<bool(const State&)>& done) {
        std::unique_lock lock(state_->mutex);
        return state_->changed.wait_for(lock, std::chrono::seconds(5),
                                        [&] { return done(*state_); });
    }
    template <typename Read>
    auto read(Read read) {
        std::lock_guard lock(state_->mutex);
        return read(*state_);
    }

  private:
    std::shared_ptr<State> state_;
};

}  // namespace marivox::test
