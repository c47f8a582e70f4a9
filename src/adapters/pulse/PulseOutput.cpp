// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/pulse/PulseOutput.h"

#include <pulse/error.h>
#include <pulse/simple.h>

#include <atomic>
#include <iostream>
#include <vector>

#include "adapters/audio/WavFile.h"
#include "ports/ProgramName.h"

namespace marivox::pulse {
namespace {

using namespace audio;

constexpr std::uint32_t kBytesPerSample = sizeof(std::int16_t);
// How far ahead the worker writes: enough to ride out a busy moment of the machine, and the
// stream's latency follows from it, so not more. 80 ms.
constexpr std::uint32_t kTargetSamples = kOutputRate * 80 / 1000;
// Playback starts once this much has arrived; kept small so a sound begins at once. 10 ms.
constexpr std::uint32_t kStartSamples = kOutputRate * 10 / 1000;

// Only the first failure of a kind is worth a line: the game goes on silently.
void note(const char* what, int code) {
    static std::atomic<int> lastCode{0};
    if (lastCode.exchange(code) != code) {
        std::cerr << kProgramName << ": " << what << ": " << pa_strerror(code) << "\n";
    }
}

class PulseStream final : public AudioStream {
  public:
    explicit PulseStream(pa_simple* stream) : stream_(stream) {}
    ~PulseStream() override { pa_simple_free(stream_); }

    bool write(std::span<const std::int16_t> samples) override {
        sinceEnd_ += samples.size();
        return check(pa_simple_write(stream_, samples.data(), samples.size_bytes(), &code_));
    }

    bool endOfSounds() override {
        // After an underrun the server waits for kStartSamples before playing again; a
        // shorter sound would otherwise wait for the next one.
        const std::size_t missing = sinceEnd_ < kStartSamples ? kStartSamples - sinceEnd_ : 0;
        sinceEnd_ = 0;
        if (missing == 0) {
            return true;
        }
        const std::vector<std::int16_t> silence(missing, 0);
        return check(
            pa_simple_write(stream_, silence.data(), missing * sizeof(std::int16_t), &code_));
    }

    bool drain() override { return check(pa_simple_drain(stream_, &code_)); }

    std::chrono::microseconds untilHeard() override {
        const pa_usec_t latency = pa_simple_get_latency(stream_, &code_);
        return std::chrono::microseconds(latency == static_cast<pa_usec_t>(-1) ? 0 : latency);
    }

  private:
    bool check(int result) {
        if (result < 0) {
            note("the sound server stopped playing", code_);
            return false;
        }
        return true;
    }

    pa_simple* stream_;
    std::size_t sinceEnd_ = 0;
    int code_ = 0;
};

}  // namespace

audio::AudioConnector pulseConnector() {
    return []() -> std::unique_ptr<AudioStream> {
        const pa_sample_spec format{PA_SAMPLE_S16LE, kOutputRate, 1};
        pa_buffer_attr buffer{};
        buffer.maxlength = static_cast<std::uint32_t>(-1);
        buffer.tlength = kTargetSamples * kBytesPerSample;
        buffer.prebuf = kStartSamples * kBytesPerSample;
        buffer.minreq = static_cast<std::uint32_t>(-1);
        buffer.fragsize = static_cast<std::uint32_t>(-1);
        int code = 0;
        pa_simple* stream = pa_simple_new(nullptr, kProgramName, PA_STREAM_PLAYBACK, nullptr,
                                          "Sound effects", &format, nullptr, &buffer, &code);
        if (stream == nullptr) {
            note("no sound server", code);
            return nullptr;
        }
        return std::make_unique<PulseStream>(stream);
    };
}

std::unique_ptr<audio::StreamWavPlayer> makePulseWavPlayer(
    audio::StreamWavPlayer::FailureHandler onFailure, audio::StreamWavPlayer::Poster post) {
    return std::make_unique<audio::StreamWavPlayer>(pulseConnector(), audio::PlayerLimits{},
                                                    std::move(onFailure), std::move(post));
}

}  // namespace marivox::pulse
