// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// How quickly a sound is heard and how tightly sounds follow each other, measured against a
// private PulseAudio whose sink is recorded. Figures only.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <thread>
#include <vector>

#include "PrivatePulse.h"
#include "adapters/audio/WavFile.h"
#include "adapters/pulse/PulseOutput.h"

namespace {

using namespace marivox;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Samples = std::vector<std::int16_t>;

Samples generated(const std::string& name) {
    return audio::toMono(
        audio::readWavFile(std::filesystem::path(MARIVOX_PROGRAM_DIR) / (name + ".wav")));
}

std::optional<std::size_t> awaitSound(const test::PrivatePulse& pulse, const Samples& sound,
                                      std::size_t from) {
    for (int i = 0; i < 500; ++i) {
        const Samples recording = pulse.recording();
        if (from < recording.size()) {
            const auto at = std::search(recording.begin() + static_cast<std::ptrdiff_t>(from),
                                        recording.end(), sound.begin(), sound.end());
            if (at != recording.end()) {
                return static_cast<std::size_t>(at - recording.begin());
            }
        }
        std::this_thread::sleep_for(10ms);
    }
    return std::nullopt;
}

double ms(Clock::duration duration) {
    return std::chrono::duration<double, std::milli>(duration).count();
}

double samplesMs(std::size_t samples) {
    return 1000.0 * static_cast<double>(samples) / audio::kOutputRate;
}

struct Figures {
    std::vector<double> values;
    void add(double value) { values.push_back(value); }
    void print(const char* what) {
        if (values.empty()) {
            std::printf("%-44s no data\n", what);
            return;
        }
        std::sort(values.begin(), values.end());
        std::printf("%-44s median %8.3f  min %8.3f  max %8.3f  (n=%zu)\n", what,
                    values[values.size() / 2], values.front(), values.back(), values.size());
    }
};

// The game's side of one sound; returns how long it held the UI thread.
Clock::duration play(audio::StreamWavPlayer& player, const std::string& name) {
    const auto start = Clock::now();
    player.open((std::filesystem::path(MARIVOX_PROGRAM_DIR) / (name + ".wav")).string());
    player.play(0, -1, true);
    player.status();
    player.closeSound();
    return Clock::now() - start;
}

}  // namespace

int main() {
    test::PrivatePulse pulse;
    const Samples shoot = generated("shoot"), hit = generated("hit"), sink = generated("sink");
    Figures call, firstSample, coldFirstSample, gapShootHit, gapHitSink;

    // The first round starts a new player, so its wait includes the connection.
    std::unique_ptr<audio::StreamWavPlayer> player;
    for (int round = 0; round < 8; ++round) {
        const bool cold = round == 0;
        if (cold) {
            player = pulse::makePulseWavPlayer();
        } else {
            std::this_thread::sleep_for(400ms);  // the stream has run dry, as between turns
        }
        const std::size_t mark = pulse.recording().size();
        const auto requested = Clock::now();
        call.add(ms(play(*player, "shoot")) * 1000.0);
        call.add(ms(play(*player, "hit")) * 1000.0);
        call.add(ms(play(*player, "sink")) * 1000.0);
        const auto shootAt = awaitSound(pulse, shoot, mark);
        const auto hitAt = shootAt ? awaitSound(pulse, hit, *shootAt + shoot.size()) : std::nullopt;
        const auto sinkAt = hitAt ? awaitSound(pulse, sink, *hitAt + hit.size()) : std::nullopt;
        if (!shootAt || !hitAt || !sinkAt) {
            std::printf("round %d: the sounds did not all arrive whole\n", round);
            continue;
        }
        (cold ? coldFirstSample : firstSample).add(ms(pulse.arrivalOf(*shootAt) - requested));
        gapShootHit.add(samplesMs(*hitAt - (*shootAt + shoot.size())));
        gapHitSink.add(samplesMs(*sinkAt - (*hitAt + hit.size())));
    }
    player->drainBeforeExit(5s);
    player.reset();
    std::printf("PulseAudio pipe sink, %u Hz mono; arrival = read from the sink's FIFO\n",
                audio::kOutputRate);
    call.print("open+play+status+close on the UI thread (us)");
    coldFirstSample.print("play to first sample, new player (ms)");
    firstSample.print("play to first sample, idle stream (ms)");
    gapShootHit.print("gap shoot -> hit in the recording (ms)");
    gapHitSink.print("gap hit -> sink in the recording (ms)");
    return 0;
}
