// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "FakeAudioDevice.h"

#include <algorithm>

namespace marivox::test {
namespace {

class FakeStream final : public audio::AudioStream {
  public:
    FakeStream(std::shared_ptr<FakeAudioDevice::State> state, std::size_t index)
        : state_(std::move(state)), index_(index) {}
    ~FakeStream() override {
        edit([](auto& s) { ++s.closes; });
    }

    bool write(std::span<const std::int16_t> samples) override {
        std::unique_lock lock(state_->mutex);
        ++state_->writes;
        state_->changed.notify_all();
        state_->changed.wait(lock, [&] { return state_->gateOpen; });
        auto& received = state_->connections[index_];
        const std::size_t room = state_->breakAfter - std::min(state_->breakAfter, received.size());
        const std::size_t taken = std::min(room, samples.size());
        received.insert(received.end(), samples.begin(), samples.begin() + taken);
        const bool whole = taken == samples.size();
        if (!whole) {
            state_->breakAfter = std::numeric_limits<std::size_t>::max();
        }
        state_->changed.notify_all();
        return whole;
    }
    bool endOfSounds() override {
        return edit([](auto& s) { ++s.ends; });
    }
    bool drain() override {
        return edit([](auto& s) { ++s.drains; });
    }

  private:
    template <typename Edit>
    bool edit(Edit edit) {
        std::lock_guard lock(state_->mutex);
        edit(*state_);
        state_->changed.notify_all();
        return true;
    }

    std::shared_ptr<FakeAudioDevice::State> state_;
    std::size_t index_;
};

}  // namespace

audio::AudioConnector FakeAudioDevice::connector() {
    return [state = state_]() -> std::unique_ptr<audio::AudioStream> {
        std::lock_guard lock(state->mutex);
        ++state->attempts;
        state->changed.notify_all();
        if (!state->available) {
            return nullptr;
        }
        state->connections.emplace_back();
        return std::make_unique<FakeStream>(state, state->connections.size() - 1);
    };
}

}  // namespace marivox::test
